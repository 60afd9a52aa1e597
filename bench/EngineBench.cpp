#include <benchmark/benchmark.h>

#include <vector>

#include "analysis/AppliedLoads.h"
#include "batch/CollectingUser.h"
#include "design/CalculateAction.h"
#include "design/Selection.h"
#include "design/SteelScan.h"
#include "design/SteelTest.h"
#include "design/TestMember.h"
#include "design/TestReport.h"

namespace {

using namespace kordavan;

/// A 16 ft beam under everything that its boxes can hold: six point and five partial loads.
BeamProblem FullyLoadedBeam()
{
    BeamProblem problem;
    problem.Span = "16";
    problem.Loads.UNIF = "60";
    problem.Loads.LUNIF = "40";
    problem.UBLtext = "4";
    problem.Loads.PT.fill("200");
    problem.Loads.LPT.fill("120");
    problem.Loads.DIS = {"2", "4", "6", "8", "10", "12"};
    problem.Loads.PAR.fill("40");
    problem.Loads.LPAR.fill("25");
    problem.Loads.BEGP = {"1", "3", "5", "7", "9"};
    problem.Loads.ENDP = {"4", "7", "10", "13", "16"};
    return problem;
}

Session CalculatedSession()
{
    Session session;
    session.Problem = FullyLoadedBeam();
    CollectingUser user;
    CalculateAction(session, user);
    return session;
}

const MemberEntry Timber{.BreadthText = "6x", .DepthText = "12", .SpeciesText = "DF-L #1", .Custom = {}};

void AppliedLoads(benchmark::State& state)
{
    Session session = CalculatedSession();
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(ComputeAppliedLoads(session.Numbers, 0, session.Stations));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(AppliedLoads);

void WholeCalculateAction(benchmark::State& state)
{
    Session session = CalculatedSession();
    while (state.KeepRunning()) {
        CollectingUser user;
        benchmark::DoNotOptimize(CalculateAction(session, user));
    }
}
BENCHMARK(WholeCalculateAction);

void OneTestMember(benchmark::State& state)
{
    Session session = CalculatedSession();
    CollectingUser user;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(TestMember(session, Timber, {}, user));
    }
}
BENCHMARK(OneTestMember);

void OneTestReport(benchmark::State& state)
{
    Session session = CalculatedSession();
    CollectingUser user;
    TestMember(session, Timber, {}, user);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(MakeTestReport(session));
    }
}
BENCHMARK(OneTestReport);

void SelectionTable(benchmark::State& state)
{
    Session session = CalculatedSession();
    CollectingUser user;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(StartSelection(session, user));
    }
}
BENCHMARK(SelectionTable);

/// The longest family on a beam that none of its shapes passes, so that every row is tried to the end.
void SteelScan(benchmark::State& state)
{
    Session session;
    session.Problem = FullyLoadedBeam();
    session.Problem.Combo1 = SpeciesGroup::Steel;
    session.Problem.LMaxDefl = "1e9";
    CollectingUser user;
    CalculateAction(session, user);
    PrepareSteel(session);
    std::vector<SteelSlot> slots;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(ScanSteelCandidates(
            {.Beam = session.Numbers, .Applied = session.Analysis, .Criteria = session.SteelPicks.Criteria},
            user, slots));
    }
}
BENCHMARK(SteelScan);

}  // namespace
