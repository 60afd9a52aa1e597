#include <QClipboard>

#include "forms/WalkFixture.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TypingCase {
    const char* Name;
    const char* Box;
    const char* Typed;
    const char* Stands;  // in the box afterwards
    const char* Message;
};

constexpr const char* BadPoint = "Please enter a valid numeric value for the Point Load.";
constexpr const char* BadDistance = "Please enter a numeric value for the DISTANCE to the point load.";
constexpr const char* BadUnbraced =
    "Please enter a valid numeric value for the unbraced length in feet (and decimal fraction, if any)";
constexpr const char* BadUniform = "Please enter a valid numeric value for the Uniform Load in Lbs Per/Ft.";

class TypingTest : public WalkFixture, public testing::WithParamInterface<TypingCase> {};

TEST_P(TypingTest, JudgesEachKeystroke)
{
    const TypingCase& typing = GetParam();
    if (std::string_view(typing.Box) == "CantUBLtext") {
        Click("OHbutton");
    }
    Type(typing.Box, typing.Typed);
    EXPECT_EQ(BoxText(typing.Box), typing.Stands);
    if (std::string_view(typing.Message).empty()) {
        EXPECT_THAT(user.Told, IsEmpty());
    } else {
        EXPECT_THAT(user.Told, ElementsAre(AlertOf(typing.Message, typing.Box)));
        EXPECT_EQ(FocusName(), typing.Box);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, TypingTest, testing::Values(
    TypingCase{"Number", "UNIF", "412.5", "412.5", ""},
    TypingCase{"LoadOfZero", "UNIF", "0", "", ""},
    TypingCase{"Minus", "UNIF", "-", "", BadUniform},
    TypingCase{"Word", "PT[2]", "x", "", BadPoint},
    TypingCase{"Exponent", "PT[2]", "12e", "", BadPoint},
    TypingCase{"DistanceFromPoint", "DIS[2]", ".5", ".5", ""},
    TypingCase{"DistanceByDigits", "DIS[2]", "1.5", "1.5", ""},
    TypingCase{"DistanceWord", "DIS[2]", "1a", "", BadDistance},
    TypingCase{"UnbracedAny", "UBLtext", "Any", "Any", ""},
    TypingCase{"UnbracedZero", "UBLtext", "0", "0", ""},
    TypingCase{"UnbracedOther", "UBLtext", "Anx", "", BadUnbraced},
    TypingCase{"DurationOnItsWay", "Dur", "0.90", "0.90", ""}),
    CaseName);
// clang-format on

class EntryBoxTest : public WalkFixture {};

TEST_F(EntryBoxTest, ThrowsACommaAwayAndSaysSo)
{
    Type("PAR[0]", "1,200");
    EXPECT_EQ(BoxText("PAR[0]"), "1200");
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("Please do not enter comma separators.")));
    EXPECT_EQ(user.Told.front().Icon, MessageIcon::Warning);
}

TEST_F(EntryBoxTest, WarnsOfAnUnusualDurationAndKeepsIt)
{
    Type("Dur", "3");
    EXPECT_EQ(BoxText("Dur"), "3");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(user.Told.front().Text.rfind("Are you sure you want to enter this Duration of load?", 0), 0U);
}

TEST_F(EntryBoxTest, RefusesPastedGarbageAndSurvivesIt)
{
    for (const QString& garbage :
         {QStringLiteral("NaN"), QStringLiteral("1e999"), QStringLiteral("12 ft"),
          QString(100000, QLatin1Char('x')), QStringLiteral("\u00bd"), QStringLiteral("1,200")}) {
        user.Told.clear();
        QLineEdit& box = Box("LPT[1]");
        box.setFocus();
        box.selectAll();
        QApplication::clipboard()->setText(garbage);
        box.paste();
        EXPECT_EQ(BoxText("LPT[1]"), "") << Text(garbage.left(20));
        EXPECT_EQ(user.Told.size(), 1U) << Text(garbage.left(20));
        EXPECT_EQ(session.Problem.Loads.LPT[1], "");
    }
}

TEST_F(EntryBoxTest, SelectsItsWholeTextOnEntry)
{
    Type("Span", "14");
    Key(Qt::Key_Tab);
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Text(Box("Span").selectedText()), "14");
    QTest::keyClicks(&Box("Span"), QStringLiteral("9"));
    EXPECT_EQ(session.Problem.Span, "9");
}

TEST_F(EntryBoxTest, UndoesWhatWasTyped)
{
    Type("Span", "14");
    QTest::keyClick(&Box("Span"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(BoxText("Span"), "");
    EXPECT_EQ(session.Problem.Span, "");
}

TEST_F(EntryBoxTest, UndoBringsBackWhatStoodBeforeARefusal)
{
    Type("Span", "123");
    QTest::keyClicks(&Box("Span"), QStringLiteral("x"));
    EXPECT_EQ(BoxText("Span"), "");
    QTest::keyClick(&Box("Span"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(BoxText("Span"), "123");
    EXPECT_EQ(session.Problem.Span, "123");
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST_F(EntryBoxTest, SelectsItsWholeTextByAClickToo)
{
    Type("Proj", "Hilltop");
    Box("Span").setFocus();
    QTest::mouseClick(&Box("Proj"), Qt::LeftButton, {}, QPoint(20, 5));
    EXPECT_EQ(Text(Box("Proj").selectedText()), "Hilltop");
}

TEST_F(EntryBoxTest, ShowsTheBeginningOfALongNumber)
{
    Type("Text2", "0");
    session.Problem.Loads.UNIF = "145.176803394625";
    Front().Activate();
    EXPECT_EQ(Box("UNIF").cursorPosition(), 0);
    Type("UNIF", "145.176803394625");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Box("UNIF").cursorPosition(), 0);
}

TEST_F(EntryBoxTest, InsertOfNothingKeepsTheBox)
{
    walk.ShowBeside(Screen::Calculator);
    QTest::keyClicks(walk.FormOf(Screen::Calculator).focusWidget(), QStringLiteral("1/0="));
    Type("PT[0]", "55");
    Key(Qt::Key_Insert);
    EXPECT_EQ(BoxText("PT[0]"), "55");
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("The calculator shows no number to insert.")));
}

TEST_F(EntryBoxTest, FocusIsScrolledIntoView)
{
    Front().resize(320, 240);
    Settle();
    Box("ENDP[4]").setFocus();
    Settle();
    EXPECT_FALSE(Box("ENDP[4]").visibleRegion().isEmpty());
    Box("Proj").setFocus();
    Settle();
    EXPECT_FALSE(Box("Proj").visibleRegion().isEmpty());
}

TEST_F(EntryBoxTest, InsertTakesTheCalculatorsValue)
{
    walk.ShowBeside(Screen::Calculator);
    QTest::keyClicks(&walk.FormOf(Screen::Calculator), QStringLiteral("13' 3-1/2\"="));
    Type("DIS[0]", "2");
    Key(Qt::Key_Insert);
    EXPECT_EQ(BoxText("DIS[0]"), "13.2917");
    EXPECT_EQ(session.Problem.Loads.DIS[0], "13.2917");
}

TEST_F(EntryBoxTest, InsertRefusesAMillionInALoadBox)
{
    walk.ShowBeside(Screen::Calculator);
    QTest::keyClicks(&walk.FormOf(Screen::Calculator), QStringLiteral("1000000"));
    Type("PT[0]", "5");
    Key(Qt::Key_Insert);
    EXPECT_EQ(BoxText("PT[0]"), "5");
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("Number is too large to insert")));
}

}  // namespace
}  // namespace kordavan
