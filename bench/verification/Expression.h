#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace kordavan::Verification {

/// Values by the symbols of the trade, as "L" or "Fb'".
using Symbols = std::map<std::string, double, std::less<>>;

/// The value of an expression as it stands in the manual, "w x L^2 / 8": + - x / ^, brackets, numbers,
/// symbols, pi and the functions sqrt, atan, cos, min and max. The hand figure is what the reader sees and
/// nothing else.
/// @return not a number never: throws std::invalid_argument with the place of a slip in writing
double Evaluate(std::string_view expression, const Symbols& symbols);

/// Reads givens as "L = 13.5 ft, w = 52 plf" into symbols; what follows a number is its unit.
Symbols ReadGivens(std::string_view givens);

/// One step of a hand calculation, "R1 = w x L / 2": works it out and keeps it under its symbol.
double WorkOut(std::string_view step, Symbols& symbols);

}  // namespace kordavan::Verification
