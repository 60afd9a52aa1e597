#pragma once

#include "core/BeamNumbers.h"

namespace kordavan {

/// Either the total or the live values of a load set, with the places they share.
struct LoadView {
    double Uniform;                // plf
    const PointValues& Point;      // lb
    const PointValues& Distance;   // ft
    const PartialValues& Partial;  // plf
    const PartialValues& Begin;    // ft
    const PartialValues& End;
};

inline LoadView TotalLoads(const LoadNumbers& loads)
{
    return {loads.UNIF, loads.PT, loads.DIS, loads.PAR, loads.BEGP, loads.ENDP};
}

inline LoadView LiveLoads(const LoadNumbers& loads)
{
    return {loads.LUNIF, loads.LPT, loads.DIS, loads.LPAR, loads.BEGP, loads.ENDP};
}

}  // namespace kordavan
