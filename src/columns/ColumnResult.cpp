#include "columns/ColumnResult.h"

namespace kordavan {

std::string_view PlaneName(ColumnPlane plane)
{
    switch (plane) {
        case ColumnPlane::D1:
            return "D1";
        case ColumnPlane::D2:
            return "D2";
        case ColumnPlane::Neither:
            break;
    }
    return {};
}

}  // namespace kordavan
