#pragma once

#include "columns/StudResult.h"
#include "design/LoadDiagram.h"

namespace kordavan {

/// The moment of a stud over its height, ft from the base, as the plot of moments of a load diagram. It marks
/// the moment that the stud was checked for, and the greatest in size where that is another one.
LoadDiagram ReadStudDiagram(const StudTest& test);

}  // namespace kordavan
