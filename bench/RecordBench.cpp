#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/FullyLoadedBeam.h"
#include "design/TestMember.h"
#include "records/DataRecordFile.h"
#include "records/DataRecordPage.h"
#include "records/DataSheetFill.h"

namespace {

using namespace kordavan;

constexpr CalendarDay Day{.Year = 2026, .Month = 1, .Day = 2};

DataSheet TimberSheet()
{
    Session session = CalculatedSession();
    CollectingUser user;
    TestMember(session, Timber, {}, user);
    return FillDataRecord(session, Day, user);
}

void FillRecord(benchmark::State& state)
{
    Session session = CalculatedSession();
    CollectingUser user;
    TestMember(session, Timber, {}, user);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(FillDataRecord(session, Day, user));
    }
}
BENCHMARK(FillRecord);

void LayOutRecord(benchmark::State& state)
{
    const DataSheet sheet = TimberSheet();
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(LayOutDataRecord(sheet, {}));
    }
}
BENCHMARK(LayOutRecord);

/// With the wait for the disk that a file safe from crashes needs.
void SaveRecord(benchmark::State& state)
{
    const DataSheet sheet = TimberSheet();
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "kordavan-bench.DAT";
    CollectingUser user;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(SaveDataRecord(sheet, {}, path, user));
    }
    std::filesystem::remove(path);
}
BENCHMARK(SaveRecord)->Unit(benchmark::kMillisecond)->UseRealTime();

void OpenRecord(benchmark::State& state)
{
    DataSheet sheet = TimberSheet();
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "kordavan-bench.DAT";
    CollectingUser user;
    SaveDataRecord(sheet, {}, path, user);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(OpenDataRecord(path, sheet, user));
    }
    std::filesystem::remove(path);
}
BENCHMARK(OpenRecord);

}  // namespace
