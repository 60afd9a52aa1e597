#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QPushButton>

#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class RecordFormTest : public WalkFixture {
protected:
    /// 300 plf (200 live) on 14 ft, on a member that passes, as far as its record.
    void OpenRecord()
    {
        Type("Proj", "Barn");
        Type("Descrip", "ridge");
        Type("ID", "B1");
        Type("Span", "14");
        Type("LUNIF", "200");
        Type("UNIF", "300");
        Press("CmdOK");
        Type("Text1", "4x");
        Type("Text2", "14");
        Type("Text3", "DF-L #1");
        Press("CmdOK");
        Press("Command2");
        ASSERT_EQ(FrontName(), "Form6");
    }

    void Press(const std::string& command)
    {
        Click(command);
        Settle();
    }

    std::string FrontName() { return Text(Front().objectName()); }

    QByteArray FileStart(const std::string& path, int count)
    {
        QFile file(Text(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        return file.read(count);
    }
};

TEST_F(RecordFormTest, ShowsTheMemberPutOnRecord)
{
    OpenRecord();
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Data Record");
    EXPECT_EQ(LabelText("Label5"), "DF-L #1  4x 14 in.");
    EXPECT_EQ(LabelText("Label61"), "14.0");
    EXPECT_EQ(LabelText("Label62"), session.Record.Sheet[62]);
    EXPECT_EQ(LabelText("Label111"), "OK");
    Choose("backmnu");
    Settle();
    EXPECT_EQ(FrontName(), "Form5");
    Choose("MnuDataRecord");
    Settle();
    Choose("MnuCriteria");
    Settle();
    EXPECT_THAT(LabelText("SavePanel"), StartsWith(" Selection:   4x  14 DF-L #1   -  Status: OK"));
    EXPECT_TRUE(Find<QAction>("MnuDataRecord").isEnabled());
    Choose("MnuDataRecord");
    Settle();
    EXPECT_EQ(LabelText("Label73"), "300  = A");
    Choose("MnuCriteria");
    Settle();
    Type("Span", "15");
    EXPECT_FALSE(Find<QAction>("MnuDataRecord").isEnabled());
}

TEST_F(RecordFormTest, IsSavedAndShownAgain)
{
    OpenRecord();
    const DataSheet saved = session.Record.Sheet;
    desktop.ChosenFile = desktop.PathOf("beam.Dat");
    Choose("MnuSaveData");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told[0].Text, StartsWith("The Data Record has been saved as\n    "));
    session.Record.Sheet[5] = "something else";
    Choose("MnuOpenData");
    Settle();
    EXPECT_EQ(LabelText("Label5"), saved[5]);
    EXPECT_EQ(LabelText("Label1"), "Barn");
    user.WillAnswer(false);
    Choose("MnuBack");
    EXPECT_THAT(user.Told.back().Text, HasSubstr("It will be lost if you go to the Report Form3."));
    EXPECT_EQ(FrontName(), "Form6");
    Press("Command1");
    Press("Command3");
    EXPECT_FALSE(Find<QAction>("MnuBack").isEnabled());
    EXPECT_FALSE(Find<QAction>("backmnu").isEnabled());
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form6");
    user.WillAnswer(false);
    Choose("MnuCriteria");
    EXPECT_EQ(FrontName(), "Form6");
    user.WillAnswer(true);
    Choose("MnuCriteria");
    EXPECT_EQ(FrontName(), "Form1");
}

TEST_F(RecordFormTest, ARecordLoadedIsSavedAsItStood)
{
    session.NoteClipboard[3] = "Paint the ends.";
    OpenRecord();
    desktop.ChosenFile = desktop.PathOf("beam.Dat");
    Choose("MnuSaveData");
    const QByteArray bytes = FileStart(*desktop.ChosenFile, 5000);
    Choose("MnuOpenData");
    Press("Command1");
    desktop.ChosenFile = desktop.PathOf("again.Dat");
    Choose("MnuSaveRec");
    EXPECT_EQ(bytes.size(), 4809);
    EXPECT_EQ(FileStart(*desktop.ChosenFile, 5000), bytes);
}

TEST_F(RecordFormTest, NotesTypedBesideItStandOnIt)
{
    OpenRecord();
    walk.ShowBeside(Screen::Notes);
    QTest::keyClicks(&FindIn<QLineEdit>(walk.FormOf(Screen::Notes), "Text2"),
                     QStringLiteral("Paint the ends."));
    EXPECT_EQ(session.Record.Sheet.ReportNotes[1], "Paint the ends.");
    Choose("MnuCopyClip");
    EXPECT_THAT(Text(QApplication::clipboard()->text()), HasSubstr("\nPaint the ends.\n"));
}

TEST_F(RecordFormTest, AFileOfAnotherKindLeavesTheSheet)
{
    OpenRecord();
    desktop.ChosenFile = desktop.PathOf("other.Dat");
    QFile other(Text(*desktop.ChosenFile));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("no record");
    other.close();
    Choose("MnuOpenData");
    EXPECT_THAT(user.Told.back().Text,
                StartsWith("The file you have selected does not contain a Kordavan Data Record."));
    EXPECT_EQ(LabelText("Label5"), "DF-L #1  4x 14 in.");
    EXPECT_TRUE(Find<QAction>("MnuBack").isEnabled());
}

TEST_F(RecordFormTest, IsCopiedAsTextAndSavedAsPdf)
{
    OpenRecord();
    Choose("MnuCopyClip");
    const std::string text = Text(QApplication::clipboard()->text());
    EXPECT_THAT(text, HasSubstr("DF-L #1  4x 14 in.\n"));
    EXPECT_THAT(text, HasSubstr("Project: Barn"));
    desktop.ChosenFile = desktop.PathOf("beam.pdf");
    Choose("MnuPdf");
    EXPECT_EQ(FileStart(*desktop.ChosenFile, 5), "%PDF-");
    EXPECT_TRUE(user.Told.empty());
    desktop.ChosenFile = desktop.PathOf("no such folder/beam.pdf");
    Choose("MnuPdf");
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST_F(RecordFormTest, NewBeamRemindsToSave)
{
    OpenRecord();
    user.WillAnswer(true);
    Choose("MnuNew");
    EXPECT_EQ(user.Told.back().Title, "SAVE YOUR WORK REMINDER");
    EXPECT_EQ(FrontName(), "Form6");
    user.WillAnswer(false);
    Choose("MnuNew");
    EXPECT_EQ(FrontName(), "Form1");
    EXPECT_EQ(BoxText("Span"), "");
}

class PrintFormTest : public RecordFormTest {
protected:
    void OpenPrint()
    {
        OpenRecord();
        Press("Command1");
        ASSERT_EQ(FrontName(), "Form7");
    }
};

TEST_F(PrintFormTest, HeadsThePageAndPrintsIt)
{
    OpenPrint();
    EXPECT_EQ(BoxText("Text1"), "Barn");
    EXPECT_EQ(BoxText("Datebox"), "3/07/26");
    Type("Heading1", "Timber & Sons");
    Type("Text1", "Barn, phase 2");
    Type("Initialbox", "JD");
    Key(Qt::Key_Return);
    ASSERT_EQ(desktop.Printer.Printed.size(), 1U);
    const std::string page = desktop.Printer.Printed[0];
    EXPECT_THAT(page, HasSubstr("Timber & Sons"));
    EXPECT_THAT(page, HasSubstr("Project: Barn, phase 2"));
    EXPECT_THAT(page, HasSubstr("Prepared by: JD"));
    EXPECT_EQ(desktop.Printer.Family, "Arial");
    EXPECT_THAT(user.Told.back().Text, StartsWith("If you'd like to reset your default printer orientation"));
    Press("Command3");
    EXPECT_EQ(FrontName(), "Form6");
    EXPECT_EQ(LabelText("Label1"), "Project: Barn, phase 2");
}

TEST_F(PrintFormTest, NotesArePrintedOnYesAlone)
{
    session.NoteClipboard[0] = "Paint the ends.";
    OpenPrint();
    user.WillAnswer(false);
    Press("CmdPrint");
    user.WillAnswer(true);
    Press("CmdPrint");
    ASSERT_EQ(desktop.Printer.Printed.size(), 2U);
    EXPECT_THAT(desktop.Printer.Printed[0], testing::Not(HasSubstr("Paint the ends.")));
    EXPECT_THAT(desktop.Printer.Printed[1], HasSubstr("Notes\nPaint the ends.\n"));
    EXPECT_EQ(session.NoteClipboard[0], "Paint the ends.");
}

TEST_F(PrintFormTest, TheUsualPrinterIsRestoredWhereAskedFor)
{
    OpenPrint();
    Press("Command2");
    EXPECT_EQ(desktop.Printer.Current, "plotter");
    Press("CmdPrint");
    EXPECT_EQ(desktop.Printer.Current, "plotter");
    session.RestoreDefaultPrinter = true;
    desktop.Printer.Current = "office";
    Press("Command2");
    Press("Command2");
    Press("CmdPrint");
    EXPECT_EQ(desktop.Printer.Current, "office");
}

TEST_F(PrintFormTest, ClosingKeepsAHeadingThatWasTyped)
{
    OpenPrint();
    Type("Text2", "ridge, second floor");
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form6");
    EXPECT_EQ(LabelText("Label3"), "Description: ridge, second floor");
}

TEST_F(PrintFormTest, APageThatCouldNotBeDrawnIsTold)
{
    OpenPrint();
    desktop.Printer.End = PrintEnd::NotDrawn;
    Press("CmdPrint");
    EXPECT_EQ(user.Told.back().Text, "Error at the Print Form 2 procedure.");
}

TEST_F(PrintFormTest, FaultsAreToldAndTheHeadingStays)
{
    OpenPrint();
    Type("Heading1", "Timber & Sons");
    desktop.Printer.End = PrintEnd::Failed;
    Press("CmdPrint");
    EXPECT_EQ(user.Told.back().Text,
              "The data record printing was cancelled or could not be printed because an error occurred.");
    desktop.Printer.IsThere = false;
    Press("CmdPrint");
    EXPECT_THAT(user.Told.back().Text, StartsWith("No printer is installed"));
    EXPECT_EQ(BoxText("Heading1"), "Timber & Sons");
    desktop.ChosenFile = desktop.PathOf("beam.pdf");
    Press("CmdPdf");
    EXPECT_EQ(FileStart(*desktop.ChosenFile, 5), "%PDF-");
}

TEST_F(PrintFormTest, SavingLeadsToTheCriteriaOnYes)
{
    OpenPrint();
    desktop.ChosenFile = desktop.PathOf("beam.Dat");
    user.WillAnswer(true);
    Choose("MnuSaveRec");
    EXPECT_EQ(user.Told.back().Text,
              "Would you like to now go to Form 1 to save the Criteria for this beam?");
    EXPECT_EQ(FrontName(), "Form1");
}

TEST_F(PrintFormTest, FontAndClearedHeadingAreTaken)
{
    OpenPrint();
    desktop.Printer.ChosenFont = "DejaVu Sans";
    Choose("MnuFont");
    EXPECT_EQ(session.PrintFont, "DejaVu Sans");
    Press("CmdClear");
    EXPECT_EQ(BoxText("Text1"), "");
    Press("CmdPrint");
    EXPECT_EQ(desktop.Printer.Family, "DejaVu Sans");
    EXPECT_EQ(session.Record.Sheet[4], "Date: 3/07/26");
}

}  // namespace
}  // namespace kordavan
