#include "analysis/StationFill.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "analysis/Stations.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

/// Net columns are summed in double and rounded once, so that a level stretch of moment stays level.
struct NetSums {
    std::array<double, StationTable::PaddedCount> Moment{};
    std::array<double, StationTable::PaddedCount> Shear{};
};

/// Fills the table column by column, each of them from end to end.
class StationFiller {
public:
    StationFiller(double span, StationTable& stations) : line{span, LastStation}, table(stations)
    {
        // In two parts, the first of which is exact times i, so that a station at 7 ft stands at 7 ft.
        const double coarseStep = Single(span / LastStation);
        const double restOfStep = (span - LastStation * coarseStep) / LastStation;
        StationTable::Column& position = table[StationColumn::Position];
        for (std::size_t i = 0; i < StationCount; ++i) {
            const auto steps = static_cast<double>(i);
            place[i] = steps * coarseStep + steps * restOfStep;
            position[i] = Single(place[i]);
        }
    }

    void AddPoint(std::size_t slot, double load, double distance)
    {
        const SlotColumns columns = ColumnsOf(StationColumn::PointMoment, StationColumn::PointShear, slot);
        const std::size_t firstBeyond = FirstBeyond(distance);
        Clear(columns, firstBeyond);
        AddConcentrated(columns, firstBeyond, load, distance);
    }

    void AddPartial(std::size_t slot, double load, double begin, double end)
    {
        const SlotColumns columns =
            ColumnsOf(StationColumn::PartialMoment, StationColumn::PartialShear, slot);
        const std::size_t firstBeyondBegin = FirstBeyond(begin);
        const std::size_t firstBeyondEnd = FirstBeyond(end);
        Clear(columns, firstBeyondBegin);
        AddSpread(columns, {firstBeyondBegin, firstBeyondEnd}, load, begin);
        AddConcentrated(columns, firstBeyondEnd, load * (end - begin), (end - begin) / 2 + begin);
    }

    void FillNetColumns(double reaction, double uniform)
    {
        StationTable::Column& moment = table[StationColumn::Moment];
        StationTable::Column& shear = table[StationColumn::Shear];
        for (std::size_t i = 0; i < StationCount; ++i) {
            const double x = place[i];
            moment[i] = Single(reaction * x - (uniform * x * (x / 2) + net.Moment[i]));
            shear[i] = Single(reaction - (uniform * x + net.Shear[i]));
        }
    }

    void LeavePoint(std::size_t slot)
    {
        Clear(ColumnsOf(StationColumn::PointMoment, StationColumn::PointShear, slot), StationCount);
    }

    void LeavePartial(std::size_t slot)
    {
        Clear(ColumnsOf(StationColumn::PartialMoment, StationColumn::PartialShear, slot), StationCount);
    }

private:
    struct SlotColumns {
        StationTable::Column& Moment;
        StationTable::Column& Shear;
    };

    struct StationRange {
        std::size_t First;
        std::size_t End;  // one past the last
    };

    SlotColumns ColumnsOf(StationColumn moment, StationColumn shear, std::size_t slot)
    {
        return {table.ForSlot(moment, slot), table.ForSlot(shear, slot)};
    }

    std::size_t FirstBeyond(double distance) const
    {
        return static_cast<std::size_t>(line.FirstBeyond(distance));
    }

    static void Clear(const SlotColumns& columns, std::size_t end)
    {
        std::fill_n(columns.Moment.begin(), end, 0.0F);
        std::fill_n(columns.Shear.begin(), end, 0.0F);
    }

    void AddConcentrated(const SlotColumns& columns, std::size_t first, double load, double distance)
    {
        for (std::size_t i = first; i < StationCount; ++i) {
            const double takenOff = (place[i] - distance) * load;
            columns.Moment[i] = Single(takenOff);
            columns.Shear[i] = Single(load);
            net.Moment[i] += takenOff;
            net.Shear[i] += load;
        }
    }

    void AddSpread(const SlotColumns& columns, StationRange range, double load, double begin)
    {
        for (std::size_t i = range.First; i < range.End; ++i) {
            const double length = place[i] - begin;
            const double shear = length * load;
            columns.Moment[i] = Single(length / 2 * shear);
            columns.Shear[i] = Single(shear);
            net.Moment[i] += length / 2 * shear;
            net.Shear[i] += shear;
        }
    }

    StationLine line;
    StationTable& table;
    std::array<double, StationTable::PaddedCount> place{};
    NetSums net;
};

constexpr int PointsReached = 20;
constexpr int PartialsReached = 55;

void ReachSlot(const Progress& progress, int from, std::size_t slot)
{
    progress.Reach(from + static_cast<int>(slot * slot));
}

}  // namespace

void FillStations(const BeamNumbers& beam, double reaction, StationTable& table, const Progress& progress)
{
    if (beam.IsContinuous()) {
        table.Clear();
    }
    StationFiller filler(beam.Span, table);
    if (beam.IsContinuous()) {
        return;
    }
    const LoadNumbers& loads = beam.Loads;
    const LoadSlots& slots = SlotsOnSpan(beam.Support);
    for (std::size_t k = 0; k < PointSlotCount; ++k) {
        ReachSlot(progress, PointsReached, k);
        if (k < slots.Points.End && loads.PT[k] > 0) {
            filler.AddPoint(k, loads.PT[k], loads.DIS[k]);
        } else {
            filler.LeavePoint(k);
        }
    }
    progress.Reach(PartialsReached);
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        ReachSlot(progress, PartialsReached, k);
        if (k < slots.Partials.End && loads.PAR[k] > 0) {
            filler.AddPartial(k, loads.PAR[k], loads.BEGP[k], loads.ENDP[k]);
        } else {
            filler.LeavePartial(k);
        }
    }
    filler.FillNetColumns(reaction, loads.UNIF);
}

MomentPeak FindPeak(const StationTable& table)
{
    const StationTable::Column& moment = table[StationColumn::Moment];
    for (std::size_t i = LastStation - 1; i >= 1; --i) {
        if (moment[i + 1] > moment[i]) {
            return {.Moment = moment[i + 1], .StationBefore = table[StationColumn::Position][i]};
        }
    }
    return {};
}

std::optional<float> LastNegativeMoment(const StationTable& table)
{
    const StationTable::Column& moment = table[StationColumn::Moment];
    for (std::size_t i = LastStation - 1; i >= 1; --i) {
        if (moment[i] < 0) {
            return table[StationColumn::Position][i];
        }
    }
    return std::nullopt;
}

}  // namespace kordavan
