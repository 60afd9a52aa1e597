#include "columns/StudPicture.h"
