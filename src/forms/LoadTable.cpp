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

std::vector<NumericBox*> LoadTable::AddRow(std::size_t slot, std::initializer_list<RowBox> row)
{
    std::vector<NumericBox*> boxes;
    int column = FirstBoxColumn;
    for (const RowBox& part : row) {
        boxes.push_back(AddNumber(part.Array, slot, part.Tip, part.Digits, *part.Text));
        Grid().addWidget(boxes.back(), LineOf(slot), column, Qt::AlignRight);
        ++column;
    }
    return boxes;
}

void LoadTable::MakeRowClearable(const ControlText& letter, char caption, std::size_t slot,
                                 const std::vector<NumericBox*>& boxes, SlotClearing clear)
{
    auto* const button = new QToolButton;
    Describe(*button, letter);
    button->setText(QString(QLatin1Char(caption)));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    Grid().addWidget(button, LineOf(slot), LetterColumn);
    const auto empty = [this, clear, slot] {
        Change([clear, slot](Session& session) { clear(session.Problem.Loads, slot); });
    };
    connect(button, &QToolButton::clicked, this, empty);
    for (NumericBox* const box : boxes) {
        connect(box, &NumericBox::ClearRowAsked, this, empty);
    }
}

void LoadTable::MakeTableClearable(const std::vector<NumericBox*>& boxes, TableClearing clear)
{
    clearTable = clear;
    for (NumericBox* const box : boxes) {
        connect(box, &NumericBox::ClearTableAsked, this,
                [this] { Change([this](Session& session) { clearTable(session.Problem.Loads); }); });
    }
}

QLabel* LoadTable::AddOverhangTag(std::size_t slot)
{
    QLabel* const tag = MakeLabel("OH");
    tag->setToolTip(tr("This load lies on the overhang; its distances are feet from R2"));
    QSizePolicy policy = tag->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    tag->setSizePolicy(policy);
    Grid().addWidget(tag, LineOf(slot), columnCount);
    return tag;
}

void LoadTable::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    if (clearTable != nullptr) {
        Change([this](Session& session) { clearTable(session.Problem.Loads); });
    }
}

}  // namespace kordavan
