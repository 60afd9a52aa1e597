#include "forms/Form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

namespace kordavan {

namespace {

/// The form grows by its bar, so that the body does not begin to scroll.
void ShowBar(QWidget& form, QStatusBar& bar, bool isShown)
{
    if (isShown == bar.isVisibleTo(&form)) {
        return;
    }
    bar.setVisible(isShown);
    const int grownBy = isShown ? bar.sizeHint().height() : -bar.sizeHint().height();
    const QSize room = QApplication::primaryScreen()->availableGeometry().size();
    form.resize(QSize(form.width(), form.height() + grownBy).boundedTo(room));
}

}  // namespace

Form::Form(Walk& theWalk, std::string_view name)
    : currentWalk(theWalk),
      scroll(new QScrollArea),
      body(new QVBoxLayout),
      footArea(new QWidget),
      foot(new QHBoxLayout(footArea))
{
    setObjectName(Text(name));
    auto* const contents = new QWidget;
    contents->setLayout(body);
    scroll->setWidget(contents);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);

    auto* const all = new QWidget;
    auto* const column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(scroll, 1);
    column->addWidget(MakeRule());
    column->addWidget(footArea);
    setCentralWidget(all);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && scroll->widget()->isAncestorOf(now)) {
            scroll->ensureWidgetVisible(now);
        }
    });
}

void Form::FocusOn(std::string_view control)
{
    auto* const target = findChild<QWidget*>(Text(control));
    if (target == nullptr || !target->isEnabled() || !target->isVisibleTo(this) ||
        target->focusPolicy() == Qt::NoFocus) {
        return;
    }
    target->setFocus(Qt::OtherFocusReason);
    if (auto* const box = qobject_cast<QLineEdit*>(target)) {
        box->selectAll();
    }
    scroll->ensureWidgetVisible(target);
}

void Form::ShowNote(std::string_view text)
{
    constexpr int shownFor = 60000;  // ms
    QStatusBar* const bar = statusBar();
    bar->setSizeGripEnabled(false);
    bar->hide();
    connect(bar, &QStatusBar::messageChanged, this,
            [this, bar](const QString& note) { ShowBar(*this, *bar, !note.isEmpty()); });
    bar->showMessage(Text(text), shownFor);
}

void Form::FitToScreen()
{
    const QSize room = QApplication::primaryScreen()->availableGeometry().size();
    QSize size = sizeHint();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    if (size.width() > room.width()) {
        size.rheight() += scrollBar;
    }
    if (size.height() > room.height()) {
        size.rwidth() += scrollBar;
    }
    resize(size.boundedTo(room));
}

QSize Form::sizeHint() const
{
    const QSize inner = scroll->widget()->sizeHint();
    const QSize below = footArea->sizeHint();
    constexpr int rule = 4;
    const int height = inner.height() + below.height() + menuBar()->sizeHint().height() + rule;
    return {std::max(inner.width(), below.width()), height};
}

QMenu& Form::AddMenu(std::string_view caption)
{
    QMenu* const menu = menuBar()->addMenu(Text(caption));
    menu->setToolTipsVisible(true);
    return *menu;
}

QAction& Form::AddCommand(QMenu& menu, const ControlText& text, std::string_view caption,
                          const std::function<void()>& run, const QKeySequence& keys)
{
    QAction* const action = menu.addAction(Text(caption));
    action->setObjectName(Text(text.Name));
    action->setToolTip(Text(text.Tip));
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, run);
    return *action;
}

void Form::AddExitCommand(QMenu& file)
{
    file.addSeparator();
    AddCommand(
        file, {"MnuExit", "Ends the program"}, "E&xit", [this] { currentWalk.AskToExit(); },
        QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void Form::AddToolsMenu()
{
    QMenu& tools = AddMenu("&Tools");
    AddCommand(
        tools, {"MnuCalc", "A calculator beside this form"}, "&Calculator",
        [this] { currentWalk.ShowBeside(Screen::Calculator); }, QKeySequence(Qt::Key_F9));
    AddCommand(
        tools, {"MnuNotes", "Notes for the record"}, "&Notes",
        [this] { currentWalk.ShowBeside(Screen::Notes); }, QKeySequence(Qt::CTRL | Qt::Key_T));
}

QAction& Form::AddDiagramCommand(QMenu& goTo)
{
    return AddCommand(
        goTo, {"MnuDiagram", "Shear, moment and deflection of the beam as calculated"}, "&Load Diagram",
        [this] { currentWalk.ShowBeside(Screen::LoadDiagram); }, QKeySequence(Qt::Key_F8));
}

HelpButton* Form::MakeHelp(const HelpText& help, std::initializer_list<std::string_view> boxes)
{
    auto* const button = new HelpButton(help.Button, help.Topic, boxes);
    connect(button, &QToolButton::clicked, this, [this, &help] { TellHelp(help.Text); });
    return button;
}

void Form::TellHelp(std::string_view text)
{
    User().Tell(Marked(Alert(text), MessageIcon::Information));
}

void Form::AddHelpMenu(GuidePage page)
{
    guidePage = page;
    QMenu& menu = AddMenu("&Help");
    AddCommand(
        menu, {"MnuHelp", "The page of the user guide about this form"}, "&This Form",
        [this] { currentWalk.ShowGuide(Guide(), *this); }, QKeySequence(Qt::Key_F1));
    AddCommand(menu, {"MnuGuide", "The contents of the user guide"}, "&User Guide",
               [this] { currentWalk.ShowGuide(GuidePage::Contents, *this); });
    const QList<HelpButton*> buttons = findChildren<HelpButton*>();
    if (!buttons.isEmpty()) {
        menu.addSeparator();
    }
    for (HelpButton* const button : buttons) {
        QAction* const topic = menu.addAction(button->Topic());
        connect(topic, &QAction::triggered, button, &QToolButton::click);
        connect(&menu, &QMenu::aboutToShow, topic,
                [this, topic, button] { topic->setVisible(button->isVisibleTo(this)); });
    }
}

void Form::closeEvent(QCloseEvent* event)
{
    event->ignore();
    CloseAsked();
}

void Form::CloseAsked()
{
    currentWalk.AskToExit();
}

/// The focus is seen before the first Tab too.
void Form::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void Form::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            PressDefault();
            return;
        case Qt::Key_Escape:
            GoBack();
            return;
        case Qt::Key_F1:
            if (event->modifiers() == Qt::ShiftModifier) {
                HelpOnFocus();
                return;
            }
            break;
        case Qt::Key_PageUp:
            scroll->verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
            return;
        case Qt::Key_PageDown:
            scroll->verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
            return;
        default:
            break;
    }
    QMainWindow::keyPressEvent(event);
}

/// A button in focus is pressed itself; from anywhere else Enter means the default command.
void Form::PressDefault()
{
    QWidget* const focus = focusWidget();
    if (qobject_cast<QPushButton*>(focus) != nullptr || qobject_cast<QToolButton*>(focus) != nullptr) {
        static_cast<QAbstractButton*>(focus)->click();
        return;
    }
    QAbstractButton* const command = DefaultCommand();
    if (command != nullptr && command->isEnabled()) {
        command->click();
    }
}

void Form::HelpOnFocus()
{
    const QWidget* const focus = focusWidget();
    if (focus == nullptr) {
        return;
    }
    for (HelpButton* const button : findChildren<HelpButton*>()) {
        if (button->Explains(focus->objectName())) {
            button->click();
            return;
        }
    }
    currentWalk.ShowGuide(Guide(), *this);
}

}  // namespace kordavan
