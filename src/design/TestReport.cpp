#include "design/TestReport.h"

#include <algorithm>
#include <cmath>

#include "core/NumberText.h"
#include "core/SizeText.h"
#include "design/ReportNotes.h"
#include "design/SteelTexts.h"

namespace kordavan {

namespace {

constexpr std::string_view SectionFormat = "#,##0.00";
constexpr std::string_view DeflectionFormat = "0.#0";
constexpr std::string_view OverhangFormat = "0.00";

/// What is used over what is allowed, in whole per cent, rounded: a member just over its limit shows "100%".
std::string PercentText(double used, double allowed)
{
    return allowed == 0 ? std::string{} : FormatNumber(Single(100 * used / allowed), "#0") + "%";
}

/// The four texts of a row, by their places in the report.
struct ReportRow {
    std::string& Critical;
    std::string& Actual;
    std::string& Status;
    std::string& Percent;
};

struct DeflectionRow {
    float Allowed;
    float Deflection;
    std::string_view Status;
    std::string_view Format;
};

void FillDeflection(const DeflectionRow& row, const ReportRow& texts)
{
    if (row.Status.empty()) {
        return;
    }
    texts.Critical = FormatNumber(row.Allowed, row.Format);
    texts.Actual = FormatNumber(row.Deflection, row.Format);
    texts.Status = row.Status;
    texts.Percent = PercentText(std::abs(row.Deflection), row.Allowed);
}

void FillStrength(const MemberTestResult& result, TestReport& report)
{
    report.SectionReq = FormatNumber(result.SectionReq, SectionFormat);
    report.SectionProp = FormatNumber(result.SectionProp, SectionFormat);
    report.SecStatus = result.SecStatus;
    report.SecPercent = PercentText(result.SectionReq, result.SectionProp);
    report.ShearReq = result.AreaReq < 0 ? std::string{} : FormatNumber(result.AreaReq, SectionFormat);
    report.ShearProp = FormatNumber(result.AreaProp, SectionFormat);
    report.ShearStatus = result.ShearStatus;
    report.HorPercent = PercentText(result.ActualShearStress, result.FvAdj);
}

void FillDeflections(const MemberTestResult& result, TestReport& report)
{
    FillDeflection(
        {result.TotalDeflectionAllowed, result.TotalDeflection, result.DeflStatus, DeflectionFormat},
        {report.DeflReq, report.DeflProp, report.DeflStatus, report.DeflPercent});
    FillDeflection(
        {result.LiveDeflectionAllowed, result.LiveDeflection, result.LDeflStatus, DeflectionFormat},
        {report.LDeflReq, report.LDeflProp, report.LDeflStatus, report.LDeflPercent});
    FillDeflection(
        {result.OverhangDeflectionAllowed, result.OverhangDeflection, result.OHDeflStatus, OverhangFormat},
        {report.OHDeflReq, report.OHDeflProp, report.OHDeflStatus, report.OHDeflPercent});
    FillDeflection({result.OverhangLiveDeflectionAllowed, result.OverhangLiveDeflection, result.OHLDeflStatus,
                    OverhangFormat},
                   {report.OHLDeflReq, report.OHLDeflProp, report.OHLDeflStatus, report.OHLDeflPercent});
}

std::string GradeText(Edition edition)
{
    if (edition == Edition::None) {
        return {};
    }
    std::string text = "NDS ";
    text += EditionYear(edition);
    return text + " Values";
}

std::string ActualSizeText(const MemberCandidate& member)
{
    const std::string size = member.Round ? InchesText(member.D) + " in. round"
                                          : InchesText(member.B) + " x " + InchesText(member.D);
    return "Actual Size is  " + size;
}

void FillWood(const ReportSource& source, TestReport& report)
{
    report.GradeLabel = GradeText(source.Beam.Nds);
    report.Modifiers = ModifiersText(source);
    report.SmallChoice = SmallChoiceText(source);
    report.Label5 = ActualSizeText(source.Member.Candidate);
}

void FillSteel(const Session& session, TestReport& report)
{
    const SteelCriteria& criteria = session.SteelPicks.Criteria;
    report.GradeLabel = SteelGradeText(criteria);
    report.Modifiers = SteelModifiersText(criteria, session.Steel);
    report.Label5 = "Actual Size is  ";
    report.Label5 += session.Steel.ActualSizeBreadth;
    report.Label5 += " x ";
    report.Label5 += session.Steel.ActualSizeDepth;
}

void FillCaptions(TestReport& report)
{
    report.Label7 = "Section";
    report.Label8 = "Shear";
    report.Label9 = "Total load deflection";
    report.Label12 = "Live load deflection";
    report.Label13 = "Overhang total";
    report.Label14 = "Overhang live";
}

}  // namespace

std::string TestedMemberText(const Session& session)
{
    return session.Numbers.IsSteel() ? std::string(session.Steel.ShapeName)
                                     : DisplayChoiceText(session.Member.Candidate);
}

TestReport MakeTestReport(const Session& session)
{
    const BeamNumbers& beam = session.Numbers;
    const MemberTest& member = session.Member;
    const ReportSource source{
        .Problem = session.Problem, .Beam = beam, .Analysis = session.Analysis, .Member = member};
    TestReport report;
    report.DisplayChoice = TestedMemberText(session);
    if (beam.IsSteel()) {
        FillSteel(session, report);
    } else {
        FillWood(source, report);
    }
    FillStrength(member.Result, report);
    FillDeflections(member.Result, report);
    report.NoSplitLabel = NoSplitText(member.Result);
    report.DeadDefl = DeadDeflectionText(source);
    report.DeflTooHigh = LargeDeflectionText(member.Result);
    report.Unbalancedlabel = UnbalancedText(beam);
    report.Label6 = LiveDeflectionLine(source);
    report.Label10 = ReactionsLine(session.Analysis);
    report.Label11 = TotalDeflectionLine(source);
    report.Label15 = LiveReactionsLine(session.Analysis);
    FillCaptions(report);
    return report;
}

std::string_view OverallText(const MemberTestResult& result)
{
    return result.NoSplits && result.Overall.empty() ? "OK with NO SPLITS" : result.Overall;
}

std::optional<double> RatioOf(std::string_view percentText)
{
    constexpr double whole = 100;
    return percentText.empty() ? std::nullopt : std::optional(Val(percentText) / whole);
}

}  // namespace kordavan
