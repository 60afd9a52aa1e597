#pragma once

#include "core/BeamNumbers.h"

namespace kordavan {

/// A beam of so many feet on its support condition, with limits L/360 live and L/240 total and nothing on it.
inline BeamNumbers BeamOf(double span, SupportCondition support = SupportCondition::SimpleSpan)
{
    BeamNumbers beam;
    beam.Span = span;
    beam.Support = support;
    beam.MaxDefl = 240;
    beam.LMaxDefl = 360;
    return beam;
}

inline void SetPoint(BeamNumbers& beam, std::size_t slot, double load, double place, double live = 0)
{
    beam.Loads.PT[slot] = load;
    beam.Loads.LPT[slot] = live;
    beam.Loads.DIS[slot] = place;
    beam.Overhang = beam.IsOverhanging() ? OverhangLength(beam.Loads) : 0;
}

inline void SetPartial(BeamNumbers& beam, std::size_t slot, double load, double begin, double end,
                       double live = 0)
{
    beam.Loads.PAR[slot] = load;
    beam.Loads.LPAR[slot] = live;
    beam.Loads.BEGP[slot] = begin;
    beam.Loads.ENDP[slot] = end;
    beam.Overhang = beam.IsOverhanging() ? OverhangLength(beam.Loads) : 0;
}

}  // namespace kordavan
