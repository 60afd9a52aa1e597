#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QListWidget>
#include <algorithm>
#include <array>
#include <iostream>

#include "core/NdsEdition.h"
#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

/// The program at work on what a picture shows.
class PictureDesk : public WalkFixture {
public:
    explicit PictureDesk(std::string examplesFolder) : examples(std::move(examplesFolder)) {}

    Form& Shown() { return Front(); }

    /// A form beside the one in front.
    Form& Beside(Screen screen)
    {
        walk.ShowBeside(screen);
        Settle();
        return walk.FormOf(screen);
    }

    void Open(const std::string& example)
    {
        desktop.ChosenFile = examples + "/criteria/" + example + ".CRI";
        Command("MnuOpenBeam");
    }

    void Enter(std::initializer_list<std::pair<const char*, const char*>> entries)
    {
        for (const auto& [box, text] : entries) {
            Type(box, text);
        }
    }

    void Press(std::initializer_list<const char*> buttons)
    {
        for (const char* const button : buttons) {
            Click(button);
            Settle();
        }
    }

    void Command(const char* command)
    {
        Choose(command);
        Settle();
    }

    void Pick(const char* list, const char* text)
    {
        auto& box = Find<QComboBox>(list);
        const int row = box.findText(Text(std::string_view(text)));
        box.setCurrentIndex(row);
        Q_EMIT box.activated(row);
        Settle();
    }

    void Send(Form& form, const char* box, const char* text)
    {
        QTest::keyClicks(&FindIn<QLineEdit>(form, box), Text(std::string_view(text)));
        Settle();
    }

    void UseEdition(Edition edition) { session.Nds = EditionFlags(edition); }

    /// What was refused on the way to the picture.
    std::string Refusals() const
    {
        std::string texts;
        for (const Message& message : user.Told) {
            texts += message.Kind == MessageKind::Alert ? "" : message.Text + "\n";
        }
        return texts;
    }

private:
    void TestBody() override {}

    std::string examples;
};

void EnterOverhang(PictureDesk& desk)
{
    desk.Press({"OHbutton", "Wet"});
    desk.Enter({{"Proj", "Hilltop residence"},
                {"ID", "B-12"},
                {"Descrip", "Deck beam at the south side"},
                {"Span", "14"},
                {"LUNIF", "200"},
                {"UNIF", "300"},
                {"LPT[0]", "400"},
                {"PT[0]", "900"},
                {"DIS[0]", "6"},
                {"LPT[4]", "250"},
                {"PT[4]", "600"},
                {"DIS[4]", "4"},
                {"LPAR[0]", "80"},
                {"PAR[0]", "120"},
                {"BEGP[0]", "2"},
                {"ENDP[0]", "9"},
                {"LPAR[3]", "60"},
                {"PAR[3]", "100"},
                {"BEGP[3]", "0"},
                {"ENDP[3]", "4"}});
}

void TestMember(PictureDesk& desk, const char* breadth, const char* depth, const char* species)
{
    desk.Press({"CmdOK"});
    desk.Enter({{"Text1", breadth}, {"Text2", depth}, {"Text3", species}});
    desk.Press({"CmdOK"});
}

void TestOverhang(PictureDesk& desk)
{
    EnterOverhang(desk);
    TestMember(desk, "6x", "14", "DF-L #1");
}

void ChooseMaterial(PictureDesk& desk, const char* material)
{
    desk.Pick("Combo1", material);
}

void EnterColumn(PictureDesk& desk, const char* id, const char* description)
{
    desk.Command("MnuColumns");
    desk.Enter({{"ColumnProj", "Hilltop residence"}, {"columnID", id}, {"ColumnDescription", description}});
}

void EnterWoodColumn(PictureDesk& desk)
{
    EnterColumn(desk, "C-3", "Post in the kitchen wall");
    desk.Press({"CNailedButton"});
    desk.Enter({{"cReacText", "9500"}, {"cHTtext", "9"}, {"cD1text", "3"}, {"cD2text", "9"}});
    desk.Pick("ColSpeciesCombo", "DF-L #2");
}

void TestWoodColumn(PictureDesk& desk)
{
    EnterWoodColumn(desk);
    desk.Press({"CmdOK"});
    desk.Enter({{"ColD1Text", "4.5"}, {"ColD2Text", "5.5"}});
    desk.Press({"CmdTestCol"});
}

void EnterSteelColumn(PictureDesk& desk)
{
    EnterColumn(desk, "C-5", "Column under the garage beam");
    desk.Press({"SteelButton"});
    desk.Enter({{"cReacText", "32000"}, {"cHTtext", "10"}, {"cD1text", "10"}});
}

void EnterStud(PictureDesk& desk)
{
    EnterColumn(desk, "W-1", "Gable wall of the living room");
    desk.Press({"StudButton"});
    desk.Enter({{"WindStudHt", "10"}, {"WindStudSpacing", "16"}});
    desk.Pick("DepthCombo", "6");
    desk.Pick("WindStudCombo", "DF-L #2");
    desk.Enter({{"AxialPLFtextbox", "900"},
                {"WindA", "22"},
                {"BegA", "0"},
                {"EndA", "10"},
                {"WindB", "8"},
                {"BegB", "6"},
                {"EndB", "10"}});
    desk.Press({"RepWindStud", "StudOKCalcbutton"});
}

void EnterNotch(PictureDesk& desk)
{
    desk.UseEdition(Edition::Nds2005);
    desk.Enter({{"Proj", "Hilltop residence"}, {"ID", "B-7"}, {"Descrip", "Floor beam at the stair"}});
    desk.Command("MnuNotch");
    desk.Enter({{"MaxVtextbox", "2600"}, {"breadthtextbox", "3.5"}, {"depthtextbox", "11.25"}});
    desk.Pick("SpeciesCombo", "DF-L #2");
    desk.Enter({{"dnTextbox", "9.5"}});
    desk.Press({"OKcalcCmd"});
}

Form& Joist(PictureDesk& desk)
{
    desk.Open("F1");
    desk.Enter({{"Descrip", "Floor joists"}});
    return desk.Shown();
}

Form& Selection(PictureDesk& desk)
{
    desk.Open("F1");
    desk.Press({"CmdOK"});
    return desk.Shown();
}

Form& Report(PictureDesk& desk)
{
    desk.Open("F1");
    TestMember(desk, "2x", "10", "DF-L #2");
    return desk.Shown();
}

Form& Criteria(PictureDesk& desk)
{
    EnterOverhang(desk);
    return desk.Shown();
}

Form& EnteringLoads(PictureDesk& desk)
{
    return desk.Beside(Screen::OverhangDiagram);
}

Form& EnteringHips(PictureDesk& desk)
{
    return desk.Beside(Screen::HipDiagram);
}

Form& DataRecord(PictureDesk& desk)
{
    TestOverhang(desk);
    desk.Press({"Command2"});
    return desk.Shown();
}

Form& Print(PictureDesk& desk)
{
    DataRecord(desk);
    desk.Press({"Command1"});
    desk.Enter({{"Heading1", "Brook & Field, builders"}, {"Initialbox", "JB"}});
    return desk.Shown();
}

Form& Diagram(PictureDesk& desk)
{
    TestOverhang(desk);
    return desk.Beside(Screen::LoadDiagram);
}

Form& MultipleSpans(PictureDesk& desk)
{
    desk.Open("G2");
    return desk.Shown();
}

Form& Hips(PictureDesk& desk)
{
    desk.Press({"IncButton"});
    desk.Enter({{"Proj", "Hilltop residence"}, {"ID", "H-1"}, {"Descrip", "Hip rafter"}, {"Dur", "1.15"}});
    desk.Enter({{"IncLL", "30"}, {"IncTL", "45"}, {"Trib1", "10"}, {"Trib2", "10"}});
    desk.Press({"CalctheSpan", "Areas[0]", "Areas[3]", "IncCalcButton"});
    return desk.Shown();
}

Form& Composite(PictureDesk& desk)
{
    ChooseMaterial(desk, "SCL Beams (LVL, PSL, LSL)");
    desk.Enter({{"Span", "18"}, {"LUNIF", "200"}, {"UNIF", "300"}});
    desk.Press({"CmdOK"});
    desk.Pick("Combo1", "Custom SCL #1");
    desk.Pick("Combo1", "2.0E WF West Fraser LVL");
    desk.Enter({{"Text1", "2600"}, {"Text2", "285"}, {"Text4", "2.0"}, {"Text3", "750"}});
    desk.Press({"CmdEnterValues", "LVLbut[1]"});
    return desk.Shown();
}

Form& CustomWood(PictureDesk& desk)
{
    ChooseMaterial(desk, "Custom Wood Values");
    desk.Enter({{"Span", "16"}, {"LUNIF", "200"}, {"UNIF", "300"}});
    desk.Press({"CmdOK", "Wid6x"});
    desk.Enter({{"Text1", "1550"}, {"Text2", "170"}, {"Text4", "1.7"}, {"Text3", "730"}});
    desk.Enter({{"Text5", "DF-L Dense #1"}});
    desk.Press({"CmdEnterValues"});
    return desk.Shown();
}

Form& SteelCriteria(PictureDesk& desk)
{
    desk.Open("S1");
    return desk.Shown();
}

Form& SteelSelection(PictureDesk& desk)
{
    desk.Open("S1");
    desk.Press({"CmdOK"});
    return desk.Shown();
}

Form& Settings(PictureDesk& desk)
{
    desk.Command("MnuDefaults");
    desk.Enter({{"DefHead1", "Brook & Field, builders"},
                {"DefHead2", "12 Mill Lane"},
                {"DefInitials", "JB"},
                {"Livedefault[0]", "40"},
                {"TotalLoadDefault[0]", "52"},
                {"Livedefault[1]", "30"},
                {"TotalLoadDefault[1]", "45"}});
    return desk.Shown();
}

Form& Calculator(PictureDesk& desk)
{
    Form& calculator = desk.Beside(Screen::Calculator);
    desk.Send(calculator, "CalT", "13' 3-1/2\"=");
    return calculator;
}

Form& Notes(PictureDesk& desk)
{
    Form& notes = desk.Beside(Screen::Notes);
    desk.Send(notes, "Text1", "Hanger at R1, post at R2.");
    desk.Send(notes, "Text2", "Verify the span on site before ordering.");
    return notes;
}

Form& WoodColumn(PictureDesk& desk)
{
    EnterWoodColumn(desk);
    return desk.Shown();
}

Form& WoodColumnSizes(PictureDesk& desk)
{
    TestWoodColumn(desk);
    return desk.Shown();
}

Form& WoodColumnRecord(PictureDesk& desk)
{
    TestWoodColumn(desk);
    desk.Press({"CmdColRecord"});
    return desk.Shown();
}

Form& SteelColumn(PictureDesk& desk)
{
    EnterSteelColumn(desk);
    return desk.Shown();
}

Form& SteelColumnSizes(PictureDesk& desk)
{
    EnterSteelColumn(desk);
    desk.Press({"CmdOK", "StdRndBut"});
    return desk.Shown();
}

Form& Stud(PictureDesk& desk)
{
    EnterStud(desk);
    return desk.Shown();
}

Form& StudRecord(PictureDesk& desk)
{
    EnterStud(desk);
    desk.Press({"StudReportbutton"});
    return desk.Shown();
}

Form& Notch(PictureDesk& desk)
{
    EnterNotch(desk);
    return desk.Shown();
}

Form& NotchPage(PictureDesk& desk)
{
    EnterNotch(desk);
    desk.Press({"CmdNotchReport"});
    return desk.Shown();
}

struct PictureRow {
    const char* Name;
    Form& (*Show)(PictureDesk&);
    int MostHeight = 720;  // pixels
};

constexpr int RecordHeight = 820;

constexpr std::array Pictures{
    PictureRow{"joist", Joist},
    PictureRow{"selection", Selection},
    PictureRow{"report", Report},
    PictureRow{"criteria", Criteria},
    PictureRow{"entering-loads", EnteringLoads},
    PictureRow{"entering-hips", EnteringHips},
    PictureRow{"data-record", DataRecord, RecordHeight},
    PictureRow{"print-form", Print},
    PictureRow{"load-diagram", Diagram},
    PictureRow{"multiple-spans", MultipleSpans},
    PictureRow{"hips", Hips},
    PictureRow{"own-selection", Composite},
    PictureRow{"custom-wood", CustomWood},
    PictureRow{"steel-criteria", SteelCriteria},
    PictureRow{"steel-selection", SteelSelection},
    PictureRow{"settings", Settings},
    PictureRow{"calculator", Calculator},
    PictureRow{"notes", Notes},
    PictureRow{"columns", WoodColumn},
    PictureRow{"column-selection", WoodColumnSizes},
    PictureRow{"column-record", WoodColumnRecord, RecordHeight},
    PictureRow{"steel-column", SteelColumn},
    PictureRow{"steel-column-selection", SteelColumnSizes},
    PictureRow{"studs", Stud},
    PictureRow{"stud-record", StudRecord, RecordHeight},
    PictureRow{"notch", Notch},
    PictureRow{"notch-report", NotchPage, RecordHeight},
};

/// Sixteen levels of each colour and a palette make the file small; letters stay smooth.
QImage Reduced(const QImage& picture)
{
    constexpr int step = 17;
    const auto level = [](int value) { return (value + step / 2) / step * step; };
    QImage reduced(picture.size(), QImage::Format_Indexed8);
    QList<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            const QRgb wanted = qRgb(level(color.red()), level(color.green()), level(color.blue()));
            qsizetype index = colors.indexOf(wanted);
            if (index < 0) {
                index = colors.size();
                colors.append(wanted);
            }
            reduced.scanLine(y)[x] = static_cast<uchar>(index);
        }
    }
    constexpr int mostColors = 256;
    reduced.setColorTable(colors);
    return colors.size() <= mostColors ? reduced : picture;
}

bool Take(const PictureRow& row, const std::string& examples, const QDir& folder)
{
    PictureDesk desk(examples);
    Form& form = row.Show(desk);
    const QSize size = form.sizeHint();
    form.resize(size.boundedTo(QSize(size.width(), row.MostHeight)));
    QApplication::processEvents();
    const QString path = folder.filePath(QLatin1String(row.Name) + QLatin1String(".png"));
    const std::string refusals = desk.Refusals();
    if (!refusals.empty() || !Reduced(form.grab().toImage()).save(path)) {
        std::cerr << row.Name << ": not taken\n" << refusals;
        return false;
    }
    std::cout << Text(path) << '\n';
    return true;
}

}  // namespace
}  // namespace kordavan

/// Takes the pictures of the user guide from the running program.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false");  // of what this platform cannot do
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    constexpr int points = 9;
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), points));
    const QStringList arguments = QApplication::arguments();
    constexpr int wanted = 3;
    if (arguments.size() != wanted) {
        std::cerr << "usage: kordavan-guide-pictures EXAMPLES FOLDER\n";
        return 2;
    }
    bool allTaken = true;
    for (const kordavan::PictureRow& row : kordavan::Pictures) {
        allTaken = kordavan::Take(row, kordavan::Text(arguments[1]), QDir(arguments[2])) && allTaken;
    }
    return allTaken ? 0 : 1;
}
