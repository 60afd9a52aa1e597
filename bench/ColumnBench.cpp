#include <benchmark/benchmark.h>

#include "batch/CollectingUser.h"
#include "columns/ColumnProblem.h"
#include "columns/SteelColumn.h"
#include "columns/StudColumn.h"
#include "columns/WoodColumn.h"
#include "notch/NotchCheck.h"
#include "notch/NotchSession.h"

namespace {

using namespace kordavan;

ColumnEntry PostUnderABeam()
{
    ColumnEntry entry;
    entry.cReacText = "9000";
    entry.cHTtext = entry.cD1text = entry.cD2text = "9";
    entry.cFcText = "1350";
    entry.cEtext = "1.6";
    entry.ColSpeciesCombo = "DF-L #2";
    return entry;
}

/// The smallest width of each thickness.
void WoodColumnSearch(benchmark::State& state)
{
    const ColumnProblem problem = ReadColumnProblem(PostUnderABeam());
    while (state.KeepRunning()) {
        ColumnFactors carried;
        benchmark::DoNotOptimize(SearchColumnGrid(problem, Edition::Nds2018, carried));
    }
}
BENCHMARK(WoodColumnSearch);

void SteelColumnSearch(benchmark::State& state)
{
    const SteelColumnProblem problem = ReadSteelColumnProblem(PostUnderABeam());
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(SearchSteelColumns(problem));
    }
}
BENCHMARK(SteelColumnSearch);

void OneStud(benchmark::State& state)
{
    StudEntry entry;
    entry.WindStudHt = "10";
    entry.WindStudSpacing = "16";
    entry.DepthCombo = 1;
    entry.WindStudCombo = "DF-L #2";
    entry.WindStudFb = "900";
    entry.WindStudFc = "1350";
    entry.WindStudE = "1.6";
    entry.AxialPLFtextbox = "600";
    entry.Wind = {"20", "", ""};
    entry.End = {"10", "", ""};
    CollectingUser user;
    if (!TestStud(entry, Edition::Nds2018, user)) {
        state.SkipWithError("the stud was refused");
    }
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(TestStud(entry, Edition::Nds2018, user));
    }
}
BENCHMARK(OneStud);

void OneNotch(benchmark::State& state)
{
    NotchSession notch;
    notch.Entry.MaxVtextbox = "2000";
    notch.Entry.breadthtextbox = "3.5";
    notch.Entry.depthtextbox = "11.25";
    notch.Entry.Fvtextbox = "180";
    notch.Entry.dnTextbox = "9";
    notch.Entry.Species = "DF-L #2";
    CollectingUser user;
    if (CalculateNotch(notch, user) != Outcome::Done) {
        state.SkipWithError("the notch was refused");
    }
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(CalculateNotch(notch, user));
    }
}
BENCHMARK(OneNotch);

}  // namespace
