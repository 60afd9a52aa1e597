#include "columns/StudProblem.h"
