#include "columns/WoodColumn.h"
