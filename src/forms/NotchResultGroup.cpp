#include "forms/NotchResultGroup.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "forms/Kit.h"
#include "forms/NoteLine.h"

namespace kordavan {

namespace {

constexpr std::string_view LongestNote =
    "NDS 2018 has no rule here: nothing was computed. The result shown is of the run before, under NDS 2005. "
    "The log is cut to its centre or below it: what really remains is 1000.00 in.², less than the area shown.";
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
    adjustedFv->setText(Text(texts.AdjFvLabel));
    area->setText(Text(texts.AnLabel));
    criticalCaption->setText(Text(texts.CritLabel));
    critical->setText(Text(texts.CriticalfvLabel));
    criticalUnit->setText(Text(texts.CritPsiLabel));
    ratioCaption->setText(Text(texts.RatioTitle));
    ratio->setText(Text(texts.RatioLabel));
    minimumSpan->setText(Text(texts.MinSpanLabel));
    taperAngle->setText(Text(texts.TaperAngleLabel));
    note->Tell(texts.NotchNote);
    Fade(*figures, texts.IsOutdated || texts.IsOfEarlierRun);
}

QWidget* NotchResultGroup::MakeFigures()
{
    auto* const table = new QWidget;
    auto* const grid = new QGridLayout(table);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto add = [grid](int line, int column, QLabel* caption, QLabel* figure, QLabel* unit) {
        grid->addWidget(caption, line, column);
        grid->addWidget(figure, line, column + 1);
        grid->addWidget(unit, line, column + 2);
    };
    adjustedFv = MakeFigure("AdjFvLabel");
    area = MakeFigure("AnLabel");
    taperAngle = MakeFigure("TaperAngleLabel");
    criticalCaption = MakeNamedLabel("CritLabel");
    critical = MakeFigure("CriticalfvLabel");
    criticalUnit = MakeNamedLabel("CritPsiLabel");
    ratioCaption = MakeNamedLabel("RatioTitle");
    ratio = MakeFigure("RatioLabel");
    minimumSpan = MakeFigure("MinSpanLabel");
    add(0, LeftCaption, MakeLabel("Fv'"), adjustedFv, MakeLabel("psi"));
    add(1, LeftCaption, MakeLabel("An"), area, MakeLabel("in²"));
    add(2, LeftCaption, MakeLabel("Taper angle"), taperAngle, MakeLabel("degrees"));
    add(0, RightCaption, criticalCaption, critical, criticalUnit);
    add(1, RightCaption, ratioCaption, ratio, MakeLabel("%"));
    add(2, RightCaption, MakeLabel("Least span"), minimumSpan, MakeLabel("ft"));
    grid->setColumnMinimumWidth(Gap, DigitsWidth(*this, 3));
    grid->setColumnStretch(LastColumn, 1);
    return table;
}

}  // namespace kordavan
