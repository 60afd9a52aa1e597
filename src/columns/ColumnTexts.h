#pragma once

#include <string>

#include "columns/ColumnSession.h"

namespace kordavan {

/// The member in the words of the trade: "(2) 2x 6 nailed built-up column, DF-L #2"; a size of no list by its
/// net inches.
std::string ColumnMemberText(const WoodColumnTest& test);

/// Which plane governs, and why, in a sentence of at most 85 characters.
std::string GoverningPlaneText(const WoodColumnTest& test);

/// Why the column fails, in a sentence; empty when it passes.
std::string ColumnFailureText(const WoodColumnTest& test);

/// What the column was designed by: edition, values, wet use, incising, bracing of plane D1.
std::string ColumnAttributeText(const WoodColumnTest& test);

/// fc as a part of Fc', such as "80%"; empty where Fc' is 0.
std::string ColumnRatioText(const ColumnResult& result);

/// Lumber of the values, such as "Post and Timber".
std::string_view ValueGroupName(ColumnValueGroup group);

/// Make-up of the column, such as "Nailed Built-up 2xs".
std::string_view ColumnTypeName(ColumnType type);

}  // namespace kordavan
