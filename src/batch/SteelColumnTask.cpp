#include "batch/SteelColumnTask.h"
