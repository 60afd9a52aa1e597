#include "batch/StudTask.h"
