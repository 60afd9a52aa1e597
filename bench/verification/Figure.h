#pragma once

#include <string>

namespace kordavan::Verification {

/// A figure to six significant digits, without an exponent, "1656.27" or "0.251394".
std::string Figure(double value);

/// A figure with so many decimals; never "-0.00".
std::string Fixed(double value, int decimals);

/// A difference in per cent with its sign, "+0.12".
std::string Signed(double percent, int decimals);

}  // namespace kordavan::Verification
