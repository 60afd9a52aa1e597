#include "records/ColumnRecordPage.h"

#include "records/ColumnPageKit.h"

namespace kordavan {

namespace {

/// Lays out the cells of one sheet.
class ColumnPage {
public:
    ColumnPage(const ColumnSheet& filled, const PageOptions& pageOptions)
        : sheet(filled),
          options(pageOptions),
          writer(filled[3] + "  " + filled[5], filled.Labels, pageOptions)
    {
        WritePageHeading(writer, {.Heading1 = {1, sheet[1]},
                                  .Heading2 = {2, sheet[2]},
                                  .Project = {3, sheet[3], "Project:"},
                                  .Id = {5, sheet[5], "Column ID:"},
                                  .Description = {4, sheet[4], "Description:"},
                                  .Date = {7, sheet[7]},
                                  .Initials = {6, sheet[6]}});
    }

    RecordPage Wood()
    {
        WriteColumnTitle(writer, Cell(12), Cell(66));
        WriteWoodStatus();
        const double tables = writer.Top();
        WriteWoodChecks();
        WriteWoodGeometry();
        KeepDiagramRoom(writer, tables, options);
        writer.Rule();
        WriteWoodValues();
        WriteConstructionNotes();
        return Finished();
    }

    RecordPage Steel()
    {
        WriteColumnTitle(writer, Cell(10), Cell(12));
        writer.Cell(59, WholePageWidth, PageStyle::Caption);
        writer.NextLine(1.5);
        const double tables = writer.Top();
        WriteSteelChecks();
        WriteSteelFigures();
        KeepDiagramRoom(writer, tables, options);
        return Finished();
    }

private:
    PageCell Cell(std::size_t label) const { return {label, sheet[label]}; }

    void Row(std::string_view caption, std::size_t first, std::size_t second = 0)
    {
        WriteFigures(writer, {caption, Cell(first), Cell(second)});
        writer.NextLine();
    }

    /// Two rows of one figure each, side by side within the tables' width.
    void RowPair(const PageFigures& left, const PageFigures& right)
    {
        WriteFigures(writer, left);
        constexpr PageColumn caption{204, 80, PageAlign::Left};
        constexpr PageColumn figure{284, 46};
        writer.Text(0, right.Caption, caption, PageStyle::Caption);
        writer.Cell(right.First.Label, figure);
        writer.NextLine();
    }

    void WriteWoodStatus()
    {
        writer.Text(0, "Species and grade", {0, FirstFigureLeft, PageAlign::Left}, PageStyle::Caption);
        writer.Cell(10, {FirstFigureLeft, PageContentWidth - FirstFigureLeft, PageAlign::Left});
        writer.NextLine(1.5);
        writer.Cell(86, {0, 110, PageAlign::Left}, PageStyle::Status);
        writer.Cell(59, {FirstFigureLeft, PageContentWidth - FirstFigureLeft, PageAlign::Left});
        writer.NextLine(1.5);
    }

    void WriteWoodChecks()
    {
        writer.StartBlock();
        WriteChecks(writer,
                    {{"Compression Fc', fc, psi", Cell(83), Cell(82), {}, Cell(84)},
                     {"Slenderness le/d, plane D1", {}, Cell(61)},
                     {"Slenderness le/d, plane D2", {}, Cell(67)},
                     {"le/d of both planes", Cell(68), {}, Cell(69)}},
                    options);
        writer.Rule(ColumnTableWidth);
    }

    void WriteWoodGeometry()
    {
        writer.StartBlock();
        WriteFigureHeads(writer, {"Load and geometry"});
        writer.NextLine();
        Row("Axial load P, lb", 15);
        Row("Actual height, ft", 17);
        Row("Buckling mode Ke", 19);
        Row("Area, in\u00B2", 81);
        writer.NextLine(0.5);
        WriteFigureHeads(writer, {"Planes", {0, "D1"}, {0, "D2"}});
        writer.NextLine();
        Row("Net size, in.", 30, 36);
        Row("Unbraced length, ft", 23, 29);
        Row("Effective length le, in.", 55, 60);
        Row("Column stability factor Cp", 77, 80);
    }

    void WriteWoodValues()
    {
        const auto row = [this](const PageFigures& left, const PageFigures& right) {
            WriteFigures(writer, left);
            WriteFigures(writer, right, RightTableLeft);
            writer.NextLine();
        };
        writer.StartBlock();
        WriteFigureHeads(writer, {"Values and factors", {0, "Fc, psi"}, {0, "E, mill. psi"}});
        WriteFigureHeads(writer, {"Column stability"}, RightTableLeft);
        writer.NextLine();
        row({"Base value", Cell(38), Cell(39)}, {"Euler coefficient KcE", Cell(76)});
        row({"Load duration Cd", Cell(40)}, {"Sawn lumber c", Cell(54)});
        row({"Size CF", Cell(41)}, {"Critical stress FcE, psi", Cell(75)});
        row({"Wet use Cm", Cell(48), Cell(49)}, {"Built-up column Kf", Cell(52)});
        row({"Incising Ci", Cell(50), Cell(51)}, {});
        row({"Fc* (without Cp) and E'", Cell(71), Cell(70)}, {});
    }

    /// An empty one stands last, where it leaves no gap.
    void WriteConstructionNotes()
    {
        if (!sheet.SheathNote.empty() || !sheet.Sheathnote2.empty()) {
            writer.Rule();
            writer.StartBlock();
            writer.Text(0, "Bracing and fastening", WholePageWidth, PageStyle::ColumnHead);
            writer.NextLine();
        }
        const bool isSecondFirst = sheet.SheathNote.empty();
        if (isSecondFirst) {
            WriteNote("Sheathnote2", sheet.Sheathnote2);
        }
        WriteNote("SheathNote", sheet.SheathNote);
        if (!isSecondFirst) {
            WriteNote("Sheathnote2", sheet.Sheathnote2);
        }
    }

    void WriteNote(std::string_view name, std::string_view text)
    {
        writer.NamedCell(name, text, WholePageWidth, PageStyle::Figure);
        writer.NextLine();
    }

    void WriteSteelChecks()
    {
        writer.StartBlock();
        WriteChecks(writer,
                    {{"Slenderness KL/r", Cell(51), Cell(50), Cell(60), Cell(52)},
                     {"Axial stress Fa, fa, ksi", Cell(75), Cell(71), Cell(77), Cell(76)},
                     {"Area, required, actual, in\u00B2", Cell(81), Cell(82), Cell(84), Cell(83)}},
                    options);
        writer.Rule(ColumnTableWidth);
    }

    void WriteSteelFigures()
    {
        writer.StartBlock();
        WriteFigureHeads(writer, {"Load and geometry"});
        writer.Text(0, "Section and steel", {204, 126, PageAlign::Left}, PageStyle::ColumnHead);
        writer.NextLine();
        RowPair({"Reaction P, lb", Cell(15)}, {"Actual O.D., in.", Cell(36)});
        RowPair({"Actual height, ft", Cell(17)}, {"Radius r, in.", Cell(30)});
        RowPair({"Unbraced length, ft", Cell(19)}, {"Weight, lb/ft", Cell(38)});
        RowPair({"Unbraced length, in.", Cell(29)}, {"Fy, ksi", Cell(39)});
        RowPair({"Buckling mode K", Cell(23)}, {"E, mill. psi", Cell(40)});
        RowPair({"Allowable stress Fa, ksi", Cell(61)}, {"Cc", Cell(41)});
    }

    RecordPage Finished()
    {
        if (options.HasNotes) {
            WritePageNotes(writer, sheet.ReportNotes);
        }
        return std::move(writer.Page());
    }

    const ColumnSheet& sheet;
    const PageOptions& options;
    PageWriter writer;
};

}  // namespace

RecordPage LayOutWoodColumnRecord(const ColumnSheet& sheet, const PageOptions& options)
{
    return ColumnPage(sheet, options).Wood();
}

RecordPage LayOutSteelColumnRecord(const ColumnSheet& sheet, const PageOptions& options)
{
    return ColumnPage(sheet, options).Steel();
}

}  // namespace kordavan
