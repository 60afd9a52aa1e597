#include "columns/SteelColumn.h"
