#include "core/CriteriaFields.h"

#include <algorithm>

namespace kordavan {

namespace {

constexpr std::array Fields{
    CriteriaField{"Areas", &LoadSet::Areas},
    CriteriaField{"BEGP", &LoadSet::BEGP},
    CriteriaField{"CFbutton", SteelFamily::C},
    CriteriaField{"CalctheSpan", &LoadSet::CalctheSpan},
    CriteriaField{"CantUBLtext", &BeamProblem::CantUBLtext},
    CriteriaField{"Combo1", MaterialGroup{}},
    CriteriaField{"Ctr0", RepetitiveSpacing::Ctr0},
    CriteriaField{"Ctr12", RepetitiveSpacing::Ctr12},
    CriteriaField{"Ctr16", RepetitiveSpacing::Ctr16},
    CriteriaField{"Ctr19", RepetitiveSpacing::Ctr19},
    CriteriaField{"DIS", &LoadSet::DIS},
    CriteriaField{"DblPLbutton", SteelFamily::DoublePlate},
    CriteriaField{"DepCombo", &BeamProblem::DepCombo},
    CriteriaField{"Descrip", &BeamProblem::Descrip},
    CriteriaField{"Dur", &BeamProblem::Dur},
    CriteriaField{"ENDP", &LoadSet::ENDP},
    CriteriaField{"ID", &BeamProblem::ID},
    CriteriaField{"INGRADE", &BeamProblem::INGRADE},
    CriteriaField{"IncButton", SupportCondition::HipValley},
    CriteriaField{"IncLL", &LoadSet::IncLL},
    CriteriaField{"IncTL", &LoadSet::IncTL},
    CriteriaField{"IncUnifLL", &LoadSet::IncUnifLL},
    CriteriaField{"IncUnifTL", &LoadSet::IncUnifTL},
    CriteriaField{"Incised", &BeamProblem::Incised},
    CriteriaField{"LMaxDefl", &BeamProblem::LMaxDefl},
    CriteriaField{"LPAR", &LoadSet::LPAR},
    CriteriaField{"LPSF", &LoadSet::LPSF},
    CriteriaField{"LPT", &LoadSet::LPT},
    CriteriaField{"LUNIF", &LoadSet::LUNIF},
    CriteriaField{"MCbutton", SteelFamily::MC},
    CriteriaField{"MaxDefl", &BeamProblem::MaxDefl},
    CriteriaField{"Multibutton", SupportCondition::MultipleSpans},
    CriteriaField{"NoWeight", &BeamProblem::NoWeight},
    CriteriaField{"OHbutton", SupportCondition::Overhanging},
    CriteriaField{"PAR", &LoadSet::PAR},
    CriteriaField{"PLbutton", SteelFamily::Plate},
    CriteriaField{"PSF", &LoadSet::PSF},
    CriteriaField{"PT", &LoadSet::PT},
    CriteriaField{"Pitchtext", &BeamProblem::Pitchtext},
    CriteriaField{"Proj", &BeamProblem::Proj},
    CriteriaField{"Reducechk", &BeamProblem::Reducechk},
    CriteriaField{"Rep", &BeamProblem::Rep},
    CriteriaField{"Roofbutton", &BeamProblem::Roofbutton},
    CriteriaField{"SFbutton", SteelFamily::S},
    CriteriaField{"SimpleSpanbutton", SupportCondition::SimpleSpan},
    CriteriaField{"Span", &BeamProblem::Span},
    CriteriaField{"TUbutton", SteelFamily::Tube},
    CriteriaField{"Text1", &LoadSet::Text1},
    CriteriaField{"Text2", &LoadSet::Text2},
    CriteriaField{"ThreeSpan", SpanFlag::ThreeSpan},
    CriteriaField{"Trib1", &LoadSet::Trib1},
    CriteriaField{"Trib2", &LoadSet::Trib2},
    CriteriaField{"TribPSF", &LoadSet::TribPSF},
    CriteriaField{"Tribute", &LoadSet::Tribute},
    CriteriaField{"TwoSpan", SpanFlag::TwoSpan},
    CriteriaField{"UBLtext", &BeamProblem::UBLtext},
    CriteriaField{"UNIF", &LoadSet::UNIF},
    CriteriaField{"WFbutton", SteelFamily::W},
    CriteriaField{"Wet", &BeamProblem::Wet},
    CriteriaField{"ctr24", RepetitiveSpacing::Ctr24},
    CriteriaField{"ksi50", &BeamProblem::ksi50},
};

constexpr bool NameStandsBefore(const CriteriaField& field, std::string_view name)
{
    return field.Name < name;
}
static_assert(std::is_sorted(Fields.begin(), Fields.end(),
                             [](const CriteriaField& a, const CriteriaField& b) { return a.Name < b.Name; }));

}  // namespace

std::span<const CriteriaField> CriteriaFields()
{
    return Fields;
}

const CriteriaField* FindCriteriaField(std::string_view name)
{
    const auto* const found = std::lower_bound(Fields.begin(), Fields.end(), name, NameStandsBefore);
    return found != Fields.end() && found->Name == name ? found : nullptr;
}

}  // namespace kordavan
