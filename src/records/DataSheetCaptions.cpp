#include "records/DataSheetCaptions.h"

#include <array>

namespace kordavan {

namespace {

struct FixedCaption {
    std::size_t Label;
    std::string_view Text;
    bool IsHiddenBySteel = false;
};

constexpr std::array FixedCaptions{
    FixedCaption{7, "Critical"},
    FixedCaption{8, "Actual"},
    FixedCaption{150, "Status"},
    FixedCaption{151, "Ratio"},
    FixedCaption{9, "Section modulus (in3)"},
    FixedCaption{10, "Shear area (in2)"},
    FixedCaption{11, "TL Defl (in)"},
    FixedCaption{110, "LL Defl"},
    FixedCaption{19, "Fb (psi)"},
    FixedCaption{20, "Fv (psi)"},
    FixedCaption{21, "E (psi x mil)"},
    FixedCaption{108, "Fc-perp (psi)"},
    FixedCaption{22, "Adjusted Values"},
    FixedCaption{30, "Adjustments"},
    FixedCaption{32, "Cd Duration", true},
    FixedCaption{33, "Cr Repetitive", true},
    FixedCaption{47, "Ch  Shear Stress", true},
    FixedCaption{142, "Beam Wt per ft"},
    FixedCaption{52, "Reaction 1 TL"},
    FixedCaption{54, "Max Moment"},
    FixedCaption{55, "Maximum V"},
    FixedCaption{39, "Max V (Reduced)"},
    FixedCaption{56, "Bm Wt Included "},
    FixedCaption{57, "TL Max Defl"},
    FixedCaption{58, "TL Actual Defl"},
    FixedCaption{166, "Loads"},
};

}  // namespace

void FillFixedCaptions(DataSheet& sheet)
{
    for (const FixedCaption& caption : FixedCaptions) {
        sheet[caption.Label] = sheet.IsSteel && caption.IsHiddenBySteel ? std::string_view{} : caption.Text;
    }
}

}  // namespace kordavan
