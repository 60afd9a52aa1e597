#include "forms/Form19.h"

namespace kordavan {

Form19::Form19(Walk& walk) : Form(walk, "Form19") {}

}  // namespace kordavan
