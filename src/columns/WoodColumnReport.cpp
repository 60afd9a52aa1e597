#include "columns/WoodColumnReport.h"
