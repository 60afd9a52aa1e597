#include "records/ColumnDesk.h"
