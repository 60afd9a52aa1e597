#include "batch/NotchTask.h"
