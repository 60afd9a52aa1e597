#include "design/TestMember.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "analysis/CandidateLoads.h"
#include "analysis/Deflection.h"
#include "analysis/Shear.h"
#include "core/NumberText.h"
#include "design/CustomValues.h"
#include "design/TestFaults.h"
#include "design/Verdict.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

constexpr std::string_view RepetitiveNote =
    "Please note:\nGLB and 6x sizes do not qualify for Repetitive Use Values.  Please either 'unselect' the "
    "Repetitive Use check box on the Criteria Form or select a 4x or 2x combination beam breadth.";
constexpr std::string_view DatabaseError = "Database search error in calc module";
constexpr std::string_view ZeroValueError = "Calc module, zero value error!";
constexpr std::string_view OverhangShearError = "Max V Error, LSMR OVERHANG MAX V";
constexpr std::string_view ReducedShearError = "Error at LSMR, OH MAX Reduction";

/// What stays the same for the candidate and its next smaller size.
struct TestCase {
    const BeamNumbers& Beam;
    const AppliedLoadResult& Applied;
    const MemberCandidate& Member;
    CustomTraits Traits{};
    std::optional<DesignValues> Own{};  // values of the user's own
    const SpeciesRow* Species = nullptr;
    bool SoPineLowered = false;
};

/// Everything about one size but its deflection.
struct SizeTest {
    DesignValues Values;
    AdjustmentFactors Factors;
    StabilityResult Stability;
    AdjustedValues Adjusted;
    SectionProps Section;
    CandidateLoadResult Loads;
    ShearResult Shear;
};

DesignValues ValuesOf(const TestCase& test, NetSize size)
{
    if (test.Own) {
        return *test.Own;
    }
    DesignValues values = ReferenceValues(*test.Species, test.Beam.Nds, size);
    if (test.SoPineLowered) {
        values.E = LoweredSouthernPineE(test.Member.SpeciesText).value_or(values.E);
    }
    return values;
}

BucklingClass BucklingClassOf(const TestCase& test)
{
    if (test.Member.BreadthKey == BreadthKey::Glulam) {
        return BucklingClass::Glulam;
    }
    return test.Traits.MachineGraded ? BucklingClass::MachineGraded : BucklingClass::VisuallyGraded;
}

float DensityFactorOf(const BeamNumbers& beam, const MemberCandidate& member)
{
    return member.BreadthKey == BreadthKey::Composite ? SclProducts()[member.Product].DensityFactor
                                                      : beam.DensityFactor;
}

SectionProps SectionOf(const TestCase& test, NetSize size)
{
    const WeightBasis weight{.NoWeight = test.Beam.NoWeight,
                             .DensityFactor = DensityFactorOf(test.Beam, test.Member),
                             .SlopeFactor = test.Beam.SlopeFactor};
    return test.Member.Round ? RoundProps(size.D, weight)
                             : RectangleProps({.B = size.B, .D = size.D}, weight);
}

/// Adjusts the values of one size. Refuses a factor or value of zero.
Outcome AdjustSize(const TestCase& test, NetSize size, std::string_view depthText, StabilityRun run,
                   UserPort& user, SizeTest& result)
{
    result.Values = ValuesOf(test, size);
    result.Factors = ComputeFactors(test.Beam, {.Member = test.Member,
                                                .Traits = test.Traits,
                                                .Net = size,
                                                .DepthText = depthText,
                                                .Values = result.Values,
                                                .InflectionFt = test.Applied.InflectionFt,
                                                .SoPineLowered = test.SoPineLowered});
    result.Adjusted = AdjustWithoutStability(result.Values, result.Factors);
    if (result.Adjusted.FbStar == 0) {
        return Refuse(user, Refusal(ZeroValueError));
    }
    result.Stability = ComputeStability(test.Beam,
                                        {.Size = size,
                                         .Class = BucklingClassOf(test),
                                         .EAdj = result.Adjusted.EAdj,
                                         .FbStar = result.Adjusted.FbStar,
                                         .Run = run},
                                        user);
    result.Factors.CL = result.Stability.Span.CL;
    result.Factors.CLOverhang = result.Stability.Overhang.CL;
    result.Adjusted.FbAdj = AllowableBending(result.Values, result.Factors);
    return result.Adjusted.FbAdj == 0 ? Refuse(user, Refusal(ZeroValueError)) : Outcome::Done;
}

Outcome LoadSize(const TestCase& test, NetSize size, UserPort& user, SizeTest& result)
{
    result.Section = SectionOf(test, size);
    result.Loads = ComputeCandidateLoads(test.Beam, result.Section, test.Applied);
    result.Shear = ComputeShear(test.Beam, result.Section,
                                {.FbPrime = result.Adjusted.FbAdj, .FvPrime = result.Adjusted.FvAdj},
                                test.Applied, result.Loads);
    if (result.Shear.Fault == ShearFault::NoMaximum) {
        return Refuse(user, Refusal(OverhangShearError));
    }
    if (result.Shear.Fault == ShearFault::NoReducedMaximum) {
        user.Tell(Alert(ReducedShearError));
    }
    return Outcome::Done;
}

Outcome DeflectSize(const TestCase& test, const SizeTest& size, UserPort& user, DeflectionResult& deflection)
{
    deflection = ComputeDeflection(test.Beam, size.Section, size.Adjusted.EAdj, test.Applied, size.Loads);
    if (IsFinite(deflection)) {
        return Outcome::Done;
    }
    return Refuse(user, DeflectionFault());
}

bool IsFiniteTest(const SizeTest& size)
{
    const std::array<double, 11> figures{
        size.Adjusted.FbAdj,          size.Adjusted.FvAdj,         size.Adjusted.EAdj,
        size.Stability.Span.FbE,      size.Stability.Overhang.FbE, size.Section.I,
        size.Loads.TotalLoadWithSelf, size.Shear.SectionRequired,  size.Shear.ShearReduced,
        size.Shear.ShearStressActual, size.Shear.AreaRequired};
    return std::all_of(figures.begin(), figures.end(), [](double figure) { return std::isfinite(figure); });
}

/// True when the next smaller depth passes every check; its deflections are the candidate's, grown by the
/// loss of stiffness. Sets the smaller size's own size or volume factor beside the candidate's.
bool TestNextSmaller(const TestCase& test, const DeflectionResult& deflection, UserPort& user,
                     SizeTest& candidate)
{
    const MemberCandidate& member = test.Member;
    if (member.NextSmallerDepth <= 0) {
        return false;
    }
    const NetSize smallerSize{.B = member.B, .D = member.NextSmallerDepth};
    SizeTest smaller;
    if (AdjustSize(test, smallerSize, member.NextSmallerDepthText, StabilityRun::NextSmaller, user,
                   smaller) != Outcome::Done ||
        LoadSize(test, smallerSize, user, smaller) != Outcome::Done) {
        return false;
    }
    candidate.Factors.CfSmaller = smaller.Factors.CfSmaller;
    return PassesAsSmaller({.Section = smaller.Section.S,
                            .SectionReq = smaller.Shear.SectionRequired,
                            .Area = smaller.Section.A,
                            .AreaReq = smaller.Shear.AreaRequired,
                            .Growth = static_cast<double>(candidate.Section.I) / smaller.Section.I,
                            .MostDeflection = ProductDeflectionLimit(member, smallerSize.D)},
                           deflection);
}

/// The flag is renewed by the #2 grades alone; #1 grades read what the last of those left.
bool RenewSoPineLowered(bool flag, std::string_view species, Edition edition)
{
    const bool renews = species == "So. Pine #2" || species == "Mixed So. Pine #2";
    return renews ? IsPost2012(edition) : flag;
}

Outcome CheckMember(const Session& session, const MemberEntry& entry, TestOptions options, UserPort& user,
                    MemberCandidate& candidate)
{
    const BeamNumbers& beam = session.Numbers;
    if (IdentifyMember(entry, beam.Group, user, candidate) != Outcome::Done) {
        return Outcome::Refused;
    }
    const bool unfitForRepetition =
        candidate.BreadthKey == BreadthKey::SixBy || candidate.BreadthKey == BreadthKey::Glulam;
    if (beam.Rep && unfitForRepetition && !options.QuietTest) {
        return Refuse(user, Refusal(RepetitiveNote));
    }
    if (!beam.InGrade && !HasOwnValues(beam.Group)) {
        return Refuse(user, Refusal(DatabaseError));
    }
    return Outcome::Done;
}

/// A product of the user's own has no exponent but the one entered.
Outcome CheckExponent(SpeciesGroup group, const MemberEntry& entry, UserPort& user)
{
    const bool isOwnProduct = group == SpeciesGroup::Scl && IsCustomScl(entry.Product);
    return isOwnProduct ? CheckSclExponent(entry.Custom.Exponent, user) : Outcome::Done;
}

void StoreTest(const MemberCandidate& member, const SizeTest& size, const DeflectionResult& deflection,
               Session& session)
{
    session.Numbers.DensityFactor = DensityFactorOf(session.Numbers, member);
    static_cast<CandidateLoadResult&>(session.Analysis) = size.Loads;
    static_cast<ShearResult&>(session.Analysis) = size.Shear;
    static_cast<DeflectionResult&>(session.Analysis) = deflection;
    session.Record.CanBeRefilled = false;
    session.Member.Candidate = member;
    session.Member.Values = size.Values;
    session.Member.Factors = size.Factors;
    session.Member.Stability = size.Stability;
    session.Member.Adjusted = size.Adjusted;
    session.Member.Section = size.Section;
    session.Member.Result = ResultOf(session.Analysis, session.Member);
    GiveVerdict(session.Numbers, session.Member);
}

}  // namespace

Outcome TestMember(Session& session, const MemberEntry& entry, TestOptions options, UserPort& user)
{
    const BeamNumbers& beam = session.Numbers;
    MemberCandidate member;
    if (CheckMember(session, entry, options, user, member) != Outcome::Done) {
        return Outcome::Refused;
    }
    TestCase test{
        .Beam = beam, .Applied = session.Analysis, .Member = member, .SoPineLowered = session.SoPineLowered};
    if (HasOwnValues(beam.Group)) {
        test.Traits = TraitsOf(entry.Custom);
        test.Own = ReadCustomValues(entry.Custom);
    } else {
        test.Species = FindSpecies(member.BreadthKey, member.SpeciesText);
        test.SoPineLowered = RenewSoPineLowered(session.SoPineLowered, member.SpeciesText, beam.Nds);
    }

    const NetSize size{.B = member.B, .D = member.D};
    SizeTest candidate;
    if (AdjustSize(test, size, member.DepthText, StabilityRun::Candidate, user, candidate) != Outcome::Done ||
        CheckOwnValues(test.Own, user) != Outcome::Done ||
        CheckExponent(beam.Group, entry, user) != Outcome::Done ||
        LoadSize(test, size, user, candidate) != Outcome::Done) {
        return Outcome::Refused;
    }
    DeflectionResult deflection;
    if (DeflectSize(test, candidate, user, deflection) != Outcome::Done) {
        return Outcome::Refused;
    }
    if (!IsFiniteTest(candidate)) {
        return Refuse(user, NotFiniteFault());
    }
    const bool nextSmallerOk = TestNextSmaller(test, deflection, user, candidate);

    session.SoPineLowered = test.SoPineLowered;
    StoreTest(member, candidate, deflection, session);
    session.Member.Result.NextSmallerOk = nextSmallerOk;
    session.Member.Grading = {.SoPine = entry.Custom.CustomIngradeSP,
                              .Mel = entry.Custom.MELCheckbox,
                              .Msr = entry.Custom.MSRCheckbox};
    return Outcome::Done;
}

}  // namespace kordavan
