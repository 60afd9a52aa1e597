#include "batch/ColumnRequest.h"
