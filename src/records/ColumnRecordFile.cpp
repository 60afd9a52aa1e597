#include "records/ColumnRecordFile.h"
