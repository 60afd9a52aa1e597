#pragma once

#include "forms/HelpTexts.h"

namespace kordavan::NotchHelp {

extern const HelpText Shear;
extern const HelpText Member;
extern const HelpText BaseFv;
extern const HelpText RemainingDepth;
extern const HelpText Types;
extern const HelpText Use;
extern const HelpText Year;

}  // namespace kordavan::NotchHelp
