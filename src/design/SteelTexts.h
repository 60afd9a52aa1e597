#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "design/Session.h"

namespace kordavan {

/// Texts of the steel selection screen beside its candidates.
struct SteelSelectionTexts {
    std::string_view Label4;          // what the parts of a size text are
    std::string_view StlFormatLabel;  // an example of one
    std::string_view Label6;          // the family
    std::string StlMoment;            // of the applied loads, as the reactions
    std::string StlReac1;
    std::string StlReac2;
    std::string StlStatis;  // the member chosen last, or that no shape passes
    std::string StlPanel;   // how the shapes are braced
};

SteelSelectionTexts MakeSteelSelectionTexts(const Session& session);

/// The figures of a candidate in words, for those who do not see its line.
std::string DescribeSlot(const SteelSlot& slot);

/// The names of the family that have a section, for the list of the database.
std::vector<std::string_view> SteelDatabase(SteelFamily family);

/// Grade and family of the shape on the report.
std::string_view SteelGradeText(const SteelCriteria& criteria);

/// How the shape tested last must be braced.
std::string SteelModifiersText(const SteelCriteria& criteria, const SteelTestState& state);

namespace SteelScreenTexts {
inline constexpr std::string_view Testing = "Testing shear and deflection, one moment please...";
inline constexpr std::string_view DatabaseTitle = "Kordavan Steel Database";
inline constexpr std::string_view UnbracedHelp =
    "Lc and Lu lengths:\n\n"
    "W and S shapes are tested for the bonus of unbraced lengths less than Lc where Fb can be taken at "
    "0.66Fy.  The Fb for shapes with unbraced lengths between Lc and Lu is taken at 0.60Fy.  All C shapes "
    "(Channels) are evaluated to Lu only and Fb is taken at 0.60Fy.  T Shapes (Tubes) all have depths less "
    "than 6 times their width and lateral bracing (except at supports) is not required.  Lateral unsupported "
    "length is evaluated up to the maximum Lu, as the special analysis for unbraced lengths beyond Lu is "
    "beyond the scope of Kordavan.\n\n"
    "Section and shear percentages are the Actual beam properties divided by the Critical properties.  A "
    "percentage over 100% indicates an unacceptable ratio.";
inline constexpr std::string_view FormatHelp =
    "Click a quick pick, or type a size in exactly the same format, with its spaces and an 'x' behind each "
    "number but the last.  Any size of the Kordavan database may be entered.\n\n"
    "W 10x 22    'Depth x Weight'\n"
    "S 12x 40.8    'Depth x Weight'\n"
    "C 8x 13.75    'Depth x Weight'\n"
    "T 7x 5x 3/8    'Depth x Width x Thickness'\n"
    "(2) PL 9x 1/2  '(Quantity > 1) x Depth x Thickness'";
}  // namespace SteelScreenTexts

}  // namespace kordavan
