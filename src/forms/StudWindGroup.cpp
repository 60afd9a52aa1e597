#include "forms/StudWindGroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "forms/ColumnHelp.h"
#include "forms/Form.h"

namespace kordavan {

namespace {

constexpr int PlaceDigits = 6;

enum Line { HeadLine, LoadLine, CheckLine = LoadLine + 3, FileLine = CheckLine + 2, LastLine };
enum Column { LetterColumn, LoadColumn, BeginColumn, EndColumn, RestColumn, HelpColumn };

struct WindRow {
    std::string_view Caption;
    ControlText Load;
    ControlText Begin;
    ControlText End;
};

constexpr std::array<WindRow, WindLoadCount> WindRows{
    WindRow{"&A",
            {.Name = "WindA", .Tip = "Wind load A, psf of wall; below zero for suction"},
            {.Name = "BegA", .Tip = "A: begins so many feet above the base"},
            {.Name = "EndA", .Tip = "A: ends so many feet above the base"}},
    WindRow{"&B",
            {.Name = "WindB", .Tip = "Wind load B, psf of wall; may be left empty"},
            {.Name = "BegB", .Tip = "B: begins so many feet above the base"},
            {.Name = "EndB", .Tip = "B: ends so many feet above the base"}},
    WindRow{"C",
            {.Name = "WindC", .Tip = "Wind load C, psf of wall; may be left empty"},
            {.Name = "BegC", .Tip = "C: begins so many feet above the base"},
            {.Name = "EndC", .Tip = "C: ends so many feet above the base"}},
};

}  // namespace

StudWindGroup::StudWindGroup(const GroupContext& context, StudEntry& studEntry)
    : EntryGroup(context, "StudWindGroup", "Wind across the wall"), entry(studEntry)
{
    AddLoads();
    AddRepetitive();
    AddFiles();
    Grid().setColumnStretch(RestColumn, 1);
    Grid().setRowStretch(LastLine, 1);
}

void StudWindGroup::AddLoads()
{
    for (const auto& [caption, column] :
         {std::pair{"psf", LoadColumn}, std::pair{"from ft", BeginColumn}, std::pair{"to ft", EndColumn}}) {
        Grid().addWidget(MakeColumnHead(caption), HeadLine, column);
    }
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::StudWind, {"WindA", "BegA", "EndA", "WindB", "BegB",
                                                                    "EndB", "WindC", "BegC", "EndC"}),
                     HeadLine, HelpColumn);
    for (std::size_t k = 0; k < WindLoadCount; ++k) {
        const WindRow& row = WindRows[k];
        const int line = LoadLine + static_cast<int>(k);
        NumericBox* const load = AddNumber(row.Load, PlaceDigits, entry.Wind[k]);
        Grid().addWidget(MakeCaption(row.Caption, *load), line, LetterColumn);
        Grid().addWidget(load, line, LoadColumn);
        Grid().addWidget(AddNumber(row.Begin, PlaceDigits, entry.Beg[k]), line, BeginColumn);
        Grid().addWidget(AddNumber(row.End, PlaceDigits, entry.End[k]), line, EndColumn);
    }
}

void StudWindGroup::AddRepetitive()
{
    QCheckBox* const repetitive =
        AddCheck({.Name = "RepWindStud", .Tip = "Three or more studs, not over 24 in. apart: 1.15 on Fb"},
                 "Appl&y Repetitive Use Factor Cr", entry.RepWindStud);
    QCheckBox* const special =
        AddCheck({.Name = "RepIBCCheck", .Tip = "2x studs sheathed on both sides: 1.5, 1.4 or 1.3 by depth"},
                 "Co&mplies w/ IBC 2306.2.1 special Cr", entry.RepIBCCheck);
    Grid().addWidget(repetitive, CheckLine, LetterColumn, 1, HelpColumn);
    Grid().addWidget(special, CheckLine + 1, LetterColumn, 1, HelpColumn);
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::StudRepetitive, {"RepWindStud", "RepIBCCheck"}),
                     CheckLine, HelpColumn);
}

void StudWindGroup::AddFiles()
{
    auto* const line = new QHBoxLayout;
    line->setSpacing(Grid().horizontalSpacing());
    const auto add = [&](const ControlText& text, std::string_view caption, auto signal) {
        QPushButton* const button = MakeButton(text, caption);
        connect(button, &QPushButton::clicked, this, signal);
        line->addWidget(button);
    };
    add({.Name = "LoadStudbutton", .Tip = "The entries of a stud from a file"}, "&Load Stud Record...",
        &StudWindGroup::LoadAsked);
    add({.Name = "SaveStudbutton", .Tip = "Keeps the entries of this stud in a file"}, "Sa&ve Stud Record...",
        &StudWindGroup::SaveAsked);
    line->addStretch(1);
    Grid().addLayout(line, FileLine, LetterColumn, 1, HelpColumn + 1);
}

}  // namespace kordavan
