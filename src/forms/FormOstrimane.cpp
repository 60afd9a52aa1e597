#include "forms/FormOstrimane.h"

namespace kordavan {

FormOstrimane::FormOstrimane(Walk& walk) : Form(walk, "FormOstrimane") {}

}  // namespace kordavan
