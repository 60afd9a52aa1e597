#include "forms/RandomUser.h"

#include <QDir>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QThread>
#include <iostream>
#include <numeric>

#include "forms/PagePicture.h"

namespace kordavan {

namespace {

constexpr std::size_t StepsBetweenErrands = 6;

constexpr std::array SensibleTexts{
    "1",   "2",   "4",   "6",   "8",    "9.5",  "10",   "12",      "14",     "16",    "20",     "24",  "40",
    "60",  "100", "240", "360", "500",  "1200", "5000", "0.9",     "1.15",   "1.25",  "1.6",    "0",   "3.5",
    "5.5", "2x",  "4x",  "Any", "1800", "1.9",  "180",  "DF-L #2", "12-1/2", "0.125", "W10x12", "2026"};

const std::array<QString, 18> HostileTexts{
    QStringLiteral("-3"),
    QStringLiteral("1e308"),
    QStringLiteral("1e-45"),
    QStringLiteral("999999999999999999999"),
    QStringLiteral("NaN"),
    QStringLiteral("inf"),
    QStringLiteral("0x1F"),
    QStringLiteral("1,5"),
    QStringLiteral("."),
    QStringLiteral("   "),
    QStringLiteral("1/0"),
    QStringLiteral("%s%n%1"),
    QStringLiteral("<b>&amp;</b>"),
    QStringLiteral("Gr\u00FC\u00DFe \u6728 \u202E\u200B"),
    QStringLiteral("\U0001F332\t\n\u0001"),
    QStringLiteral("(3) 2x  10 DF-L #2"),
    QStringLiteral("../../etc/passwd"),
    QString(3000, QLatin1Char('9')),
};

constexpr std::array PlainKeys{
    Qt::Key_Tab,       Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Return, Qt::Key_Return,
    Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Home,   Qt::Key_End,
    Qt::Key_Plus,      Qt::Key_Minus,  Qt::Key_Insert,  Qt::Key_Delete, Qt::Key_Space,  Qt::Key_PageDown,
    Qt::Key_F1,        Qt::Key_PageUp, Qt::Key_F6,      Qt::Key_F7,     Qt::Key_F8,     Qt::Key_F9,
    Qt::Key_Backspace, Qt::Key_Escape};

/// Presses a button that can be seen, if there is such a one.
void PressIfSeen(const QWidget& form, std::string_view name)
{
    auto* const button = form.findChild<QAbstractButton*>(Text(name));
    if (button != nullptr && button->isVisible()) {
        button->click();
    }
}

/// The children of a kind that a person can see and use.
template <typename Control>
std::vector<Control*> Usable(const QWidget& form)
{
    std::vector<Control*> usable;
    for (Control* const control : form.findChildren<Control*>()) {
        if (control->isVisibleTo(&form) && control->isEnabled()) {
            usable.push_back(control);
        }
    }
    return usable;
}

/// Whether a control is still there after what has been done to it.
bool IsThere(const QPointer<QWidget>& control)
{
    return !control.isNull();
}

}  // namespace

std::optional<std::string> MoodyPrinter::AskFont(QWidget& /*owner*/, const std::string& font)
{
    constexpr std::array fonts{"Arial", "Courier", "No such font", ""};
    return chances.InHundred(30)
               ? std::nullopt
               : std::optional<std::string>(chances.InHundred(50) ? font : chances.OneOf(fonts));
}

PrintEnd MoodyPrinter::Print(const PrintJob& job)
{
    PlainTextOf(job.Page);
    constexpr std::array ends{PrintEnd::Printed, PrintEnd::Printed, PrintEnd::NotDrawn, PrintEnd::Failed};
    return chances.OneOf(ends);
}

MoodyDesktop::MoodyDesktop(Chances& theChances, QString filesFolder)
    : chances(theChances), folder(std::move(filesFolder)), printer(theChances)
{
}

std::optional<std::string> MoodyDesktop::AskOpenFile(const FileDialogText& text)
{
    const QDir dir(folder);
    QStringList files = dir.entryList({Text(text.FileName)}, QDir::Files, QDir::Name);
    if (files.isEmpty() || chances.InHundred(25)) {
        files = dir.entryList(QDir::Files | QDir::Dirs, QDir::Name);
    }
    if (chances.InHundred(10)) {
        return std::nullopt;
    }
    return Text(dir.filePath(chances.InHundred(10) ? QStringLiteral("missing") : chances.OneOf(files)));
}

std::optional<std::string> MoodyDesktop::AskSaveFile(const FileDialogText& text)
{
    const QDir dir(folder);
    if (chances.InHundred(20)) {
        return std::nullopt;
    }
    if (chances.InHundred(20)) {
        return Text(dir.filePath(QStringLiteral("no such folder/file")));
    }
    if (chances.InHundred(10)) {
        return Text(folder);
    }
    return Text(dir.filePath(QStringLiteral("saved%1.").arg(chances.Below(3)))) +
           std::string(text.DefaultExtension);
}

/// One run of the program, from its first screen to its end.
struct RandomUser::Program {
    Program(Chances& chances, const QString& folder, UserPort& user)
        : Desktop(chances, folder), TheWalk(Beam, Columns, Notch, user, Desktop)
    {
        TheWalk.Start();
    }

    Session Beam;
    ColumnSession Columns;
    NotchSession Notch;
    MoodyDesktop Desktop;
    Walk TheWalk;
};

RandomUser::RandomUser(unsigned seed, QString filesFolder, bool tellsActions)
    : chances(seed), folder(std::move(filesFolder)), isTelling(tellsActions)
{
    answering.callOnTimeout([this] { AnswerWhatWaits(); });
    answering.start(0);
    Start();
}

void RandomUser::Start()
{
    Note(QStringLiteral("start"));
    program = std::make_unique<Program>(chances, folder, dialogs);
    QApplication::processEvents();
}

void RandomUser::TakeSteps(int count)
{
    for (int step = 0; step < count; ++step) {
        Step();
        QApplication::processEvents();
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && qobject_cast<const Form*>(window) != nullptr) {
                seen.insert(Text(window->objectName()));
            }
        }
        if (program->Desktop.HasEnded) {
            Leave();
            Start();
        }
    }
}

void RandomUser::Leave()
{
    Note(QStringLiteral("leave"));
    program.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

void RandomUser::Step()
{
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        PressKey(*popup);
    } else if (QWidget* const dialog = QApplication::activeModalWidget()) {
        ActOnDialog(*dialog);
    } else if (++freeSteps % StepsBetweenErrands == 0) {
        RunErrand(*program->TheWalk.Front());
    } else {
        ActOn(*AnyForm());
    }
}

/// Mostly the form in front, now and then one beside it.
Form* RandomUser::AnyForm()
{
    std::vector<Form*> shown;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const form = qobject_cast<Form*>(window);
        if (form != nullptr && form->isVisible()) {
            shown.push_back(form);
        }
    }
    return chances.InHundred(85) ? program->TheWalk.Front() : chances.OneOf(shown);
}

void RandomUser::ActOn(Form& form)
{
    form.activateWindow();
    const std::size_t mood = chances.Below(100);
    if (mood < 25) {
        TypeInto(form);
    } else if (mood < 50) {
        PressButton(form);
    } else if (mood < 75) {
        PressKey(form);
    } else if (mood < 82) {
        PickFromList(form);
    } else if (mood < 94) {
        RunCommand(form);
    } else if (mood < 98) {
        ClickAnywhere(form);
    } else {
        ChangeWindow(form);
    }
}

void RandomUser::ActOnDialog(QWidget& dialog)
{
    if (chances.InHundred(40)) {
        PressButton(dialog);
    } else if (chances.InHundred(60)) {
        PickFromList(dialog);
    } else {
        PressKey(dialog);
    }
}

/// Called from within the loop of a box that waits for its answer, or of an open menu.
void RandomUser::AnswerWhatWaits()
{
    if (QThread::currentThread()->loopLevel() == 0) {
        return;
    }
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        QTest::keyClick(popup, Qt::Key_Escape);
        return;
    }
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
        return;
    }
    Note(QStringLiteral("answer: ") + box->text().left(60));
    if (chances.InHundred(15)) {
        QTest::keyClick(box, chances.InHundred(50) ? Qt::Key_Escape : Qt::Key_Return);
        return;
    }
    QList<QAbstractButton*> buttons = box->buttons();
    chances.OneOf(buttons)->click();
}

/// One move of the errand in hand: towards its form, or what is done there. What has any effect at all needs
/// sound entries now and then.
void RandomUser::RunErrand(Form& front)
{
    const Errand& errand = AllErrands[errandsRun % AllErrands.size()];
    if (front.objectName() == Text(errand.Form)) {
        ++errandsRun;
        WorkOn(front, errand);
        return;
    }
    auto* const command = front.findChild<QAction*>(Text(errand.Command));
    const bool isPossible = !errand.Command.empty() || errand.Form == "Form1";
    if (!isPossible) {
        ++errandsRun;
    } else if (command != nullptr) {
        Note(QStringLiteral("errand ") + command->text(), &front);
        command->trigger();
    } else {
        Note(QStringLiteral("back"), &front);
        QTest::keyClick(&front, Qt::Key_Escape);
    }
}

void RandomUser::WorkOn(Form& form, const Errand& errand)
{
    Note(QStringLiteral("sound entries"), &form);
    PressIfSeen(form, errand.Option);
    auto* const list = form.findChild<QComboBox*>(Text(errand.List));
    if (list != nullptr) {
        list->setCurrentIndex(errand.Row);
        Q_EMIT list->activated(errand.Row);
    }
    for (const auto& [name, text] : errand.Texts) {
        auto* const box = form.findChild<QLineEdit*>(Text(name));
        if (box != nullptr && box->isVisible() && box->isEnabled()) {
            box->setFocus();
            box->selectAll();
            QTest::keyClick(box, Qt::Key_Delete);
            QTest::keyClicks(box, Text(text));
        }
    }
    if (!errand.Texts.empty()) {
        QTest::keyClick(form.focusWidget() == nullptr ? &form : form.focusWidget(), Qt::Key_Return);
    }
    PressIfSeen(form, errand.Then);
}

void RandomUser::TypeInto(QWidget& form)
{
    std::vector<QLineEdit*> boxes = Usable<QLineEdit>(form);
    if (boxes.empty()) {
        return;
    }
    QLineEdit* const box = chances.OneOf(boxes);
    const QPointer<QWidget> there(box);
    box->setFocus();
    if (!IsThere(there)) {
        return;
    }
    if (chances.InHundred(80)) {
        box->selectAll();
    }
    if (chances.InHundred(75)) {
        const QString text = QString::fromUtf8(chances.OneOf(SensibleTexts));
        Note(QStringLiteral("type ") + text, box);
        for (const QChar letter : text) {
            if (IsThere(there)) {
                QTest::keyClick(box, letter.toLatin1());
            }
        }
        return;
    }
    const QString& text = chances.OneOf(HostileTexts);
    Note(QStringLiteral("paste ") + text.left(30), box);
    QApplication::clipboard()->setText(text);
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}

void RandomUser::PressButton(QWidget& form)
{
    std::vector<QAbstractButton*> buttons = Usable<QAbstractButton>(form);
    if (buttons.empty()) {
        return;
    }
    QAbstractButton* const button = chances.OneOf(buttons);
    Note(QStringLiteral("press"), button);
    constexpr int intoTheMark = 9;
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(intoTheMark, button->height() / 2));
}

void RandomUser::PressKey(QWidget& form)
{
    QWidget* const focus = form.focusWidget() == nullptr ? &form : form.focusWidget();
    const std::size_t mood = chances.Below(100);
    if (mood < 70) {
        const Qt::Key key = chances.OneOf(PlainKeys);
        Note(QStringLiteral("key %1").arg(QKeySequence(key).toString()), focus);
        QTest::keyClick(focus, key);
        return;
    }
    const bool isDigit = chances.InHundred(30);
    const auto key =
        static_cast<Qt::Key>(isDigit ? Qt::Key_0 + chances.Below(10) : Qt::Key_A + chances.Below(26));
    const Qt::KeyboardModifier modifier = mood < 90 ? Qt::AltModifier : Qt::ControlModifier;
    Note(QStringLiteral("key %1").arg(QKeySequence(modifier | key).toString()), focus);
    QTest::keyClick(focus, key, modifier);
}

void RandomUser::PickFromList(QWidget& form)
{
    std::vector<QComboBox*> lists = Usable<QComboBox>(form);
    std::vector<QAbstractItemView*> views = Usable<QAbstractItemView>(form);
    if (!lists.empty() && (views.empty() || chances.InHundred(50))) {
        QComboBox* const list = chances.OneOf(lists);
        Note(QStringLiteral("list"), list);
        list->setFocus();
        for (std::size_t down = chances.Below(6); down > 0; --down) {
            QTest::keyClick(list, chances.InHundred(70) ? Qt::Key_Down : Qt::Key_Up);
        }
    } else if (!views.empty()) {
        QAbstractItemView* const view = chances.OneOf(views);
        if (view->model() == nullptr || view->model()->rowCount() == 0) {
            return;
        }
        const auto rows = static_cast<std::size_t>(view->model()->rowCount());
        const auto columns = static_cast<std::size_t>(std::max(1, view->model()->columnCount()));
        const QModelIndex index = view->model()->index(static_cast<int>(chances.Below(rows)),
                                                       static_cast<int>(chances.Below(columns)));
        Note(QStringLiteral("pick row %1").arg(index.row()), view);
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
    }
}

void RandomUser::RunCommand(Form& form)
{
    std::vector<QAction*> commands;
    for (QAction* const action : form.findChildren<QAction*>()) {
        if (action->isEnabled() && action->isVisible() && !action->isSeparator() &&
            action->menu() == nullptr && !action->text().isEmpty()) {
            commands.push_back(action);
        }
    }
    if (!commands.empty()) {
        QAction* const command = chances.OneOf(commands);
        Note(QStringLiteral("command ") + command->text(), &form);
        command->trigger();
    }
}

void RandomUser::ClickAnywhere(QWidget& form)
{
    std::vector<QWidget*> all = Usable<QWidget>(form);
    QWidget* const target = chances.OneOf(all);
    const QSize size = target->size().expandedTo({1, 1});
    const QPoint place(static_cast<int>(chances.Below(static_cast<std::size_t>(size.width()))),
                       static_cast<int>(chances.Below(static_cast<std::size_t>(size.height()))));
    Note(QStringLiteral("click at %1, %2").arg(place.x()).arg(place.y()), target);
    const QPointer<QWidget> there(target);
    QTest::mouseClick(target, Qt::LeftButton, {}, place);
    if (IsThere(there) && chances.InHundred(30)) {
        QTest::mouseDClick(target, Qt::LeftButton, {}, place);
    }
}

void RandomUser::ChangeWindow(Form& form)
{
    if (chances.InHundred(50)) {
        Note(QStringLiteral("close"), &form);
        form.close();
        return;
    }
    const QSize size(static_cast<int>(chances.Below(1800)), static_cast<int>(chances.Below(1200)));
    Note(QStringLiteral("resize to %1 by %2").arg(size.width()).arg(size.height()), &form);
    form.resize(size);
}

void RandomUser::Note(const QString& action, const QWidget* control)
{
    constexpr std::size_t most = 25;
    const QString name = control == nullptr ? QString() : control->objectName();
    const QString window = control == nullptr ? QString() : control->window()->objectName();
    actions.push_back(Text(QStringLiteral("%1 [%2 on %3]").arg(action, name, window)));
    if (isTelling) {
        std::cerr << actions.back() << std::endl;
    }
    if (actions.size() > most) {
        actions.pop_front();
    }
}

std::string RandomUser::LastActions() const
{
    return std::accumulate(actions.begin(), actions.end(), std::string{},
                           [](const std::string& all, const std::string& one) { return all + "\n  " + one; });
}

}  // namespace kordavan
