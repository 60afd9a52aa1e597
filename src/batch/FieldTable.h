#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

#include "batch/Json.h"

namespace kordavan {

/// The row that bears this name of a table of fields; fails there with `fault` where none does.
template <typename Rows>
const auto& FieldNamed(const Rows& rows, std::string_view name, const FieldPath& path, std::string_view fault)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [name](const auto& field) { return field.Name == name; });
    if (row == std::end(rows)) {
        path.Fail(fault);
    }
    return *row;
}

}  // namespace kordavan
