#include "design/BeamCurves.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "analysis/ContinuousSpan.h"

namespace kordavan {

namespace {

constexpr int OverhangSteps = 100;

void AddSpread(BeamForces& forces, const SpreadForce& force)
{
    if (force.End > force.Begin && (force.AtBegin != 0 || force.AtEnd != 0)) {
        forces.Spreads.push_back(force);
    }
}

void AddEven(BeamForces& forces, double begin, double end, double plf)
{
    AddSpread(forces, {.Begin = begin, .End = end, .AtBegin = plf, .AtEnd = plf});
}

BeamForces AppliedForces(const BeamNumbers& beam)
{
    const LoadNumbers& loads = beam.Loads;
    const double L = beam.Span;
    BeamForces forces;
    if (beam.Support == SupportCondition::HipValley) {
        AddEven(forces, 0, L, loads.IncUnifTL);
        AddSpread(forces, {.Begin = 0, .End = L, .AtBegin = 0, .AtEnd = 2 * beam.IncreasingTotalLoad / L});
        return forces;
    }
    AddEven(forces, 0, beam.SpanCount() * L, loads.UNIF);
    if (beam.IsContinuous()) {
        return forces;
    }
    const LoadSlots& onSpan = SlotsOnSpan(beam.Support);
    for (std::size_t k = 0; k < PointSlotCount; ++k) {
        const double from = k < onSpan.Points.End ? 0 : L;
        if (loads.PT[k] != 0) {
            forces.Points.push_back({.At = from + loads.DIS[k], .Load = loads.PT[k]});
        }
    }
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        const double from = k < onSpan.Partials.End ? 0 : L;
        AddEven(forces, from + loads.BEGP[k], from + loads.ENDP[k], loads.PAR[k]);
    }
    return forces;
}

/// The reactions of several spans under one uniform load, mirrored about the middle.
std::vector<PointForce> ContinuousReactions(const BeamNumbers& beam, double plf)
{
    const ContinuousCoefficients coefficient = CoefficientsOf(beam);
    const int count = beam.SpanCount();
    std::vector<PointForce> reactions;
    for (int support = 0; support <= count; ++support) {
        const bool isEnd = support == 0 || support == count;
        const double share = isEnd ? coefficient.R1 : coefficient.R2;
        reactions.push_back({.At = support * beam.Span, .Load = -share * plf * beam.Span});
    }
    return reactions;
}

/// The forces with the reactions that hold them.
struct HeldForces {
    BeamForces Forces;
    std::vector<PointForce> Reactions;
};

HeldForces Hold(const BeamNumbers& beam, BeamForces forces)
{
    HeldForces held{.Forces = std::move(forces), .Reactions = {}};
    if (beam.IsContinuous()) {
        const double plf = held.Forces.Spreads.empty() ? 0 : held.Forces.Spreads.front().AtBegin;
        held.Reactions = ContinuousReactions(beam, plf);
    } else {
        held.Reactions = BalancingReactions(held.Forces, beam.Span, beam.Length());
    }
    held.Forces.Points.insert(held.Forces.Points.end(), held.Reactions.begin(), held.Reactions.end());
    return held;
}

HeldForces HeldWeight(const BeamNumbers& beam, double plf)
{
    BeamForces forces;
    AddEven(forces, 0, beam.Length(), plf);
    return Hold(beam, std::move(forces));
}

/// Places of the beam in order, each of them once.
class PlaceList {
public:
    void Add(double x) { places.push_back(x); }

    const std::vector<double>& Settle()
    {
        std::sort(places.begin(), places.end());
        places.erase(std::unique(places.begin(), places.end(), IsSamePlace), places.end());
        return places;
    }

private:
    std::vector<double> places;
};

class CurveMaker {
public:
    /// @param tabled  the station table of these loads; none where it is of others
    CurveMaker(const BeamNumbers& theBeam, double selfWeightPlf, const StationTable* tabled)
        : beam(theBeam),
          table(tabled),
          applied(Hold(theBeam, AppliedForces(theBeam))),
          weight(HeldWeight(theBeam, selfWeightPlf))
    {
        curves.Length = beam.Length();
        curves.Supports = applied.Reactions;
        for (std::size_t k = 0; k < curves.Supports.size(); ++k) {
            curves.Supports[k].Load += weight.Reactions[k].Load;
        }
    }

    /// @param EI  lb-in2; 0 without a member
    BeamCurves Make(double EI)
    {
        AddStations();
        AddLoadPlaces();
        FillPoints();
        AddZeros(&BeamPoint::Shear);
        AddZeros(&BeamPoint::Moment);
        FillPoints();
        if (EI > 0) {
            Deflect(curves.Points, beam.Span, EI);
            AddZeros(&BeamPoint::Slope);
            FillPoints();
            Deflect(curves.Points, beam.Span, EI);
            curves.HasDeflection = true;
        }
        return std::move(curves);
    }

private:
    void AddStations()
    {
        for (int i = 0; i <= beam.SpanCount() * static_cast<int>(LastStation); ++i) {
            places.Add(i * beam.Span / LastStation);
        }
        const int overhangSteps = beam.IsOverhanging() ? OverhangSteps : 0;
        for (int i = 1; i <= overhangSteps; ++i) {
            places.Add(beam.Span + i * beam.Overhang / OverhangSteps);
        }
    }

    void AddLoadPlaces()
    {
        for (const PointForce& force : applied.Forces.Points) {
            places.Add(force.At);
        }
        for (const SpreadForce& force : applied.Forces.Spreads) {
            places.Add(force.Begin);
            places.Add(force.End);
        }
    }

    /// Places between points where a value changes its sign.
    void AddZeros(double BeamPoint::*value)
    {
        for (std::size_t i = 1; i < curves.Points.size(); ++i) {
            const BeamPoint& a = curves.Points[i - 1];
            const BeamPoint& b = curves.Points[i];
            if (a.*value * (b.*value) < 0) {
                places.Add(a.X + (b.X - a.X) * a.*value / (a.*value - b.*value));
            }
        }
    }

    void FillPoints()
    {
        curves.Points.clear();
        for (const double x : places.Settle()) {
            const bool steps = HasStep(x);
            if (steps && !IsSamePlace(x, 0)) {
                AddPoint(x, SumBoth(x, Side::Left));
            }
            if (!steps) {
                AddPoint(x, AtStation(x).value_or(SumBoth(x, Side::Right)));
            } else if (!IsSamePlace(x, curves.Length)) {
                AddPoint(x, SumBoth(x, Side::Right));
            }
        }
    }

    void AddPoint(double x, const SectionForces& forces)
    {
        curves.Points.push_back({.X = x, .Shear = forces.Shear, .Moment = forces.Moment});
    }

    bool HasStep(double x) const
    {
        const std::vector<PointForce>& points = applied.Forces.Points;
        return std::any_of(points.begin(), points.end(),
                           [x](const PointForce& force) { return IsSamePlace(force.At, x); });
    }

    SectionForces SumBoth(double x, Side side) const
    {
        return Sum(SumUpTo(applied.Forces, x, side), SumUpTo(weight.Forces, x, side));
    }

    /// The table's own figures, with those of the weight.
    std::optional<SectionForces> AtStation(double x) const
    {
        const double steps = x * LastStation / beam.Span;
        const double station = std::round(steps);
        constexpr double binaryNoise = 1e-9;
        if (table == nullptr || station > LastStation || std::abs(steps - station) > binaryNoise) {
            return std::nullopt;
        }
        const auto i = static_cast<std::size_t>(station);
        const SectionForces tabled{.Shear = (*table)[StationColumn::Shear][i],
                                   .Moment = (*table)[StationColumn::Moment][i]};
        return Sum(tabled, SumUpTo(weight.Forces, x, Side::Right));
    }

    static SectionForces Sum(const SectionForces& a, const SectionForces& b)
    {
        return {.Shear = a.Shear + b.Shear, .Moment = a.Moment + b.Moment};
    }

    const BeamNumbers& beam;
    const StationTable* table;
    HeldForces applied;
    HeldForces weight;
    PlaceList places;
    BeamCurves curves;
};

BeamPoint Between(const BeamPoint& a, const BeamPoint& b, double x)
{
    const double share = (x - a.X) / (b.X - a.X);
    const auto mix = [&](double BeamPoint::*value) { return a.*value + share * (b.*value - a.*value); };
    return {.X = x,
            .Shear = mix(&BeamPoint::Shear),
            .Moment = mix(&BeamPoint::Moment),
            .Slope = mix(&BeamPoint::Slope),
            .Deflection = mix(&BeamPoint::Deflection)};
}

}  // namespace

bool IsMemberTested(const Session& session)
{
    return session.Analysis.CreepFactor > 0;  // cleared by each calculation, set by each test
}

BeamNumbers LiveLoadsAlone(const BeamNumbers& beam)
{
    BeamNumbers live = beam;
    live.Loads.UNIF = beam.Loads.LUNIF;
    live.Loads.PT = beam.Loads.LPT;
    live.Loads.PAR = beam.Loads.LPAR;
    live.Loads.IncUnifTL = beam.Loads.IncUnifLL;
    live.IncreasingTotalLoad = beam.IncreasingLiveLoad;
    return live;
}

BeamCurves ComputeCurves(const Session& session, CurveLoads loads)
{
    const BeamNumbers& whole = session.Numbers;
    if (whole.Span <= 0) {
        return {};
    }
    const bool isTested = IsMemberTested(session);
    const double EI = isTested ? session.Member.Adjusted.EAdj * PsiPerMillion * session.Member.Section.I : 0;
    if (loads == CurveLoads::Live) {
        return CurveMaker(LiveLoadsAlone(whole), 0, nullptr).Make(EI);
    }
    const bool isTabled =
        whole.Support == SupportCondition::SimpleSpan || whole.Support == SupportCondition::Overhanging;
    const double selfWeight = isTested ? session.Analysis.SelfWeightPlf : 0;
    return CurveMaker(whole, selfWeight, isTabled ? &session.Stations : nullptr).Make(EI);
}

CurveReading ReadCurves(const BeamCurves& curves, double x)
{
    const std::vector<BeamPoint>& points = curves.Points;
    const auto isBefore = [](const BeamPoint& point, double place) {
        return point.X < place && !IsSamePlace(point.X, place);
    };
    const auto first = std::lower_bound(points.begin(), points.end(), x, isBefore);
    if (first == points.end()) {
        return {points.back(), points.back()};
    }
    if (!IsSamePlace(first->X, x)) {
        const BeamPoint point = first == points.begin() ? *first : Between(*(first - 1), *first, x);
        return {point, point};
    }
    const auto next = first + 1;
    const bool steps = next != points.end() && IsSamePlace(next->X, x);
    return {*first, steps ? *next : *first};
}

double PlaceOfGreatestMoment(const BeamCurves& curves)
{
    const auto place = std::max_element(
        curves.Points.begin(), curves.Points.end(),
        [](const BeamPoint& a, const BeamPoint& b) { return std::abs(a.Moment) < std::abs(b.Moment); });
    return place == curves.Points.end() ? 0 : place->X;
}

double StepAlong(const BeamCurves& curves, double x, int places)
{
    const std::vector<BeamPoint>& points = curves.Points;
    double at = x;
    const auto isLeft = [&at](const BeamPoint& point) { return point.X < at && !IsSamePlace(point.X, at); };
    const auto isRight = [&at](const BeamPoint& point) { return point.X > at && !IsSamePlace(point.X, at); };
    for (int step = 0; step < places; ++step) {
        const auto next = std::find_if(points.begin(), points.end(), isRight);
        if (next == points.end()) {
            break;
        }
        at = next->X;
    }
    for (int step = 0; step > places; --step) {
        const auto next = std::find_if(points.rbegin(), points.rend(), isLeft);
        if (next == points.rend()) {
            break;
        }
        at = next->X;
    }
    return at;
}

}  // namespace kordavan
