#include "batch/BeamAnswer.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

#include "batch/FloatFields.h"
#include "core/CriteriaFields.h"
#include "core/EntryRules.h"
#include "core/NumberText.h"
#include "design/TestReport.h"

namespace kordavan {

namespace {

using AnalysisField = FloatMember<AnalysisResult>;

constexpr std::array AppliedLoadFields{
    AnalysisField{"PointTotalSum", &AnalysisResult::PointTotalSum},
    AnalysisField{"PointLiveSum", &AnalysisResult::PointLiveSum},
    AnalysisField{"PartialTotalSum", &AnalysisResult::PartialTotalSum},
    AnalysisField{"PartialLiveSum", &AnalysisResult::PartialLiveSum},
    AnalysisField{"TotalAppliedLoad", &AnalysisResult::TotalAppliedLoad},
    AnalysisField{"TotalAppliedLive", &AnalysisResult::TotalAppliedLive},
    AnalysisField{"R1Applied", &AnalysisResult::R1Applied},
    AnalysisField{"R2Applied", &AnalysisResult::R2Applied},
    AnalysisField{"R1Live", &AnalysisResult::R1Live},
    AnalysisField{"R2Live", &AnalysisResult::R2Live},
    AnalysisField{"MaxMomentStation", &AnalysisResult::MaxMomentStation},
    AnalysisField{"MaxMomentAtFt", &AnalysisResult::MaxMomentAtFt},
    AnalysisField{"MaxMomentApplied", &AnalysisResult::MaxMomentApplied},
    AnalysisField{"InflectionFt", &AnalysisResult::InflectionFt},
    AnalysisField{"OverhangFt", &AnalysisResult::OverhangFt},
    AnalysisField{"OverhangLoadSum", &AnalysisResult::OverhangLoadSum},
    AnalysisField{"OverhangMomentApplied", &AnalysisResult::OverhangMomentApplied},
    AnalysisField{"IncreasingTotalLoad", &AnalysisResult::IncreasingTotalLoad},
    AnalysisField{"IncreasingLiveLoad", &AnalysisResult::IncreasingLiveLoad},
};

constexpr std::array CandidateFields{
    AnalysisField{"SelfWeightPlf", &AnalysisResult::SelfWeightPlf},
    AnalysisField{"SelfWeightTotal", &AnalysisResult::SelfWeightTotal},
    AnalysisField{"R1Total", &AnalysisResult::R1Total},
    AnalysisField{"R2Total", &AnalysisResult::R2Total},
    AnalysisField{"TotalLoadWithSelf", &AnalysisResult::TotalLoadWithSelf},
    AnalysisField{"MaxMomentFtLb", &AnalysisResult::MaxMomentFtLb},
    AnalysisField{"OverhangMomentTotal", &AnalysisResult::OverhangMomentTotal},
    AnalysisField{"SectionRequired", &AnalysisResult::SectionRequired},
    AnalysisField{"ShearMax", &AnalysisResult::ShearMax},
    AnalysisField{"ShearReduced", &AnalysisResult::ShearReduced},
    AnalysisField{"ShearStressActual", &AnalysisResult::ShearStressActual},
    AnalysisField{"AreaRequired", &AnalysisResult::AreaRequired},
    AnalysisField{"TotalDeflIn", &AnalysisResult::TotalDeflIn},
    AnalysisField{"LiveDeflIn", &AnalysisResult::LiveDeflIn},
    AnalysisField{"DeadDeflIn", &AnalysisResult::DeadDeflIn},
    AnalysisField{"AllowTotalDeflIn", &AnalysisResult::AllowTotalDeflIn},
    AnalysisField{"AllowLiveDeflIn", &AnalysisResult::AllowLiveDeflIn},
    AnalysisField{"TotalDeflRatio", &AnalysisResult::TotalDeflRatio},
    AnalysisField{"LiveDeflRatio", &AnalysisResult::LiveDeflRatio},
    AnalysisField{"TipDeflIn", &AnalysisResult::TipDeflIn},
    AnalysisField{"TipLiveDeflIn", &AnalysisResult::TipLiveDeflIn},
    AnalysisField{"TipDeadDeflIn", &AnalysisResult::TipDeadDeflIn},
    AnalysisField{"AllowTipDeflIn", &AnalysisResult::AllowTipDeflIn},
    AnalysisField{"AllowTipLiveDeflIn", &AnalysisResult::AllowTipLiveDeflIn},
    AnalysisField{"TipDeflRatio", &AnalysisResult::TipDeflRatio},
    AnalysisField{"TipLiveDeflRatio", &AnalysisResult::TipLiveDeflRatio},
    AnalysisField{"CreepFactor", &AnalysisResult::CreepFactor},
};

using FactorField = FloatMember<AdjustmentFactors>;

constexpr std::array ServiceFields{
    FactorField{"Cd", &AdjustmentFactors::Cd},
    FactorField{"Cr", &AdjustmentFactors::Cr},
    FactorField{"CmFb", &AdjustmentFactors::CmFb},
    FactorField{"CmFv", &AdjustmentFactors::CmFv},
    FactorField{"CmFcPerp", &AdjustmentFactors::CmFcPerp},
    FactorField{"CmE", &AdjustmentFactors::CmE},
    FactorField{"Cf", &AdjustmentFactors::Cf},
    FactorField{"CfSmaller", &AdjustmentFactors::CfSmaller},
    FactorField{"CiFb", &AdjustmentFactors::CiFb},
    FactorField{"CiFv", &AdjustmentFactors::CiFv},
    FactorField{"CiE", &AdjustmentFactors::CiE},
    FactorField{"Cv", &AdjustmentFactors::Cv},
    FactorField{"CL", &AdjustmentFactors::CL},
    FactorField{"CLOverhang", &AdjustmentFactors::CLOverhang},
    FactorField{"FormFactor", &AdjustmentFactors::FormFactor},
};

constexpr std::array CompositeFields{
    FactorField{"Cd", &AdjustmentFactors::Cd},
    FactorField{"SizeFactor", &AdjustmentFactors::Cf},
    FactorField{"NextSizeFactor", &AdjustmentFactors::CfSmaller},
    FactorField{"VolumeFactor", &AdjustmentFactors::Cv},
    FactorField{"RepetitiveFactor", &AdjustmentFactors::Cr},
    FactorField{"CL", &AdjustmentFactors::CL},
    FactorField{"CLOverhang", &AdjustmentFactors::CLOverhang},
};

using AdjustedField = FloatMember<AdjustedValues>;

constexpr std::array AdjustedFields{
    AdjustedField{"FbAdj", &AdjustedValues::FbAdj}, AdjustedField{"FbStar", &AdjustedValues::FbStar},
    AdjustedField{"FvAdj", &AdjustedValues::FvAdj}, AdjustedField{"FcPerpAdj", &AdjustedValues::FcPerpAdj},
    AdjustedField{"EAdj", &AdjustedValues::EAdj},
};

using TestField = FloatMember<MemberTestResult>;

constexpr std::array TestFields{
    TestField{"SectionReq", &MemberTestResult::SectionReq},
    TestField{"SectionProp", &MemberTestResult::SectionProp},
    TestField{"ActualShearStress", &MemberTestResult::ActualShearStress},
    TestField{"AreaReq", &MemberTestResult::AreaReq},
    TestField{"AreaProp", &MemberTestResult::AreaProp},
    TestField{"FvAdj", &MemberTestResult::FvAdj},
    TestField{"TotalDeflection", &MemberTestResult::TotalDeflection},
    TestField{"TotalDeflectionAllowed", &MemberTestResult::TotalDeflectionAllowed},
    TestField{"LiveDeflection", &MemberTestResult::LiveDeflection},
    TestField{"LiveDeflectionAllowed", &MemberTestResult::LiveDeflectionAllowed},
    TestField{"OverhangDeflection", &MemberTestResult::OverhangDeflection},
    TestField{"OverhangDeflectionAllowed", &MemberTestResult::OverhangDeflectionAllowed},
    TestField{"OverhangLiveDeflection", &MemberTestResult::OverhangLiveDeflection},
    TestField{"OverhangLiveDeflectionAllowed", &MemberTestResult::OverhangLiveDeflectionAllowed},
    TestField{"DeadDeflection", &MemberTestResult::DeadDeflection},
    TestField{"CreepFactor", &MemberTestResult::CreepFactor},
    TestField{"SpanOverDeflection", &MemberTestResult::SpanOverDeflection},
    TestField{"R1Total", &MemberTestResult::R1Total},
    TestField{"R2Total", &MemberTestResult::R2Total},
    TestField{"MaxMoment", &MemberTestResult::MaxMoment},
    TestField{"OverhangMoment", &MemberTestResult::OverhangMoment},
    TestField{"TotalLoad", &MemberTestResult::TotalLoad},
};

struct StatusField {
    std::string_view Name;
    std::string_view MemberTestResult::*Status;
};

constexpr std::array StatusFields{
    StatusField{"SecStatus", &MemberTestResult::SecStatus},
    StatusField{"ShearStatus", &MemberTestResult::ShearStatus},
    StatusField{"DeflStatus", &MemberTestResult::DeflStatus},
    StatusField{"LDeflStatus", &MemberTestResult::LDeflStatus},
    StatusField{"OHDeflStatus", &MemberTestResult::OHDeflStatus},
    StatusField{"OHLDeflStatus", &MemberTestResult::OHLDeflStatus},
    StatusField{"Overall", &MemberTestResult::Overall},
};

template <typename Values>
void WriteLoads(std::string_view name, const Values& values, AnswerWriter& answer)
{
    answer.BeginArray(name);
    for (const double value : values) {
        answer.Item(Single(value));
    }
    answer.EndArray();
}

/// The names of a slenderness record's figures on the span and on the overhang.
struct SlendernessNames {
    std::string_view LuIn;
    std::string_view LeIn;
    std::string_view Rb;
    std::string_view RbOver50;
    std::string_view KbE;
    std::string_view FbE;
    std::string_view FbEOverFbStar;
};

constexpr SlendernessNames SpanNames{"LuIn", "LeIn", "Rb", "RbOver50", "KbE", "FbE", "FbEOverFbStar"};
constexpr SlendernessNames OverhangNames{"CantLuIn", "CantLeIn", "CantRb",           "CantRbOver50",
                                         "CantKbE",  "CantFbE",  "CantFbEOverFbStar"};

void WriteSlenderness(const SlendernessResult& slenderness, const SlendernessNames& names,
                      AnswerWriter& answer)
{
    answer.Field(names.LuIn, slenderness.LuIn);
    answer.Field(names.LeIn, slenderness.LeIn);
    answer.Field(names.Rb, slenderness.Rb);
    answer.Field(names.RbOver50, slenderness.RbOver50);
    answer.Field(names.KbE, slenderness.KbE);
    answer.Field(names.FbE, slenderness.FbE);
    answer.Field(names.FbEOverFbStar, slenderness.FbEOverFbStar);
}

/// Writes one field of the criteria as it stands: numbers of numeric boxes, a blank as 0, and plain texts.
struct CriteriaWriter {
    std::string_view Name;
    const BeamProblem& Problem;
    AnswerWriter& Answer;

    void operator()(std::string BeamProblem::*text) const { WriteText(Problem.*text); }
    void operator()(std::string LoadSet::*text) const { WriteText(Problem.Loads.*text); }
    void operator()(PointTexts LoadSet::*texts) const { WriteTexts(Problem.Loads.*texts); }
    void operator()(PartialTexts LoadSet::*texts) const { WriteTexts(Problem.Loads.*texts); }
    void operator()(bool BeamProblem::*flag) const { Answer.Field(Name, Problem.*flag); }
    void operator()(bool LoadSet::*flag) const { Answer.Field(Name, Problem.Loads.*flag); }
    void operator()(SupportCondition support) const { Answer.Field(Name, Problem.Support == support); }
    void operator()(RepetitiveSpacing spacing) const { Answer.Field(Name, Problem.Spacing == spacing); }
    void operator()(SteelFamily family) const { Answer.Field(Name, Problem.Family == family); }
    void operator()(MaterialGroup /*group*/) const { Answer.Field(Name, static_cast<int>(Problem.Combo1)); }

    void operator()(SpanFlag flag) const
    {
        const bool isThree = flag == SpanFlag::ThreeSpan;
        Answer.Field(Name,
                     Problem.Support == SupportCondition::MultipleSpans && Problem.ThreeSpan == isThree);
    }

    void operator()(std::array<bool, PlanQuarterCount> LoadSet::*flags) const
    {
        Answer.BeginArray(Name);
        for (const bool flag : Problem.Loads.*flags) {
            Answer.Item(flag);
        }
        Answer.EndArray();
    }

private:
    static bool IsNumber(std::string_view name)
    {
        return FindEntryRule(name) != nullptr || name == "Dur" || name == "MaxDefl" || name == "LMaxDefl";
    }

    void WriteText(const std::string& text) const
    {
        if (IsNumber(Name)) {
            Answer.Field(Name, Val(text));
        } else {
            Answer.Field(Name, std::string_view(text));
        }
    }

    template <typename Texts>
    void WriteTexts(const Texts& texts) const
    {
        Answer.BeginArray(Name);
        for (const std::string& text : texts) {
            Answer.Item(Val(text));
        }
        Answer.EndArray();
    }
};

void WriteValues(const DesignValues& values, AnswerWriter& answer)
{
    answer.BeginObject("values");
    answer.Field("Fb", values.Fb);
    answer.Field("Fv", values.Fv);
    answer.Field("FcPerp", static_cast<int>(values.FcPerp));
    answer.Field("E", values.E);
    answer.EndObject();
}

void WriteFactors(const AdjustmentFactors& factors, AnswerWriter& answer)
{
    answer.BeginObject("factors");
    if (factors.IsComposite) {
        WriteFields(factors, CompositeFields, answer);
        answer.Field("UsesVolumeFactor", factors.CvGoverns);
    } else {
        WriteFields(factors, ServiceFields, answer);
        answer.Field("CvGoverns", factors.CvGoverns);
    }
    answer.EndObject();
}

}  // namespace

void WriteCriteria(const Session& session, AnswerWriter& answer)
{
    const BeamNumbers& beam = session.Numbers;
    answer.BeginObject("criteria");
    answer.Field("SlopeFactor", beam.SlopeFactor);
    answer.Field("DensityFactor", beam.DensityFactor);
    answer.Field("SteelFlag", beam.IsSteel());
    answer.Field("UNIF", Single(beam.Loads.UNIF));
    answer.Field("LUNIF", Single(beam.Loads.LUNIF));
    WriteLoads("PT", beam.Loads.PT, answer);
    WriteLoads("LPT", beam.Loads.LPT, answer);
    WriteLoads("PAR", beam.Loads.PAR, answer);
    WriteLoads("LPAR", beam.Loads.LPAR, answer);
    answer.EndObject();
}

void WriteAnalysis(const AnalysisResult& analysis, AnalysisPart part, AnswerWriter& answer)
{
    answer.BeginObject("analysis");
    WriteFields(analysis, AppliedLoadFields, answer);
    if (part == AnalysisPart::WithCandidate) {
        WriteFields(analysis, CandidateFields, answer);
        answer.Field("HasLiveDeflFlag", analysis.HasLiveDeflFlag);
    }
    answer.EndObject();
}

void WriteStations(const StationTable& stations, AnswerWriter& answer)
{
    const StationTable::Column& x = stations[StationColumn::Position];
    const StationTable::Column& moment = stations[StationColumn::Moment];
    const StationTable::Column& shear = stations[StationColumn::Shear];
    answer.BeginArray("stations");
    for (std::size_t i = 0; i < StationCount; ++i) {
        answer.BeginArray();
        answer.Item(x[i]);
        answer.Item(moment[i]);
        answer.Item(shear[i]);
        answer.EndArray();
    }
    answer.EndArray();
}

void WriteCandidate(const MemberCandidate& candidate, std::string_view breadthKey, AnswerWriter& answer)
{
    answer.BeginObject("member");
    answer.Field("BreadthKey", breadthKey);
    answer.Field("B", candidate.B);
    answer.Field("D", candidate.D);
    answer.Field("NextSmallerDepth", candidate.NextSmallerDepth);
    answer.Field("NextSmallerDepthText", candidate.NextSmallerDepthText);
    answer.Field("NextLargerDepthText", candidate.NextLargerDepthText);
    answer.EndObject();
}

void WriteTest(const MemberTestResult& result, AnswerWriter& answer)
{
    answer.BeginObject("test");
    WriteFields(result, TestFields, answer);
    answer.Field("NextSmallerOk", result.NextSmallerOk);
    answer.Field("NoSplits", result.NoSplits);
    for (const StatusField& field : StatusFields) {
        answer.Field(field.Name, result.*field.Status);
    }
    answer.EndObject();
}

void WriteMemberTest(const MemberTest& member, AnswerWriter& answer)
{
    WriteCandidate(member.Candidate, KeyText(member.Candidate.BreadthKey), answer);
    WriteValues(member.Values, answer);
    WriteFactors(member.Factors, answer);
    answer.BeginObject("stability");
    WriteSlenderness(member.Stability.Span, SpanNames, answer);
    WriteSlenderness(member.Stability.Overhang, OverhangNames, answer);
    answer.EndObject();
    answer.BeginObject("adjusted");
    WriteFields(member.Adjusted, AdjustedFields, answer);
    answer.EndObject();
    WriteTest(member.Result, answer);
}

void WriteReport(const Session& session, AnswerWriter& answer)
{
    const TestReport report = MakeTestReport(session);
    answer.BeginObject("report");
    for (const TestReportField& field : TestReportFields) {
        answer.Field(field.Name, std::string_view(report.*field.Text));
    }
    answer.EndObject();
}

void WriteQuickPicks(const QuickPicks& picks, AnswerWriter& answer)
{
    answer.BeginArray("picks");
    for (const QuickPick& pick : picks) {
        if (pick.DepthText.empty()) {
            continue;
        }
        answer.BeginObject();
        answer.Field("BreadthText", pick.BreadthText);
        answer.Field("DepthText", std::string_view(pick.DepthText));
        answer.Field("SpeciesText", pick.SpeciesText);
        answer.EndObject();
    }
    answer.EndArray();
}

void WriteSelectionLabels(const SelectionTexts& texts, AnswerWriter& answer)
{
    constexpr std::array<std::string_view, 5> headNames{"Label13", "Label14", "Label15", "Label16",
                                                        "Label17"};
    answer.BeginObject("labels");
    answer.Field("LabelINGRADE", std::string_view(texts.LabelINGRADE));
    answer.Field("MOMENT", std::string_view(texts.MOMENT));
    answer.Field("Reac1", std::string_view(texts.Reac1));
    answer.Field("Reac2", std::string_view(texts.Reac2));
    for (std::size_t k = 0; k < headNames.size(); ++k) {
        answer.Field(headNames[k], texts.GlulamHeads[k]);
    }
    answer.Field("RepQualify", std::string_view(texts.RepQualify));
    answer.Field("WoodStatisPanel", std::string_view(texts.WoodStatisPanel));
    answer.EndObject();
}

void WriteHipValley(const Session& session, AnswerWriter& answer)
{
    answer.BeginObject("criteria");
    for (const CriteriaField& field : CriteriaFields()) {
        std::visit(CriteriaWriter{field.Name, session.Problem, answer}, field.Target);
    }
    answer.Field("SlopeFactor", RafterSlopeFactor(session.Problem));
    answer.Field("IncreasingTotalLoad", session.IncreasingTotalLoad);
    answer.Field("IncreasingLiveLoad", session.IncreasingLiveLoad);
    answer.EndObject();
}

}  // namespace kordavan
