#include "notch/NotchCheck.h"
