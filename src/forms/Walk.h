#pragma once

#include <QObject>
#include <QPointer>
#include <map>
#include <memory>
#include <string>

#include "columns/ColumnSession.h"
#include "core/Message.h"
#include "design/Session.h"
#include "forms/DesktopPort.h"
#include "forms/GuidePages.h"
#include "notch/NotchSession.h"

class QWidget;

namespace kordavan {

class Form;
class RecoveryWatch;

/// The screens by their names in the walk.
enum class Screen {
    Criteria,
    WoodSelection,
    SteelSelection,
    OwnSelection,
    TestReport,
    Record,
    Print,
    LoadDiagram,
    Settings,
    Notes,
    Calculator,
    SimpleDiagram,
    OverhangDiagram,
    HipDiagram,
    Columns,
    WoodColumns,
    SteelColumns,
    WoodColumnRecord,
    SteelColumnRecord,
    StudRecord,
    Notch,
    NotchPage,
    Guide
};

/// The person as the forms speak to them: what is told goes on to the desk, and afterwards the box that it
/// names on the form in front takes the focus.
class FrontUser : public UserPort {
public:
    explicit FrontUser(UserPort& port) : desk(port) {}

    void SetFront(Form* form) { front = form; }

    void Tell(const Message& message) override;
    bool Ask(const Message& question) override { return desk.Ask(question); }

private:
    UserPort& desk;
    Form* front = nullptr;
};

/// The road from form to form over one session. Forms are made when first shown and hidden when left, so that
/// what they hold survives.
class Walk : public QObject {
    Q_OBJECT

public:
    Walk(Session& session, ColumnSession& columns, NotchSession& notch, UserPort& user, DesktopPort& desktop);
    ~Walk() override;

    Session& CurrentSession() { return session; }
    ColumnSession& Columns() { return columns; }
    NotchSession& Notch() { return notch; }
    UserPort& User() { return frontUser; }
    DesktopPort& Desktop() { return desktop; }

    /// Reads the user's standing choices and shows the first screen, or the one that was in front when the
    /// program did not end properly, if its entries are wanted back.
    void Start();

    RecoveryWatch& Recovery() { return *recovery; }

    /// The name of the form to go on with after a crash: the one in front, or the record that is printed
    /// there.
    std::string FormToResume() const;

    /// The files of fixed name.
    std::string DefaultsPath();
    std::string RecentFilesPath();

    /// The form of a screen, made if need be.
    Form& FormOf(Screen screen);

    /// The selection of the material that the last calculation was for.
    Screen SelectionScreen() const;

    /// Shows a screen and hides the one in front. It is activated: filled again and centred.
    void Go(Screen screen);

    /// Shows a screen beside the one in front, which stays.
    void ShowBeside(Screen screen);

    /// Shows a page of the user guide beside the window that it is asked from.
    void ShowGuide(GuidePage page, QWidget& asker);

    /// Fills a screen that stands beside again, if it is seen.
    void RefreshBeside(Screen screen);

    /// Lets the form in front show the notes as they are typed beside it.
    void ShowNotes();

    /// Hides a screen that stands beside, if it is seen.
    void PutAway(Screen screen);

    /// Asks whether to end the program, and ends it on Yes.
    void AskToExit();

    Form* Front() const { return front; }

    /// The value shown by the calculator, as text.
    std::string CalculatorText();

    /// Puts the calculator's value into the numeric box that had the focus last.
    void InsertIntoLastBox();

    /// Counts the analyses, so that a selection screen knows whether its picks are those of the last one.
    int AnalysisCount = 0;

private:
    std::unique_ptr<Form> MakeForm(Screen screen);
    Form* SeenForm(Screen screen) const;
    void RememberBox(QWidget* now);
    void Center(Form& form) const;

    Session& session;
    ColumnSession& columns;
    NotchSession& notch;
    DesktopPort& desktop;
    FrontUser frontUser;
    std::map<Screen, std::unique_ptr<Form>> forms;
    Form* front = nullptr;
    Form* toResume = nullptr;
    QPointer<QWidget> lastBox;
    std::unique_ptr<RecoveryWatch> recovery;
};

}  // namespace kordavan
