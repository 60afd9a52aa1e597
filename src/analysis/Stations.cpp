#include "analysis/Stations.h"

#include <algorithm>

namespace kordavan {

namespace {

/// Products of decimals in binary form that differ by no more than this part of them are the same.
constexpr double BinaryNoise = 1e-12;

/// A station within one of the place, which is not negative, to search from.
int StationNear(const StationLine& line, double place)
{
    const double steps = place * line.Steps / line.Length;
    return steps < line.Steps ? static_cast<int>(steps) : line.Steps;
}

/// Sums over i = 0 to last.
StationSums SumsUpTo(double last)
{
    const double n = last;
    const double first = n * (n + 1) / 2;
    return {.Count = n + 1, .First = first, .Second = first * (2 * n + 1) / 3, .Third = first * first};
}

}  // namespace

int StationLine::FirstBeyond(double place) const
{
    const double limit = place * Steps * (1 + BinaryNoise);
    int station = StationNear(*this, place);
    while (station > 0 && (station - 1) * Length > limit) {
        --station;
    }
    while (station <= Steps && station * Length <= limit) {
        ++station;
    }
    return station;
}

int StationLine::LastBefore(double place) const
{
    const double limit = place * Steps * (1 - BinaryNoise);
    int station = std::min(StationNear(*this, place) + 1, Steps);
    while (station >= 0 && station * Length >= limit) {
        --station;
    }
    return station;
}

StationSums SumStationsBetween(const StationLine& line, double begin, double end)
{
    const int first = line.FirstBeyond(begin);
    const int last = line.LastBefore(end);
    if (last < first) {
        return {};
    }
    const StationSums upTo = SumsUpTo(last);
    const StationSums before = SumsUpTo(first - 1);
    return {.Count = upTo.Count - before.Count,
            .First = upTo.First - before.First,
            .Second = upTo.Second - before.Second,
            .Third = upTo.Third - before.Third};
}

}  // namespace kordavan
