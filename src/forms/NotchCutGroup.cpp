#include "forms/NotchCutGroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "forms/Form.h"
#include "forms/LineList.h"
#include "forms/NotchHelp.h"
#include "forms/NoteLine.h"
#include "notch/NotchYears.h"

namespace kordavan {

namespace {

constexpr std::string_view LongestMinimum = "9/10d = Minimum dn = 100.00 in.";
constexpr std::string_view LongestYear = "In force: NDS 2018. No rule: not computed.";
constexpr int FigureDigits = 8;

enum Line {
    DepthLine,
    MinimumLine,
    TypeCaptionLine,
    TypeLine,
    SetbackLine,
    RafterLine,
    PitchLine,
    WallLine,
    UseLine,
    ListCaptionLine,
    ListLine,
    YearTextLine,
    LastLine
};
enum Column { CaptionColumn, BoxColumn, UnitColumn, HelpColumn };

std::vector<std::string_view> DurationNames()
{
    std::vector<std::string_view> names;
    names.reserve(NotchDurations.size());
    for (const NotchDuration& duration : NotchDurations) {
        names.push_back(duration.Name);
    }
    return names;
}

}  // namespace

NotchCutGroup::NotchCutGroup(const GroupContext& context, NotchSession& currentNotch)
    : EntryGroup(context, "NotchCutGroup", "Notch"), notch(currentNotch)
{
    AddDepth();
    AddType();
    AddUse();
    AddYears();
    Grid().setColumnStretch(UnitColumn, 1);
    Grid().setRowStretch(LastLine, 1);
}

/// Entries of other notches keep their place and their text.
void NotchCutGroup::ShowTexts(const NotchTexts& texts)
{
    const auto type = static_cast<NotchType>(notch.Entry.NotchListBox);
    for (QWidget* const part : setbackParts) {
        part->setEnabled(type == NotchType::Compression);
    }
    for (QWidget* const part : taperParts) {
        part->setEnabled(type == NotchType::Tapered);
    }
    minimum->setText(Text(texts.DnMinimum));
    wetFactor->setText(Text(texts.WetUseLabel));
    yearLine->setText(Text(texts.YearLine));
    ShowYear();
}

void NotchCutGroup::AddDepth()
{
    NumericBox* const depth = AddNumber({.Name = "dnTextbox", .Tip = "Depth that remains at the notch, in."},
                                        FigureDigits, notch.Entry.dnTextbox);
    AddLine(DepthLine, MakeCaption("d&n, remaining depth", *depth), depth, "in.");
    Grid().addWidget(Shared().Owner.MakeHelp(NotchHelp::RemainingDepth, {"dnTextbox"}), DepthLine,
                     HelpColumn);
    minimum = new NoteLabel("DnMinimum", LongestMinimum);
    Grid().addWidget(minimum, MinimumLine, CaptionColumn, 1, HelpColumn + 1);
}

void NotchCutGroup::AddType()
{
    auto* const types = new LineList({.Name = "NotchListBox", .Tip = "On which side the notch is cut"},
                                     {NotchTypeNames.begin(), NotchTypeNames.end()});
    Shared().Boxes.Bind(*types, notch.Entry.NotchListBox);
    Grid().addWidget(MakeCaption("Not&ch type", *types), TypeCaptionLine, CaptionColumn);
    Grid().addWidget(Shared().Owner.MakeHelp(NotchHelp::Types, {"NotchListBox", "eTextbox", "rdTextbox",
                                                                "rpTextbox", "tTextbox"}),
                     TypeCaptionLine, HelpColumn);
    Grid().addWidget(types, TypeLine, CaptionColumn, 1, HelpColumn + 1);
    const auto add = [this](int line, const ControlText& text, std::string_view caption,
                            std::string_view unit, std::string& bound, std::vector<QWidget*>& parts) {
        NumericBox* const box = AddNumber(text, FigureDigits, bound);
        QLabel* const label = MakeCaption(caption, *box);
        AddLine(line, label, box, unit);
        parts.insert(parts.end(), {label, box, Grid().itemAtPosition(line, UnitColumn)->widget()});
    };
    add(SetbackLine, {.Name = "eTextbox", .Tip = "From the support to the end of a compression notch, in."},
        "&e, from the support", "in.", notch.Entry.eTextbox, setbackParts);
    add(RafterLine, {.Name = "rdTextbox", .Tip = "Depth of the rafter, in."}, "&rd, rafter depth", "in.",
        notch.Entry.rdTextbox, taperParts);
    add(PitchLine, {.Name = "rpTextbox", .Tip = "Rise of the roof in 12, or above 24 its angle in degrees"},
        "r&p, roof pitch", "in 12, or degrees", notch.Entry.rpTextbox, taperParts);
    add(WallLine, {.Name = "tTextbox", .Tip = "Breadth of the wall under the rafter, in."},
        "t, wa&ll breadth", "in.", notch.Entry.tTextbox, taperParts);
}

void NotchCutGroup::AddUse()
{
    auto* const wet = AddCheck({.Name = "WetUseCheckbox",
                                .Tip = "Moisture content above 19% in use, of "
                                       "glulams 16% and more"},
                               "&Wet Use", notch.Entry.WetUseCheckbox);
    wetFactor = MakeNamedLabel("WetUseLabel");
    auto* const splits = AddCheck({.Name = "NoSplitCheckbox", .Tip = "The end does not split: Ch is 2"},
                                  "No spl&its", notch.Entry.NoSplitCheckbox);
    auto* const line = new QHBoxLayout;
    line->addWidget(wet);
    line->addWidget(wetFactor, 1);
    line->addWidget(splits);
    Grid().addLayout(line, UseLine, CaptionColumn, 1, HelpColumn);
    Grid().addWidget(
        Shared().Owner.MakeHelp(NotchHelp::Use, {"WetUseCheckbox", "NoSplitCheckbox", "DurListbox"}), UseLine,
        HelpColumn);
}

void NotchCutGroup::AddYears()
{
    auto* const durations =
        new LineList({.Name = "DurListbox", .Tip = "Duration of load, the factor Cd"}, DurationNames());
    Shared().Boxes.Bind(*durations, notch.Entry.DurListbox);
    years = new LineList(
        {.Name = "NDSyearList", .Tip = "Edition of the NDS; the line below tells which is in force"},
        {NotchYearLines.begin(), NotchYearLines.end()});
    connect(years, &LineList::Chosen, this, &NotchCutGroup::ClickYear);
    auto* const lists = new QGridLayout;
    lists->setVerticalSpacing(Grid().verticalSpacing());
    lists->setHorizontalSpacing(2 * Grid().horizontalSpacing());
    lists->addWidget(MakeCaption("D&uration of load", *durations), 0, 0);
    lists->addWidget(MakeCaption("NDS &year", *years), 0, 1);
    lists->addWidget(durations, 1, 0);
    lists->addWidget(years, 1, 1);
    Grid().addLayout(lists, ListLine, CaptionColumn, 1, HelpColumn);
    Grid().addWidget(Shared().Owner.MakeHelp(NotchHelp::Year, {"NDSyearList"}), ListLine, HelpColumn,
                     Qt::AlignTop);
    yearLine = new NoteLabel("YearLine", LongestYear);
    Grid().addWidget(yearLine, YearTextLine, CaptionColumn, 1, HelpColumn + 1);
}

void NotchCutGroup::AddLine(int line, QLabel* caption, QWidget* box, std::string_view unit)
{
    Grid().addWidget(caption, line, CaptionColumn);
    Grid().addWidget(box, line, BoxColumn);
    Grid().addWidget(MakeLabel(unit), line, UnitColumn);
}

/// The line stays selected as clicked, whatever year it puts in force.
void NotchCutGroup::ClickYear(int line)
{
    ClickNotchYear(notch.Years, static_cast<std::size_t>(line), Shared().Numbers.User);
    Q_EMIT Changed();
}

void NotchCutGroup::ShowYear()
{
    years->setCurrentRow(notch.Years.Line ? static_cast<int>(*notch.Years.Line) : -1);
}

}  // namespace kordavan
