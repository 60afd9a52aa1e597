#include "notch/NotchYears.h"
