#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <array>
#include <deque>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "forms/DialogUser.h"
#include "forms/Errands.h"
#include "forms/Form.h"
#include "forms/PrinterPort.h"
#include "forms/Walk.h"

namespace kordavan {

/// Chances that are the same in every run of a seed.
class Chances {
public:
    explicit Chances(unsigned seed) : random(seed) {}

    std::size_t Below(std::size_t end) { return random() % end; }
    bool InHundred(std::size_t share) { return Below(100) < share; }

    template <typename List>
    auto& OneOf(List& list)
    {
        return list[Below(list.size())];
    }

private:
    std::mt19937 random;
};

/// A printer of moods: it may be missing, fail or be cancelled; what it prints is laid out.
class MoodyPrinter : public PrinterPort {
public:
    explicit MoodyPrinter(Chances& theChances) : chances(theChances) {}

    bool HasPrinter() override { return chances.InHundred(80); }
    std::string CurrentPrinter() override { return current; }
    void UsePrinter(const std::string& name) override { current = name; }
    void AskSetup(QWidget& /*owner*/) override { current = chances.InHundred(50) ? "plotter" : "office"; }
    std::optional<std::string> AskFont(QWidget& owner, const std::string& font) override;
    PrintEnd Print(const PrintJob& job) override;

private:
    Chances& chances;
    std::string current = "office";
};

/// A desk whose file dialogs choose good, missing, cut and foreign files of a folder of their own.
class MoodyDesktop : public DesktopPort {
public:
    /// @param filesFolder  with files of every kind; the fixed files lie there too
    MoodyDesktop(Chances& theChances, QString filesFolder);

    CalendarDay Today() override { return {.Year = 2026, .Month = 3, .Day = 7}; }
    std::string MomentInWords() override { return "Saturday, March 7, 2026 at 2:32 PM"; }
    int MinutesSinceStart() override { return 12; }
    bool OpenFileExplorer() override { return chances.InHundred(50); }
    void EndProgram() override { HasEnded = true; }
    std::optional<std::string> AskOpenFile(const FileDialogText& text) override;
    std::optional<std::string> AskSaveFile(const FileDialogText& text) override;
    PrinterPort& Printers() override { return printer; }
    void CopyPicture(const QImage& /*picture*/, const std::string& /*words*/) override {}
    std::string FixedFilesFolder() override { return Text(folder); }

    bool HasEnded = false;

private:
    Chances& chances;
    QString folder;
    MoodyPrinter printer;
};

/// Somebody who clicks and types at will, answers the message boxes that come, and starts the program again
/// where it has ended.
class RandomUser {
public:
    /// @param tellsActions  each action is written out before it is done, to find one that ends the program
    RandomUser(unsigned seed, QString filesFolder, bool tellsActions);

    void TakeSteps(int count);

    /// Ends the program, wherever it stands.
    void Leave();

    /// The names of the forms that have been on the screen.
    const std::set<std::string>& Seen() const { return seen; }

    /// What was done last, for the message of a failure.
    std::string LastActions() const;

private:
    struct Program;

    void Start();
    void Step();
    void ActOn(Form& form);
    void ActOnDialog(QWidget& dialog);
    void AnswerWhatWaits();

    Form* AnyForm();
    void RunErrand(Form& front);
    void WorkOn(Form& form, const Errand& errand);
    void TypeInto(QWidget& form);
    void PressButton(QWidget& form);
    void PressKey(QWidget& form);
    void PickFromList(QWidget& form);
    void RunCommand(Form& form);
    void ClickAnywhere(QWidget& form);
    void ChangeWindow(Form& form);
    void Note(const QString& action, const QWidget* control = nullptr);

    Chances chances;
    QString folder;
    bool isTelling;
    DialogUser dialogs;
    std::unique_ptr<Program> program;
    QTimer answering;
    std::set<std::string> seen;
    std::deque<std::string> actions;
    std::size_t freeSteps = 0;
    std::size_t errandsRun = 0;
};

}  // namespace kordavan
