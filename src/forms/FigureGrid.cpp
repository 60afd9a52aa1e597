#include "forms/FigureGrid.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "forms/Kit.h"

namespace kordavan {

namespace {

enum Column { CaptionColumn, FigureColumn, UnitColumn, NoteColumn };

constexpr int FigureDigits = 10;

/// What decides which labels are needed.
std::vector<std::string> ShapeOf(const std::vector<ColumnReportBlock>& blocks)
{
    std::vector<std::string> shape;
    for (const ColumnReportBlock& block : blocks) {
        shape.push_back(block.Heading);
        for (const ColumnReportLine& line : block.Lines) {
            shape.push_back(line.Name);
        }
    }
    return shape;
}

QLabel* MakeText(std::string_view name = {})
{
    QLabel* const label = MakeNamedLabel(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

FigureGrid::FigureGrid(std::size_t count) : columnCount(count), row(new QHBoxLayout(this))
{
    row->setContentsMargins(0, 0, 0, 0);
}

void FigureGrid::Show(const std::vector<ColumnReportBlock>& blocks)
{
    if (const std::vector<std::string> shape = ShapeOf(blocks); shape != built) {
        Build(blocks);
        built = shape;
    }
    std::size_t next = 0;
    for (const ColumnReportBlock& block : blocks) {
        for (const ColumnReportLine& line : block.Lines) {
            ShowLine(lines[next++], line);
        }
    }
    GiveRoomToNotes();
}

/// The blocks keep their order and fill the columns about evenly.
void FigureGrid::Build(const std::vector<ColumnReportBlock>& blocks)
{
    delete table;
    lines.clear();
    table = new QWidget;
    row->addWidget(table);
    columns = new QHBoxLayout(table);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(DigitsWidth(*this, 4));
    const std::size_t total = ShapeOf(blocks).size();
    std::size_t placed = 0;
    QGridLayout* grid = nullptr;
    for (std::size_t k = 0, column = 0; k < blocks.size(); ++k) {
        const std::size_t height = blocks[k].Lines.size() + 1;
        if (grid == nullptr || (2 * placed + height) * columnCount >= 2 * total * column) {
            grid = AddColumn();
            ++column;
        }
        AddBlock(*grid, blocks[k]);
        placed += height;
    }
}

QGridLayout* FigureGrid::AddColumn()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(DigitsWidth(*this, 1));
    grid->setVerticalSpacing(4);
    grid->setColumnMinimumWidth(FigureColumn, DigitsWidth(*this, FigureDigits));
    grid->setColumnStretch(NoteColumn, 1);
    auto* const column = new QVBoxLayout;
    column->addLayout(grid);
    column->addStretch(1);
    columns->addLayout(column, 1);
    return grid;
}

/// Columns whose figures have something said of them take the width that the others leave.
void FigureGrid::GiveRoomToNotes()
{
    constexpr int mostRoom = 100;
    for (const Line& line : lines) {
        if (!line.Note->text().isEmpty()) {
            columns->setStretch(line.Column, mostRoom);
        }
    }
}

void FigureGrid::AddBlock(QGridLayout& grid, const ColumnReportBlock& block)
{
    int at = grid.rowCount();
    grid.addWidget(MakeHeading(block.Heading), at++, CaptionColumn, 1, NoteColumn + 1);
    for (const ColumnReportLine& shown : block.Lines) {
        const Line line{.Caption = MakeText(),
                        .Figure = MakeText(shown.Name),
                        .Unit = MakeText(),
                        .Note = MakeText(),
                        .Column = columns->count() - 1};
        line.Figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        line.Note->setWordWrap(true);
        grid.addWidget(line.Caption, at, CaptionColumn);
        grid.addWidget(line.Figure, at, FigureColumn);
        grid.addWidget(line.Unit, at, UnitColumn);
        grid.addWidget(line.Note, at, NoteColumn);
        lines.push_back(line);
        ++at;
    }
    grid.setRowMinimumHeight(at, fontMetrics().height());
}

void FigureGrid::ShowLine(const Line& line, const ColumnReportLine& shown)
{
    line.Caption->setText(Text(shown.Caption));
    line.Figure->setText(Text(shown.Figure));
    line.Unit->setText(Text(shown.Unit));
    line.Note->setText(Text(shown.Note));
    line.Figure->setAccessibleDescription(Text(shown.Caption + ", " + shown.Unit));
}

}  // namespace kordavan
