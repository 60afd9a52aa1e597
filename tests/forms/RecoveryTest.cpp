#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QStatusBar>
#include <memory>

#include "forms/RecoveryWatch.h"
#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// One run of the program. Its end without a Yes to the exit question is a crash: nothing is tidied up but
/// the locks, which never outlive a program.
struct Program {
    Program(UserPort& user, DesktopPort& desktop) : Road(Beam, Columns, Notch, user, desktop)
    {
        Road.Recovery().SetDelay(std::chrono::milliseconds(1));
        Road.Start();
        QApplication::processEvents();
    }

    template <typename Control>
    Control& Find(const char* name)
    {
        auto* const found = Road.Front()->findChild<Control*>(QLatin1String(name));
        if (found == nullptr) {
            throw std::out_of_range(std::string("no control ") + name);
        }
        return *found;
    }

    void Type(const char* name, const char* text)
    {
        auto& box = Find<QLineEdit>(name);
        box.selectAll();
        QTest::keyClicks(&box, QLatin1String(text));
    }

    void Press(const char* name) { Find<QAbstractButton>(name).click(); }

    std::string BoxText(const char* name) { return Text(Find<QLineEdit>(name).text()); }
    std::string FrontName() { return Text(Road.Front()->objectName()); }
    std::string Entries() { return EntryLines({Beam, Columns, Notch}); }

    Session Beam;
    ColumnSession Columns;
    NotchSession Notch;
    Walk Road;
};

class RecoveryTest : public testing::Test {
protected:
    RecoveryTest() { Start(); }

    void Start() { program = std::make_unique<Program>(user, desktop); }

    QByteArray CopyBytes(const QString& name = QStringLiteral("Kordavan recovery 1.txt"))
    {
        QFile file(desktop.Folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList RecoveryFiles()
    {
        return QDir(desktop.Folder.path()).entryList({QStringLiteral("Kordavan recovery*")});
    }

    void WaitForTheCopy()
    {
        QTest::keyClick(program->Road.Front(), Qt::Key_Shift);
        const QByteArray screen = QByteArray::fromStdString("\nScreen=" + program->FrontName() + "\n");
        const QByteArray entries = QByteArray::fromStdString(program->Entries());
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return CopyBytes().contains(screen) && CopyBytes().contains(entries); }));
    }

    void Crash()
    {
        WaitForTheCopy();
        program.reset();
    }

    /// Crashes, wants the entries back and finds each of them, at the same form.
    void CrashAndRecover()
    {
        const std::string entries = program->Entries();
        const std::string form = program->FrontName();
        Crash();
        user.Told.clear();
        user.WillAnswer(true);
        Start();
        ASSERT_THAT(user.Told, SizeIs(1));
        EXPECT_EQ(program->Entries(), entries);
        EXPECT_EQ(program->FrontName(), form);
    }

    void EnterBeam()
    {
        program->Type("Span", "14");
        program->Type("UNIF", "300");
        program->Type("LUNIF", "200");
    }

    ScriptedDesktop desktop;
    ScriptedUser user;
    std::unique_ptr<Program> program;
};

TEST_F(RecoveryTest, EveryFormShowsItsEntriesAgain)
{
    program->Press("OHbutton");
    program->Type("Proj", "Barn");
    EnterBeam();
    program->Type("PT[4]", "600");
    program->Road.Go(Screen::Columns);
    program->Type("cReacText", "8000");
    program->Press("StudButton");
    program->Type("WindStudHt", "9.5");
    program->Road.ShowBeside(Screen::Notes);
    QTest::keyClicks(program->Road.FormOf(Screen::Notes).findChild<QLineEdit*>(QStringLiteral("Text3")),
                     QStringLiteral("third note"));
    program->Road.Go(Screen::Notch);
    program->Type("MaxVtextbox", "1250");
    program->Notch.Years = {.NdsYear = 2001, .Line = 1};
    CrashAndRecover();
    EXPECT_EQ(user.Told.back().Text,
              "Kordavan did not end properly the last time. The entries were kept on Saturday, March 7, 2026 "
              "at 2:32 PM.\nProject: Barn\n\nDo you wish to have them back? With No they are deleted.");
    EXPECT_EQ(program->BoxText("MaxVtextbox"), "1250");
    EXPECT_EQ(program->Notch.Years.NdsYear, 2001);
    program->Road.Go(Screen::Columns);
    EXPECT_EQ(program->BoxText("WindStudHt"), "9.5");
    EXPECT_EQ(program->BoxText("cReacText"), "8000");
    program->Road.Go(Screen::Criteria);
    EXPECT_EQ(program->BoxText("Proj") + " " + program->BoxText("PT[4]"), "Barn 600");
    EXPECT_TRUE(program->Find<QAbstractButton>("OHbutton").isChecked());
    program->Road.ShowBeside(Screen::Notes);
    EXPECT_EQ(program->Road.FormOf(Screen::Notes).findChild<QLineEdit*>(QStringLiteral("Text3"))->text(),
              QStringLiteral("third note"));
}

TEST_F(RecoveryTest, GoesOnWithTheValuesOfAProduct)
{
    program->Beam.Problem.Combo1 = SpeciesGroup::Scl;
    EnterBeam();
    program->Press("CmdOK");
    program->Type("Text1", "2600");
    program->Type("Text6", "1-3/4x");
    CrashAndRecover();
    EXPECT_EQ(program->FrontName(), "Form2");
    EXPECT_EQ(program->BoxText("Text1") + " " + program->BoxText("Text6"), "2600 1-3/4x");
}

TEST_F(RecoveryTest, GoesOnWithTheReportAndTheRecord)
{
    EnterBeam();
    program->Press("CmdOK");
    program->Press("ht[2]");
    program->Press("CmdOK");
    const QString member = program->Find<QLabel>("DisplayChoice").text();
    CrashAndRecover();
    ASSERT_EQ(program->FrontName(), "Form5");
    EXPECT_EQ(program->Find<QLabel>("DisplayChoice").text(), member);
    program->Press("Command2");
    ASSERT_EQ(program->FrontName(), "Form6");
    CrashAndRecover();
    EXPECT_EQ(program->Beam.Record.Sheet[5], "HF #2  (3) 2x 14 in.");
    QTest::keyClick(program->Road.Front(), Qt::Key_Escape);
    EXPECT_EQ(program->Find<QLabel>("DisplayChoice").text(), member);
    program->Road.Go(Screen::Criteria);
    CrashAndRecover();
    EXPECT_TRUE(program->Find<QAction>("MnuDataRecord").isEnabled());
    EXPECT_EQ(program->BoxText("UNIF"), "300");
}

TEST_F(RecoveryTest, GoesOnWithASteelShape)
{
    program->Beam.Problem.Combo1 = SpeciesGroup::Steel;
    EnterBeam();
    program->Type("UBLtext", "4");
    program->Press("CmdOK");
    ASSERT_EQ(program->FrontName(), "Form22");
    program->Type("StlChoice", "W 8x 18");
    CrashAndRecover();
    EXPECT_EQ(program->BoxText("StlChoice"), "W 8x 18");
    EXPECT_TRUE(program->Find<QAbstractButton>("StlPick[0]").isEnabled());
}

TEST_F(RecoveryTest, GoesOnWithAColumnAndItsRecord)
{
    ColumnEntry& entry = program->Columns.Entry;
    entry.cReacText = "8000";
    entry.cHTtext = entry.cD1text = entry.cD2text = "10";
    entry.cFcText = "1350";
    entry.cEtext = "1.6";
    entry.ColSpeciesCombo = "DF-L #2";
    program->Road.Go(Screen::Columns);
    program->Press("CmdOK");
    program->Type("ColD1Text", "3.5");
    program->Type("ColD2Text", "7.25");
    CrashAndRecover();
    EXPECT_EQ(program->BoxText("ColD2Text"), "7.25");
    program->Press("CmdTestCol");
    program->Press("CmdColRecord");
    CrashAndRecover();
    EXPECT_EQ(program->FrontName(), "Form19");
    EXPECT_TRUE(program->Columns.WoodRecord.IsUnsaved);
}

TEST_F(RecoveryTest, ANoIsFinal)
{
    EnterBeam();
    Crash();
    user.WillAnswer(false);
    Start();
    EXPECT_EQ(program->BoxText("Span"), "");
    EXPECT_TRUE(CopyBytes().isEmpty());
    user.Told.clear();
    program.reset();
    Start();
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST_F(RecoveryTest, NothingStaysAfterACleanExit)
{
    EnterBeam();
    WaitForTheCopy();
    user.WillAnswer(false);
    program->Road.AskToExit();
    EXPECT_FALSE(CopyBytes().isEmpty());
    program->Type("Span", "15");  // and is not written any more
    user.WillAnswer(true);
    program->Road.AskToExit();
    QTest::qWait(20);
    EXPECT_THAT(RecoveryFiles(), IsEmpty());
}

TEST_F(RecoveryTest, ThereIsNoCopyOfNoEntries)
{
    program->Road.Go(Screen::Columns);
    program->Road.Go(Screen::Notch);
    program->Road.Go(Screen::Criteria);
    QTest::keyClick(program->Road.Front(), Qt::Key_Tab);
    QTest::qWait(20);
    EXPECT_TRUE(CopyBytes().isEmpty());
    program->Type("Span", "14");
    WaitForTheCopy();
    QTest::keyClick(&program->Find<QLineEdit>("Span"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&program->Find<QLineEdit>("Span"), Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([this] { return CopyBytes().isEmpty(); }));
}

TEST_F(RecoveryTest, ProgramsAtOnceKeepOutOfEachOthersCopies)
{
    EnterBeam();
    WaitForTheCopy();
    const QByteArray first = CopyBytes();
    auto second = std::make_unique<Program>(user, desktop);
    second->Type("Span", "22");
    const QString other = QStringLiteral("Kordavan recovery 2.txt");
    ASSERT_TRUE(QTest::qWaitFor([&] { return CopyBytes(other).contains("Span=22"); }));
    EXPECT_EQ(CopyBytes(), first);
    EXPECT_THAT(user.Told, IsEmpty());
    second.reset();
    user.WillAnswer(true);
    Program third(user, desktop);  // while the first still runs
    EXPECT_EQ(third.BoxText("Span"), "22");
}

/// A program that is killed leaves its lock behind as well, and a power cut may leave an empty one.
TEST_F(RecoveryTest, LocksOfTheDeadDoNotHold)
{
    const QString lockPath = desktop.Folder.filePath(QStringLiteral("Kordavan recovery 1.lock"));
    EnterBeam();
    Crash();
    const pid_t child = fork();
    if (child == 0) {
        QLockFile lock(lockPath);
        _exit(lock.tryLock(0) ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(QFile::exists(lockPath));
    user.WillAnswer(true);
    Start();
    EXPECT_EQ(program->BoxText("Span"), "14");
    program.reset();
    QFile empty(lockPath);
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    empty.close();
    user.WillAnswer(true);
    Start();
    EXPECT_EQ(program->BoxText("Span"), "14");
}

TEST_F(RecoveryTest, ADamagedCopyIsToldOnceAndStartsAfresh)
{
    EnterBeam();
    Crash();
    QFile copy(desktop.Folder.filePath(QStringLiteral("Kordavan recovery 1.txt")));
    ASSERT_TRUE(copy.resize(copy.size() / 2));
    Start();
    ASSERT_THAT(user.Told, SizeIs(1));
    EXPECT_THAT(user.Told.back().Text, HasSubstr("cannot be used: it is damaged."));
    EXPECT_EQ(program->BoxText("Span"), "");
    program.reset();
    Start();
    EXPECT_THAT(user.Told, SizeIs(1));
}

/// Without a word that would have to be answered.
TEST_F(RecoveryTest, AFolderThatCannotBeWrittenIsToldOnce)
{
    ASSERT_TRUE(desktop.Folder.remove());
    EnterBeam();
    const auto note = [this] {
        const auto* const bar = program->Road.Front()->findChild<QStatusBar*>();
        return bar == nullptr ? std::string{} : Text(bar->currentMessage());
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return !note().empty(); }));
    EXPECT_THAT(note(),
                StartsWith("No recovery copy of the entries can be kept (No such file or directory)"));
    program->Road.Front()->findChild<QStatusBar*>()->clearMessage();
    program->Type("Span", "15");
    QTest::qWait(20);
    EXPECT_EQ(note(), "");
    EXPECT_THAT(user.Told, IsEmpty());
    program.reset();
    Start();
    EXPECT_EQ(note(),
              "No recovery copy of the entries can be kept (its folder cannot be written). Save your "
              "work from time to time.");
}

}  // namespace
}  // namespace kordavan
