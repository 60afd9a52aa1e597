#pragma once

#include <string_view>

namespace kordavan {

/// What a help button says: its button, a short topic for menus, and the text.
struct HelpText {
    std::string_view Button;
    std::string_view Topic;
    std::string_view Text;
};

/// The help text of a button of the criteria form; none for buttons that open a diagram.
const HelpText* FindCriteriaHelp(std::string_view button);

namespace HelpTexts {
extern const HelpText QuickPickWidths;
extern const HelpText GlulamBeams;
extern const HelpText UnbalancedLoads;
extern const HelpText ReadingTheReport;
}  // namespace HelpTexts

}  // namespace kordavan
