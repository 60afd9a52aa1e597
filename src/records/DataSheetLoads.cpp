#include <string>

#include "core/NumberText.h"
#include "records/DataSheetBlocks.h"

namespace kordavan {

namespace {

constexpr std::string_view Place = "##0.0#";
constexpr std::string_view Load = "####";

/// The letter of a load's row before it.
std::string Lettered(char letter, double load, bool isOnOverhang)
{
    std::string text(1, letter);
    text += " = " + FormatNumber(load, Load);
    return isOnOverhang ? text + "  (OH)" : text;
}

/// A start at the support may be held as a distance too small to matter.
std::string PlaceText(double feet)
{
    constexpr double atSupport = 0.0001;
    return Single(feet) <= Single(atSupport) ? "0" : FormatNumber(feet, Place);
}

void FillUniform(const Session& session, DataSheet& sheet)
{
    const BeamNumbers& beam = session.Numbers;
    if (beam.Support == SupportCondition::HipValley) {
        sheet[72] = sheet[117] = "Increasing";
        sheet[73] = "TL = " + FormatNumber(beam.IncreasingTotalLoad, Load);
        sheet[118] = "LL = " + FormatNumber(beam.IncreasingLiveLoad, Load);
        return;
    }
    sheet[72] = "Uniform TL:";
    sheet[117] = "Uniform LL:";
    if (beam.Loads.UNIF != 0) {
        sheet[73] = FormatNumber(beam.Loads.UNIF, Load) + "  = A";
    }
    sheet[118] = FormatNumber(beam.Loads.LUNIF, Load);
}

void FillPoints(const BeamNumbers& beam, DataSheet& sheet)
{
    sheet[77] = "Point TL";
    sheet[78] = "Distance";
    sheet[115] = "Point LL";
    for (std::size_t k = 0; k < PointSlotCount; ++k) {
        if (beam.Loads.PT[k] != 0) {
            const bool isOnOverhang = beam.IsOverhanging() && k >= FirstOverhangPoint;
            sheet[79 + k] = Lettered(static_cast<char>('B' + k), beam.Loads.PT[k], isOnOverhang);
            sheet[85 + k] = FormatNumber(beam.Loads.DIS[k], Place);
            sheet[119 + k] = FormatNumber(beam.Loads.LPT[k], Load);
        }
    }
}

void FillPartials(const BeamNumbers& beam, DataSheet& sheet)
{
    sheet[74] = "Par Unif TL";
    sheet[75] = "Start";
    sheet[76] = "End";
    sheet[116] = "Par Unif LL";
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        if (beam.Loads.PAR[k] != 0) {
            const bool isOnOverhang = beam.IsOverhanging() && k >= FirstOverhangPartial;
            sheet[91 + k] = Lettered(static_cast<char>('H' + k), beam.Loads.PAR[k], isOnOverhang);
            sheet[96 + k] = PlaceText(beam.Loads.BEGP[k]);
            sheet[101 + k] = FormatNumber(beam.Loads.ENDP[k], Place);
            sheet[125 + k] = FormatNumber(beam.Loads.LPAR[k], Load);
        }
    }
}

}  // namespace

void FillLoads(const Session& session, DataSheet& sheet)
{
    FillUniform(session, sheet);
    FillPoints(session.Numbers, sheet);
    FillPartials(session.Numbers, sheet);
    if (session.Unbalanced.Overhang) {
        sheet[170] = "(Uniform Ld on Backspan)";
    }
}

}  // namespace kordavan
