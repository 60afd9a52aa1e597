#pragma once

#include <optional>
#include <string>

#include "columns/ColumnSession.h"

namespace kordavan {

/// One bracing plane of a column as a sketch shows it.
struct ColumnPlanePicture {
    bool IsKnown = false;         // its unbraced length can be read
    bool IsBraced = false;        // throughout
    double Unbraced = 0;          // ft
    std::string LengthText{};     // such as "8 ft unbraced" or "fully braced"
    std::string EffectiveText{};  // "le = 96 in."; empty while it cannot be worked out
};

/// A column as the sketch shows it, as far as the entries can be read; nothing is checked.
struct ColumnPicture {
    bool IsSteel = false;
    double Height = 0;  // ft; 0 while there is none to read
    std::string HeightText;
    std::string LoadText;  // empty while there is none
    ColumnPlanePicture D1;
    ColumnPlanePicture D2;  // steel columns have one plane alone
    ColumnType Type = ColumnType::SolidSawn2xOr4x;
    int PlyCount = 1;      // 2 stands for any number of plies of a built-up column
    std::string TypeText;  // what the section is made of
};

ColumnPicture ReadColumnPicture(const ColumnEntry& entry, ColumnFace face);

/// The picture in words, for those who do not see it.
std::string DescribeColumn(const ColumnPicture& picture);

}  // namespace kordavan
