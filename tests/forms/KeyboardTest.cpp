#include <QMap>
#include <QSet>

#include "forms/WalkFixture.h"
#include "materials/SclProducts.h"

namespace kordavan {
namespace {

class KeyboardTest : public WalkFixture {
protected:
    /// The names that Tab comes by, from the control in focus until it comes round.
    std::vector<std::string> TabStops()
    {
        std::vector<std::string> stops{FocusName()};
        constexpr std::size_t moreThanAnyForm = 300;
        while (stops.size() < moreThanAnyForm) {
            Key(Qt::Key_Tab);
            if (FocusName() == stops.front()) {
                break;
            }
            stops.push_back(FocusName());
        }
        return stops;
    }

    /// Letters by which two controls, both seen, would be reached at once.
    static std::vector<std::string> DoubledMnemonics(QWidget& form)
    {
        QMap<QString, QString> byLetter;
        std::vector<std::string> doubled;
        const auto take = [&](const QString& caption) {
            const QString key = QKeySequence::mnemonic(caption).toString();
            if (key.isEmpty()) {
                return;
            }
            if (byLetter.contains(key) && byLetter[key] != caption) {
                doubled.push_back(Text(key) + " of " + Text(caption) + " and " + Text(byLetter[key]));
            }
            byLetter[key] = caption;
        };
        for (const QAbstractButton* const button : form.findChildren<QAbstractButton*>()) {
            if (button->isVisibleTo(&form)) {
                take(button->text());
            }
        }
        for (const QLabel* const label : form.findChildren<QLabel*>()) {
            if (label->isVisibleTo(&form) && label->buddy() != nullptr) {
                take(label->text());
            }
        }
        if (auto* const window = qobject_cast<QMainWindow*>(&form)) {
            for (const QAction* const menu : window->menuBar()->actions()) {
                take(menu->text());
            }
        }
        return doubled;
    }
};

TEST_F(KeyboardTest, TabRunsDownTheCriteriaPage)
{
    Click("OHbutton");
    Click("Rep");
    Click("Roofbutton");
    Click("CalcPSFPartial");
    Box("Proj").setFocus();
    std::vector<std::string> expected{
        "Proj",        "ID",         "Descrip",     "Combo1",     "OHbutton", "Span",       "UBLtext",
        "CantUBLtext", "Dur",        "Command3D15", "LMaxDefl",   "MaxDefl",  "Dadj",       "Rep",
        "Ctr0",        "Wet",        "Incised",     "Reducechk",  "NoWeight", "Roofbutton", "Pitchtext",
        "INGRADE",     "LoadSketch", "LUNIF",       "UNIF",       "PLFspin",  "CalcPSF",    "Text1",
        "Text2",       "Command1",   "Tribute",     "Command3D25"};
    const auto addRows = [&](std::size_t count, std::initializer_list<const char*> arrays) {
        for (std::size_t k = 0; k < count; ++k) {
            for (const char* const array : arrays) {
                expected.push_back(BoxName(array, k));
            }
        }
    };
    addRows(PointSlotCount, {"LPT", "PT", "DIS"});
    expected.insert(expected.end(), {"UBSpan", "UBOH"});
    addRows(PartialSlotCount, {"LPSF", "PSF", "TribPSF"});
    expected.insert(expected.end(), {"Command3D21", "Command3D22"});
    addRows(PartialSlotCount, {"LPAR", "PAR", "BEGP", "ENDP"});
    expected.push_back("CalcPSFPartial");
    EXPECT_EQ(TabStops(), expected);
    Key(Qt::Key_Escape);
    Box("ENDP[4]").setFocus();
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "CmdOK");
}

TEST_F(KeyboardTest, TabRunsDownEachFaceOfTheColumns)
{
    walk.Go(Screen::Columns);
    Click("ImportButton");
    Box("ColumnProj").setFocus();
    const std::vector<std::string> head{"ColumnProj", "columnID", "ColumnDescription"};
    const auto after = [&head](std::vector<std::string> rest) {
        rest.insert(rest.begin(), head.begin(), head.end());
        return rest;
    };
    EXPECT_EQ(TabStops(),
              after({"WoodButton",     "cReacText",       "ImportButton", "OptionR1",   "DblReaction",
                     "CmdImportOK",    "cHTtext",         "cModeText",    "cD1text",    "ResetKf",
                     "cD2text",        "cDurText",        "cWetButton",   "ColIncised", "cSolid4xbutton",
                     "FramingButton",  "ColSpeciesCombo", "cFcText",      "cEtext",     "Loadpostbutton",
                     "SavePostbutton", "ColumnSketch",    "CmdOK"}));
    Key(Qt::Key_Escape);
    Click("SteelButton");
    Box("ColumnProj").setFocus();
    EXPECT_EQ(TabStops(), after({"SteelButton", "cReacText", "ImportButton", "cHTtext", "cModeText",
                                 "cD1text", "ColumnSketch", "CmdOK"}));
    Click("StudButton");
    columns.StudRun.emplace();
    walk.Front()->Activate();
    Box("ColumnProj").setFocus();
    EXPECT_EQ(TabStops(), after({"StudButton",
                                 "WindStudHt",
                                 "WindStudSpacing",
                                 "BreadthCombo",
                                 "DepthCombo",
                                 "WindStudCombo",
                                 "WindStudFb",
                                 "WindStudFc",
                                 "WindStudE",
                                 "AxialPLFtextbox",
                                 "AxialPointTextbox",
                                 "AxialDurTextbox",
                                 "AxialDurCycle",
                                 "DurWindTextbox",
                                 "WindA",
                                 "BegA",
                                 "EndA",
                                 "WindB",
                                 "BegB",
                                 "EndB",
                                 "WindC",
                                 "BegC",
                                 "EndC",
                                 "RepWindStud",
                                 "RepIBCCheck",
                                 "LoadStudbutton",
                                 "SaveStudbutton",
                                 "StudSketch",
                                 "StudOKCalcbutton",
                                 "StudReportbutton"}));
}

TEST_F(KeyboardTest, TabRunsDownTheNotchInTheOrderOfItsChecks)
{
    notch.Run.emplace();
    walk.Go(Screen::Notch);
    const std::vector<std::string> member{"MaxVtextbox",  "MemberListBox", "breadthtextbox", "depthtextbox",
                                          "SpeciesCombo", "Fvtextbox",     "dnTextbox",      "NotchListBox"};
    const std::vector<std::string> rest{"WetUseCheckbox", "NoSplitCheckbox", "DurListbox",    "NDSyearList",
                                        "NotchSketch",    "OKcalcCmd",       "CmdNotchReport"};
    const std::vector<std::pair<NotchType, std::vector<std::string>>> own{
        {NotchType::Tension, {}},
        {NotchType::Compression, {"eTextbox"}},
        {NotchType::Tapered, {"rdTextbox", "rpTextbox", "tTextbox"}}};
    for (const auto& [type, boxes] : own) {
        notch.Entry.NotchListBox = static_cast<int>(type);
        Front().Activate();
        Box("MaxVtextbox").setFocus();
        std::vector<std::string> expected = member;
        expected.insert(expected.end(), boxes.begin(), boxes.end());
        expected.insert(expected.end(), rest.begin(), rest.end());
        EXPECT_EQ(TabStops(), expected);
    }
}

TEST_F(KeyboardTest, TabRunsDownTheLoadDiagram)
{
    Form& diagram = walk.FormOf(Screen::LoadDiagram);
    walk.ShowBeside(Screen::LoadDiagram);
    std::vector<std::string> stops;
    for (QWidget* stop = diagram.findChild<QWidget*>(QStringLiteral("LiveLoad"));
         stops.empty() || stop->objectName() != QLatin1String("LiveLoad"); stop = stop->nextInFocusChain()) {
        if ((stop->focusPolicy() & Qt::TabFocus) != 0 && !stop->objectName().isEmpty()) {
            stops.push_back(Text(stop->objectName()));
        }
    }
    EXPECT_THAT(stops,
                testing::ElementsAre("LiveLoad", "LoadPlot", "ShearPlot", "MomentPlot", "DeflectionPlot",
                                     "PeakText", "CopyDiagram", "SavePicture", "CmdClose"));
}

TEST_F(KeyboardTest, NoMnemonicStandsForTwo)
{
    for (const std::string condition : {"SimpleSpanbutton", "OHbutton", "IncButton", "Multibutton"}) {
        Click(condition);
        EXPECT_THAT(DoubledMnemonics(Front()), testing::IsEmpty()) << condition;
    }
    Click("OHbutton");
    Click("CalcPSFPartial");
    EXPECT_THAT(DoubledMnemonics(Front()), testing::IsEmpty());
    session.Problem.Combo1 = session.Numbers.Group = SpeciesGroup::Steel;
    Click("SimpleSpanbutton");
    EXPECT_THAT(DoubledMnemonics(Front()), testing::IsEmpty());
    for (const SpeciesGroup group : {SpeciesGroup::Custom, SpeciesGroup::Scl}) {
        session.Numbers.Group = group;
        session.Entry.Product = FirstCustomScl;
        Form& form = walk.FormOf(Screen::OwnSelection);
        form.Activate();
        EXPECT_THAT(DoubledMnemonics(form), testing::IsEmpty());
    }
    Form& columnForm = walk.FormOf(Screen::Columns);
    columnForm.findChild<QAbstractButton*>(QStringLiteral("ImportButton"))->click();
    for (const ColumnFace face : {ColumnFace::Wood, ColumnFace::Steel, ColumnFace::Studs}) {
        columns.Face = face;
        columnForm.Activate();
        EXPECT_THAT(DoubledMnemonics(columnForm), testing::IsEmpty());
    }
    for (const Screen screen :
         {Screen::WoodSelection, Screen::SteelSelection, Screen::TestReport, Screen::Record, Screen::Settings,
          Screen::Notes, Screen::Calculator, Screen::SimpleDiagram, Screen::LoadDiagram, Screen::WoodColumns,
          Screen::SteelColumns, Screen::WoodColumnRecord, Screen::SteelColumnRecord, Screen::StudRecord,
          Screen::Notch, Screen::NotchPage, Screen::Guide}) {
        EXPECT_THAT(DoubledMnemonics(walk.FormOf(screen)), testing::IsEmpty());
    }
    for (const Screen record : {Screen::Record, Screen::WoodColumnRecord}) {
        walk.Go(record);
        Click("Command1");
        EXPECT_EQ(Text(Front().objectName()), "Form7");
        EXPECT_THAT(DoubledMnemonics(Front()), testing::IsEmpty());
    }
}

/// What assistive tools call a control.
QString SpokenName(const QWidget& control)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    const bool hasCaption = button != nullptr && control.accessibleName().isEmpty();
    return hasCaption ? button->text().remove(QLatin1Char('&')) : control.accessibleName();
}

TEST_F(KeyboardTest, EveryControlHasANameOfItsOwnAndSaysWhatItIs)
{
    for (const Screen screen : {Screen::Criteria,
                                Screen::WoodSelection,
                                Screen::SteelSelection,
                                Screen::OwnSelection,
                                Screen::TestReport,
                                Screen::Record,
                                Screen::Print,
                                Screen::Settings,
                                Screen::Notes,
                                Screen::Calculator,
                                Screen::OverhangDiagram,
                                Screen::LoadDiagram,
                                Screen::Columns,
                                Screen::WoodColumns,
                                Screen::SteelColumns,
                                Screen::WoodColumnRecord,
                                Screen::SteelColumnRecord,
                                Screen::StudRecord,
                                Screen::Notch,
                                Screen::NotchPage,
                                Screen::Guide}) {
        Form& form = walk.FormOf(screen);
        QMap<QString, QString> namesTaken;
        for (const QWidget* const control : form.findChildren<QWidget*>()) {
            const bool isControl = qobject_cast<const QLineEdit*>(control) != nullptr ||
                                   qobject_cast<const QAbstractButton*>(control) != nullptr;
            if (!isControl || control->objectName().startsWith(QLatin1String("qt_"))) {
                continue;
            }
            EXPECT_FALSE(control->objectName().isEmpty()) << Text(form.objectName());
            const QString spoken = SpokenName(*control);
            EXPECT_FALSE(spoken.isEmpty()) << Text(control->objectName());
            const bool isCommonCaption =
                spoken == QLatin1String("Multiply and Insert") || spoken == QLatin1String("Calc PSF");
            EXPECT_TRUE(isCommonCaption || !namesTaken.contains(spoken))
                << Text(spoken) << ": " << Text(control->objectName()) << " and " << Text(namesTaken[spoken]);
            namesTaken[spoken] = control->objectName();
            EXPECT_FALSE(control->toolTip().isEmpty()) << Text(control->objectName());
        }
    }
}

}  // namespace
}  // namespace kordavan
