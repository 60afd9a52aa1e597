#include "notch/NotchPicture.h"
