#include "columns/ColumnResult.h"
