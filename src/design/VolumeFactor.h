#pragma once

#include "core/BeamNumbers.h"
#include "materials/Species.h"

namespace kordavan {

/// Whether two point loads must be equal to count as a pair at the third points.
enum class PointPair { Equal, Any };

/// Loading condition constant KL of the volume factor. It counts under NDS 1997 alone, on one simple span
/// that carries nothing but a point load near midspan (1.09) or two near the third points (0.96).
/// Source: NDS 1997, Table 5.3.2.
double LoadingConstant(const BeamNumbers& beam, PointPair pair = PointPair::Equal);

/// Exponent 1/x of the volume factor: 1/20 for Southern Pine, 1/10 for other species.
double VolumeExponent(bool southernPine);

/// Volume factor Cv = KL (21/L)^(1/x) (12/d)^(1/x) (5.125/b)^(1/x), never above 1.
/// @param lengthFt  length between points of zero moment, ft
float VolumeFactor(double lengthFt, NetSize size, double exponent, double loadingConstant);

}  // namespace kordavan
