#include <QClipboard>
#include <QFile>
#include <QLabel>

#include "columns/ColumnCriteria.h"
#include "columns/SteelColumn.h"
#include "columns/StudColumn.h"
#include "columns/StudPicture.h"
#include "columns/WoodColumn.h"
#include "forms/WalkFixture.h"
#include "records/ColumnDesk.h"
#include "records/StudRecordFile.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr std::string_view SaveNotesQuestion =
    "Would you like to save your notes as part of this column record?";

class ColumnRecords : public WalkFixture {
protected:
    void IdentifyColumn() { columns.Identity = {"Barn", "C1", "hall post"}; }

    void Press(const std::string& command)
    {
        Click(command);
        Settle();
    }

    void Do(const std::string_view command)
    {
        Choose(std::string(command));
        Settle();
    }

    std::string FrontName() { return Text(Front().objectName()); }

    static QByteArray BytesOf(const std::string& path)
    {
        QFile file(Text(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        return file.readAll();
    }

    void OpenPrint()
    {
        Press("Command1");
        ASSERT_EQ(FrontName(), "Form7");
    }
};

struct KindCase {
    std::string_view Name;
    ColumnRecordKind Kind;
    Screen Shown;
    std::string_view Form;
    std::string_view Title;
    std::string_view Selection;  // the form
    std::string_view Save;
    std::string_view Load;
    std::string_view File;
    int Bytes;
    std::string_view OtherFile;  // of the other kind
    std::size_t MemberLine;      // a cell of the size
    std::string_view NotThis;    // what is told of a file of another kind
};

constexpr KindCase WoodCase{
    .Name = "wood",
    .Kind = ColumnRecordKind::Wood,
    .Shown = Screen::WoodColumnRecord,
    .Form = "Form19",
    .Title = "Wood Column Record",
    .Selection = "Form20",
    .Save = "MnuSave",
    .Load = "MnuLoad",
    .File = "c1.Col",
    .Bytes = 1514,
    .OtherFile = "c1.SCo",
    .MemberLine = 12,
    .NotThis = "The file you have selected does not contain a Kordavan Column Record."};

constexpr KindCase SteelCase{
    .Name = "steel",
    .Kind = ColumnRecordKind::Steel,
    .Shown = Screen::SteelColumnRecord,
    .Form = "Form23",
    .Title = "Steel Column Record",
    .Selection = "Form10",
    .Save = "MnuSaveStlCol",
    .Load = "MnuLoadStlColumn",
    .File = "c1.SCo",
    .Bytes = 1156,
    .OtherFile = "c1.Col",
    .MemberLine = 10,
    .NotThis = "The file you have selected does not contain a Kordavan Steel Column Record."};

class ColumnRecordFormTest : public ColumnRecords, public testing::WithParamInterface<KindCase> {
protected:
    /// A column of 8 ft under 10,000 lb: a 4x6 of DF-L #2, or a standard pipe.
    void OpenRecord(const KindCase& kind)
    {
        IdentifyColumn();
        columns.Entry.cReacText = "10000";
        columns.Entry.cHTtext = columns.Entry.cD1text = columns.Entry.cD2text = "8";
        const bool isSteel = kind.Kind == ColumnRecordKind::Steel;
        if (isSteel) {
            ASSERT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
            ASSERT_EQ(PickSteelColumn(columns, SteelColumnKind::Standard, 0, user), Outcome::Done);
        } else {
            PickColumnSpecies(columns.Entry, "DF-L #2", EditionInForce(session.Nds));
            ASSERT_EQ(CalculateWoodColumn(columns, EditionInForce(session.Nds), user), Outcome::Done);
            columns.ColD1Text = "3.5";
            columns.ColD2Text = "5.5";
            ASSERT_EQ(TestEnteredColumn(columns, EditionInForce(session.Nds), user), Outcome::Done);
        }
        ASSERT_EQ(SelectColumnForRecord(columns, session, kind.Kind, desktop.Today(), user), Outcome::Done);
        walk.Go(kind.Shown);
        Settle();
    }

    ColumnRecordOnShow& Record() { return ColumnRecordOf(columns, GetParam().Kind); }

    std::string CellText(std::size_t label) { return LabelText("Label" + std::to_string(label)); }

    void SaveTo(std::string_view file, bool withNotes)
    {
        desktop.ChosenFile = desktop.PathOf(std::string(file));
        user.WillAnswer(withNotes);
        Do(GetParam().Save);
    }

    ColumnSheet SheetIn(std::string_view file)
    {
        ColumnSheet sheet;
        EXPECT_EQ(OpenColumnRecord(desktop.PathOf(std::string(file)), GetParam().Kind, sheet, user),
                  Outcome::Done);
        return sheet;
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, ColumnRecordFormTest, testing::Values(WoodCase, SteelCase), CaseName);

TEST_P(ColumnRecordFormTest, ShowsTheSizeSelected)
{
    OpenRecord(GetParam());
    EXPECT_EQ(FrontName(), GetParam().Form);
    EXPECT_EQ(Text(Front().windowTitle()), GetParam().Title);
    EXPECT_NE(Record().Sheet[GetParam().MemberLine], "");
    EXPECT_EQ(CellText(GetParam().MemberLine), Record().Sheet[GetParam().MemberLine]);
    EXPECT_EQ(CellText(3), "Barn");
    EXPECT_EQ(CellText(5), "C1");
    EXPECT_EQ(CellText(7), "Date: 3/07/26");
    EXPECT_EQ(LabelText("LoadedLine"), "");
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), GetParam().Selection);
    walk.Go(GetParam().Shown);
    Do("MnuCriteria");
    EXPECT_EQ(FrontName(), "Form18");
}

TEST_P(ColumnRecordFormTest, IsSavedWithItsNotesOnYesAlone)
{
    session.NoteClipboard[6] = "Paint the ends.";
    OpenRecord(GetParam());
    EXPECT_TRUE(Record().IsUnsaved);
    SaveTo(GetParam().File, true);
    ASSERT_EQ(user.Told.size(), 2U);
    EXPECT_EQ(user.Told[0].Text, SaveNotesQuestion);
    EXPECT_THAT(user.Told[1].Text, HasSubstr("Column Record has been saved as"));
    EXPECT_EQ(BytesOf(*desktop.ChosenFile).size(), GetParam().Bytes);
    ColumnSheet expected = Record().Sheet;
    expected[6] = "Prepared by:";  // a last blank is lost in the file
    EXPECT_EQ(SheetIn(GetParam().File), expected);
    EXPECT_FALSE(Record().IsUnsaved);
    SaveTo("without", false);
    EXPECT_EQ(SheetIn("without").ReportNotes, ReportNoteLines{});
    EXPECT_EQ(Record().Sheet.ReportNotes[6], "Paint the ends.");
}

TEST_P(ColumnRecordFormTest, ARecordNotSavedStaysUnsaved)
{
    OpenRecord(GetParam());
    user.WillAnswer(true);
    Do(GetParam().Save);
    SaveTo("no such folder/c1", true);
    EXPECT_TRUE(Record().IsUnsaved);
}

TEST_P(ColumnRecordFormTest, ALoadedRecordIsShownAndLeft)
{
    session.NoteClipboard[0] = "Of the first column.";
    OpenRecord(GetParam());
    SaveTo(GetParam().File, true);
    Record().Sheet[5] = "C2";
    const ColumnSheet own = Record().Sheet;
    session.NoteClipboard[0].clear();
    Do(GetParam().Load);
    EXPECT_THAT(user.Told.back().Text, HasSubstr("you have loaded is text and the values are not active."));
    EXPECT_EQ(CellText(5), "C1");
    EXPECT_EQ(LabelText("LoadedLine"), "Loaded from disk: text only");
    EXPECT_EQ(session.NoteClipboard[0], "Of the first column.");
    Do("backmnu");
    EXPECT_EQ(FrontName(), GetParam().Selection);
    walk.Go(GetParam().Shown);
    EXPECT_EQ(CellText(5), "C2");
    EXPECT_EQ(Record().Sheet[GetParam().MemberLine], own[GetParam().MemberLine]);
    EXPECT_EQ(LabelText("LoadedLine"), "");
}

TEST_P(ColumnRecordFormTest, ALoadedRecordWithNothingBehindItLeadsToTheCriteria)
{
    OpenRecord(GetParam());
    SaveTo(GetParam().File, false);
    Record() = {};
    Do(GetParam().Load);
    EXPECT_EQ(CellText(5), "C1");
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form18");
    EXPECT_FALSE(Record().FromDisk);
}

TEST_P(ColumnRecordFormTest, AFileOfAnotherKindChangesNothing)
{
    OpenRecord(GetParam().Kind == ColumnRecordKind::Wood ? SteelCase : WoodCase);
    desktop.ChosenFile = desktop.PathOf(std::string(GetParam().OtherFile));
    user.WillAnswer(false);
    Do(GetParam().Kind == ColumnRecordKind::Wood ? SteelCase.Save : WoodCase.Save);
    OpenRecord(GetParam());
    const ColumnRecordOnShow before = Record();
    Do(GetParam().Load);
    EXPECT_THAT(user.Told.back().Text, StartsWith(GetParam().NotThis));
    EXPECT_EQ(Record(), before);
    EXPECT_EQ(LabelText("LoadedLine"), "");
}

TEST_P(ColumnRecordFormTest, NotesTypedBesideItStandOnItAndOnThePrintedPage)
{
    OpenRecord(GetParam());
    walk.ShowBeside(Screen::Notes);
    auto& note = FindIn<QLineEdit>(walk.FormOf(Screen::Notes), "Text2");
    QTest::keyClicks(&note, QStringLiteral("Paint the ends."));
    EXPECT_EQ(Record().Sheet.ReportNotes[1], "Paint the ends.");
    Do("MnuCopyClip");
    const std::string copied = Text(QApplication::clipboard()->text());
    EXPECT_THAT(copied, HasSubstr("Paint the ends.\n"));
    EXPECT_THAT(copied, HasSubstr(Record().Sheet[GetParam().MemberLine]));
    OpenPrint();
    QTest::keyClicks(&note, QStringLiteral(" Twice."));
    user.WillAnswer(true);
    Press("CmdPrint");
    ASSERT_EQ(desktop.Printer.Printed.size(), 1U);
    EXPECT_THAT(desktop.Printer.Printed[0], HasSubstr("Paint the ends. Twice.\n"));
    user.WillAnswer(false);
    Press("CmdPrint");
    EXPECT_THAT(desktop.Printer.Printed[1], Not(HasSubstr("Paint")));
    EXPECT_EQ(
        user.Told.front().Text,
        "There are currently notes on the Note Clipboard. Would you like them included on the printed Data "
        "Record?");
}

TEST_P(ColumnRecordFormTest, IsHeadedAndPrinted)
{
    OpenRecord(GetParam());
    OpenPrint();
    EXPECT_EQ(LabelText("IdCaption"), "Column &ID");
    EXPECT_EQ(BoxText("Text1"), "Barn");
    EXPECT_EQ(BoxText("Text2"), "hall post");
    EXPECT_EQ(BoxText("Text3"), "C1");
    Type("Heading1", "Timber & Sons");
    Type("Initialbox", "JD");
    Type("Datebox", "");
    Key(Qt::Key_Return);
    ASSERT_EQ(desktop.Printer.Printed.size(), 1U);
    EXPECT_THAT(desktop.Printer.Printed[0], HasSubstr("Timber & Sons"));
    EXPECT_THAT(desktop.Printer.Printed[0], HasSubstr("Prepared by: JD"));
    EXPECT_FALSE(Record().IsUnsaved);
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), GetParam().Form);
    EXPECT_EQ(CellText(1), "Timber & Sons");
    EXPECT_EQ(CellText(6), "Prepared by: JD");
    EXPECT_EQ(CellText(7), "Date: 3/07/26");
}

TEST_P(ColumnRecordFormTest, IsSavedUnderItsHeadingFromThePreview)
{
    OpenRecord(GetParam());
    OpenPrint();
    Type("Text3", "C7");
    user.WillAnswer(true);
    Do("MnuSaveRec");
    EXPECT_EQ(Record().Sheet[5], "C1");
    desktop.ChosenFile = desktop.PathOf(std::string(GetParam().File));
    user.WillAnswer(false);
    Do("MnuSaveRec");
    EXPECT_THAT(user.Told.back().Text, HasSubstr("Column Record has been saved as"));
    EXPECT_EQ(FrontName(), "Form7");
    const ColumnSheet saved = SheetIn(GetParam().File);
    EXPECT_EQ(saved[5], "C7");
    EXPECT_EQ(saved[6], "Prepared by:");
    EXPECT_EQ(saved[7], "Date: 3/07/26");
}

TEST_P(ColumnRecordFormTest, IsSavedAsPdf)
{
    OpenRecord(GetParam());
    desktop.ChosenFile = desktop.PathOf("no such folder/c1.pdf");
    Do("MnuPdf");
    EXPECT_EQ(user.Told.size(), 1U);
    EXPECT_TRUE(Record().IsUnsaved);
    desktop.ChosenFile = desktop.PathOf("c1.pdf");
    Do("MnuPdf");
    EXPECT_TRUE(BytesOf(*desktop.ChosenFile).startsWith("%PDF-"));
    EXPECT_FALSE(Record().IsUnsaved);
}

class StudRecordFormTest : public ColumnRecords {
protected:
    /// A 2x6 of 10 ft at 16 in. under 600 plf of wall and 20 psf of wind all over its height.
    void OpenRecord()
    {
        IdentifyColumn();
        StudEntry& stud = columns.Stud;
        stud.WindStudHt = stud.End[0] = "10";
        stud.WindStudSpacing = "16";
        stud.DepthCombo = 1;
        stud.WindStudCombo = "DF-L #2";
        stud.WindStudFb = "900";
        stud.WindStudFc = "1350";
        stud.WindStudE = "1.6";
        stud.AxialPLFtextbox = "600";
        stud.Wind[0] = "20";
        ASSERT_EQ(CalculateStud(columns, EditionInForce(session.Nds), user), Outcome::Done);
        walk.Go(Screen::StudRecord);
        Settle();
    }
};

TEST_F(StudRecordFormTest, ShowsTheStudWithItsDiagram)
{
    OpenRecord();
    EXPECT_EQ(FrontName(), "Form28");
    EXPECT_EQ(Text(Front().windowTitle()), "Stud Record");
    const QString words = Find<QWidget>("RecordSheet").accessibleDescription();
    EXPECT_EQ(Text(words), DescribeStudMoment(*columns.StudRun));
    Do("MnuCopyClip");
    const std::string copied = Text(QApplication::clipboard()->text());
    EXPECT_THAT(copied, HasSubstr("Barn"));
    EXPECT_THAT(copied, HasSubstr("DF-L #2"));
    EXPECT_THAT(copied, HasSubstr("Adequate"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form18");
}

TEST_F(StudRecordFormTest, StandsAsLastCalculatedWhateverIsEntered)
{
    OpenRecord();
    Do("MnuCopyClip");
    const QString before = QApplication::clipboard()->text();
    columns.Stud.Wind[0] = "35";
    walk.Go(Screen::StudRecord);
    Do("MnuCopyClip");
    EXPECT_EQ(Text(QApplication::clipboard()->text()), Text(before));
}

TEST_F(StudRecordFormTest, IsHeadedAndPrinted)
{
    session.NoteClipboard[0] = "Nail at 6 in.";
    OpenRecord();
    OpenPrint();
    EXPECT_EQ(LabelText("IdCaption"), "Column &ID");
    EXPECT_EQ(BoxText("Text3"), "C1");
    EXPECT_EQ(BoxText("Datebox"), "3/07/26");
    Type("Text2", "north wall");
    user.WillAnswer(true);
    Key(Qt::Key_Return);
    ASSERT_EQ(desktop.Printer.Printed.size(), 1U);
    EXPECT_THAT(desktop.Printer.Printed[0], HasSubstr("north wall"));
    EXPECT_THAT(desktop.Printer.Printed[0], HasSubstr("Nail at 6 in."));
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form28");
    Do("MnuCopyClip");
    EXPECT_THAT(Text(QApplication::clipboard()->text()), HasSubstr("north wall"));
}

TEST_F(StudRecordFormTest, SavesTheEntriesOfTheStud)
{
    session.NoteClipboard[0] = "Nail at 6 in.";
    OpenRecord();
    desktop.ChosenFile = desktop.PathOf("c1.Wsc");
    user.WillAnswer(true);
    Do("MnuSave");
    EXPECT_EQ(user.Told.front().Text,
              "Would you like to save your notes as part of this stud column record?");
    EXPECT_EQ(desktop.DialogTitles.back(), "Save Stud Column Record As");
    EXPECT_EQ(columns.KeptStud, columns.Stud);
    ColumnSession loaded;
    ReportNoteLines notes;
    ASSERT_EQ(OpenStudRecord(*desktop.ChosenFile, loaded, notes, user), Outcome::Done);
    EXPECT_EQ(loaded.Stud, columns.Stud);
    EXPECT_EQ(notes[0], "Nail at 6 in.");
    OpenPrint();
    user.WillAnswer(false);
    Do("MnuSaveRec");
    ReportNoteLines none;
    ASSERT_EQ(OpenStudRecord(*desktop.ChosenFile, loaded, none, user), Outcome::Done);
    EXPECT_EQ(none, ReportNoteLines{});
    EXPECT_EQ(FrontName(), "Form7");
}

TEST_F(StudRecordFormTest, ABeamsRecordAfterwardsIsABeamsAgain)
{
    OpenRecord();
    OpenPrint();
    session.Record.Heading = {};
    session.Record.HeaderChanged = true;
    session.Record.Heading.BeamId = "B1";
    walk.Go(Screen::Record);
    Settle();
    OpenPrint();
    EXPECT_EQ(LabelText("IdCaption"), "&Beam ID");
    EXPECT_EQ(BoxText("Text3"), "B1");
    EXPECT_EQ(columns.Heading.BeamId, "C1");
}

}  // namespace
}  // namespace kordavan
