#include <array>
#include <string>

#include "core/NumberText.h"
#include "materials/SteelShapes.h"
#include "records/DataSheetBlocks.h"

namespace kordavan {

namespace {

constexpr std::string_view SteelFault =
    "An error has occurred entering data in the data record.  Please return to form 1 and try again. Notify "
    "the maker of this program if it occurs again.";
constexpr std::string_view MixedGrades =
    "Error: Both So. Pine AND MEL/MSR machine grades have been selected. Return to the Custom Values form "
    "and select one of them.";
constexpr std::string_view PointBearing =
    "At Point Loads: Provide these minimum bearing lengths in inches or provide web stiffeners.";

/// Where the wet and incised factors of Fb, Fv, E and Fc-perp stand, and those at point loads.
constexpr std::array<std::size_t, 6> PointBearingCells{34, 38, 42, 46, 49, 177};

std::string FeetText(double feet)
{
    return FormatNumber(feet, "####0.0#") + " Ft";
}

void FillSteelValues(const Session& session, DataSheet& sheet)
{
    const SteelTestState& steel = session.Steel;
    sheet[23] = "Ref. Value Fy";
    sheet[24] = sheet[25] = FormatNumber(static_cast<double>(steel.Fy), "####");
    sheet[29] = sheet[28] = FormatNumber(SteelE, "0.0");
    sheet[27] = FormatNumber(steel.FbAllowed, "####");
    sheet[26] = FormatNumber(static_cast<double>(steel.FvAllowed), "####");
    sheet[70] = "Wood Default";
    sheet[167] = "405";
}

std::string ServiceCaption(const Session& session)
{
    if (!IsIncised(session)) {
        return "Cm Wet Use";
    }
    return session.Numbers.Wet ? "Cm Wet+Ci Incised" : "Ci Incised";
}

std::string DurationText(float factor)
{
    return FormatNumber(factor, "#0.00");
}

void FillSizeAndRepetition(const Session& session, DataSheet& sheet)
{
    const MemberTest& member = session.Member;
    const AdjustmentFactors& factors = member.Factors;
    sheet[31] = factors.CvGoverns ? "Cv Volume" : "CF Size Factor";
    sheet[35] = FormatNumber(factors.CvGoverns ? factors.Cv : factors.Cf, "0.000");
    sheet[36] = sheet[40] = DurationText(factors.Cd);
    const bool hasFormFactor = member.Candidate.Round && !IsPre2005(session.Numbers.Nds);
    sheet[33] = hasFormFactor ? "Cf Form Factor" : "Cr Repetitive";
    sheet[37] = FormatNumber(hasFormFactor ? factors.FormFactor : factors.Cr, "0.00");
    if (member.Result.NoSplits) {
        sheet[41] = "2.00";
        sheet[48] = "(No Splits)";
    } else {
        sheet[41] = session.Numbers.Nds == Edition::Nds1997 ? "1.00" : "N/A";
    }
}

void FillService(const Session& session, DataSheet& sheet)
{
    const AdjustmentFactors& factors = session.Member.Factors;
    const auto product = [](double wet, double incised) {
        return FormatNumber(Single(wet * incised), "#0.00#");
    };
    sheet[34] = ServiceCaption(session);
    sheet[38] = product(factors.CmFb, factors.CiFb);
    sheet[42] = product(factors.CmFv, factors.CiFv);
    sheet[46] = product(factors.CmE, factors.CiE);
    sheet[49] = product(factors.CmFcPerp, 1);
}

std::string StabilityLine(const SlendernessResult& slenderness, Edition edition)
{
    std::string line = "     Le = " + FormatNumber(slenderness.LeIn / InchesPerFoot, "#0.00") + " Ft";
    line += "  Rb = " + FormatNumber(slenderness.Rb, "#0.00");
    if (IsPre2005(edition)) {
        line += "    Kbe = " + FormatNumber(slenderness.KbE, "#0.0##");
    }
    return line;
}

void FillStability(const Session& session, DataSheet& sheet)
{
    const BeamNumbers& beam = session.Numbers;
    const MemberTest& member = session.Member;
    sheet[188] = "Cl Stability";
    sheet[190] = FormatNumber(member.Factors.CL, "#0.0000");
    sheet[192] = StabilityLine(member.Stability.Span, beam.Nds);
    sheet[173] = "Lu = " + FeetText(beam.UBL);
    if (beam.IsOverhanging()) {
        sheet[189] = "Cl Stability @ OH";
        sheet[191] = FormatNumber(member.Factors.CLOverhang, "#0.0000");
        sheet[193] = StabilityLine(member.Stability.Overhang, beam.Nds);
        sheet[174] = "Lu @OH = " + FeetText(beam.CantUBL);
    }
}

std::string OwnValuesNote(const Session& session)
{
    const OwnGrading& grading = session.Member.Grading;
    if (grading.SoPine) {
        return "USER'S SO. PINE REF VALUES";
    }
    if (grading.Mel) {
        return "USER'S M.E.L. REF VALUES";
    }
    return grading.Msr ? "USER'S M.S.R. REF VALUES" : "USER'S CUSTOM REF VALUES";
}

/// A member too slender says so, whoever its values are from.
void FillNote(const Session& session, UserPort& user, DataSheet& sheet)
{
    const OwnGrading& grading = session.Member.Grading;
    const bool isCustom = session.Numbers.Group == SpeciesGroup::Custom;
    if (isCustom && grading.SoPine + grading.Mel + grading.Msr > 1) {
        user.Tell(Alert(MixedGrades));
    }
    const StabilityResult& stability = session.Member.Stability;
    if (stability.Span.RbOver50 || stability.Overhang.RbOver50) {
        sheet[194] = "FAILURE: Rb > 50!";
    } else if (HasOwnValues(session.Numbers.Group)) {
        sheet[194] = OwnValuesNote(session);
    }
}

/// The part of the yield point that bending is allowed.
void FillYieldFactor(const Session& session, UserPort& user, DataSheet& sheet)
{
    const SteelTestState& steel = session.Steel;
    if (steel.LcApplies == steel.LuApplies) {
        sheet[31] = sheet[35] = "error";
        user.Tell(Alert(SteelFault));
        return;
    }
    const bool isTube = session.SteelPicks.Criteria.Family == SteelFamily::Tube;
    if (isTube) {
        sheet[31] = "YP Factor";
    } else {
        sheet[31] = steel.LcApplies ? "YP Factor, Lc" : "YP Factor, Lu";
    }
    sheet[35] = steel.LcApplies && !isTube ? "0.66" : "0.60";
    sheet[175] = "0.40";
}

void FillPointBearing(const Session& session, DataSheet& sheet)
{
    for (std::size_t k = 0; k < PointSlotCount; ++k) {
        const float length = session.Steel.Bearing.AtPoints[k];
        if (length > 0) {
            const std::string letter(1, static_cast<char>('B' + k));
            const std::string_view margin = k == 0 ? "      " : "";
            sheet[PointBearingCells[k]] =
                std::string(margin) + letter + " = " + FormatNumber(length, "##0.0");
            sheet[176] = PointBearing;
        }
    }
}

void FillSteelSupport(const Session& session, DataSheet& sheet)
{
    const SteelFamily family = session.SteelPicks.Criteria.Family;
    if (family == SteelFamily::Tube) {
        sheet[173] = "Lateral Support:";
        sheet[174] = "@ Bearing Points";
    } else if (IsPlate(family)) {
        sheet[173] = "Top Load Only +";
        sheet[174] = "Full Lat. Bracing";
    } else {
        sheet[173] = "Lateral Support:";
        sheet[174] = session.Steel.MaxUnbracedText + " max.";
    }
}

}  // namespace

void FillReferenceValues(const Session& session, DataSheet& sheet)
{
    if (session.Numbers.IsSteel()) {
        FillSteelValues(session, sheet);
        return;
    }
    const DesignValues& values = session.Member.Values;
    const AdjustedValues& adjusted = session.Member.Adjusted;
    sheet[23] = "Reference Values";
    sheet[24] = FormatNumber(values.Fb, "####");
    sheet[25] = FormatNumber(values.Fv, "####");
    sheet[29] = FormatNumber(values.E, "0.0");
    sheet[27] = FormatNumber(adjusted.FbAdj, "####");
    sheet[26] = FormatNumber(session.Member.Result.FvAdj, "####");
    sheet[28] = FormatNumber(adjusted.EAdj, "0.0");
    sheet[70] = FormatNumber(adjusted.FcPerpAdj, "####");
    sheet[167] = FormatNumber(static_cast<double>(values.FcPerp), "###");
}

void FillFactors(const Session& session, UserPort& user, DataSheet& sheet)
{
    if (session.Numbers.IsSteel()) {
        FillYieldFactor(session, user, sheet);
        FillPointBearing(session, sheet);
        FillSteelSupport(session, sheet);
        return;
    }
    FillSizeAndRepetition(session, sheet);
    FillService(session, sheet);
    FillStability(session, sheet);
    FillNote(session, user, sheet);
}

}  // namespace kordavan
