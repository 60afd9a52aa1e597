#include <algorithm>
#include <array>
#include <string_view>

#include "columns/SteelColumn.h"
#include "core/BeamNumbers.h"
#include "records/CellText.h"
#include "records/ColumnSheetFill.h"
#include "records/FigureFormats.h"

namespace kordavan {

namespace {

constexpr std::string_view AttributeText =
    "Allowable stress design, AISC ASD Chapter E, concentric axial load, steel ";
constexpr std::string_view SelfWeightText =
    "Column self weight is ignored; it is negligible in regards to the allowable loads.";

/// A cell and the text of the report that it shows. Stress and area are one check: their ratios agree.
struct ReportCell {
    std::size_t Label;
    std::string_view Name;
};

constexpr std::array ReportCells{
    ReportCell{23, "K"},
    ReportCell{29, "unbraced, in."},
    ReportCell{30, "r"},
    ReportCell{36, "Actual O.D."},
    ReportCell{38, "Wt. p/ft."},
    ReportCell{39, "Fy"},
    ReportCell{40, "E"},
    ReportCell{41, "Cc"},
    ReportCell{50, "KL/r actual"},
    ReportCell{51, "KL/r critical"},
    ReportCell{60, "KL/r status"},
    ReportCell{61, "Fa"},
    ReportCell{71, "stress actual"},
    ReportCell{75, "stress critical"},
    ReportCell{77, "area status"},
    ReportCell{81, "area required"},
    ReportCell{82, "area actual"},
    ReportCell{84, "area status"},
};
constexpr std::array RatioCells{
    ReportCell{52, "KL/r ratio"},
    ReportCell{76, "area ratio"},
    ReportCell{83, "area ratio"},
};

std::string_view TextNamed(const std::vector<SteelReportLine>& report, std::string_view name)
{
    const auto line = std::find_if(report.begin(), report.end(),
                                   [name](const SteelReportLine& each) { return each.Name == name; });
    return line == report.end() ? std::string_view{} : line->Text;
}

void FillReport(const SteelColumnTest& test, ColumnSheet& sheet)
{
    constexpr std::size_t loadLength = 10;
    const std::vector<SteelReportLine> report = SteelReportTexts(test);
    sheet[15] = CellText(TextNamed(report, "Reaction"), loadLength);
    for (const ReportCell& cell : ReportCells) {
        sheet[cell.Label] = CellText(TextNamed(report, cell.Name));
    }
    for (const ReportCell& cell : RatioCells) {
        sheet[cell.Label] = CellPercent(TextNamed(report, cell.Name));
    }
}

}  // namespace

ColumnSheet FillSteelColumnSheet(const SteelColumnTest& test, const RecordHeading& heading,
                                 const ReportNoteLines& notes)
{
    ColumnSheet sheet;
    HeadColumnSheet(heading, sheet);
    sheet[10] = test.Size + " steel column, " + test.TypeAndGrade;
    sheet[12] = std::string(AttributeText) + (IsSteelTube(test.Result.Row) ? "tube" : "pipe");
    sheet[59] = SelfWeightText;
    sheet[17] = CellNumber(test.Problem.ColumnHeight, LengthFormat);
    sheet[19] = CellNumber(test.Problem.UnbracedLength / InchesPerFoot, LengthFormat);
    FillReport(test, sheet);
    sheet.ReportNotes = notes;
    return sheet;
}

}  // namespace kordavan
