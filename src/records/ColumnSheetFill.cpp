#include "records/ColumnSheetFill.h"

#include <array>

#include "records/SheetHeading.h"

namespace kordavan {

namespace {

constexpr std::array ColumnHeadCells{
    HeadCell{1, "", &RecordHeading::Heading1},   HeadCell{2, "", &RecordHeading::Heading2},
    HeadCell{3, "", &RecordHeading::Project},    HeadCell{4, "", &RecordHeading::Description},
    HeadCell{5, "", &RecordHeading::BeamId},     HeadCell{6, "Prepared by: ", &RecordHeading::Initials},
    HeadCell{7, "Date: ", &RecordHeading::Date},
};

}  // namespace

void HeadColumnSheet(const RecordHeading& heading, ColumnSheet& sheet)
{
    WriteHeadCells(ColumnHeadCells, heading, sheet.Labels);
}

RecordHeading HeadingOnColumnSheet(const ColumnSheet& sheet)
{
    return ReadHeadCells(ColumnHeadCells, sheet.Labels);
}

}  // namespace kordavan
