#include "forms/Form20.h"

namespace kordavan {

Form20::Form20(Walk& walk) : Form(walk, "Form20") {}

}  // namespace kordavan
