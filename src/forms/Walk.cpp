#include "forms/Walk.h"

#include <QApplication>
#include <QScreen>

#include "columns/ColumnCriteria.h"
#include "design/NewBeam.h"
#include "forms/EntryDiagram.h"
#include "forms/Form1.h"
#include "forms/Form10.h"
#include "forms/Form11.h"
#include "forms/Form13.h"
#include "forms/Form18.h"
#include "forms/Form19.h"
#include "forms/Form2.h"
#include "forms/Form20.h"
#include "forms/Form21.h"
#include "forms/Form22.h"
#include "forms/Form23.h"
#include "forms/Form25.h"
#include "forms/Form28.h"
#include "forms/Form3.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/FormOstrimane.h"
#include "forms/GuideForm.h"
#include "forms/NotchReport.h"
#include "forms/NumericBox.h"
#include "forms/RecoveryWatch.h"
#include "forms/ResumeWalk.h"
#include "notch/NotchEdits.h"
#include "records/ColumnDesk.h"
#include "records/DefaultsFile.h"
#include "records/RecentFiles.h"

namespace kordavan {

namespace {

constexpr std::string_view NoBoxToInsertInto = "Please click the box that is to take the number first.";

}  // namespace

void FrontUser::Tell(const Message& message)
{
    desk.Tell(message);
    if (front != nullptr && !message.Focus.empty()) {
        front->FocusOn(message.Focus);
    }
}

Walk::Walk(Session& currentSession, ColumnSession& currentColumns, NotchSession& currentNotch, UserPort& user,
           DesktopPort& desk)
    : session(currentSession),
      columns(currentColumns),
      notch(currentNotch),
      desktop(desk),
      frontUser(user),
      recovery(std::make_unique<RecoveryWatch>(*this, WorkAtHand{session, columns, notch}))
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { RememberBox(now); });
}

Walk::~Walk() = default;

void Walk::Start()
{
    LoadDefaults(session, DefaultsPath(), frontUser);
    FollowEdition(columns, EditionInForce(session.Nds));
    FollowEdition(notch, EditionInForce(session.Nds));
    if (const std::optional<std::string> form = recovery->Offer()) {
        ResumeWalk(*this, *form);
    } else {
        Go(Screen::Criteria);
    }
    recovery->Begin();
}

std::string Walk::FormToResume() const
{
    return toResume == nullptr ? std::string{} : Text(toResume->objectName());
}

std::string Walk::DefaultsPath()
{
    return desktop.FixedFilesFolder() + "/" + std::string(DefaultsFileName);
}

std::string Walk::RecentFilesPath()
{
    return desktop.FixedFilesFolder() + "/" + std::string(RecentFilesName);
}

std::unique_ptr<Form> Walk::MakeForm(Screen screen)
{
    switch (screen) {
        case Screen::Criteria:
            return std::make_unique<Form1>(*this);
        case Screen::WoodSelection:
            return std::make_unique<Form3>(*this);
        case Screen::SteelSelection:
            return std::make_unique<Form22>(*this);
        case Screen::OwnSelection:
            return std::make_unique<Form2>(*this);
        case Screen::TestReport:
            return std::make_unique<Form5>(*this);
        case Screen::Record:
            return std::make_unique<Form6>(*this);
        case Screen::Print:
            return std::make_unique<Form7>(*this);
        case Screen::LoadDiagram:
            return std::make_unique<Form11>(*this);
        case Screen::Settings:
            return std::make_unique<Form13>(*this);
        case Screen::Notes:
            return std::make_unique<Form21>(*this);
        case Screen::Calculator:
            return std::make_unique<Form25>(*this);
        case Screen::SimpleDiagram:
            return std::make_unique<EntryDiagram>(*this, EntryDiagramKind::SimpleSpan);
        case Screen::OverhangDiagram:
            return std::make_unique<EntryDiagram>(*this, EntryDiagramKind::Overhanging);
        case Screen::HipDiagram:
            return std::make_unique<EntryDiagram>(*this, EntryDiagramKind::HipValley);
        case Screen::Columns:
            return std::make_unique<Form18>(*this);
        case Screen::WoodColumns:
            return std::make_unique<Form20>(*this);
        case Screen::SteelColumns:
            return std::make_unique<Form10>(*this);
        case Screen::WoodColumnRecord:
            return std::make_unique<Form19>(*this);
        case Screen::SteelColumnRecord:
            return std::make_unique<Form23>(*this);
        case Screen::StudRecord:
            return std::make_unique<Form28>(*this);
        case Screen::Notch:
            return std::make_unique<FormOstrimane>(*this);
        case Screen::NotchPage:
            return std::make_unique<NotchReport>(*this);
        case Screen::Guide:
            return std::make_unique<GuideForm>(*this);
    }
    return nullptr;
}

Form& Walk::FormOf(Screen screen)
{
    std::unique_ptr<Form>& form = forms[screen];
    if (!form) {
        form = MakeForm(screen);
        form->FitToScreen();
    }
    return *form;
}

Screen Walk::SelectionScreen() const
{
    if (HasOwnValues(session.Numbers.Group)) {
        return Screen::OwnSelection;
    }
    return session.Numbers.IsSteel() ? Screen::SteelSelection : Screen::WoodSelection;
}

void Walk::Go(Screen screen)
{
    Form& next = FormOf(screen);
    Form* const left = front;
    front = &next;
    if (screen != Screen::Print) {
        toResume = front;
    }
    frontUser.SetFront(front);
    next.Activate();
    if (session.CenterForms) {
        Center(next);
    }
    next.show();
    next.raise();
    next.activateWindow();
    if (left != nullptr && left != &next) {
        left->hide();
    }
}

void Walk::ShowBeside(Screen screen)
{
    Form& form = FormOf(screen);
    form.Activate();
    form.show();
    form.raise();
    form.activateWindow();
}

void Walk::ShowGuide(GuidePage page, QWidget& asker)
{
    static_cast<GuideForm&>(FormOf(Screen::Guide)).Open(page, asker);
    ShowBeside(Screen::Guide);
}

void Walk::RefreshBeside(Screen screen)
{
    if (Form* const form = SeenForm(screen)) {
        form->Activate();
    }
}

void Walk::ShowNotes()
{
    if (front != nullptr) {
        front->ShowNotes();
    }
}

void Walk::PutAway(Screen screen)
{
    if (Form* const form = SeenForm(screen)) {
        form->hide();
    }
}

/// A form that has been made and is on the screen; none else.
Form* Walk::SeenForm(Screen screen) const
{
    const auto form = forms.find(screen);
    return form != forms.end() && form->second->isVisible() ? form->second.get() : nullptr;
}

void Walk::AskToExit()
{
    const Message question = ExitQuestion(session, desktop.MinutesSinceStart(), UnsavedColumnWork(columns));
    if (frontUser.Ask(question)) {
        recovery->End();
        desktop.EndProgram();
    }
}

std::string Walk::CalculatorText()
{
    return static_cast<Form25&>(FormOf(Screen::Calculator)).ValueText();
}

void Walk::InsertIntoLastBox()
{
    auto* const box = qobject_cast<NumericBox*>(lastBox.data());
    if (box != nullptr && box->isVisible() && box->isEnabled() && !box->isReadOnly()) {
        box->window()->activateWindow();
        box->setFocus();
        box->InsertFromCalculator();
    } else {
        frontUser.Tell(Alert(NoBoxToInsertInto));
    }
}

void Walk::RememberBox(QWidget* now)
{
    if (qobject_cast<NumericBox*>(now) != nullptr) {
        lastBox = now;
    }
}

/// Left half of the screen's width, top half of 0.85 of its height, less half of the form.
void Walk::Center(Form& form) const
{
    constexpr double heightShare = 0.85;
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    const int left = screen.left() + (screen.width() - form.width()) / 2;
    const int top = screen.top() + static_cast<int>(heightShare * screen.height() / 2) - form.height() / 2;
    form.move(std::max(left, screen.left()), std::max(top, screen.top()));
}

}  // namespace kordavan
