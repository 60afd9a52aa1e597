#include <algorithm>
#include <array>
#include <string_view>

#include "columns/ColumnStability.h"
#include "columns/ColumnTexts.h"
#include "core/NumberText.h"
#include "records/CellText.h"
#include "records/ColumnSheetFill.h"
#include "records/FigureFormats.h"

namespace kordavan {

namespace {

constexpr std::string_view SlendernessFormat = "#,##0.00";
constexpr std::string_view StabilityFormat = "0.000";
constexpr std::string_view NailPlies =
    "Nail per NDS 15.3.3: from alternate faces, 3/4 or more into the last ply.";
constexpr std::string_view BoltPlies =
    "Bolt per NDS 15.3.4: rows through all plies, washers under heads and nuts.";

/// What must hold for the bracing that the design relies on.
std::string BracingNote(const ColumnProblem& problem)
{
    constexpr std::string_view fasten =
        ": fasten the sheathing or bracing to the column over its full height";
    const std::string_view kf =
        problem.D1FullyBraced && IsBuiltUp(problem.Type) ? "; Kf is taken as 1.0." : ".";
    if (problem.UnbracedD1 == 0) {
        return "Plane D1 is braced throughout" + std::string(fasten) + std::string(kf);
    }
    if (problem.D1FullyBraced) {
        return "Face D1 is sheathed" + std::string(fasten) + std::string(kf);
    }
    return problem.UnbracedD2 == 0 ? "Plane D2 is braced throughout" + std::string(fasten) + "."
                                   : std::string{};
}

std::string PlyNote(ColumnType type)
{
    switch (type) {
        case ColumnType::NailedBuiltUp:
            return std::string(NailPlies);
        case ColumnType::BoltedBuiltUp:
            return std::string(BoltPlies);
        case ColumnType::SolidSawn6x:
        case ColumnType::SolidSawn2xOr4x:
            break;
    }
    return {};
}

/// The governing plane; of a column that fails, why it does, where the line has room for that.
std::string GoverningLine(const WoodColumnTest& test)
{
    constexpr std::size_t lineLength = 85;
    std::string governing = GoverningPlaneText(test);
    const std::string failure = ColumnFailureText(test);
    if (failure.empty()) {
        return governing;
    }
    const std::array lines{governing + " " + failure, failure};
    const auto* const line = std::find_if(lines.begin(), lines.end(),
                                          [](const std::string& text) { return text.size() <= lineLength; });
    return line == lines.end() ? governing : *line;
}

void FillLines(const WoodColumnTest& test, ColumnSheet& sheet)
{
    sheet[12] = ColumnMemberText(test);
    sheet[66] = ColumnAttributeText(test);
    sheet[10] = test.Problem.SpeciesGrade;
    sheet[86] = test.Result.Passes ? "Status: OK" : "Status: Fails";
    sheet[59] = GoverningLine(test);
    sheet.SheathNote = BracingNote(test.Problem);
    sheet.Sheathnote2 = PlyNote(test.Problem.Type);
}

void FillGeometry(const WoodColumnTest& test, ColumnSheet& sheet)
{
    const ColumnProblem& problem = test.Problem;
    const ColumnResult& result = test.Result;
    constexpr std::size_t loadLength = 10;
    sheet[15] = CellNumber(problem.Reaction, "#,##0.##", loadLength);
    sheet[17] = CellNumber(problem.ColumnHeight, LengthFormat);
    sheet[19] = CellNumber(problem.BucklingKe, FactorFormat);
    sheet[23] = CellNumber(problem.UnbracedD1, LengthFormat);
    sheet[29] = CellNumber(problem.UnbracedD2, LengthFormat);
    sheet[30] = CellNumber(result.D1, LengthFormat);
    sheet[36] = CellNumber(result.D2, LengthFormat);
    sheet[55] = CellNumber(problem.Le1(), "#,##0.0");
    sheet[60] = CellNumber(problem.Le2(), "#,##0.0");
    sheet[61] = CellNumber(result.SlendernessD1, SlendernessFormat);
    sheet[67] = CellNumber(result.SlendernessD2, SlendernessFormat);
    sheet[68] = CellNumber(MostColumnSlenderness, "0");
    sheet[69] = result.SlendernessOver50 ? ColumnStatus::Fail : ColumnStatus::Ok;
}

void FillValues(const WoodColumnTest& test, ColumnSheet& sheet)
{
    constexpr double million = 1e6;
    const ColumnProblem& problem = test.Problem;
    const ColumnFactors& factors = test.Result.Factors;
    sheet[38] = CellNumber(problem.BaseFc, "#,##0.##");
    sheet[39] = CellNumber(problem.BaseE, "0.0###");
    sheet[40] = CellNumber(problem.DurationCd, FactorFormat);
    sheet[41] = CellNumber(factors.CF, FactorFormat);
    sheet[48] = CellNumber(factors.CmFc, FactorFormat);
    sheet[49] = CellNumber(factors.CmE, FactorFormat);
    sheet[50] = CellNumber(factors.CiFc, FactorFormat);
    sheet[51] = CellNumber(factors.CiE, FactorFormat);
    sheet[52] = IsBuiltUp(problem.Type) ? CellNumber(factors.Kf, FactorFormat) : std::string{};
    sheet[70] = CellNumber(test.Result.EPrime / million, "0.000");
    sheet[71] = CellStress(test.Result.FcStar);
}

/// A column that cannot buckle has no critical stress.
void FillStability(const ColumnResult& result, ColumnSheet& sheet)
{
    if (result.GoverningPlane != ColumnPlane::Neither) {
        sheet[54] = CellNumber(SawnColumnC, "0.0#");
        sheet[75] = CellStress(result.FcE);
        sheet[76] = CellNumber(result.KcE, "0.000#");
    }
    sheet[77] = CellNumber(result.Cp1, StabilityFormat);
    sheet[80] = CellNumber(result.Cp2, StabilityFormat);
    sheet[81] = CellNumber(result.Area, "#,##0.00");
    sheet[82] = CellStress(Single(result.FcActual));
    sheet[83] = CellStress(result.FcPrime);
    sheet[84] = CellPercent(ColumnRatioText(result));
}

}  // namespace

ColumnSheet FillWoodColumnSheet(const WoodColumnTest& test, const RecordHeading& heading,
                                const ReportNoteLines& notes)
{
    ColumnSheet sheet;
    HeadColumnSheet(heading, sheet);
    FillLines(test, sheet);
    FillGeometry(test, sheet);
    FillValues(test, sheet);
    FillStability(test.Result, sheet);
    sheet.ReportNotes = notes;
    return sheet;
}

}  // namespace kordavan
