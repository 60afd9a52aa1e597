#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <string_view>

#include "batch/AnswerLine.h"
#include "batch/BatchRun.h"

namespace {

constexpr std::string_view Joist =
    R"({"task":"beam","edition":"2018","criteria":{"Span":14,"UNIF":60,"LUNIF":40,"Rep":true,"Ctr16":true,"UBLtext":"0"},"member":{"BreadthText":"2x","DepthText":"10","SpeciesText":"DF-L #2"}})";

void BatchLine(benchmark::State& state)
{
    rapidjson::StringBuffer answers;
    while (state.KeepRunning()) {
        answers.Clear();
        kordavan::AnswerLine(Joist, answers);
        benchmark::DoNotOptimize(answers.GetString());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BatchLine);

/// A run over many joists, on so many threads.
void BatchRunOnThreads(benchmark::State& state)
{
    constexpr int lines = 20000;
    std::FILE* const requests = std::tmpfile();
    for (int line = 0; line < lines; ++line) {
        std::fwrite(Joist.data(), 1, Joist.size(), requests);
        std::fputc('\n', requests);
    }
    std::fflush(requests);
    const int output = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    while (state.KeepRunning()) {
        ::lseek(::fileno(requests), 0, SEEK_SET);
        kordavan::LineBlocks blocks(::fileno(requests));
        kordavan::AnswerInput(blocks, output, static_cast<int>(state.range(0)), kordavan::AnswerLine);
    }
    ::close(output);
    std::fclose(requests);
    state.SetItemsProcessed(state.iterations() * lines);
}
BENCHMARK(BatchRunOnThreads)->RangeMultiplier(2)->Range(1, 4)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
