#include "notch/NotchProblem.h"
