#include "forms/NotchReport.h"

namespace kordavan {

NotchReport::NotchReport(Walk& walk) : Form(walk, "NotchReport") {}

}  // namespace kordavan
