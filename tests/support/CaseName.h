#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

namespace kordavan {

/// Names a row of a table test by its own Name, or by its place in the table when it has none.
inline constexpr auto CaseName = [](const auto& test) {
    std::string name = "Row" + std::to_string(test.index);
    if constexpr (requires { test.param.Name; }) {
        name += '_';
        name += test.param.Name;
        std::replace_if(
            name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    }
    return name;
};

}  // namespace kordavan
