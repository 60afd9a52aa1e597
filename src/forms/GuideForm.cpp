#include "forms/GuideForm.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include "forms/GuideBrowser.h"
#include "forms/GuideContents.h"

namespace kordavan {

namespace {

constexpr int LinkRole = Qt::UserRole;
constexpr int MostFindCharacters = 80;

QListWidgetItem* MakeContentsItem(const GuideEntry& entry)
{
    auto* const item = new QListWidgetItem(entry.Title);
    item->setData(LinkRole, entry.Link);
    if (entry.Link.isEmpty()) {
        QFont bold = item->font();
        bold.setBold(true);
        item->setFont(bold);
        item->setFlags(Qt::NoItemFlags);  // the arrow keys pass it by
    }
    return item;
}

}  // namespace

GuideForm::GuideForm(Walk& theWalk)
    : BesideForm(theWalk, "GuideForm"), browser(new GuideBrowser), contents(new QListWidget)
{
    setWindowTitle(QStringLiteral("Kordavan User Guide"));
    MakeContents();
    auto* const parts = new QSplitter;
    parts->setChildrenCollapsible(false);
    parts->addWidget(contents);
    parts->addWidget(browser);
    parts->setStretchFactor(1, 1);
    Body().addWidget(parts, 1);
    MakeFoot();
    MakeMenus();
    ChainTabStops({browser, contents, words, findNext});
    connect(browser, &QTextBrowser::sourceChanged, this, &GuideForm::ShowWhere);
    connect(browser, &QTextBrowser::historyChanged, this, &GuideForm::ShowWhere);
}

void GuideForm::Open(GuidePage page, QWidget& from)
{
    if (&from != this) {
        asker = &from;
    }
    if (!isVisible()) {
        words->clear();
    }
    browser->Open(Text(LinkOf(page)));
    if (!isVisible()) {
        browser->clearHistory();
    }
    browser->setFocus(Qt::OtherFocusReason);
}

QSize GuideForm::sizeHint() const
{
    constexpr int digitsWide = 150;
    constexpr int linesHigh = 52;
    return {DigitsWidth(*this, digitsWide), linesHigh * fontMetrics().height()};
}

void GuideForm::changeEvent(QEvent* event)
{
    BesideForm::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        ColorHeadings();
    }
}

/// A heading is no page, but is not to look like one that cannot be opened.
void GuideForm::ColorHeadings()
{
    for (int row = 0; row < contents->count(); ++row) {
        if (contents->item(row)->flags() == Qt::NoItemFlags) {
            contents->item(row)->setForeground(palette().text());
        }
    }
}

QAbstractButton* GuideForm::DefaultCommand()
{
    return findNext;
}

void GuideForm::CloseAsked()
{
    hide();
    QWidget* const next = asker != nullptr && asker->isVisible() ? asker.data() : TheWalk().Front();
    if (next != nullptr) {
        next->activateWindow();
    }
}

void GuideForm::MakeContents()
{
    Describe(*contents, {.Name = "GuideContents", .Tip = "The pages of the guide"});
    for (const GuideEntry& entry : ReadGuideContents()) {
        contents->addItem(MakeContentsItem(entry));
    }
    ColorHeadings();
    contents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    constexpr int marginDigits = 3;
    contents->setMinimumWidth(contents->sizeHintForColumn(0) +
                              contents->verticalScrollBar()->sizeHint().width() +
                              DigitsWidth(*contents, marginDigits));
    connect(contents, &QListWidget::currentItemChanged, this, &GuideForm::OpenChosen);
}

QPushButton* GuideForm::AddStep(const ControlText& text, std::string_view caption, void (GuideForm::*run)())
{
    QPushButton* const button = MakeButton(text, caption);
    connect(button, &QPushButton::clicked, this, run);
    Foot().addWidget(button);
    return button;
}

void GuideForm::MakeFoot()
{
    backward = AddStep({.Name = "GuideBack", .Tip = "The page read before (Alt+Left)"}, "&Back",
                       &GuideForm::GoBackward);
    forward = AddStep({.Name = "GuideForward", .Tip = "The page that Back left (Alt+Right)"}, "For&ward",
                      &GuideForm::GoForward);
    AddStep({.Name = "GuideHome", .Tip = "The first page of the guide (Alt+Home)"}, "&Contents",
            &GuideForm::GoToContents);
    Foot().addSpacing(DigitsWidth(*this, 2));
    words =
        MakeTextBox({.Name = "GuideWords", .Tip = "Words to find on this page (Ctrl+F)"}, MostFindCharacters);
    connect(words, &QLineEdit::textEdited, this, [this] { findLine->clear(); });
    Foot().addWidget(MakeCaption("F&ind", *words));
    Foot().addWidget(words, 1);
    findNext = AddStep({.Name = "FindNext", .Tip = "The next place that has the words (Enter, F3)"}, "&Next",
                       &GuideForm::FindNext);
    findLine = MakePanel("FindLine");
    Foot().addWidget(findLine, 1);
    AddStep({.Name = "CmdClose", .Tip = "Closes the guide (Esc)"}, "C&lose", &GuideForm::CloseAsked);
}

void GuideForm::MakeMenus()
{
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(
        goTo, {"MnuBackward", "The page read before"}, "&Back", [this] { GoBackward(); }, QKeySequence::Back);
    AddCommand(
        goTo, {"MnuForward", "The page that Back left"}, "&Forward", [this] { GoForward(); },
        QKeySequence::Forward);
    AddCommand(
        goTo, {"MnuContents", "The first page of the guide"}, "&Contents", [this] { GoToContents(); },
        QKeySequence(Qt::ALT | Qt::Key_Home));
    QMenu& find = AddMenu("Fin&d");
    AddCommand(
        find, {"MnuFind", "Words to find on this page"}, "&Find...",
        [this] {
            words->setFocus(Qt::ShortcutFocusReason);
            words->selectAll();
        },
        QKeySequence::Find);
    AddCommand(
        find, {"MnuFindNext", "The next place that has the words"}, "Find &Next", [this] { FindNext(); },
        QKeySequence(Qt::Key_F3));
    AddCommand(
        find, {"MnuFindPrevious", "The place before that has the words"}, "Find &Previous",
        [this] { FindPrevious(); }, QKeySequence(Qt::SHIFT | Qt::Key_F3));
    QMenu& view = AddMenu("&View");
    AddCommand(view, {"MnuLarger", "Larger letters and pictures"}, "&Larger", [this] {
        browser->ZoomBy(1);
    }).setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    AddCommand(
        view, {"MnuSmaller", "Smaller letters and pictures"}, "&Smaller", [this] { browser->ZoomBy(-1); },
        QKeySequence(Qt::CTRL | Qt::Key_Minus));
    AddCommand(
        view, {"MnuUsualSize", "Letters and pictures of the usual size"}, "&Usual Size",
        [this] { browser->ZoomToUsual(); }, QKeySequence(Qt::CTRL | Qt::Key_0));
    AddHelpMenu(GuidePage::Keys);
}

void GuideForm::GoBackward()
{
    browser->backward();
}

void GuideForm::GoForward()
{
    browser->forward();
}

void GuideForm::GoToContents()
{
    browser->Open(Text(LinkOf(GuidePage::Contents)));
}

void GuideForm::FindNext()
{
    Find(false);
}

void GuideForm::FindPrevious()
{
    Find(true);
}

void GuideForm::Find(bool isBackward)
{
    if (words->text().isEmpty()) {
        words->setFocus(Qt::OtherFocusReason);
        return;
    }
    const bool isFound =
        browser->Find(words->text(), isBackward ? QTextDocument::FindBackward : QTextDocument::FindFlags());
    findLine->setText(isFound ? QString{} : QStringLiteral("Not on this page."));
}

void GuideForm::OpenChosen()
{
    if (const QListWidgetItem* const item = contents->currentItem()) {
        browser->Open(item->data(LinkRole).toString());
    }
}

/// The page on show in the contents, in the title and in what can be stepped to.
void GuideForm::ShowWhere()
{
    const QSignalBlocker quiet(contents);
    const QString page = browser->source().fileName();
    for (int row = 0; row < contents->count(); ++row) {
        if (contents->item(row)->data(LinkRole).toString() == page) {
            contents->setCurrentRow(row);
            setWindowTitle(contents->item(row)->text() + QStringLiteral(" - Kordavan User Guide"));
        }
    }
    backward->setEnabled(browser->isBackwardAvailable());
    forward->setEnabled(browser->isForwardAvailable());
    findLine->clear();
}

}  // namespace kordavan
