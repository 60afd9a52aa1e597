#include "notch/NotchTexts.h"
