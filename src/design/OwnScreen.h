#pragma once

#include <string>
#include <string_view>

#include "design/Session.h"

namespace kordavan {

/// What the screen for values of the user's own shows besides the entries: one face for composite lumber, one
/// for custom wood.
struct OwnScreen {
    std::string_view Title;
    bool IsComposite = false;
    std::string_view LVLname;    // the maker's line of the product
    std::string_view boisenote;  // of the product that it belongs to
    bool HasName = false;        // maker and grade, or species and grade, are typed
    std::string_view NameCaption;
    bool HasExponent = false;       // of the size factor
    bool IsRound = false;           // a diameter stands in place of breadth and depth
    bool HasLaminations = false;    // glulams may have those of Southern Pine
    std::string_view Label20;       // how to type a size, where nothing is offered
    std::string_view Moresizes;     // that there are more depths than buttons
    std::string_view GradeWarning;  // values that contradict one another
    std::string DurationText;       // the factor in force, of a round member
};

OwnScreen DescribeOwnScreen(const Session& session);

}  // namespace kordavan
