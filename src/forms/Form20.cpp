#include "forms/Form20.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "columns/ColumnFacts.h"
#include "columns/WoodColumn.h"
#include "forms/ColumnPicks.h"
#include "forms/FigureGrid.h"
#include "forms/NoteLine.h"

namespace kordavan {

namespace {

constexpr std::string_view WhatToDo =
    "Click a quick pick, or enter a size of your own in net inches and press OK Test: the full report stands "
    "here.";

constexpr std::string_view NoSizeTip = "No width of this thickness carries the load";

constexpr int PickDigits = 11;
constexpr int SizeDigits = 7;
constexpr std::size_t ReportColumns = 3;

/// A pick by its place among the five thicknesses.
ColumnPick PickOf(const ColumnSession& columns, std::size_t index)
{
    const ColumnType type = columns.Problem.Type;
    ColumnPick pick{.Head = std::string(ThicknessHead(type, index)),
                    .Size = columns.Grid.ColDep[index],
                    .Name = "Thickness " + std::to_string(index + 1),
                    .Tip = std::string(NoSizeTip),
                    .IsOffered = OfferedThicknesses(type).Has(index)};
    if (pick.IsOffered) {
        pick.Name = pick.Head + (pick.Size.empty() ? ": none" : " by " + pick.Size);
    }
    if (!pick.Size.empty()) {
        pick.Tip = "Tests " + pick.Head + " by " + pick.Size + " and shows the report";
    }
    return pick;
}

}  // namespace

Form20::Form20(Walk& theWalk)
    : ColumnSelectionForm(theWalk, "Form20", ColumnRecordKind::Wood, Screen::WoodColumnRecord),
      numbers{.User = User(), .CalculatorText = [&theWalk] { return theWalk.CalculatorText(); }}
{
    setWindowTitle(QStringLiteral("Wood Column Selection"));
    BuildHead();
    BuildPicks();
    BuildBoxes();
    BuildReport(MakeReport(), WhatToDo);
    QPushButton* const test = MakeButton(
        {.Name = "CmdTestCol", .Tip = "Tests the size in the boxes and shows the report"}, "&OK Test");
    connect(test, &QPushButton::clicked, this, &Form20::OnTest);
    BuildFoot("CmdColRecord", test);
    BuildMenus(GuidePage::WoodColumnSizes);
    connect(&boxes, &Bindings::Edited, this, [this] {
        picked.reset();
        isOutdated = true;
        ShowPicks();
        ShowTest();
    });
    Activate();
}

void Form20::Activate()
{
    const ColumnSession& columns = Columns();
    if (!columns.WoodTest) {
        picked.reset();
    }
    ShowFacts(WoodColumnFacts(columns.Problem, EditionInForce(TheSession().Nds)));
    boxes.Show();
    ShowPicks();
    ShowTest();
    if (!columns.WoodTest && !picks->FocusFirst()) {
        thickness->setFocus(Qt::OtherFocusReason);
    }
}

void Form20::BuildPicks()
{
    picks = new ColumnPicks(PickDigits);
    std::vector<ColumnPicks::Names> names;
    for (std::size_t k = 0; k < ColumnGrid::ThicknessCount; ++k) {
        names.push_back({.Button = BoxName("ColDep", k), .Head = BoxName("ColHead", k)});
    }
    picks->AddLine("Thickness D1", "Smallest width D2 that carries the load", names);
    connect(picks, &ColumnPicks::Picked, this, &Form20::OnPick);
    Body().addWidget(MakeHeading("Quick picks"));
    Body().addWidget(picks);
}

NumericBox* Form20::MakeBox(const ControlText& text, std::string& bound)
{
    auto* const box = new NumericBox(text, SizeDigits, nullptr, numbers);
    boxes.Bind(*box, bound);
    return box;
}

void Form20::BuildBoxes()
{
    thickness =
        MakeBox({.Name = "ColD1Text", .Tip = "Thickness D1 to test, net inches"}, Columns().ColD1Text);
    NumericBox* const width =
        MakeBox({.Name = "ColD2Text", .Tip = "Width D2 to test, net inches"}, Columns().ColD2Text);
    noneWorks = new NoteLine("NoneWorkLabel", " ", NoteKind::Alert);
    auto* const line = new QHBoxLayout;
    line->addWidget(MakeLabel("Size to test, net:"));
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(MakeCaption("D&1", *thickness));
    line->addWidget(thickness);
    line->addWidget(MakeLabel("in."));
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(MakeCaption("D&2", *width));
    line->addWidget(width);
    line->addWidget(MakeLabel("in."));
    line->addSpacing(DigitsWidth(*this, 4));
    line->addWidget(noneWorks, 1, Qt::AlignVCenter);
    Body().addLayout(line);
}

QWidget* Form20::MakeReport()
{
    governing = MakePanel("ColumnGoverning");
    reason = new NoteLine("ColumnReason", " ", NoteKind::Alert);
    figures = new FigureGrid(ReportColumns);
    figures->Show(ReportWoodColumn({}).Blocks);  // keeps the room of a report
    auto* const report = new QWidget;
    auto* const column = new QVBoxLayout(report);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(governing);
    column->addWidget(reason);
    column->addSpacing(fontMetrics().height() / 2);
    column->addWidget(figures);
    return report;
}

void Form20::ShowPicks()
{
    std::vector<ColumnPick> shown;
    for (std::size_t k = 0; k < ColumnGrid::ThicknessCount; ++k) {
        shown.push_back(PickOf(Columns(), k));
        shown.back().IsPicked = picked == k;
    }
    picks->Show(shown);
    noneWorks->Tell(Columns().Grid.NoneWorkLabel);
}

void Form20::ShowTest()
{
    const std::optional<WoodColumnTest>& test = Columns().WoodTest;
    if (!test) {
        isOutdated = false;
        ShowNoReport();
        return;
    }
    const WoodColumnReport report = ReportWoodColumn(*test);
    governing->setText(Text(report.Governing));
    reason->Tell(report.Reason);
    figures->Show(report.Blocks);
    ColumnVerdict verdict{
        .Status = report.Status, .Passes = test->Result.Passes, .RatioText = report.RatioText};
    if (report.Ratio > 0) {
        verdict.Ratio = report.Ratio;
    }
    ShowReport(report.Member, verdict, isOutdated);
}

void Form20::OnPick(std::size_t index)
{
    if (PickColumnSize(Columns(), index)) {
        picked = index;
        isOutdated = Columns().WoodTest.has_value();
        boxes.Show();
        ShowPicks();
        OnTest();
    }
}

void Form20::OnTest()
{
    const Edition edition = EditionInForce(TheSession().Nds);
    if (TestEnteredColumn(Columns(), edition, User()) == Outcome::Done) {
        isOutdated = false;
    }
    ShowTest();
}

}  // namespace kordavan
