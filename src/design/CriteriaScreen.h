#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Which load tables stand on the criteria form beside the uniform load.
enum class LoadTables { PointAndPartial, HipValley, MultipleSpans };

/// A button that takes live loads out or puts them back.
struct UnbalanceButton {
    std::string_view Caption;
    bool IsPressed = false;
    bool IsEnabled = true;
};

/// What the criteria form shows of a session besides the entries themselves.
struct CriteriaScreen {
    std::string Title;
    std::string SavePanel;
    bool HasRecord = false;  // the member chosen last can be shown on its Data Record
    std::string_view UBLlabel;
    std::string_view UnbracedUnit;  // of an overhanging beam with the part that it stands for
    bool HasUnbracedLength = true;  // the box may be typed in
    bool HasOverhang = false;
    bool HasSteel = false;    // family and grade are chosen
    bool HasIncising = true;  // lumber that may be incised
    UnbalanceButton UBSpan;
    UnbalanceButton UBOH;
    LoadTables Tables = LoadTables::PointAndPartial;
    std::string_view PLFspin;           // what the uniform load is called
    bool CanCalculateHipLoad = false;   // the tool has not grown the loads already
    bool MustCalculateHipLoad = false;  // there is no equivalent load yet
    bool IsMultiplied = false;          // the loads are as the uniform calculator left them
    std::string_view EqualReactions;    // of multiple spans
};

CriteriaScreen DescribeCriteriaScreen(const Session& session);

/// What an edit of the person's brings with it: the selection on record is withdrawn, no spacing is chosen
/// without repetitive use, and the equivalent load of a hip or valley goes when one of its entries changes.
/// @param box  the edited box, such as "IncTL" or "Areas[2]"
void EntryEdited(Session& session, std::string_view box);

/// A command of the person's that changes the session, or is refused.
using SessionChange = std::function<Outcome(Session&, UserPort&)>;

/// Makes a change of the entries; the selection on record is withdrawn where they differ after it.
Outcome ChangeEntries(Session& session, UserPort& user, const SessionChange& change);

}  // namespace kordavan
