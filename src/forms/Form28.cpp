#include "forms/Form28.h"

namespace kordavan {

Form28::Form28(Walk& walk) : Form(walk, "Form28") {}

}  // namespace kordavan
