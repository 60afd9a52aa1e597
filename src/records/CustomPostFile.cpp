#include "records/CustomPostFile.h"
