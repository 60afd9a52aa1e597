#include "columns/ColumnSpecies.h"
