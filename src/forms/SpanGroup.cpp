#include "forms/SpanGroup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "design/LoadingConditions.h"

namespace kordavan {

namespace {

enum Line { SpanLine, UnbracedLine, OverhangLine, DurationLine, LimitsHeadLine, LimitsLine };
enum Column { CaptionColumn, BoxColumn, UnitColumn, CycleColumn, HelpColumn };

}  // namespace

SpanGroup::SpanGroup(const GroupContext& context) : EntryGroup(context, "SpanGroup", "Span and limits")
{
    BeamProblem& problem = context.Beam.Problem;
    AddSpan(problem);
    AddUnbraced(problem);
    AddDuration(problem);
    AddDeflection(problem);
    Grid().setColumnStretch(CaptionColumn, 1);
}

void SpanGroup::ShowScreen(const CriteriaScreen& screen)
{
    unbracedLabel->setText(Text(screen.UBLlabel));
    unbracedUnit->setText(Text(screen.UnbracedUnit));
    unbraced->setEnabled(screen.HasUnbracedLength);
    unbracedOverhang->setEnabled(screen.HasOverhang);
    const bool isSeen = screen.HasOverhang || !screen.HasUnbracedLength;
    for (QWidget* const part : {static_cast<QWidget*>(overhangLabel), static_cast<QWidget*>(unbracedOverhang),
                                static_cast<QWidget*>(overhangUnit)}) {
        part->setVisible(isSeen);
    }
    PaintOverhang(*unbracedOverhang, screen.HasOverhang ? OverhangPaint::Total : OverhangPaint::None);
}

void SpanGroup::AddSpan(BeamProblem& problem)
{
    NumericBox* const box =
        AddNumber({.Name = "Span", .Tip = "Beam span in feet and decimals"}, LoadDigits, problem.Span);
    AddLine(SpanLine, MakeCaption("&Beam Span in feet", *box), box, AddHelp("Command3D5", {"Span"}));
}

void SpanGroup::AddUnbraced(BeamProblem& problem)
{
    unbraced = AddNumber(
        {.Name = "UBLtext",
         .Tip = "Unbraced length of the compression edge in feet; empty, 0 or Any when fully braced"},
        LoadDigits, problem.UBLtext);
    unbracedLabel = MakeCaption("Unbraced length in ft", *unbraced);
    unbracedLabel->setObjectName(QStringLiteral("UBLlabel"));
    AddLine(UnbracedLine, unbracedLabel, unbraced, AddHelp("UBL3DHelp", {"UBLtext", "CantUBLtext"}));

    unbracedUnit = qobject_cast<QLabel*>(Grid().itemAtPosition(UnbracedLine, UnitColumn)->widget());

    unbracedOverhang = AddNumber({.Name = "CantUBLtext", .Tip = "Unbraced length of the overhang in feet"},
                                 LoadDigits, problem.CantUBLtext);
    overhangLabel = MakeCaption("at the overhang", *unbracedOverhang);
    AddLine(OverhangLine, overhangLabel, unbracedOverhang, nullptr);
    overhangUnit = qobject_cast<QLabel*>(Grid().itemAtPosition(OverhangLine, UnitColumn)->widget());
    for (QWidget* const part :
         {static_cast<QWidget*>(overhangLabel), static_cast<QWidget*>(unbracedOverhang)}) {
        KeepPlace(*part);
    }
}

void SpanGroup::AddDuration(BeamProblem& problem)
{
    NumericBox* const box =
        AddNumber({.Name = "Dur", .Tip = "Duration of load factor, 0.9 to 2.0"}, LoadDigits, problem.Dur);
    connect(box, &NumericBox::Changed, this, [box, &user = Shared().Numbers.User] {
        if (IsDoubtfulDuration(Text(box->text()))) {
            user.Tell(DoubtfulDurationWarning());
        }
    });
    AddLine(DurationLine, MakeCaption("&Duration of Load", *box), box,
            AddHelp("Command3D4", {"Dur", "Command3D15"}));
    QToolButton* const cycle = MakeCycle(
        {.Name = "Command3D15", .Tip = "Next of the common factors: 1.00, 1.15, 1.25, 0.90 (Alt+1)"},
        QKeySequence(Qt::ALT | Qt::Key_1));
    connect(cycle, &QToolButton::clicked, this, [this] {
        Change([](Session& session) { session.Problem.Dur = NextDuration(session.Problem.Dur); });
    });
    Grid().addWidget(cycle, DurationLine, CycleColumn);
}

void SpanGroup::AddDeflection(BeamProblem& problem)
{
    NumericBox* const live =
        AddNumber({.Name = "LMaxDefl", .Tip = "Allowable live load deflection: the span over this number"},
                  DistanceDigits, problem.LMaxDefl);
    NumericBox* const total =
        AddNumber({.Name = "MaxDefl", .Tip = "Allowable total load deflection: the span over this number"},
                  DistanceDigits, problem.MaxDefl);
    QToolButton* const cycle =
        MakeCycle({.Name = "Dadj", .Tip = "Next of the common pairs of limits (Alt+2)"},
                  QKeySequence(Qt::ALT | Qt::Key_2));
    connect(cycle, &QToolButton::clicked, this, [this] { Change(StepDeflectionLimits); });
    Grid().addWidget(MakeCaption("Ma&x Allowable Deflection", *live), LimitsHeadLine, CaptionColumn, 1,
                     HelpColumn);
    auto* const line = new QHBoxLayout;
    line->addWidget(MakeLabel("LL   L /"));
    line->addWidget(live);
    line->addStretch(1);
    line->addWidget(MakeLabel("TL   L /"));
    line->addWidget(total);
    Grid().addLayout(line, LimitsLine, CaptionColumn, 1, UnitColumn + 1);
    Grid().addWidget(cycle, LimitsLine, CycleColumn);
    Grid().addWidget(AddHelp("Command3D3", {"LMaxDefl", "MaxDefl", "Dadj"}), LimitsLine, HelpColumn);
}

void SpanGroup::AddLine(int line, QLabel* caption, QWidget* box, HelpButton* help)
{
    Grid().addWidget(caption, line, CaptionColumn);
    Grid().addWidget(box, line, BoxColumn);
    if (line != DurationLine) {
        Grid().addWidget(MakeLabel("ft"), line, UnitColumn, 1, HelpColumn - UnitColumn);
    }
    if (help != nullptr) {
        Grid().addWidget(help, line, HelpColumn);
    }
}

}  // namespace kordavan
