#include <algorithm>
#include <array>

#include "columns/SteelColumn.h"

namespace kordavan {

namespace {

constexpr std::string_view StandardPipe = "Standard Wt. Pipe A501 or A53 Grade B";
constexpr std::string_view ExtraStrongPipe = "Extra Strong Pipe A501 or A53 Grade B";
constexpr std::string_view DoubleExtraStrongPipe = "Dbl Extra Strong Pipe A501 or A53 Grade B";
constexpr std::string_view SquareTube = "Structural Tube ASTM A500 Grade B";

// AISC Manual of Steel Construction, Allowable Stress Design, 9th edition: dimensions and properties of pipe
// and of square structural tubing.
// clang-format off
constexpr std::array<SteelColumnRow, SteelColumnRowCount> Rows{{
    // size              O.D.     lb/ft   area     r
    {"3 in. diam.",     "3.5",     7.58,  2.23, 1.16, StandardPipe},
    {"3-1/2 in. diam.", "4.0",     9.11,  2.68, 1.34, StandardPipe},
    {"4 in. diam.",     "4.5",    10.79,  3.17, 1.51, StandardPipe},
    {"5 in. diam.",     "5.563",  14.62,   4.3, 1.88, StandardPipe},
    {"6 in. diam.",     "6.625",  18.97,  5.58, 2.25, StandardPipe},
    {"3 in. diam.",     "3.5",    10.25,  3.02, 1.14, ExtraStrongPipe},
    {"3-1/2 in. diam.", "4.0",     12.5,  3.68, 1.31, ExtraStrongPipe},
    {"4 in. diam.",     "4.5",    14.98,  4.41, 1.48, ExtraStrongPipe},
    {"5 in. diam.",     "5.563",  20.78,  6.11, 1.84, ExtraStrongPipe},
    {"6 in. diam.",     "6.625",  28.57,   8.4, 2.19, ExtraStrongPipe},
    {"3 in. diam.",     "3.5",    18.58,  5.47, 1.05, DoubleExtraStrongPipe},
    {"4 in. diam.",     "4.5",    27.54,   8.1, 1.37, DoubleExtraStrongPipe},
    {"5 in. diam.",     "5.563",  38.55,  11.3, 1.72, DoubleExtraStrongPipe},
    {"6 in. diam.",     "6.625",  53.16,  15.6, 2.06, DoubleExtraStrongPipe},
    {"3 x 3 x 1/4",     "3 x 3",   8.81,  2.59,  1.1, SquareTube},
    {"4 x 4 x 1/4",     "4 x 4",  12.21,  3.59, 1.51, SquareTube},
    {"4 x 4 x 3/8",     "4 x 4",  17.27,  5.08, 1.45, SquareTube},
    {"4 x 4 x 1/2",     "4 x 4",  21.63,  6.36, 1.39, SquareTube},
    {"5 x 5 x 1/4",     "5 x 5",  15.62,  4.59, 1.92, SquareTube},
    {"5 x 5 x 3/8",     "5 x 5",  22.37,  6.58, 1.86, SquareTube},
    {"5 x 5 x 1/2",     "5 x 5",  28.43,  8.36,  1.8, SquareTube},
    {"6 x 6 x 1/4",     "6 x 6",  19.02,  5.59, 2.33, SquareTube},
    {"6 x 6 x 3/8",     "6 x 6",  27.48,  8.08, 2.27, SquareTube},
    {"6 x 6 x 1/2",     "6 x 6",  35.24,  10.4, 2.21, SquareTube},
    {"8 x 8 x 1/4",     "8 x 8",  25.82,  7.59, 3.15, SquareTube},
    {"8 x 8 x 3/8",     "8 x 8",  37.69,  11.1, 3.09, SquareTube},
    {"8 x 8 x 1/2",     "8 x 8",  48.85,  14.4, 3.03, SquareTube},
}};
// clang-format on

struct KindRow {
    SteelColumnKind Kind;
    std::string_view TypeAndGrade;
    SteelColumnRange Range;
};

constexpr std::array Kinds{
    KindRow{SteelColumnKind::Standard, StandardPipe, {.First = 0, .Count = 5}},
    KindRow{SteelColumnKind::ExtraStrong, ExtraStrongPipe, {.First = 5, .Count = 5}},
    KindRow{SteelColumnKind::DoubleExtraStrong, DoubleExtraStrongPipe, {.First = 10, .Count = 4}},
    KindRow{SteelColumnKind::Tube, SquareTube, {.First = 14, .Count = 13}},
};

constexpr bool KindsFollowEachOther()
{
    std::size_t end = 0;
    for (std::size_t k = 0; k < Kinds.size(); ++k) {
        const KindRow& row = Kinds[k];
        if (static_cast<std::size_t>(row.Kind) != k || row.Range.First != end) {
            return false;
        }
        for (end = row.Range.First; end < row.Range.First + row.Range.Count; ++end) {
            if (Rows[end].TypeAndGrade != row.TypeAndGrade) {
                return false;
            }
        }
    }
    return end == Rows.size();
}

static_assert(KindsFollowEachOther());

}  // namespace

std::span<const SteelColumnRow, SteelColumnRowCount> SteelColumnRows()
{
    return Rows;
}

SteelColumnRange RowsOfKind(SteelColumnKind kind)
{
    return Kinds[static_cast<std::size_t>(kind)].Range;
}

bool IsSteelTube(std::size_t row)
{
    return row >= RowsOfKind(SteelColumnKind::Tube).First;
}

std::vector<std::string_view> SteelColumnGrades()
{
    std::vector<std::string_view> grades(Kinds.size());
    std::transform(Kinds.begin(), Kinds.end(), grades.begin(),
                   [](const KindRow& kind) { return kind.TypeAndGrade; });
    return grades;
}

std::string SteelColumnSizeList()
{
    std::string list;
    for (const KindRow& kind : Kinds) {
        list += list.empty() ? "" : "\n\n";
        list += kind.TypeAndGrade;
        std::string_view separator = ":\n";
        for (const SteelColumnRow& row : SteelColumnRows().subspan(kind.Range.First, kind.Range.Count)) {
            list += separator;
            list += row.Size;
            separator = ",  ";
        }
    }
    return list;
}

}  // namespace kordavan
