#pragma once

#include <array>
#include <cstddef>

namespace kordavan {

/// Columns of the station table; those of several loads begin at the one named and follow in slot order.
enum class StationColumn : std::size_t {
    Position = 0,       // x, ft from R1
    PointMoment = 1,    // moment taken off by each point load, ft-lb
    PartialMoment = 7,  // moment taken off by each partial load, ft-lb
    Moment = 12,        // net moment of the applied loads, ft-lb
    PointShear = 13,    // shear taken off by each point load, lb
    PartialShear = 19,  // shear taken off by each partial load, lb
    Shear = 24          // net shear of the applied loads, lb
};

inline constexpr std::size_t StationCount = 201;
inline constexpr std::size_t LastStation = StationCount - 1;
inline constexpr std::size_t StationColumnCount = 25;

/// Moment and shear of the applied loads at 201 stations along the span.
///
/// A column lies together in memory and is padded to whole vectors, so that loops over stations vectorise.
class StationTable {
public:
    static constexpr std::size_t PaddedCount = 208;
    using Column = std::array<float, PaddedCount>;

    Column& operator[](StationColumn column) { return columns[static_cast<std::size_t>(column)]; }
    const Column& operator[](StationColumn column) const { return columns[static_cast<std::size_t>(column)]; }

    /// The column of the load in this slot, counted from the first column of its kind.
    Column& ForSlot(StationColumn first, std::size_t slot)
    {
        return columns[static_cast<std::size_t>(first) + slot];
    }
    const Column& ForSlot(StationColumn first, std::size_t slot) const
    {
        return columns[static_cast<std::size_t>(first) + slot];
    }

    void Clear() { columns = {}; }

private:
    alignas(64) std::array<Column, StationColumnCount> columns{};
};

}  // namespace kordavan
