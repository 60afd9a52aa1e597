#include "columns/ColumnCriteria.h"
