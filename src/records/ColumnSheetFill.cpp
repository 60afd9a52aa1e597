#include "records/ColumnSheetFill.h"
