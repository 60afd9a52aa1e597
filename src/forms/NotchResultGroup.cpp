#include "forms/NotchResultGroup.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "core/NumberText.h"
#include "forms/Kit.h"
#include "forms/NoteLine.h"

namespace kordavan {

namespace {

constexpr std::string_view LongestNote =
    "NDS 2018 has no rule here: nothing was computed. The result shown is of the run before, under NDS 2005. "
    "This log is cut below its centre. The area shown is more than the whole log has; what really remains is "
    "1000.00 in². Such a notch is always below its minimum dn.";
constexpr int CaptionDigits = 15;
constexpr int FigureDigits = 10;

enum Column { LeftCaption, LeftFigure, LeftUnit, Gap, RightCaption, RightFigure, RightUnit, LastColumn };

QLabel* MakeFigure(std::string_view name)
{
    QLabel* const figure = MakePanel(name);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    figure->setFixedWidth(DigitsWidth(*figure, FigureDigits));
    return figure;
}

}  // namespace

NotchResultGroup::NotchResultGroup()
    : figures(MakeFigures()), note(new NoteLine("NotchNote", LongestNote, NoteKind::Alert))
{
    setObjectName(QStringLiteral("NotchResultGroup"));
    auto* const column = new QVBoxLayout(this);
    column->addWidget(figures);
    column->addWidget(note);
    LetFade(*figures);
}

void NotchResultGroup::ShowTexts(const NotchTexts& texts)
{
    critical.Caption->setText(Text(texts.CritLabel));
    critical.Unit->setText(Text(texts.CritPsiLabel));
    ratio.Caption->setText(Text(texts.RatioTitle));
    ShowFigure(adjustedFv, texts.AdjFvLabel);
    ShowFigure(area, texts.AnLabel);
    ShowFigure(taperAngle, texts.TaperAngleLabel);
    ShowFigure(critical, texts.CriticalfvLabel);
    ShowFigure(ratio, texts.RatioLabel);
    ShowFigure(minimumSpan, texts.MinSpanLabel);
    note->Tell(texts.NotchNote);
    Fade(*figures, texts.IsOutdated || texts.IsOfEarlierRun);
}

QWidget* NotchResultGroup::MakeFigures()
{
    auto* const table = new QWidget;
    auto* const grid = new QGridLayout(table);
    grid->setContentsMargins(0, 0, 0, 0);
    adjustedFv =
        AddFigure(*grid, 0, LeftCaption, {MakeLabel("Fv'"), MakeFigure("AdjFvLabel"), MakeLabel("psi")});
    area = AddFigure(*grid, 1, LeftCaption, {MakeLabel("An"), MakeFigure("AnLabel"), MakeLabel("in\u00B2")});
    taperAngle = AddFigure(*grid, 2, LeftCaption,
                           {MakeLabel("Taper angle"), MakeFigure("TaperAngleLabel"), MakeLabel("degrees")});
    critical = AddFigure(
        *grid, 0, RightCaption,
        {MakeNamedLabel("CritLabel"), MakeFigure("CriticalfvLabel"), MakeNamedLabel("CritPsiLabel")});
    ratio = AddFigure(*grid, 1, RightCaption,
                      {MakeNamedLabel("RatioTitle"), MakeFigure("RatioLabel"), MakeLabel("%")});
    minimumSpan = AddFigure(*grid, 2, RightCaption,
                            {MakeLabel("Least span"), MakeFigure("MinSpanLabel"), MakeLabel("ft")});
    grid->setColumnMinimumWidth(Gap, DigitsWidth(*this, 3));
    grid->setColumnMinimumWidth(RightCaption, DigitsWidth(*this, CaptionDigits));
    grid->setColumnMinimumWidth(RightUnit, DigitsWidth(*this, 3));
    grid->setColumnStretch(LastColumn, 1);
    return table;
}

NotchResultGroup::Figure NotchResultGroup::AddFigure(QGridLayout& grid, int line, int column,
                                                     const Figure& figure)
{
    KeepPlace(*figure.Unit);
    grid.addWidget(figure.Caption, line, column);
    grid.addWidget(figure.Panel, line, column + 1);
    grid.addWidget(figure.Unit, line, column + 2);
    return figure;
}

/// A unit stands with a number alone.
void NotchResultGroup::ShowFigure(const Figure& figure, const std::string& text)
{
    figure.Panel->setText(Text(text));
    figure.Unit->setVisible(IsNumeric(text));
}

}  // namespace kordavan
