#include "forms/Form23.h"

namespace kordavan {

Form23::Form23(Walk& walk) : Form(walk, "Form23") {}

}  // namespace kordavan
