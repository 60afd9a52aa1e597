#include "forms/Form10.h"

namespace kordavan {

Form10::Form10(Walk& walk) : Form(walk, "Form10") {}

}  // namespace kordavan
