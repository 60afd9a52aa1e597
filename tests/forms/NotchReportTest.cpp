#include <QClipboard>
#include <QFile>
#include <QLabel>

#include <gmock/gmock.h>

#include "forms/WalkFixture.h"
#include "notch/NotchCheck.h"
#include "notch/NotchPicture.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::Not;

class NotchReportTest : public WalkFixture {
protected:
    /// A 4x12 with a tension notch under NDS 2005 that passes: Vr' = 2/3 x 180 x 35 x (10 / 11.25)^2, 3,319
    /// lb.
    void OpenReport()
    {
        session.Problem.Proj = "Barn";
        session.Problem.ID = "B1";
        session.Problem.Descrip = "loft beam";
        session.Header = {.Heading1 = "Timber & Sons", .Heading2 = "12 Mill Road", .Initialbox = "JD"};
        notch.Years = {.NdsYear = 2005, .Line = 3};
        notch.Entry.MaxVtextbox = "1500";
        notch.Entry.breadthtextbox = "3.5";
        notch.Entry.depthtextbox = "11.25";
        notch.Entry.Species = "DF-L #2";
        notch.Entry.Fvtextbox = "180";
        notch.Entry.dnTextbox = "10";
        ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
        walk.Go(Screen::NotchPage);
        Settle();
    }

    void Do(const std::string& command)
    {
        Choose(command);
        Settle();
    }

    std::string CopiedPage()
    {
        Do("MnuCopyClip");
        return Text(QApplication::clipboard()->text());
    }

    std::string FrontName() { return Text(Front().objectName()); }

    void OpenPrint()
    {
        Click("Command1");
        Settle();
        ASSERT_EQ(FrontName(), "Form7");
    }
};

TEST_F(NotchReportTest, ShowsTheRunAndLeadsBack)
{
    OpenReport();
    EXPECT_EQ(FrontName(), "NotchReport");
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Notch Report");
    EXPECT_EQ(Text(Find<QWidget>("RecordSheet").accessibleDescription()),
              DescribeNotchPicture(ReadNotchPicture(notch.Entry, notch.Years)));
    const std::string page = CopiedPage();
    for (const std::string_view text : {"Barn", "B1", "loft beam", "Timber & Sons", "12 Mill Road", "JD",
                                        "3/07/26", "DF-L #2", "3,319", "OK  Fv ratio less than 100%"}) {
        EXPECT_THAT(page, HasSubstr(text));
    }
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "FormOstrimane");
    notch.Entry.MaxVtextbox = "9999";
    walk.Go(Screen::NotchPage);
    EXPECT_EQ(CopiedPage(), page);
}

TEST_F(NotchReportTest, AnEarlierResultIsNotReported)
{
    OpenReport();
    notch.Years = {.NdsYear = 2018, .Line = 0};
    ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
    walk.Go(Screen::NotchPage);
    const std::string page = CopiedPage();
    EXPECT_THAT(page, HasSubstr("not computed"));
    EXPECT_THAT(page, Not(HasSubstr("3,319")));
    EXPECT_THAT(page, Not(HasSubstr("3319")));
}

TEST_F(NotchReportTest, IsHeadedAndPrinted)
{
    session.NoteClipboard[0] = "Treat the cut.";
    OpenReport();
    OpenPrint();
    EXPECT_EQ(LabelText("IdCaption"), "Member &ID");
    EXPECT_EQ(BoxText("Text1"), "Barn");
    EXPECT_EQ(BoxText("Text3"), "B1");
    EXPECT_EQ(BoxText("Datebox"), "3/07/26");
    Type("Text3", "N7");
    Type("Datebox", "");
    user.WillAnswer(true);
    Key(Qt::Key_Return);
    ASSERT_EQ(desktop.Printer.Printed.size(), 1U);
    for (const std::string_view text : {"N7", "3/07/26", "Treat the cut."}) {
        EXPECT_THAT(desktop.Printer.Printed[0], HasSubstr(text));
    }
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "NotchReport");
    EXPECT_THAT(CopiedPage(), HasSubstr("N7"));
    EXPECT_EQ(session.Problem.ID, "B1");
}

TEST_F(NotchReportTest, AnEnteredHeadingStaysForItsBeam)
{
    OpenReport();
    OpenPrint();
    Type("Text2", "north eave");
    Key(Qt::Key_Escape);
    walk.Go(Screen::Notch);
    walk.Go(Screen::NotchPage);
    EXPECT_THAT(CopiedPage(), HasSubstr("north eave"));
    session.Problem.ID = "B2";
    walk.Go(Screen::NotchPage);
    const std::string page = CopiedPage();
    EXPECT_THAT(page, HasSubstr("loft beam"));
    EXPECT_THAT(page, HasSubstr("B2"));
    EXPECT_THAT(page, Not(HasSubstr("north eave")));
}

TEST_F(NotchReportTest, CannotBeSaved)
{
    OpenReport();
    OpenPrint();
    desktop.ChosenFile = desktop.PathOf("n1.Dat");
    Click("Command1");
    Do("MnuSaveRec");
    ASSERT_EQ(user.Told.size(), 2U);
    for (const Message& message : user.Told) {
        EXPECT_EQ(message.Text, "Cannot save this data record");
        EXPECT_EQ(message.Title, "Kordavan");
    }
    EXPECT_TRUE(desktop.DialogTitles.empty());
    EXPECT_FALSE(QFile::exists(Text(*desktop.ChosenFile)));
    EXPECT_EQ(FrontName(), "Form7");
}

TEST_F(NotchReportTest, IsSavedAsPdf)
{
    OpenReport();
    desktop.ChosenFile = desktop.PathOf("n1.pdf");
    Do("MnuPdf");
    QFile file(Text(*desktop.ChosenFile));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("%PDF-"));
}

}  // namespace
}  // namespace kordavan
