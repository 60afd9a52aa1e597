#include "core/SizeText.h"

#include <cmath>

#include "core/NumberText.h"

namespace kordavan {

std::string InchesText(double inches)
{
    constexpr double most = 10000;
    const double sixteenths = inches * SixteenthsPerInch;
    if (!(inches >= 0 && inches < most) || sixteenths != std::floor(sixteenths)) {
        return PlainNumber(inches);
    }
    return std::string(InchesText(static_cast<int>(sixteenths)).View());
}

}  // namespace kordavan
