#pragma once

#include <string_view>
#include <utility>
#include <vector>

namespace kordavan {

/// Something that a person comes to a form for: entries that make sense together, and what is pressed with
/// them.
struct Errand {
    std::string_view Form;
    std::string_view Command;  // of the criteria, on the way there
    std::string_view Option;   // pressed first
    std::string_view List{};   // and a row of it chosen
    int Row = 0;
    std::vector<std::pair<std::string_view, std::string_view>>
        Texts{};              // typed into boxes, and Enter behind them
    std::string_view Then{};  // pressed at last
};

/// In an order in which one leads to the next.
inline const std::vector<Errand> AllErrands{
    {.Form = "Form1", .Command = "", .Option = "SimpleSpanbutton", .Then = "Command3D1"},
    {.Form = "Form1", .Command = "", .Option = "OHbutton", .Then = "Command3D2"},
    {.Form = "Form1", .Command = "", .Option = "IncButton", .Then = "Command3D10"},
    {.Form = "Form1",
     .Command = "",
     .Option = "SimpleSpanbutton",
     .List = "Combo1",
     .Row = 9,
     .Texts = {{"Span", "12"}, {"UNIF", "300"}}},
    {.Form = "Form1",
     .Command = "",
     .Option = "Multibutton",
     .List = "Combo1",
     .Row = 8,
     .Texts = {{"Span", "9"}, {"UNIF", "400"}}},
    {.Form = "Form1",
     .Command = "",
     .Option = "SimpleSpanbutton",
     .List = "Combo1",
     .Row = 0,
     .Texts = {{"Span", "12"}, {"UNIF", "300"}}},
    {.Form = "Form3",
     .Command = "",
     .Option = "",
     .Texts = {{"BreadthText", "4x"}, {"DepthText", "12"}, {"SpeciesText", "DF-L #2"}}},
    {.Form = "Form5", .Command = "", .Option = "", .Then = "Command2"},
    {.Form = "Form6", .Command = "", .Option = "", .Then = "Command1"},
    {.Form = "Form13", .Command = "MnuDefaults", .Option = ""},
    {.Form = "Form18",
     .Command = "MnuColumns",
     .Option = "WoodButton",
     .List = "ColSpeciesCombo",
     .Row = 3,
     .Texts = {{"cReacText", "8000"},
               {"cHTtext", "9"},
               {"cD1text", "9"},
               {"cD2text", "9"},
               {"cFcText", "1350"},
               {"cEtext", "1.6"}}},
    {.Form = "Form20",
     .Command = "",
     .Option = "",
     .Texts = {{"ColD1Text", "5.5"}, {"ColD2Text", "5.5"}},
     .Then = "CmdColRecord"},
    {.Form = "Form18",
     .Command = "MnuColumns",
     .Option = "SteelButton",
     .Texts = {{"cReacText", "42000"}, {"cHTtext", "10"}, {"cD1text", "10"}}},
    {.Form = "Form10",
     .Command = "",
     .Option = "",
     .Texts = {{"StlColSizeText", "4 x 4 x 1/4"}, {"StlColGrade", "Structural Tube ASTM A500 Grade B"}},
     .Then = "CmdStlRecord"},
    {.Form = "Form18",
     .Command = "MnuColumns",
     .Option = "StudButton",
     .List = "WindStudCombo",
     .Row = 3,
     .Texts = {{"WindStudHt", "10"},
               {"WindStudSpacing", "16"},
               {"AxialPLFtextbox", "500"},
               {"AxialPointTextbox", ""},
               {"AxialDurTextbox", "1.0"},
               {"DurWindTextbox", "1.6"},
               {"WindA", "20"},
               {"BegA", "0"},
               {"EndA", "10"},
               {"WindB", ""},
               {"WindC", ""}},
     .Then = "StudReportbutton"},
    {.Form = "FormOstrimane",
     .Command = "MnuNotch",
     .Option = "",
     .Texts = {{"MaxVtextbox", "1500"},
               {"breadthtextbox", "3.5"},
               {"depthtextbox", "11.25"},
               {"Fvtextbox", "180"},
               {"dnTextbox", "10"}},
     .Then = "CmdNotchReport"},
};

}  // namespace kordavan
