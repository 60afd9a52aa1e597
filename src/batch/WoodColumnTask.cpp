#include "batch/WoodColumnTask.h"
