#include "columns/StudCriteria.h"
