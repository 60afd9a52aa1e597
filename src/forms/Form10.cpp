#include "forms/Form10.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "columns/ColumnFacts.h"
#include "columns/ColumnResult.h"
#include "columns/SteelColumn.h"
#include "columns/WoodColumnReport.h"
#include "forms/ChoiceBox.h"
#include "forms/ColumnPicks.h"
#include "forms/FigureGrid.h"
#include "forms/NoteLine.h"
#include "forms/SteelChecks.h"

namespace kordavan {

namespace {

constexpr std::string_view WhatToDo =
    "Click a quick pick, or enter a size with its type and grade and press Report: the full report stands "
    "here.";

constexpr std::string_view NoSizeTip = "No further size of this kind carries the load";

constexpr int PickDigits = 18;
constexpr int SizeDigits = 18;
constexpr int GradeDigits = 46;
constexpr std::size_t ReportColumns = 3;

/// A quick pick by its button and kind.
struct PickRow {
    SteelColumnKind Kind;
    std::size_t Tube;
    std::string_view Button;
    std::string_view Spoken;
};

constexpr std::array PickRows{
    PickRow{SteelColumnKind::Standard, 0, "StdRndBut", "Standard pipe"},
    PickRow{SteelColumnKind::ExtraStrong, 0, "ExtraRndbut", "Extra strong pipe"},
    PickRow{SteelColumnKind::DoubleExtraStrong, 0, "DblRndBut", "Double extra strong pipe"},
    PickRow{SteelColumnKind::Tube, 0, "TubeCol[0]", "First square tube"},
    PickRow{SteelColumnKind::Tube, 1, "TubeCol[1]", "Second square tube"},
    PickRow{SteelColumnKind::Tube, 2, "TubeCol[2]", "Third square tube"},
};

constexpr std::array<std::string_view, 3> PipeHeads{"Standard", "Extra Strong", "Dbl Extra Strong"};

/// The sizes of the catalogue, each once.
std::vector<std::string_view> ColumnSizes()
{
    std::vector<std::string_view> sizes;
    for (const SteelColumnRow& row : SteelColumnRows()) {
        if (std::find(sizes.begin(), sizes.end(), row.Size) == sizes.end()) {
            sizes.push_back(row.Size);
        }
    }
    return sizes;
}

/// A line of the report by its meaning.
struct PropertyRow {
    std::string_view Meaning;
    std::string_view Panel;
    std::string_view Caption;
    std::string_view Unit;
};

constexpr std::array LoadProperties{
    PropertyRow{"Reaction", "StlReaction", "Reaction", "lb"},
    PropertyRow{"unbraced, in.", "StlUnbraced", "Unbraced length", "in."},
    PropertyRow{"K", "StlK", "K", ""},
};

constexpr std::array SectionProperties{
    PropertyRow{"Actual O.D.", "StlOutside", "Actual O.D.", "in."},
    PropertyRow{"Wt. p/ft.", "StlWeight", "Weight", "lb/ft"},
    PropertyRow{"r", "StlRadius", "Radius of gyration r", "in."},
};

constexpr std::array SteelProperties{
    PropertyRow{"Fy", "StlFy", "Yield stress Fy", "ksi"},
    PropertyRow{"E", "StlE", "Modulus of elasticity E", "million psi"},
    PropertyRow{"Cc", "StlCc", "Limit of inelastic buckling Cc", ""},
    PropertyRow{"Fa", "StlFa", "Allowable stress Fa", "ksi"},
};

template <std::size_t N>
ColumnReportBlock BlockOf(std::string_view heading, const std::array<PropertyRow, N>& rows,
                          const std::vector<SteelReportLine>& texts)
{
    ColumnReportBlock block{.Heading = std::string(heading), .Lines = {}};
    for (const PropertyRow& row : rows) {
        block.Lines.push_back({.Name = std::string(row.Panel),
                               .Caption = std::string(row.Caption),
                               .Figure = SteelTextOf(texts, row.Meaning),
                               .Unit = std::string(row.Unit)});
    }
    return block;
}

std::vector<ColumnReportBlock> BlocksOf(const std::vector<SteelReportLine>& texts)
{
    return {BlockOf("Load and bracing", LoadProperties, texts), BlockOf("Section", SectionProperties, texts),
            BlockOf("Steel", SteelProperties, texts)};
}

}  // namespace

Form10::Form10(Walk& theWalk)
    : ColumnSelectionForm(theWalk, "Form10", ColumnRecordKind::Steel, Screen::SteelColumnRecord),
      sizeList(SteelColumnSizeList()),
      sizeHelp{.Button = "SizeHelp", .Topic = "Sizes of steel columns", .Text = sizeList}
{
    setWindowTitle(QStringLiteral("Steel Column Selection"));
    BuildHead();
    BuildPicks();
    BuildBoxes();
    BuildReport(MakeReport(), WhatToDo);
    Body().addWidget(MakeNamedLabel("SelfWeightLine", NoSelfWeight));
    QPushButton* const report =
        MakeButton({.Name = "StlColReportBut", .Tip = "Works out the size in the boxes and shows the report"},
                   "&Report");
    connect(report, &QPushButton::clicked, this, &Form10::OnReport);
    BuildFoot("CmdStlRecord", report);
    BuildMenus(GuidePage::SteelColumnSizes);
    connect(&boxes, &Bindings::Edited, this, [this] {
        picked.reset();
        isOutdated = true;
        ShowPicks();
        ShowTest();
    });
    Activate();
}

void Form10::Activate()
{
    const ColumnSession& columns = Columns();
    if (!columns.SteelTest) {
        picked.reset();
    }
    ShowFacts(SteelColumnFacts(columns.SteelProblem));
    boxes.Show();
    ShowPicks();
    ShowTest();
    if (!columns.SteelTest && !picks->FocusFirst()) {
        size->setFocus(Qt::OtherFocusReason);
    }
}

void Form10::BuildPicks()
{
    picks = new ColumnPicks(PickDigits);
    std::vector<ColumnPicks::Names> pipes;
    std::vector<ColumnPicks::Names> tubes;
    for (const PickRow& row : PickRows) {
        const std::string button(row.Button);
        if (row.Kind == SteelColumnKind::Tube) {
            tubes.push_back({.Button = button});
        } else {
            pipes.push_back({.Button = button, .Head = BoxName("PipeHead", pipes.size())});
        }
    }
    picks->AddLine("", "Round pipe", pipes);
    picks->AddLine("", "Square tubes", tubes);
    connect(picks, &ColumnPicks::Picked, this, &Form10::OnPick);
    Body().addWidget(MakeHeading("Quick picks"));
    Body().addWidget(picks);
}

void Form10::BuildBoxes()
{
    size = new ChoiceBox({.Name = "StlColSizeText", .Tip = "Size to report on, as the list writes it"},
                         SizeDigits);
    auto* const grade = new ChoiceBox(
        {.Name = "StlColGrade", .Tip = "Type and grade of the size, as the list writes it"}, GradeDigits);
    size->SetChoices(ColumnSizes());
    grade->SetChoices(SteelColumnGrades());
    boxes.Bind(*size, Columns().StlColSizeText);
    boxes.Bind(*grade, Columns().StlColGrade);
    noneWorks = new NoteLine("Label60", " ", NoteKind::Alert);
    auto* const line = new QHBoxLayout;
    line->addWidget(MakeCaption("Si&ze", *size));
    line->addWidget(size);
    line->addWidget(MakeHelp(sizeHelp, {"StlColSizeText", "StlColGrade"}));
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(MakeCaption("T&ype and grade", *grade));
    line->addWidget(grade);
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(noneWorks, 1, Qt::AlignVCenter);
    Body().addLayout(line);
}

QWidget* Form10::MakeReport()
{
    checks = new SteelChecks;
    properties = new FigureGrid(ReportColumns);
    properties->Show(BlocksOf({}));
    auto* const report = new QWidget;
    auto* const column = new QVBoxLayout(report);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(checks);
    column->addSpacing(fontMetrics().height());
    column->addWidget(properties);
    return report;
}

void Form10::ShowPicks()
{
    std::vector<ColumnPick> shown;
    for (std::size_t k = 0; k < PickRows.size(); ++k) {
        const PickRow& row = PickRows[k];
        const std::string& pickSize = PickedSteelSize(Columns().SteelPicks, row.Kind, row.Tube);
        const std::string name = std::string(row.Spoken) + (pickSize.empty() ? ": none" : ", " + pickSize);
        shown.push_back({.Head = k < PipeHeads.size() ? std::string(PipeHeads[k]) : std::string{},
                         .Size = pickSize,
                         .Name = name,
                         .Tip = pickSize.empty() ? std::string(NoSizeTip) : name,
                         .IsPicked = picked == k});
    }
    picks->Show(shown);
    noneWorks->Tell(Columns().SteelPicks.Label60);
}

void Form10::ShowTest()
{
    const std::optional<SteelColumnTest>& test = Columns().SteelTest;
    if (!test) {
        isOutdated = false;
        ShowNoReport();
        return;
    }
    const std::vector<SteelReportLine> texts = SteelReportTexts(*test);
    checks->Show(*test, texts);
    properties->Show(BlocksOf(texts));
    const bool passes = test->Result.Passes();
    ShowReport(test->Size + "   " + test->TypeAndGrade,
               {.Status = std::string(passes ? ColumnStatus::Ok : ColumnStatus::Fail), .Passes = passes},
               isOutdated);
}

void Form10::OnPick(std::size_t index)
{
    picked = index;
    isOutdated = Columns().SteelTest.has_value();
    const PickRow& row = PickRows[index];
    TakeOutcome(PickSteelColumn(Columns(), row.Kind, row.Tube, User()));
    boxes.Show();
    ShowPicks();
}

void Form10::OnReport()
{
    TakeOutcome(ReportEnteredSteelColumn(Columns(), User()));
}

void Form10::TakeOutcome(Outcome outcome)
{
    if (outcome == Outcome::Done) {
        isOutdated = false;
    }
    ShowTest();
}

}  // namespace kordavan
