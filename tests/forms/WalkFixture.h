#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>
#include <optional>
#include <stdexcept>
#include <string>

#include "forms/Form.h"
#include "forms/PrinterPort.h"
#include "forms/Walk.h"
#include "support/ScriptedUser.h"

namespace kordavan {

/// A printer that keeps the text of each page, and whose setup dialog always chooses the plotter.
class ScriptedPrinter : public PrinterPort {
public:
    bool HasPrinter() override { return IsThere; }
    std::string CurrentPrinter() override { return Current; }
    void UsePrinter(const std::string& name) override { Current = name; }
    void AskSetup(QWidget& /*owner*/) override { Current = "plotter"; }

    std::optional<std::string> AskFont(QWidget& /*owner*/, const std::string& /*current*/) override
    {
        return ChosenFont;
    }

    PrintEnd Print(const PrintJob& job) override
    {
        if (End == PrintEnd::Printed) {
            Printed.push_back(PlainTextOf(job.Page));
            Family = Text(job.Family);
        }
        return End;
    }

    bool IsThere = true;
    PrintEnd End = PrintEnd::Printed;  // how the next job goes
    std::string Current = "office";
    std::optional<std::string> ChosenFont;
    std::vector<std::string> Printed;
    std::string Family;
};

/// A desk whose clock stands still and that remembers what it was asked to do.
class ScriptedDesktop : public DesktopPort {
public:
    CalendarDay Today() override { return {.Year = 2026, .Month = 3, .Day = 7}; }
    std::string MomentInWords() override { return "Saturday, March 7, 2026 at 2:32 PM"; }
    int MinutesSinceStart() override { return 12; }
    bool OpenFileExplorer() override { return ++ExplorersOpened > 0; }
    void EndProgram() override { HasEnded = true; }

    std::optional<std::string> AskOpenFile(const FileDialogText& text) override { return Choose(text); }
    std::optional<std::string> AskSaveFile(const FileDialogText& text) override { return Choose(text); }
    PrinterPort& Printers() override { return Printer; }
    void CopyPicture(const QImage& picture, const std::string& words) override
    {
        CopiedPicture = picture;
        CopiedWords = words;
    }
    std::string FixedFilesFolder() override { return Text(Folder.path()); }

    /// A file in the folder of this test.
    std::string PathOf(const std::string& name) const { return Text(Folder.filePath(Text(name))); }

    std::optional<std::string> ChosenFile;  // by the next dialog; none cancels it
    std::vector<std::string> DialogTitles;  // of the dialogs shown
    QImage CopiedPicture;                   // what the clipboard holds
    std::string CopiedWords;
    QTemporaryDir Folder;
    ScriptedPrinter Printer;
    int ExplorersOpened = 0;
    bool HasEnded = false;

private:
    std::optional<std::string> Choose(const FileDialogText& text)
    {
        DialogTitles.emplace_back(text.Title);
        return ChosenFile;
    }
};

/// The program at a desk whose person and clock are scripted: it opens on the criteria, and a test types and
/// clicks in whatever form is in front.
class WalkFixture : public testing::Test {
protected:
    WalkFixture() : walk(session, columns, notch, user, desktop)
    {
        walk.Start();
        Settle();
    }

    Form& Front() { return *walk.Front(); }

    /// A control of the form in front by its name; a test that asks for one that is not there fails.
    template <typename Control>
    Control& Find(const std::string& name)
    {
        return FindIn<Control>(Front(), name);
    }

    template <typename Control>
    static Control& FindIn(QWidget& form, const std::string& name)
    {
        auto* const found = form.findChild<Control*>(Text(name));
        if (found == nullptr) {
            throw std::out_of_range("no control " + name + " on " + Text(form.objectName()));
        }
        return *found;
    }

    QLineEdit& Box(const std::string& name) { return Find<QLineEdit>(name); }
    std::string BoxText(const std::string& name) { return Text(Box(name).text()); }
    std::string LabelText(const std::string& name) { return Text(Find<QLabel>(name).text()); }

    /// Types over what a box holds.
    void Type(const std::string& name, const std::string& text)
    {
        QLineEdit& box = Box(name);
        box.setFocus();
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, Text(text));
    }

    /// Clicks near the left edge, where checks and options have their mark.
    void Click(const std::string& name)
    {
        auto& button = Find<QAbstractButton>(name);
        constexpr int intoTheMark = 9;
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(intoTheMark, button.height() / 2));
    }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget* const focus = Front().focusWidget();
        QTest::keyClick(focus == nullptr ? &Front() : focus, key, modifiers);
        Settle();
    }

    void Choose(const std::string& menuCommand) { Find<QAction>(menuCommand).trigger(); }

    std::string FocusName()
    {
        const QWidget* const focus = Front().focusWidget();
        return focus == nullptr ? std::string{} : Text(focus->objectName());
    }

    static void Settle() { QApplication::processEvents(); }

    Session session;
    ColumnSession columns;
    NotchSession notch;
    ScriptedUser user;
    ScriptedDesktop desktop;
    Walk walk;
};

}  // namespace kordavan
