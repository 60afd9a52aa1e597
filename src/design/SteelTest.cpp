#include "design/SteelTest.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "analysis/Deflection.h"
#include "core/NumberText.h"
#include "design/SteelRow.h"
#include "design/TestFaults.h"
#include "design/Verdict.h"

namespace kordavan {

namespace {

constexpr std::string_view NotInFamily =
    "Your Steel selection does not match any sizes in the Kordavan database for this steel shape or the size "
    "you have entered is not in the correct format.\n\n"
    "Examples: (Note the location of the spaces and 'x')\n\n"
    "\tW 12x 30\n"
    "\tS 8x 18.4\n"
    "\tC 7x 9.8\n"
    "\tT 10x 5x 1/2\n\n"
    "Click the DATABASE button to see the steel sizes available in the database for this shape. You may "
    "enter any size listed in the database.";
constexpr std::string_view NotInFamilyStepping =
    "Your Steel selection does not match any sizes in the Kordavan database for this steel shape.";
constexpr std::string_view BeyondLu =
    "Proposed Unbraced length for Lc or Lu is too large.  Please select another size or adjust the unbraced "
    "length.  Kordavan does not compute the special anaylsis required for members with an unbraced length "
    "greater than Lu.";
constexpr std::string_view BeyondLuStepping =
    "Proposed Unbraced length for Lc or Lu is too large.  Please select another size or adjust the "
    "unbalanced length.  Kordavan does not compute the special anaylsis required for members with an "
    "unbalanced length greater than Lu.";
constexpr std::string_view PickedShearError = "Max V Error, Steel form22 OK button";

/// The box that holds the size; there is none to go to on the report.
Message SizeRefusal(SteelTestMode mode, std::string_view fromSelection, std::string_view fromStepping)
{
    return mode == SteelTestMode::FromSelection ? Refusal(fromSelection, "StlChoice") : Refusal(fromStepping);
}

/// Everything about one shape.
struct ShapeTest {
    std::size_t Row;
    SectionProps Section{};
    CandidateLoadResult Loads{};
    BendingRegime Regime{};
    ShearResult Shear{};
    DeflectionResult Deflection{};
};

bool IsFiniteTest(const ShapeTest& test)
{
    const std::array figures{test.Loads.R1Total,           test.Loads.R2Total,
                             test.Loads.TotalLoadWithSelf, test.Loads.MaxMomentFtLb,
                             test.Shear.SectionRequired,   test.Shear.ShearMax,
                             test.Shear.ShearStressActual, test.Shear.AreaRequired};
    return std::all_of(figures.begin(), figures.end(), [](float figure) { return std::isfinite(figure); });
}

SteelTestState StateOf(const SteelBeam& steel, const ShapeTest& test)
{
    const SteelShape& shape = SteelShapes()[test.Row];
    const SteelCriteria& criteria = steel.Criteria;
    const std::string limit = UnbracedLimitText(test.Regime);
    return {.RowIndex = test.Row,
            .ShapeName = shape.ShapeName,
            .SelfWeight = test.Loads.SelfWeightPlf,
            .MemberWeight = test.Loads.SelfWeightTotal,
            .MaxMoment = test.Loads.MaxMomentFtLb,
            .CantileverMoment = test.Loads.OverhangMomentTotal,
            .TotalLoad = test.Loads.TotalLoadWithSelf,
            .Reaction1 = test.Loads.R1Total,
            .Reaction2 = test.Loads.R2Total,
            .MaxShear = test.Shear.ShearMax,
            .UnbracedLength = Single(criteria.ProposedUBL),
            .LcApplies = test.Regime.LcApplies,
            .LuApplies = test.Regime.LuApplies,
            .MaxUnbracedText = limit.empty() ? limit : limit + " ft",
            .ActualS = test.Section.S,
            .RequiredS = test.Regime.RequiredS,
            .FbAllowed = test.Regime.FbAllowed,
            .Fy = criteria.Allowable.Fy,
            .FvAllowed = criteria.Allowable.FvSteel,
            .WebArea = test.Section.A,
            .ShearStress = test.Shear.ShearStressActual,
            .RequiredWebArea = test.Shear.AreaRequired,
            .ActualI = test.Section.I,
            .ActualSizeBreadth = shape.BreadthText,
            .ActualSizeDepth = shape.DepthText,
            .Bearing = ComputeSteelBearing(steel.Beam, criteria, shape, test.Loads)};
}

/// The member of the report; its candidate has the outside sizes of the shape.
MemberTest MemberOf(const ShapeTest& test, const SteelCriteria& criteria)
{
    const SteelShape& shape = SteelShapes()[test.Row];
    MemberTest member;
    member.Candidate.BreadthText = shape.BreadthText;
    member.Candidate.DepthText = shape.DepthText;
    member.Candidate.B = BreadthOf(shape);
    member.Candidate.D = shape.ActualDepth;
    member.Values.E = SteelE;
    member.Adjusted.FbAdj = test.Regime.FbAllowed;
    member.Adjusted.FvAdj = criteria.Allowable.FvSteel;
    member.Adjusted.EAdj = SteelE;
    member.Section = test.Section;
    return member;
}

void StoreTest(const SteelBeam& steel, const ShapeTest& test, Session& session)
{
    session.Steel = StateOf(steel, test);
    static_cast<CandidateLoadResult&>(session.Analysis) = test.Loads;
    static_cast<ShearResult&>(session.Analysis) = test.Shear;
    static_cast<DeflectionResult&>(session.Analysis) = test.Deflection;
    session.Record.CanBeRefilled = false;
    session.Member = MemberOf(test, steel.Criteria);
    session.Member.Result = ResultOf(session.Analysis, session.Member);
    GiveVerdict(session.Numbers, session.Member);
}

/// A name of the family that has a section.
std::optional<std::size_t> FindSection(SteelFamily family, std::string_view name)
{
    const std::optional<std::size_t> row = FindShape(family, name);
    return row && HasSection(SteelShapes()[*row]) ? row : std::nullopt;
}

}  // namespace

SteelTestEnd TestNamedShape(Session& session, std::string_view name, SteelTestMode mode, UserPort& user)
{
    const SteelCriteria& criteria = session.SteelPicks.Criteria;
    const SteelBeam steel{.Beam = session.Numbers, .Applied = session.Analysis, .Criteria = criteria};
    const auto refuse = [&user](const Message& message) {
        user.Tell(message);
        return SteelTestEnd::Refused;
    };
    const std::optional<std::size_t> row = FindSection(criteria.Family, name);
    if (!row) {
        return refuse(SizeRefusal(mode, NotInFamily, NotInFamilyStepping));
    }
    const SteelShape& shape = SteelShapes()[*row];
    ShapeTest test{.Row = *row};
    test.Section = SteelSection(shape, steel.Beam.NoWeight);
    test.Loads = ComputeSteelLoads(steel, test.Section);
    test.Regime = ChooseBendingRegime(criteria, shape, test.Loads.MaxMomentFtLb);
    if (!test.Regime.Applies()) {
        return refuse(SizeRefusal(mode, BeyondLu, BeyondLuStepping));
    }
    test.Shear = ComputeSteelShear(steel, test.Section, test.Regime, test.Loads);
    if (test.Shear.Fault == ShearFault::NoMaximum) {
        user.Tell(Refusal(PickedShearError));
        return SteelTestEnd::BackToCriteria;
    }
    test.Deflection = ComputeDeflection(steel.Beam, test.Section, SteelE, steel.Applied, test.Loads);
    if (!IsFinite(test.Deflection)) {
        return refuse(DeflectionFault());
    }
    if (!IsFiniteTest(test)) {
        return refuse(NotFiniteFault());
    }
    StoreTest(steel, test, session);
    return SteelTestEnd::Done;
}

void PrepareSteel(Session& session)
{
    session.SteelPicks.Criteria = SteelCriteriaOf(session.Problem);
}

}  // namespace kordavan
