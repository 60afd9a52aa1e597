#include "forms/Form18.h"

namespace kordavan {

Form18::Form18(Walk& walk) : Form(walk, "Form18") {}

}  // namespace kordavan
