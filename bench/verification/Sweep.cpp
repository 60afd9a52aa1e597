#include "Sweep.h"

#include <algorithm>
#include <numeric>

#include "Engine.h"

namespace kordavan::Verification {

namespace {

bool IsLower(const SweepPoint& one, const SweepPoint& other)
{
    return one.Difference < other.Difference;
}

}  // namespace

double SweepFamily::LowestFound() const
{
    return std::min_element(Points.begin(), Points.end(), IsLower)->Difference;
}

double SweepFamily::HighestFound() const
{
    return std::max_element(Points.begin(), Points.end(), IsLower)->Difference;
}

double SweepFamily::MeanFound() const
{
    const auto add = [](double sum, const SweepPoint& point) { return sum + point.Difference; };
    return std::accumulate(Points.begin(), Points.end(), 0.0, add) / static_cast<double>(Points.size());
}

SweepFamily Compare(const SweepBeams& beams, const Measure& measure, double lowest, double highest)
{
    SweepFamily family{beams.Name, beams.Axis, measure.Name, lowest, highest, {}};
    for (int i = 0; i <= beams.Steps; ++i) {
        const double place = beams.From + (beams.To - beams.From) * i / beams.Steps;
        const SweepBeam beam = beams.At(place);
        const double exact = measure.Exact(beam);
        const double scale = measure.Scale ? measure.Scale(beam) : exact;
        const double kordavan = Answer(RequestOf(beam)).Number(measure.Place);
        family.Points.push_back({place, 100 * (kordavan - exact) / scale});
    }
    return family;
}

}  // namespace kordavan::Verification
