#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "core/NumberText.h"
#include "design/TestReport.h"
#include "materials/SteelShapes.h"
#include "records/DataSheetBlocks.h"
#include "records/DataSheetCaptions.h"

namespace kordavan {

namespace {

constexpr double LeastShown = 0.01;  // in.

std::string StatusText(std::string_view status)
{
    return status == StatusFail ? "Fails" : std::string(status);
}

/// A deflection too small for its format says so.
std::string SmallOr(double deflection, std::string_view format)
{
    const double size = std::abs(deflection);
    return size > 0 && size < LeastShown ? "<0.01" : FormatNumber(Single(deflection), format);
}

struct Check {
    std::string Critical;
    std::string Actual;
    std::string_view Status;
    std::string Ratio;
};

void FillCheck(const CheckCells& cells, const Check& check, DataSheet& sheet)
{
    sheet[cells.Critical] = check.Critical;
    sheet[cells.Actual] = check.Actual;
    sheet[cells.Status] = StatusText(check.Status);
    sheet[cells.Ratio] = check.Ratio;
}

void FillOverhangChecks(const MemberTestResult& result, const TestReport& report, DataSheet& sheet)
{
    sheet[OverhangCells.Caption] = "OH TL Defl";
    FillCheck(
        OverhangCells,
        {FormatNumber(result.OverhangDeflectionAllowed, "0.#0"),
         SmallOr(std::abs(result.OverhangDeflection), "0.#0"), result.OHDeflStatus, report.OHDeflPercent},
        sheet);
    if (!result.OHLDeflStatus.empty()) {
        sheet[OverhangLiveCells.Caption] = "OH LL Defl";
        FillCheck(OverhangLiveCells,
                  {FormatNumber(result.OverhangLiveDeflectionAllowed, "0.#0"),
                   FormatNumber(std::abs(result.OverhangLiveDeflection), "0.#0"), result.OHLDeflStatus,
                   report.OHLDeflPercent},
                  sheet);
    }
}

/// The span over its deflection. A figure below -1000 in a live load check that fails deliberately reads
/// without its minus.
std::string RatioText(float ratio, float deflection, bool isFailingLive = false)
{
    constexpr float mostShown = 1000;
    if (deflection == 0 || ratio > mostShown) {
        return "L / >1000";
    }
    if (ratio < -mostShown) {
        return isFailingLive ? "L / < 1000" : "L / < -1000";
    }
    return "L / " + FormatNumber(std::abs(ratio), "#,##0");
}

std::string PoundText(double force, std::string_view format)
{
    return FormatNumber(Single(force), format) + " #";
}

std::string SpanCaption(const BeamNumbers& beam)
{
    if (!beam.IsContinuous()) {
        return std::string(BeamSpanCaption);
    }
    return beam.ThreeSpan ? "3 Spans, each at" : "2 Spans, each at";
}

void FillLengths(const Session& session, DataSheet& sheet)
{
    const BeamNumbers& beam = session.Numbers;
    sheet[12] = SpanCaption(beam);
    sheet[61] = FormatNumber(beam.Span, "####.0#");
    if (beam.IsOverhanging()) {
        sheet[130] = "Overhang Length";
        sheet[131] = FormatNumber(beam.Overhang, "###0.0#") + " ft";
    }
    if (beam.IsOverhanging() || beam.IsContinuous()) {
        sheet[140] = "Total Beam Length";
        sheet[141] = FormatNumber(beam.Length(), "####.0#") + " ft";
    }
}

void FillWeight(const Session& session, DataSheet& sheet)
{
    const AnalysisResult& analysis = session.Analysis;
    sheet[143] = session.Numbers.NoWeight ? "0" : FormatNumber(analysis.SelfWeightPlf, "#0.0#");
    sheet[67] = FormatNumber(
        Single(static_cast<double>(session.Numbers.SpanCount()) * analysis.SelfWeightTotal), "###0");
}

void FillReactions(const AnalysisResult& analysis, DataSheet& sheet)
{
    sheet[62] = PoundText(analysis.R1Total, "###0");
    sheet[144] = "Reaction 2 TL";
    sheet[63] = PoundText(analysis.R2Total, "####");
    if (analysis.HasLiveDeflFlag) {
        sheet[51] = "Reaction 1 LL";
        sheet[64] = PoundText(analysis.R1Live, "###0");
        sheet[53] = "Reaction 2 LL";
        sheet[145] = PoundText(analysis.R2Live, "####");
    }
}

}  // namespace

void FillChecks(const Session& session, DataSheet& sheet)
{
    const MemberTestResult& result = session.Member.Result;
    const TestReport report = MakeTestReport(session);
    FillCheck(SectionCells,
              {FormatNumber(result.SectionReq, "####0.00"), FormatNumber(result.SectionProp, "####0.00"),
               result.SecStatus, report.SecPercent},
              sheet);
    FillCheck(ShearCells,
              {FormatNumber(result.AreaReq, "#,##0.00"), FormatNumber(result.AreaProp, "#,##0.00"),
               result.ShearStatus, report.HorPercent},
              sheet);
    FillCheck(TotalDeflectionCells,
              {FormatNumber(result.TotalDeflectionAllowed, "0.00"),
               FormatNumber(std::abs(result.TotalDeflection), "0.00"), result.DeflStatus, report.DeflPercent},
              sheet);
    if (!result.LDeflStatus.empty()) {
        FillCheck(LiveDeflectionCells,
                  {FormatNumber(result.LiveDeflectionAllowed, "0.00"),
                   SmallOr(std::abs(result.LiveDeflection), "0.00"), result.LDeflStatus, report.LDeflPercent},
                  sheet);
    } else {
        sheet[LiveDeflectionCells.Caption].clear();
    }
    if (session.Numbers.IsOverhanging()) {
        FillOverhangChecks(result, report, sheet);
    }
}

void FillSpansAndReactions(const Session& session, DataSheet& sheet)
{
    const BeamNumbers& beam = session.Numbers;
    const AnalysisResult& analysis = session.Analysis;
    FillLengths(session, sheet);
    FillWeight(session, sheet);
    FillReactions(analysis, sheet);
    const float moment = std::max(std::abs(analysis.MaxMomentFtLb), std::abs(analysis.OverhangMomentTotal));
    sheet[65] = FormatNumber(moment, "####");
    sheet[66] = PoundText(analysis.ShearMax, "####");
    sheet[168] = beam.ReduceShear && !beam.IsSteel() ? PoundText(analysis.ShearReduced, "####") : "N/A ";
}

void FillDeflections(const Session& session, DataSheet& sheet)
{
    const AnalysisResult& analysis = session.Analysis;
    const MemberTestResult& result = session.Member.Result;
    sheet[68] = "L / " + session.Problem.MaxDefl;
    sheet[69] = RatioText(analysis.TotalDeflRatio, analysis.TotalDeflIn);
    if (!result.LDeflStatus.empty()) {
        sheet[43] = "LL Max Defl";
        sheet[45] = " L / " + session.Problem.LMaxDefl;
        sheet[44] = "LL Actual Defl";
        sheet[107] = RatioText(analysis.LiveDeflRatio, analysis.LiveDeflIn, result.LDeflStatus == StatusFail);
    }
    if (session.Numbers.IsOverhanging()) {
        sheet[146] = "OH TL Actual Defl";
        sheet[147] = RatioText(analysis.TipDeflRatio, analysis.TipDeflIn);
    }
    if (!result.OHLDeflStatus.empty()) {
        sheet[148] = "OH LL Actual Defl";
        sheet[149] =
            RatioText(analysis.TipLiveDeflRatio, analysis.TipLiveDeflIn, result.OHLDeflStatus == StatusFail);
    }
    sheet[134] = "(" + FormatNumber(result.CreepFactor, "0.0") + ") DL Defl=";
    sheet[135] = SmallOr(result.DeadDeflection, "#0.00") + " in.";
    if (session.Member.Candidate.BreadthKey == BreadthKey::Glulam && !session.Numbers.IsSteel()) {
        constexpr double camberFactor = 1.5;
        sheet[136] = "Recom Camber=";
        const std::string camber = SmallOr(camberFactor * result.DeadDeflection, "0.#0");
        sheet[137] = camber + (camber.front() == '<' ? " in." : " in");
    }
}

void FillBearing(const Session& session, DataSheet& sheet)
{
    const auto fill = [&sheet](std::string_view caption, double r1, double r2, std::string_view unit) {
        sheet[60] = caption;
        sheet[71] = "R1= " + FormatNumber(Single(r1), "##0.0") + std::string(unit);
        sheet[133] = "R2= " + FormatNumber(Single(r2), "##0.0") + std::string(unit);
    };
    constexpr std::string_view area = " in\u00B2";
    if (session.Numbers.IsSteel()) {
        const SteelBearing& bearing = session.Steel.Bearing;
        const bool onWood = IsPlate(session.SteelPicks.Criteria.Family);
        fill(onWood ? "Wood Bearing Area" : BearingLengthCaption, bearing.R1, bearing.R2,
             onWood ? area : std::string_view(" in."));
        return;
    }
    const double FcPerp = session.Member.Adjusted.FcPerpAdj;
    fill(BearingAreaCaption, session.Analysis.R1Total / FcPerp, session.Analysis.R2Total / FcPerp, area);
}

}  // namespace kordavan
