#include "analysis/Stations.h"

#include <algorithm>

namespace kordavan {

namespace {

bool IsBeyond(const StationLine& line, int station, double place)
{
    return station * line.Length > place * line.Steps;
}

bool IsBefore(const StationLine& line, int station, double place)
{
    return station * line.Length < place * line.Steps;
}

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
    int station = StationNear(*this, place);
    while (station > 0 && IsBeyond(*this, station - 1, place)) {
        --station;
    }
    while (station <= Steps && !IsBeyond(*this, station, place)) {
        ++station;
    }
    return station;
}

int StationLine::LastBefore(double place) const
{
    int station = std::min(StationNear(*this, place) + 1, Steps);
    while (station >= 0 && !IsBefore(*this, station, place)) {
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
