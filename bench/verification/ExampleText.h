#pragma once

#include <string>

#include "Example.h"
#include "Manual.h"

namespace kordavan::Verification {

/// Adds an example, numbered as "2.3", to the manual: its requests are put to the engine, its steps worked
/// out, and what leaves its limit is noted as a fault.
void WriteExample(const Example& example, const std::string& number, Manual& manual);

}  // namespace kordavan::Verification
