#pragma once

namespace kordavan {

/// Net cross-section of a candidate.
struct SectionProps {
    double B = 0;  // breadth, in.; the diameter of a round member
    double D = 0;  // depth, in.; the diameter of a round member
    bool Round = false;
    float S = 0;              // section modulus, in3
    float A = 0;              // area, in2
    float I = 0;              // moment of inertia, in4
    float SelfWeightPlf = 0;  // plf
};

/// What the self-weight of a section hangs on.
struct WeightBasis {
    bool NoWeight = false;
    float DensityFactor = 0;  // plf per in2
    float SlopeFactor = 1;
};

/// pi/4 to the digits that the trade's tables print: the area of a circle over its diameter squared.
inline constexpr double CircleAreaFactor = 0.7854;

struct RectangleSize {
    double B = 0;  // in.
    double D = 0;  // in.
};

SectionProps RectangleProps(RectangleSize size, const WeightBasis& weight);
SectionProps RoundProps(double diameter, const WeightBasis& weight);

}  // namespace kordavan
