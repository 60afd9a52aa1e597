#include "forms/LoadTable.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

namespace kordavan {

namespace {

enum Column { LetterColumn, FirstBoxColumn };

}  // namespace

void LoadTable::AddHeadings(std::initializer_list<std::string_view> headings)
{
    int column = FirstBoxColumn;
    for (const std::string_view heading : headings) {
        Grid().addWidget(MakeColumnHead(heading), 0, column);
        ++column;
    }
    columnCount = column;
}

std::vector<NumericBox*> LoadTable::AddRow(char letter, std::size_t slot, std::initializer_list<RowBox> row,
                                           SlotClearing clear)
{
    std::vector<NumericBox*> boxes;
    int column = FirstBoxColumn;
    for (const RowBox& part : row) {
        const std::string tip = std::string(1, letter) + ": " + std::string(part.Tip);
        NumericBox* const box = AddNumber(part.Array, slot, tip, part.Digits, *part.Text);
        MakeClearable(*box, slot, clear);
        Grid().addWidget(box, LineOf(slot), column, Qt::AlignRight);
        boxes.push_back(box);
        ++column;
    }
    return boxes;
}

QToolButton* LoadTable::AddLetter(std::string_view name, char letter, std::size_t slot, SlotClearing clear)
{
    auto* const button = new QToolButton;
    const std::string tip = "Empty load " + std::string(1, letter) + " (Ctrl+Delete in its row)";
    Describe(*button, {.Name = name, .Tip = tip});
    button->setText(QString(QLatin1Char(letter)));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    Grid().addWidget(button, LineOf(slot), LetterColumn);
    connect(button, &QToolButton::clicked, this, [this, slot, clear] { ClearRow(slot, clear); });
    return button;
}

void LoadTable::MakeTableClearable(TableClearing clear)
{
    clearTable = clear;
}

void LoadTable::SetClearable(bool isClearable)
{
    canClear = isClearable;
}

void LoadTable::MakeClearable(NumericBox& box, std::size_t slot, SlotClearing clear)
{
    box.SetInTable();
    connect(&box, &NumericBox::ClearRowAsked, this, [this, slot, clear] { ClearRow(slot, clear); });
    connect(&box, &NumericBox::ClearTableAsked, this, &LoadTable::ClearTable);
}

void LoadTable::ClearRow(std::size_t slot, SlotClearing clear)
{
    if (canClear) {
        Change([slot, clear](Session& session) { clear(session.Problem.Loads, slot); });
    }
}

void LoadTable::ClearTable()
{
    if (canClear && clearTable != nullptr) {
        Change([this](Session& session) { clearTable(session.Problem.Loads); });
    }
}

QLabel* LoadTable::AddOverhangTag(std::size_t slot)
{
    QLabel* const tag = MakeLabel("OH");
    tag->setToolTip(QStringLiteral("This load lies on the overhang; its distances are feet from R2"));
    KeepPlace(*tag);
    Grid().addWidget(tag, LineOf(slot), columnCount);
    return tag;
}

void LoadTable::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    ClearTable();
}

}  // namespace kordavan
