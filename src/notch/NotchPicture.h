#pragma once

#include <string>

#include "notch/NotchProblem.h"
#include "notch/NotchYears.h"

namespace kordavan {

/// A notched end as the sketch shows it, as far as the entries can be read; nothing is checked. Sizes in in.;
/// 0 while there is none to read.
struct NotchPicture {
    NotchMember Member = NotchMember::SawnRectangular;
    NotchType Notch = NotchType::Tension;
    double Depth = 0;
    double Breadth = 0;
    double DepthAtNotch = 0;  // no more than the depth
    double MinimumDn = 0;
    double Setback = 0;
    double RafterDepth = 0;
    double WallBreadth = 0;
    double SeatAngle = 0;  // degrees
    std::string DepthText;
    std::string DepthAtNotchText;
    std::string MinimumText;
    std::string SetbackText;
    std::string AngleText;
    std::string ShearText;
};

NotchPicture ReadNotchPicture(const NotchEntry& entry, const NotchYears& years);

/// The picture in words, for those who do not see it.
std::string DescribeNotchPicture(const NotchPicture& picture);

/// The angle of a roof in degrees: a pitch up to 24 is a rise in 12, more is the angle itself.
double RoofAngle(double pitch);

}  // namespace kordavan
