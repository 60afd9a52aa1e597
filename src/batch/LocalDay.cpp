#include "batch/LocalDay.h"

#include <ctime>

namespace kordavan {

CalendarDay LocalToday()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    constexpr int firstYear = 1900;
    return {.Year = local.tm_year + firstYear, .Month = local.tm_mon + 1, .Day = local.tm_mday};
}

}  // namespace kordavan
