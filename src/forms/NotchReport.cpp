#include "forms/NotchReport.h"

#include <QMenu>

#include "records/NotchDesk.h"
#include "records/NotchPage.h"

namespace kordavan {

namespace {

constexpr std::string_view NoSaving = "Cannot save this data record";

}  // namespace

NotchReport::NotchReport(Walk& theWalk) : RecordForm(theWalk, "NotchReport")
{
    setWindowTitle(QStringLiteral(" Kordavan Notch Report"));
    BuildMenus();
}

void NotchReport::BuildMenus()
{
    AddPageCommands(AddMenu("&File"));
    AddBackCommand(AddMenu("&Go to"), "Back to the entries of the notch (Esc)", "&Notch Check");
    AddToolsMenu();
    AddHelpMenu(GuidePage::NotchReport);
    AddBackToBar();
}

void NotchReport::FillRecord()
{
    PrepareHeading();
}

void NotchReport::GoBack()
{
    TheWalk().Go(Screen::Notch);
}

RecordHeading& NotchReport::Heading()
{
    return TheWalk().Notch().Heading;
}

void NotchReport::PrepareHeading()
{
    PrepareNotchHeading(TheWalk().Notch(), TheSession(), TheWalk().Desktop().Today());
}

void NotchReport::TakeHeading()
{
    TakeNotchHeading(TheWalk().Notch(), TheSession(), TheWalk().Desktop().Today());
}

RecordPage NotchReport::Page()
{
    return HeadedPage(true);
}

RecordPage NotchReport::HeadedPage(bool hasNotes)
{
    const NotchSession& notch = TheWalk().Notch();
    return LayOutNotchReport(*notch.Run, DatedNotchHeading(notch, TheWalk().Desktop().Today()),
                             TheSession().NoteClipboard,
                             {.HighDpi = TheSession().HighDPI, .HasNotes = hasNotes, .HasDiagram = true});
}

PagePicture NotchReport::Picture()
{
    const NotchRun& run = *TheWalk().Notch().Run;
    return ReadNotchPicture(run.Entry, {.NdsYear = run.Problem.NdsYear, .Line = {}});
}

std::string_view NotchReport::IdCaption() const
{
    return "Member &ID";
}

Screen NotchReport::ShownOn() const
{
    return Screen::NotchPage;
}

Outcome NotchReport::SaveHeaded()
{
    return Refuse(User(), Refusal(NoSaving));
}

}  // namespace kordavan
