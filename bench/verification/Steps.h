#pragma once

#include <string>

namespace kordavan::Verification {

/// Beam stability factor, NDS equation 3.3-6, from A = FbE / Fb*.
inline const std::string CLStep = "CL = (1 + A) / 1.9 - sqrt(((1 + A) / 1.9)^2 - A / 0.95)";

/// Column stability factor of sawn lumber, NDS equation 3.7-1 with c = 0.8, from A = FcE / Fc*.
inline const std::string CpStep = "Cp = (1 + A) / 1.6 - sqrt(((1 + A) / 1.6)^2 - A / 0.8)";

}  // namespace kordavan::Verification
