#pragma once

#include "forms/HelpTexts.h"

namespace kordavan::ColumnHelp {

extern const HelpText AxialLoad;
extern const HelpText BucklingMode;
extern const HelpText UnbracedLengths;
extern const HelpText Duration;
extern const HelpText Service;
extern const HelpText Types;
extern const HelpText Values;

extern const HelpText StudSize;
extern const HelpText StudValues;
extern const HelpText StudAxial;
extern const HelpText StudDuration;
extern const HelpText StudWind;
extern const HelpText StudRepetitive;

}  // namespace kordavan::ColumnHelp
