#include "forms/PickTable.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionButton>
#include <cstdlib>
#include <limits>

#include "forms/HelpButton.h"
#include "forms/Kit.h"

namespace kordavan {

namespace {

enum Line {
    SawnHeadLine,
    FirstSecondGradeLine,
    FirstFirstGradeLine,
    SecondSecondGradeLine,
    SecondFirstGradeLine,
    GlulamHeadLine,
    GlulamLine
};

enum Column { SpeciesColumn, FirstBreadthColumn, LastBreadthColumn = 8, HelpColumn };

constexpr int GlulamHelpColumn = FirstBreadthColumn + 5;

struct CellPlace {
    int Line;
    int Column;
};

/// Cells that stand side by side.
struct CellRow {
    int Line;
    int FirstColumn;
    std::size_t First;
    std::size_t End;
};

// The No. 1 rows begin at 4x.
constexpr std::array Rows{
    CellRow{FirstSecondGradeLine, 1, 0, 6},     CellRow{FirstFirstGradeLine, 5, 6, 9},
    CellRow{SecondSecondGradeLine, 1, 9, 15},   CellRow{SecondFirstGradeLine, 5, 15, 19},
    CellRow{GlulamLine, 1, 19, QuickPickCount},
};

constexpr std::array<CellPlace, QuickPickCount> MakePlaces()
{
    std::array<CellPlace, QuickPickCount> places{};
    for (const CellRow& row : Rows) {
        for (std::size_t cell = row.First; cell < row.End; ++cell) {
            places[cell] = {row.Line, row.FirstColumn + static_cast<int>(cell - row.First)};
        }
    }
    return places;
}

constexpr std::array<CellPlace, QuickPickCount> Places = MakePlaces();
static_assert(Places[8].Column == 7 && Places[18].Column == LastBreadthColumn);

/// The breadth over a column of sawn cells.
std::string_view BreadthOver(int column, const QuickPicks& picks)
{
    for (std::size_t cell = 0; cell < QuickPickCount; ++cell) {
        if (Places[cell].Column == column) {
            return picks[cell].BreadthText;
        }
    }
    return {};
}

/// How far a cell is on the way an arrow key points to; none when it is not on it. Up and down go to the next
/// line that has a cell, and there to the one nearest in column.
std::optional<int> StepsTo(CellPlace from, CellPlace to, int key)
{
    constexpr int perLine = 100;
    const int down = to.Line - from.Line;
    const int right = to.Column - from.Column;
    const bool isOnWay = (key == Qt::Key_Left && down == 0 && right < 0) ||
                         (key == Qt::Key_Right && down == 0 && right > 0) ||
                         (key == Qt::Key_Up && down < 0) || (key == Qt::Key_Down && down > 0);
    return isOnWay ? std::optional(perLine * std::abs(down) + std::abs(right)) : std::nullopt;
}

bool IsArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

}  // namespace

PickCell::PickCell(const QString& name)
{
    setObjectName(name);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PickCell::Show(const QuickPick& pick, const PickFace& face)
{
    setText(Text(pick.DepthText));
    setEnabled(!pick.DepthText.empty());
    setAccessibleName(Text(face.Name));
    setAccessibleDescription(Text(face.Tip));
    setToolTip(Text(face.Tip));
    isFaded = face.IsFaded;
    update();
}

void PickCell::SetPicked(bool picked)
{
    isPicked = picked;
    update();
}

/// As wide as the widest heading over it.
QSize PickCell::sizeHint() const
{
    constexpr int digitsWide = 9;
    return {DigitsWidth(*this, digitsWide), QPushButton::sizeHint().height()};
}

void PickCell::initStyleOption(QStyleOptionButton* option) const
{
    QPushButton::initStyleOption(option);
    if (isFaded) {
        constexpr float faded = 0.55F;
        QColor text = palette().color(QPalette::ButtonText);
        text.setAlphaF(faded);
        option->palette.setColor(QPalette::ButtonText, text);
    }
}

void PickCell::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    if (isPicked) {
        constexpr double thickness = 3;
        constexpr double radius = 2;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), thickness));
        constexpr double inset = thickness / 2 + 1;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
    }
}

/// Arrows belong to the table.
void PickCell::keyPressEvent(QKeyEvent* event)
{
    if (IsArrow(event->key())) {
        event->ignore();
        return;
    }
    QPushButton::keyPressEvent(event);
}

PickTable::PickTable(HelpButton* widthHelp, HelpButton* glulamHelp) : grid(new QGridLayout(this))
{
    setObjectName(QStringLiteral("PickTable"));
    grid->setContentsMargins(0, 0, 0, 0);
    AddCells();
    AddHeadings(widthHelp, glulamHelp);
}

void PickTable::Show(const QuickPicks& picks, const BeamNumbers& beam)
{
    for (std::size_t cell = 0; cell < QuickPickCount; ++cell) {
        cells[cell]->Show(picks[cell], FaceOf(picks[cell], FamilyOf(beam.Group), beam.Rep));
    }
    for (std::size_t row = 0; row < Rows.size(); ++row) {
        rowHeads[row]->setText(Text(picks[Rows[row].First].SpeciesText));
    }
    for (std::size_t head = 0; head < columnHeads.size(); ++head) {
        const int column = FirstBreadthColumn + static_cast<int>(head);
        columnHeads[head]->setText(Text(BreadthOver(column, picks)));
    }
}

void PickTable::ShowTexts(const SelectionTexts& texts)
{
    for (std::size_t head = 0; head < glulamHeads.size(); ++head) {
        glulamHeads[head]->setText(Text(texts.GlulamHeads[head]));
    }
    repQualify->setText(Text(texts.RepQualify));
    repQualify->setVisible(!texts.RepQualify.empty());
}

void PickTable::ShowEntry(const QuickPicks& picks, const MemberEntry& entry)
{
    for (std::size_t cell = 0; cell < QuickPickCount; ++cell) {
        cells[cell]->SetPicked(IsEntered(picks[cell], entry));
    }
}

bool PickTable::FocusFirst()
{
    for (PickCell* const cell : cells) {
        if (cell->isEnabled()) {
            cell->setFocus();
            return true;
        }
    }
    return false;
}

void PickTable::keyPressEvent(QKeyEvent* event)
{
    const PickCell* const from = CellInFocus();
    if (from == nullptr || !IsArrow(event->key())) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (PickCell* const to = CellBeside(*from, event->key())) {
        to->setFocus(Qt::OtherFocusReason);
    }
}

void PickTable::AddCells()
{
    for (std::size_t index = 0; index < QuickPickCount; ++index) {
        auto* const cell = new PickCell(ArrayName("ht", index));
        cells[index] = cell;
        grid->addWidget(cell, Places[index].Line, Places[index].Column);
        connect(cell, &QPushButton::clicked, this, [this, index] { Q_EMIT Picked(index); });
    }
}

void PickTable::AddHeadings(HelpButton* widthHelp, HelpButton* glulamHelp)
{
    for (std::size_t row = 0; row < Rows.size(); ++row) {
        rowHeads[row] = MakeNamedLabel(Text(ArrayName("RowHead", row)));
        rowHeads[row]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(rowHeads[row], Rows[row].Line, SpeciesColumn);
    }
    for (std::size_t head = 0; head < columnHeads.size(); ++head) {
        columnHeads[head] = AddColumnHead(ArrayName("ColHead", head), SawnHeadLine,
                                          FirstBreadthColumn + static_cast<int>(head));
    }
    constexpr int firstGlulamLabel = 13;
    for (std::size_t head = 0; head < glulamHeads.size(); ++head) {
        const int column = static_cast<int>(head);
        glulamHeads[head] = AddColumnHead(QStringLiteral("Label%1").arg(firstGlulamLabel + column),
                                          GlulamHeadLine, FirstBreadthColumn + column);
    }
    grid->addWidget(widthHelp, SawnHeadLine, HelpColumn);
    grid->addWidget(glulamHelp, GlulamHeadLine, GlulamHelpColumn, Qt::AlignLeft);
    repQualify = MakeNamedLabel("RepQualify");
    repQualify->setWordWrap(true);
    repQualify->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(repQualify, GlulamLine, GlulamHelpColumn, 1, HelpColumn - GlulamHelpColumn + 1);
}

QLabel* PickTable::AddColumnHead(const QString& name, int line, int column)
{
    QLabel* const head = MakeHeading("");
    head->setObjectName(name);
    head->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->addWidget(head, line, column, Qt::AlignHCenter | Qt::AlignBottom);
    return head;
}

PickCell* PickTable::CellInFocus()
{
    for (PickCell* const cell : cells) {
        if (cell->hasFocus()) {
            return cell;
        }
    }
    return nullptr;
}

PickCell* PickTable::CellBeside(const PickCell& cell, int key)
{
    const auto* const at = std::find(cells.begin(), cells.end(), &cell);
    const CellPlace from = Places[static_cast<std::size_t>(at - cells.begin())];
    PickCell* nearest = nullptr;
    int leastSteps = std::numeric_limits<int>::max();
    for (std::size_t index = 0; index < QuickPickCount; ++index) {
        const std::optional<int> steps = StepsTo(from, Places[index], key);
        if (cells[index]->isEnabled() && steps && *steps < leastSteps) {
            nearest = cells[index];
            leastSteps = *steps;
        }
    }
    return nearest;
}

}  // namespace kordavan
