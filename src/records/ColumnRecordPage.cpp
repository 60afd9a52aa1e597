#include "records/ColumnRecordPage.h"
