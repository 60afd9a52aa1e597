#pragma once

#include <string>
#include <vector>

#include "Sweep.h"

namespace kordavan::Verification {

/// What stands before the first chapter.
std::string Introduction();

/// What the sweep means to someone who builds: when to trust a deflection and when not. Its figures are the
/// sweep's.
std::string WhenToDistrust(const std::vector<SweepGroup>& sweep);

/// Where the program departs from a published rule, and to which side.
std::string Departures();

}  // namespace kordavan::Verification
