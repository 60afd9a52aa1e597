#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

class NotesFormTest : public WalkFixture {
protected:
    NotesFormTest() : notes(walk.FormOf(Screen::Notes)) { walk.ShowBeside(Screen::Notes); }

    QLineEdit& Line(int number) { return FindIn<QLineEdit>(notes, "Text" + std::to_string(number)); }

    Form& notes;
};

TEST_F(NotesFormTest, KeepsWhatIsTypedAndCountsWhatIsLeft)
{
    QTest::keyClicks(&Line(3), QStringLiteral("Check the bearing"));
    EXPECT_EQ(session.NoteClipboard[2], "Check the bearing");
    EXPECT_EQ(Text(FindIn<QLabel>(notes, "Left3").text()), "68");
    QTest::keyClicks(&Line(3), QString(100, QLatin1Char('x')));
    EXPECT_EQ(session.NoteClipboard[2].size(), ReportNoteLength);
}

TEST_F(NotesFormTest, DownGoesToTheNextLine)
{
    Line(1).setFocus();
    QTest::keyClick(&Line(1), Qt::Key_Down);
    EXPECT_EQ(notes.focusWidget(), &Line(2));
    QTest::keyClick(&Line(2), Qt::Key_Up);
    EXPECT_EQ(notes.focusWidget(), &Line(1));
}

TEST_F(NotesFormTest, ClearsAllLinesAndHides)
{
    QTest::keyClicks(&Line(1), QStringLiteral("one"));
    QTest::keyClicks(&Line(7), QStringLiteral("seven"));
    FindIn<QAbstractButton>(notes, "CmdClearNotes").click();
    EXPECT_EQ(session.NoteClipboard, ReportNoteLines{});
    QTest::keyClick(&Line(1), Qt::Key_Return);
    EXPECT_FALSE(notes.isVisible());
}

TEST_F(NotesFormTest, ShowsWhatTheSessionHolds)
{
    notes.hide();
    session.NoteClipboard[4] = "from a record";
    walk.ShowBeside(Screen::Notes);
    EXPECT_EQ(Text(Line(5).text()), "from a record");
}

}  // namespace
}  // namespace kordavan
