#include <gmock/gmock.h>

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolButton>

#include "columns/StudColumn.h"
#include "columns/StudCriteria.h"
#include "design/CalculateAction.h"
#include "design/TestMember.h"
#include "forms/RecordSheet.h"
#include "forms/WalkFixture.h"
#include "materials/SclProducts.h"
#include "notch/NotchCheck.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

/// The font of the application for as long as it lives.
class FontInForce {
protected:
    explicit FontInForce(int pointSize) : before(QApplication::font())
    {
        QFont font = before;
        font.setPointSize(pointSize);
        QApplication::setFont(font);
    }
    FontInForce(const FontInForce&) = delete;
    FontInForce& operator=(const FontInForce&) = delete;
    ~FontInForce() { QApplication::setFont(before); }

private:
    QFont before;
};

/// The room that a control needs to be read whole; none of those that scroll their text.
QSize RoomNeeded(const QWidget& control)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) {
        if (label->text().isEmpty()) {
            return {};
        }
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
    }
    if (qobject_cast<const QCheckBox*>(&control) != nullptr ||
        qobject_cast<const QRadioButton*>(&control) != nullptr) {
        return control.sizeHint();
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) {
        constexpr int frame = 4;
        const QSize text = control.fontMetrics().size(Qt::TextShowMnemonic, button->text());
        return button->text().isEmpty() ? QSize() : text + QSize(frame, frame);
    }
    if (const auto* const list = qobject_cast<const QComboBox*>(&control)) {
        const QSize text = control.fontMetrics().size(Qt::TextSingleLine, list->currentText());
        return text.expandedTo(list->minimumSizeHint());
    }
    const QSize least = control.minimumSizeHint();
    return {control.minimumWidth() > 0 ? control.minimumWidth() : least.width(), least.height()};
}

/// Parts of the toolkit's own, what lies in a list or scrolls, and the cells of a page, which grows as a
/// whole.
bool IsInnerPart(const QWidget& control)
{
    const QWidget* const parent = control.parentWidget();
    return control.isWindow() || control.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QComboBox*>(parent) != nullptr ||
           qobject_cast<const RecordSheet*>(parent) != nullptr ||
           qobject_cast<const QAbstractScrollArea*>(parent) != nullptr ||
           qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()) != nullptr;
}

std::string Described(const QWidget& control)
{
    const auto* const label = qobject_cast<const QLabel*>(&control);
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : QString();
    const QRect place = control.geometry();
    return Text(
        QStringLiteral("%1 %2 \"%3\" at %4,%5 %6x%7")
            .arg(QLatin1String(control.metaObject()->className()), control.objectName(), text.left(40))
            .arg(place.x())
            .arg(place.y())
            .arg(place.width())
            .arg(place.height()));
}

/// The controls of a window that cannot be read whole, or that lie over another.
std::vector<std::string> CutControls(const QWidget& window)
{
    std::vector<std::string> cut;
    for (const QWidget* const control : window.findChildren<QWidget*>()) {
        if (!control->isVisible() || IsInnerPart(*control)) {
            continue;
        }
        const QSize room = RoomNeeded(*control);
        if (control->width() < room.width() || control->height() < room.height()) {
            cut.push_back(Described(*control) + ", but needs " + std::to_string(room.width()) + "x" +
                          std::to_string(room.height()));
        }
        if (!control->parentWidget()->rect().contains(control->geometry()) && !control->size().isEmpty()) {
            cut.push_back(Described(*control) + " is cut by " + Described(*control->parentWidget()));
        }
        for (const QObject* const other : control->parentWidget()->children()) {
            const auto* const beside = qobject_cast<const QWidget*>(other);
            if (beside != nullptr && beside < control && beside->isVisible() && !beside->isWindow() &&
                beside->geometry().intersects(control->geometry())) {
                cut.push_back(Described(*control) + " lies over " + Described(*beside));
            }
        }
    }
    return cut;
}

struct TypeCase {
    std::string_view Name;
    int PointSize;
};

/// Forms as somebody sees them who needs large letters.
class LargeTypeTest : public FontInForce, public WalkFixture, public testing::WithParamInterface<TypeCase> {
protected:
    LargeTypeTest() : FontInForce(GetParam().PointSize) {}

    void ExpectReadable(QWidget& form, const std::string& state = {})
    {
        Settle();
        Settle();  // a changed text reaches the window by way of its groups
        const QSize screen = QApplication::primaryScreen()->availableGeometry().size();
        const std::string where = Text(form.objectName()) + " " + state;
        EXPECT_LE(form.minimumSizeHint().width(), screen.width()) << where;
        EXPECT_LE(form.minimumSizeHint().height(), screen.height()) << where;
        EXPECT_LE(form.width(), screen.width()) << where;
        EXPECT_LE(form.height(), screen.height()) << where;
        EXPECT_THAT(CutControls(form), testing::IsEmpty()) << where;
    }

    void ExpectReadable(Screen screen)
    {
        walk.Go(screen);
        ExpectReadable(Front());
    }

    void Calculate(BeamProblem problem)
    {
        session.Problem = std::move(problem);
        ASSERT_EQ(CalculateAction(session, user), Outcome::Done);
        ++walk.AnalysisCount;
    }

    static BeamProblem Deck()
    {
        BeamProblem deck;
        deck.Proj = "Sample house with a long name";
        deck.Support = SupportCondition::Overhanging;
        deck.Span = "8";
        deck.Loads.UNIF = "220";
        deck.Loads.LUNIF = "160";
        deck.Loads.PAR[FirstOverhangPartial] = "220";
        deck.Loads.LPAR[FirstOverhangPartial] = "160";
        deck.Loads.BEGP[FirstOverhangPartial] = "0";
        deck.Loads.ENDP[FirstOverhangPartial] = "3";
        return deck;
    }
};

TEST_P(LargeTypeTest, CriteriaCanBeRead)
{
    for (const std::string condition : {"SimpleSpanbutton", "OHbutton", "IncButton", "Multibutton"}) {
        Click(condition);
        ExpectReadable(Front(), condition);
    }
    Click("OHbutton");
    Click("CalcPSFPartial");
    ExpectReadable(Front(), "partial loads in psf");
    session.Problem.Combo1 = session.Numbers.Group = SpeciesGroup::Steel;
    Click("SimpleSpanbutton");
    ExpectReadable(Front(), "steel");
}

TEST_P(LargeTypeTest, TheWalkOfAWoodBeamCanBeRead)
{
    Calculate(Deck());
    ExpectReadable(Screen::WoodSelection);
    session.Entry.BreadthText = "4x";
    session.Entry.DepthText = "8";
    session.Entry.SpeciesText = "DF-L #2";
    ASSERT_EQ(TestMember(session, session.Entry, {}, user), Outcome::Done);
    ExpectReadable(Screen::TestReport);
    Click("Command2");
    ExpectReadable(Front());
    Click("Command1");
    ExpectReadable(Front());
}

TEST_P(LargeTypeTest, TheWalkOfASteelBeamCanBeRead)
{
    BeamProblem steel = Deck();
    steel.Combo1 = SpeciesGroup::Steel;
    steel.UBLtext = "2";
    Calculate(steel);
    ExpectReadable(Screen::SteelSelection);
    Click("Steeldatabasecmd");
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("SteelDatabase")) {
            ExpectReadable(*window);
        }
    }
}

TEST_P(LargeTypeTest, OwnValuesCanBeRead)
{
    for (const SpeciesGroup group : {SpeciesGroup::Scl, SpeciesGroup::Custom}) {
        BeamProblem own = Deck();
        own.Combo1 = group;
        Calculate(own);
        session.Entry.Product = FirstCustomScl;
        ExpectReadable(Screen::OwnSelection);
        session.Entry.Custom.Roundoption = true;
        ExpectReadable(Screen::OwnSelection);
    }
}

TEST_P(LargeTypeTest, ColumnsCanBeRead)
{
    walk.Go(Screen::Columns);
    Click("ImportButton");
    ExpectReadable(Front(), "wood");
    Click("SteelButton");
    ExpectReadable(Front(), "steel");
    Click("StudButton");
    ExpectReadable(Front(), "studs");
    columns.Stud.WindStudHt = "10";
    columns.Stud.WindStudSpacing = "16";
    PickStudSpecies(columns.Stud, "DF-L #2", Edition::Nds2018);
    columns.Stud.AxialPLFtextbox = "500";
    columns.Stud.Wind[0] = "20";
    columns.Stud.Beg[0] = "0";
    columns.Stud.End[0] = "10";
    ASSERT_EQ(CalculateStud(columns, Edition::Nds2018, user), Outcome::Done);
    ExpectReadable(Screen::Columns);
    Type("WindStudHt", "11");
    ExpectReadable(Front(), "changed since");
    for (const Screen screen : {Screen::WoodColumns, Screen::SteelColumns, Screen::WoodColumnRecord,
                                Screen::SteelColumnRecord, Screen::StudRecord}) {
        ExpectReadable(screen);
    }
}

TEST_P(LargeTypeTest, NotchesCanBeRead)
{
    for (const NotchType type : {NotchType::Tension, NotchType::Compression, NotchType::Tapered}) {
        notch.Entry.NotchListBox = static_cast<int>(type);
        ExpectReadable(Screen::Notch);
    }
    notch.Entry.MaxVtextbox = "1500";
    notch.Entry.breadthtextbox = "3.5";
    notch.Entry.depthtextbox = "11.25";
    notch.Entry.Fvtextbox = "180";
    notch.Entry.dnTextbox = "10";
    notch.Entry.Species = "DF-L #2";
    notch.Entry.NotchListBox = static_cast<int>(NotchType::Tension);
    notch.Years = {.NdsYear = 2005, .Line = 3};
    ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done) << user.Told.back().Text;
    ExpectReadable(Screen::Notch);
    Type("dnTextbox", "9");
    ExpectReadable(Front(), "changed since");
    ExpectReadable(Screen::NotchPage);
}

TEST_P(LargeTypeTest, WhatStandsBesideCanBeRead)
{
    ExpectReadable(Screen::Settings);
    Calculate(Deck());
    for (const Screen screen : {Screen::LoadDiagram, Screen::Notes, Screen::Calculator, Screen::SimpleDiagram,
                                Screen::OverhangDiagram, Screen::HipDiagram, Screen::Guide}) {
        walk.ShowBeside(screen);
        ExpectReadable(walk.FormOf(screen));
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, LargeTypeTest, testing::Values(TypeCase{"usual", 9}, TypeCase{"large", 24}),
                         CaseName);

}  // namespace
}  // namespace kordavan
