#include "records/NotchPage.h"
