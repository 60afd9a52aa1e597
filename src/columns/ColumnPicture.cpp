#include "columns/ColumnPicture.h"
