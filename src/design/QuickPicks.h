#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/Message.h"
#include "design/Pretest.h"
#include "design/Session.h"

namespace kordavan {

inline constexpr std::size_t QuickPickCount = 24;

struct QuickPick {
    std::string_view BreadthText;
    std::string_view SpeciesText;
    std::string DepthText;  // empty where there is none to offer
    PickState State = PickState::NonePasses;
};

using QuickPicks = std::array<QuickPick, QuickPickCount>;

/// How a screen shows a quick pick.
struct PickFace {
    std::string Name;      // the whole member; of an empty cell its breadth and species
    std::string Tip;       // what to know before picking it, or why it is empty
    bool IsFaded = false;  // repetitive use is asked for, which the test will not grant it
};

PickFace FaceOf(const QuickPick& pick, SizeFamily family, bool isRepetitive);

/// True when the pick is the member in the size boxes.
bool IsEntered(const QuickPick& pick, const MemberEntry& entry);

/// The cells of a species group in their order: No. 2 and No. 1 rows of its two species, then the glulams.
/// Overhanging and continuous beams take the balanced glulam.
QuickPicks QuickPickCells(const BeamNumbers& beam);

/// Fills each cell with the smallest depth that passes every check of the analysed beam.
///
/// Bending alone gives a first estimate, rounded to a ladder of depths; from there the real test walks down
/// while the next smaller size passes, and up while the test fails. The member tested before stays that of
/// the session; only the flag of lowered Southern Pine values is left as the last cell leaves it.
QuickPicks FindQuickPicks(Session& session, UserPort& user);

/// Texts of the selection screen beside its cells.
struct SelectionTexts {
    std::string LabelINGRADE;
    std::string MOMENT;
    std::string Reac1;
    std::string Reac2;
    std::array<std::string_view, 5> GlulamHeads;  // Label13 to Label17
    std::string RepQualify;                       // empty without repetitive use
    std::string WoodStatisPanel;
};

SelectionTexts MakeSelectionTexts(const Session& session);

namespace SelectionScreenTexts {
inline constexpr std::string_view Pretesting = "Pretesting shear and deflection, one moment please...";
inline constexpr std::string_view MustBeTested =
    "Your selection must always be tested. Make your selection and click OK Test.";
inline constexpr std::string_view RepQualify =
    "Glu-lams and 6x's do not qualify for the 'repetitive use' modifier.";
}  // namespace SelectionScreenTexts

}  // namespace kordavan
