#include "forms/WalkFixture.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

class CalculatorFormTest : public WalkFixture {
protected:
    CalculatorFormTest() : machine(walk.FormOf(Screen::Calculator)) { walk.ShowBeside(Screen::Calculator); }

    void TypeKeys(const QString& keys) { QTest::keyClicks(machine.focusWidget(), keys); }
    std::string Shown() { return Text(FindIn<QLineEdit>(machine, "CalT").text()); }

    Form& machine;
};

TEST_F(CalculatorFormTest, WorksFromTheKeyboardLikeADeskMachine)
{
    TypeKeys(QStringLiteral("12.5x4"));
    QTest::keyClick(machine.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "50");
    TypeKeys(QStringLiteral("7"));
    QTest::keyClick(machine.focusWidget(), Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "0");
    TypeKeys(QStringLiteral("13' 3-1/2\""));
    TypeKeys(QStringLiteral("="));
    EXPECT_EQ(Shown(), "13.2917");
}

TEST_F(CalculatorFormTest, EveryButtonPressesItsKey)
{
    for (const std::string key : {"Key8", "KeyPlus", "Key4", "KeyEquals", "KeyMPlus", "KeyC"}) {
        FindIn<QAbstractButton>(machine, key).click();
    }
    EXPECT_EQ(Shown(), "0");
    EXPECT_EQ(Text(FindIn<QLabel>(machine, "MemoryMark").text()), "M");
    FindIn<QAbstractButton>(machine, "KeyMR").click();
    EXPECT_EQ(Shown(), "12");
}

TEST_F(CalculatorFormTest, InsertGoesIntoTheBoxLastInFocus)
{
    Box("Span").setFocus();
    Settle();
    machine.activateWindow();
    Settle();
    TypeKeys(QStringLiteral("13' 6\""));
    FindIn<QAbstractButton>(machine, "CmdInsert").click();
    EXPECT_EQ(session.Problem.Span, "13.5");
}

TEST_F(CalculatorFormTest, InsertLeavesTheBoxesOfAHiddenFormAlone)
{
    session.Problem.Span = "14";
    session.Problem.Loads.UNIF = "300";
    Front().Activate();
    Box("UNIF").setFocus();
    Settle();
    Click("CmdOK");
    machine.activateWindow();
    Settle();
    TypeKeys(QStringLiteral("77"));
    FindIn<QAbstractButton>(machine, "CmdInsert").click();
    EXPECT_EQ(session.Problem.Loads.UNIF, "300");
    EXPECT_EQ(user.Told.back().Text, "Please click the box that is to take the number first.");
}

TEST_F(CalculatorFormTest, AnErrorCannotBeInserted)
{
    TypeKeys(QStringLiteral("1/0="));
    EXPECT_EQ(Shown(), "Error");
    EXPECT_FALSE(FindIn<QAbstractButton>(machine, "CmdInsert").isEnabled());
}

}  // namespace
}  // namespace kordavan
