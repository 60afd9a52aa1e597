#include "records/StudRecordFile.h"
