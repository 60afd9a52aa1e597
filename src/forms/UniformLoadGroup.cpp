#include "forms/UniformLoadGroup.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "design/LoadTools.h"

namespace kordavan {

namespace {

enum Column { LetterColumn, LiveColumn, TotalColumn, StepColumn, HelpColumn };
enum Line { LoadLine = 1, CaretLine, HeadLine, PsfLine, LengthLine, MultiplyLine, LineCount };

}  // namespace

UniformLoadGroup::UniformLoadGroup(const GroupContext& context)
    : LoadTable(context, "Frame3D3", "Uniform load")
{
    AddLoad();
    AddCalculator();
    Grid().setColumnStretch(HelpColumn, 1);
    Grid().setRowStretch(LineCount, 1);
}

void UniformLoadGroup::ShowScreen(const CriteriaScreen& screen)
{
    const bool isEquivalent = screen.Tables == LoadTables::HipValley;
    for (NumericBox* const box : {live, total}) {
        box->setReadOnly(isEquivalent);
        box->setFocusPolicy(isEquivalent ? Qt::NoFocus : Qt::StrongFocus);
    }
    multiply->setChecked(screen.IsMultiplied);
    SetClearable(!isEquivalent);
    SetCaption(*step, screen.PLFspin);
    step->setEnabled(!isEquivalent);
    for (QWidget* const part : calculator) {
        part->setVisible(!isEquivalent);
    }
}

void UniformLoadGroup::AddLoad()
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    AddHeadings({"LL plf", "LL+DL plf"});
    const auto clear = [](LoadSet& set, std::size_t /*slot*/) { ClearUniformLoad(set); };
    live = AddNumber({.Name = "LUNIF", .Tip = "A: Uniform live load, plf"}, LoadDigits, loads.LUNIF);
    total = AddNumber({.Name = "UNIF", .Tip = "A: Uniform total load, live and dead, plf"}, LoadDigits,
                      loads.UNIF);
    for (NumericBox* const box : {live, total}) {
        MakeClearable(*box, 0, clear);
    }
    Grid().addWidget(live, LoadLine, LiveColumn);
    Grid().addWidget(total, LoadLine, TotalColumn);
    AddLetter("LetterA", 'A', 0, clear);
    MakeTableClearable(ClearUniformLoad);
    step = AddStep({.Name = "PLFspin", .Tip = "Next of your common uniform loads (Alt+3)"}, "PLF",
                   &LoadSet::LUNIF, &LoadSet::UNIF);
    step->setShortcut(QKeySequence(Qt::ALT | Qt::Key_3));
    Grid().addWidget(step, LoadLine, StepColumn);
    Grid().addWidget(AddHelp("Command3D14", {"LUNIF", "UNIF", "PLFspin"}), LoadLine, HelpColumn);
}

void UniformLoadGroup::AddCalculator()
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    NumericBox* const livePsf =
        AddNumber({.Name = "Text1", .Tip = "Live load, psf"}, LoadDigits, loads.Text1);
    NumericBox* const totalPsf =
        AddNumber({.Name = "Text2", .Tip = "Total load, live and dead, psf"}, LoadDigits, loads.Text2);
    NumericBox* const length =
        AddNumber({.Name = "Tribute", .Tip = "Tributary length in feet"}, LoadDigits, loads.Tribute);

    QPushButton* const caret =
        MakeButton({.Name = "CalcPSF", .Tip = "Enter the load as psf times a tributary length"}, "&Calc PSF");
    connect(caret, &QPushButton::clicked, livePsf, [livePsf] { livePsf->setFocus(); });
    QPushButton* const stepPsf =
        AddStep({.Name = "Command1", .Tip = "Next of your common area loads (Alt+4)"}, "PSF", &LoadSet::Text1,
                &LoadSet::Text2);
    stepPsf->setShortcut(QKeySequence(Qt::ALT | Qt::Key_4));
    multiply = MakeButton({.Name = "Command3D25", .Tip = "Psf times length into the uniform load (Alt+5)"},
                          "Multiply and Insert");
    multiply->setShortcut(QKeySequence(Qt::ALT | Qt::Key_5));
    multiply->setCheckable(true);
    connect(multiply, &QPushButton::clicked, this, [this] { Edit(MultiplyTributary); });

    const auto add = [this](QWidget* part, int line, int column, int columns = 1) {
        Grid().addWidget(part, line, column, 1, columns);
        calculator.push_back(part);
    };
    add(caret, CaretLine, LiveColumn, StepColumn);
    add(MakeColumnHead("LL psf"), HeadLine, LiveColumn);
    add(MakeColumnHead("LL+DL psf"), HeadLine, TotalColumn);
    add(livePsf, PsfLine, LiveColumn);
    add(totalPsf, PsfLine, TotalColumn);
    add(stepPsf, PsfLine, StepColumn);
    add(MakeColumnHead("tributary  x"), LengthLine, LetterColumn, TotalColumn);
    add(length, LengthLine, TotalColumn);
    add(MakeLabel("ft"), LengthLine, StepColumn);
    add(AddHelp("Command3D19", {"CalcPSF", "Text1", "Text2", "Command1", "Tribute", "Command3D25"}),
        LengthLine, HelpColumn);
    add(multiply, MultiplyLine, LiveColumn, StepColumn);
}

QPushButton* UniformLoadGroup::AddStep(const ControlText& text, std::string_view caption,
                                       std::string LoadSet::*liveText, std::string LoadSet::*totalText)
{
    QPushButton* const button =
        AddCommand(text, caption, [liveText, totalText](Session& session, UserPort& user) {
            LoadSet& loads = session.Problem.Loads;
            return StepLoadPair(session.Defaults.LoadPairs, loads.*liveText, loads.*totalText, user);
        });
    constexpr int widest = 7;
    button->setMaximumWidth(DigitsWidth(*button, widest));
    return button;
}

}  // namespace kordavan
