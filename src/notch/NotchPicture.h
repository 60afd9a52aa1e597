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
    double Setback = 0;  // of a compression notch
    double RafterDepth = 0;
    double WallBreadth = 0;
    double SeatAngle = 0;   // degrees
    std::string DepthText;  // such as "d 9.25 in."; these are empty while there is nothing to read
    std::string DepthAtNotchText;
    std::string MinimumText;
    std::string SetbackText;
    std::string RafterDepthText;
    std::string WallBreadthText;
    std::string AngleText;
    std::string ShearText;
};

NotchPicture ReadNotchPicture(const NotchEntry& entry, const NotchYears& years);

/// The picture in words, for those who do not see it.
std::string DescribeNotchPicture(const NotchPicture& picture);

}  // namespace kordavan
