#pragma once

#include <QKeySequence>
#include <QMainWindow>
#include <functional>
#include <string_view>

#include "forms/GuidePages.h"
#include "forms/HelpButton.h"
#include "forms/HelpTexts.h"
#include "forms/Kit.h"
#include "forms/Walk.h"

class QHBoxLayout;
class QMenu;
class QScrollArea;
class QVBoxLayout;

namespace kordavan {

/// What every form has: menus, a body that scrolls when the window is too small for it, a foot that never
/// does with its result on the left and its commands on the right, and the keys that all forms share.
///
/// Enter presses the default command, Esc goes back, F1 opens the guide at the page of the form, Shift+F1
/// tells about the box in focus.
class Form : public QMainWindow {
    Q_OBJECT

public:
    Form(Walk& walk, std::string_view name);

    /// Called by the walk each time the form comes to the front.
    virtual void Activate() {}

    /// The page of the guide that tells about the form as it stands.
    virtual GuidePage Guide() { return guidePage; }

    /// Called by the walk while the notes beside the form are typed.
    virtual void ShowNotes() {}

    /// Puts the caret where a message points to, and scrolls there.
    void FocusOn(std::string_view control);

    /// Says something at the foot of the form for a while, without a question or a beep.
    void ShowNote(std::string_view text);

    /// Takes the size of the contents, or of the screen when that is smaller.
    void FitToScreen();

    QSize sizeHint() const override;

    /// A help button that says its text in a message.
    HelpButton* MakeHelp(const HelpText& help, std::initializer_list<std::string_view> boxes);

protected:
    Walk& TheWalk() { return currentWalk; }
    Session& TheSession() { return currentWalk.CurrentSession(); }
    ColumnSession& Columns() { return currentWalk.Columns(); }
    UserPort& User() { return currentWalk.User(); }

    QVBoxLayout& Body() { return *body; }
    QHBoxLayout& Foot() { return *foot; }

    QMenu& AddMenu(std::string_view caption);
    QAction& AddCommand(QMenu& menu, const ControlText& text, std::string_view caption,
                        const std::function<void()>& run, const QKeySequence& keys = {});

    /// The command that ends the program, at the end of the File menu.
    void AddExitCommand(QMenu& file);

    /// The tools that stand beside every form of the walk.
    void AddToolsMenu();

    /// The command that shows the load diagram beside the form.
    QAction& AddDiagramCommand(QMenu& goTo);

    /// Tells a text of the program's own help.
    void TellHelp(std::string_view text);

    /// A menu of all help buttons of the form, behind the guide.
    /// @param page  of the guide, about the form
    void AddHelpMenu(GuidePage page);

    /// The button that Enter presses.
    virtual QAbstractButton* DefaultCommand() { return nullptr; }

    /// What Esc does.
    virtual void GoBack() {}

    /// What closing the window means: the end of the program, unless the form stands beside others.
    virtual void CloseAsked();

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void PressDefault();
    void HelpOnFocus();

    Walk& currentWalk;
    QScrollArea* scroll;
    QVBoxLayout* body;
    QWidget* footArea;
    QHBoxLayout* foot;
    GuidePage guidePage = GuidePage::Contents;
};

}  // namespace kordavan
