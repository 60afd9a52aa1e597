#include "columns/ColumnProblem.h"
