#include "forms/OwnValuesGroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kordavan {

namespace {

constexpr int ValueDigits = 8;
constexpr int MostName = 30;

enum Line { StrengthLine, ShearLine, NameLine, ExponentLine, GradeLine, WarningLine, CommandLine };
enum Column { FirstColumn = 0, SecondColumn = 4, LastColumn = 6 };

}  // namespace

OwnValuesGroup::OwnValuesGroup(const GroupContext& context)
    : EntryGroup(context, "OwnValues", "Reference values")
{
    AddValues(context.Beam.Entry);
    AddName(context.Beam.Entry);
    AddGrades(context.Beam.Entry.Custom);
    AddCommands();
    constexpr int gap = 16;
    constexpr int captionDigits = 24;
    Grid().setColumnMinimumWidth(FirstColumn, DigitsWidth(*this, captionDigits));
    Grid().setColumnMinimumWidth(SecondColumn - 1, gap);
    Grid().setColumnStretch(LastColumn, 1);
}

void OwnValuesGroup::ShowScreen(const OwnScreen& screen)
{
    nameCaption->setText(Text(screen.NameCaption));
    nameCaption->setVisible(screen.HasName);
    name->setVisible(screen.HasName);
    for (QWidget* const part : exponentParts) {
        part->setVisible(screen.HasExponent);
    }
    for (QWidget* const grade : grades) {
        grade->setVisible(!screen.IsComposite);
    }
    warning->setText(Text(screen.GradeWarning));
    warning->setVisible(!screen.GradeWarning.empty());
    for (QPushButton* const command : {load, save}) {
        command->setVisible(screen.IsComposite);
    }
    for (QPushButton* const command : {loadFile, saveFile}) {
        command->setVisible(!screen.IsComposite);
    }
}

void OwnValuesGroup::AddValues(MemberEntry& entry)
{
    CustomEntry& custom = entry.Custom;
    AddValue({.Name = "Text1", .Tip = "Bending, psi"}, "F&b", "psi", custom.Fb, StrengthLine, FirstColumn);
    AddValue({.Name = "Text2", .Tip = "Shear parallel to grain, psi"}, "F&v", "psi", custom.Fv, ShearLine,
             FirstColumn);
    AddValue({.Name = "Text4", .Tip = "Modulus of elasticity in millions of psi"}, "&E", "million psi",
             custom.E, StrengthLine, SecondColumn);
    AddValue({.Name = "Text3", .Tip = "Compression perpendicular to grain, psi"}, "F&c-perp", "psi",
             custom.FcPerp, ShearLine, SecondColumn);
    NumericBox* const exponent = AddValue(
        {.Name = "Text8", .Tip = "Exponent x of the size factor (12/d)^x, less than one; 0 for none"},
        "Cf size factor e&xponent", "", custom.Exponent, ExponentLine, FirstColumn);
    exponentParts = {exponent, Grid().itemAtPosition(ExponentLine, FirstColumn)->widget(),
                     Grid().itemAtPosition(ExponentLine, FirstColumn + 2)->widget()};
}

NumericBox* OwnValuesGroup::AddValue(const ControlText& text, std::string_view caption, std::string_view unit,
                                     std::string& bound, int line, int column)
{
    auto* const box = new NumericBox(text, ValueDigits, nullptr, Shared().Numbers);
    Shared().Boxes.Bind(*box, bound);
    box->setPlaceholderText(Text(unit));
    Grid().addWidget(MakeCaption(caption, *box), line, column);
    Grid().addWidget(box, line, column + 1);
    Grid().addWidget(MakeLabel(unit), line, column + 2);
    return box;
}

void OwnValuesGroup::AddName(MemberEntry& entry)
{
    name = MakeTextBox({.Name = "Text5", .Tip = "What the record calls this member, 30 characters at most"},
                       MostName);
    Shared().Boxes.Bind(*name, entry.SpeciesText);
    nameCaption = MakeCaption("", *name);
    Grid().addWidget(nameCaption, NameLine, FirstColumn);
    Grid().addWidget(name, NameLine, FirstColumn + 1, 1, LastColumn - FirstColumn);
}

void OwnValuesGroup::AddGrades(CustomEntry& custom)
{
    auto* const line = new QHBoxLayout;
    const auto add = [&](const ControlText& text, std::string_view caption, bool& bound) {
        QCheckBox* const check = AddCheck(text, caption, bound);
        grades.push_back(check);
        line->addWidget(check);
    };
    add({.Name = "CustomIngradeSP", .Tip = "Southern Pine values, which are those of the size already"},
        "&Southern Pine values", custom.CustomIngradeSP);
    add({.Name = "MSRCheckbox", .Tip = "Machine stress rated lumber: its Fb is that of the size already"},
        "MS&R lumber", custom.MSRCheckbox);
    add({.Name = "MELCheckbox", .Tip = "Machine evaluated lumber: its Fb is that of the size already"},
        "ME&L lumber", custom.MELCheckbox);
    line->addStretch(1);
    Grid().addLayout(line, GradeLine, FirstColumn, 1, LastColumn + 1);
    warning = MakeNamedLabel("GradeWarning");
    Grid().addWidget(warning, WarningLine, FirstColumn, 1, LastColumn + 1);
}

void OwnValuesGroup::AddCommands()
{
    const auto make = [this](const ControlText& text, std::string_view caption, auto signal) {
        QPushButton* const button = MakeButton(text, caption);
        connect(button, &QPushButton::clicked, this, signal);
        return button;
    };
    load = make({.Name = "LVLLoadDefault", .Tip = "The values saved for this product"}, "L&oad",
                &OwnValuesGroup::LoadAsked);
    save = make({.Name = "LVLsavedefault", .Tip = "Saves the values for this product"}, "S&ave",
                &OwnValuesGroup::SaveAsked);
    loadFile = make({.Name = "LoadVal", .Tip = "Values of a saved species and grade"}, "L&oad Values...",
                    &OwnValuesGroup::LoadAsked);
    saveFile = make({.Name = "SaveVal", .Tip = "Saves these values under a name"}, "S&ave Values...",
                    &OwnValuesGroup::SaveAsked);
    enter = make({.Name = "CmdEnterValues", .Tip = "Takes the values and finds the quick picks (Enter)"},
                 "Enter Val&ues", &OwnValuesGroup::EnterAsked);
    auto* const line = new QHBoxLayout;
    for (QPushButton* const command : {load, save, loadFile, saveFile}) {
        line->addWidget(command);
    }
    line->addStretch(1);
    line->addWidget(enter);
    Grid().addLayout(line, CommandLine, FirstColumn, 1, LastColumn + 1);
    Grid().setRowStretch(CommandLine + 1, 1);
}

}  // namespace kordavan
