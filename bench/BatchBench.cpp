#include <benchmark/benchmark.h>

#include <string_view>

#include "batch/AnswerLine.h"

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

}  // namespace
