#include "columns/StudColumn.h"
