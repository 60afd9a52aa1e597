#include <benchmark/benchmark.h>

#include <vector>

#include "analysis/AppliedLoads.h"
#include "bench/FullyLoadedBeam.h"
#include "design/Selection.h"
#include "design/SteelScan.h"
#include "design/SteelTest.h"
#include "design/TestMember.h"
#include "design/TestReport.h"

namespace {

using namespace kordavan;

void AppliedLoads(benchmark::State& state)
{
    Session session = CalculatedSession();
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(ComputeAppliedLoads(session.Numbers, 0, session.Stations));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(AppliedLoads);

/// The same under so many point and partial loads, up to what the boxes hold.
void AppliedLoadsByCount(benchmark::State& state)
{
    Session session;
    session.Problem = FullyLoadedBeam();
    LoadSet& loads = session.Problem.Loads;
    const auto count = static_cast<std::size_t>(state.range(0));
    for (std::size_t k = count; k < loads.PT.size(); ++k) {
        loads.PT[k] = loads.LPT[k] = loads.DIS[k] = "";
    }
    for (std::size_t k = count; k < loads.PAR.size(); ++k) {
        loads.PAR[k] = loads.LPAR[k] = loads.BEGP[k] = loads.ENDP[k] = "";
    }
    CollectingUser user;
    CalculateAction(session, user);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(ComputeAppliedLoads(session.Numbers, 0, session.Stations));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(AppliedLoadsByCount)->DenseRange(0, 6, 2);

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
