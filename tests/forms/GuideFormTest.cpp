#include <QDir>
#include <QListWidget>
#include <QScrollBar>
#include <QSet>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include "forms/GuideBrowser.h"
#include "forms/GuideContents.h"
#include "forms/WalkFixture.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::IsEmpty;

class GuideFormTest : public WalkFixture {
protected:
    Form& Guide() { return walk.FormOf(Screen::Guide); }
    GuideBrowser& Browser() { return FindIn<GuideBrowser>(Guide(), "GuideText"); }
    void Press(const std::string& name) { FindIn<QAbstractButton>(Guide(), name).click(); }
    void Command(const std::string& name) { FindIn<QAction>(Guide(), name).trigger(); }

    /// The page on show, as links name it.
    std::string Page()
    {
        const QUrl source = Browser().source();
        return Text(source.fileName() + (source.hasFragment() ? "#" + source.fragment() : QString{}));
    }

    void PressF1(QWidget& window)
    {
        window.show();
        window.activateWindow();
        Settle();
        QTest::keyClick(&window, Qt::Key_F1);
        Settle();
    }

    /// The line that stands at the top of what is seen.
    std::string TopLine()
    {
        constexpr QPoint intoTheText(40, 12);
        return Text(Browser().cursorForPosition(intoTheText).block().text());
    }

    bool FindWords(const char* words)
    {
        auto& box = FindIn<QLineEdit>(Guide(), "GuideWords");
        box.setText(Text(std::string_view(words)));
        Press("FindNext");
        return FindIn<QLabel>(Guide(), "FindLine").text().isEmpty();
    }
};

struct PageCase {
    std::string Name;
    Screen Form;
    std::string Page;
};

class GuidePageTest : public GuideFormTest, public testing::WithParamInterface<PageCase> {};

TEST_P(GuidePageTest, OpensWithF1)
{
    Form& form = walk.FormOf(GetParam().Form);
    PressF1(form);
    EXPECT_TRUE(Guide().isVisible());
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(Page(), GetParam().Page);
    QTest::keyClick(&Browser(), Qt::Key_Escape);
    EXPECT_FALSE(Guide().isVisible());
    EXPECT_THAT(user.Told, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Forms, GuidePageTest,
    testing::Values(PageCase{"criteria", Screen::Criteria, "criteria.md"},
                    PageCase{"wood", Screen::WoodSelection, "selection.md"},
                    PageCase{"steel", Screen::SteelSelection, "steel.md#the-selection"},
                    PageCase{"own values", Screen::OwnSelection, "own-sections.md"},
                    PageCase{"report", Screen::TestReport, "report.md"},
                    PageCase{"record", Screen::Record, "data-record.md"},
                    PageCase{"print", Screen::Print, "printing.md"},
                    PageCase{"diagram", Screen::LoadDiagram, "load-diagram.md"},
                    PageCase{"settings", Screen::Settings, "settings.md"},
                    PageCase{"notes", Screen::Notes, "tools.md#the-note-clipboard"},
                    PageCase{"calculator", Screen::Calculator, "tools.md#the-calculator"},
                    PageCase{"simple loads", Screen::SimpleDiagram, "loads.md"},
                    PageCase{"overhang loads", Screen::OverhangDiagram, "loads.md"},
                    PageCase{"hip loads", Screen::HipDiagram, "hips.md"},
                    PageCase{"columns", Screen::Columns, "wood-columns.md"},
                    PageCase{"wood columns", Screen::WoodColumns, "wood-columns.md#choosing-a-size"},
                    PageCase{"steel columns", Screen::SteelColumns, "steel-columns.md#choosing-a-size"},
                    PageCase{"wood column record", Screen::WoodColumnRecord, "column-records.md"},
                    PageCase{"steel column record", Screen::SteelColumnRecord, "column-records.md"},
                    PageCase{"stud record", Screen::StudRecord, "column-records.md"},
                    PageCase{"notch", Screen::Notch, "notch.md"},
                    PageCase{"notch report", Screen::NotchPage, "notch.md#the-notch-report"}),
    CaseName);

TEST_F(GuideFormTest, FollowsTheFaceOfAForm)
{
    const auto pageAfter = [this](const char* button) {
        Click(button);
        PressF1(Front());
        return Page();
    };
    EXPECT_EQ(pageAfter("IncButton"), "hips.md");
    EXPECT_EQ(pageAfter("Multibutton"), "multiple-spans.md");
    EXPECT_EQ(pageAfter("OHbutton"), "criteria.md");
    walk.Go(Screen::Columns);
    EXPECT_EQ(pageAfter("SteelButton"), "steel-columns.md");
    EXPECT_EQ(pageAfter("StudButton"), "studs.md");
    PressF1(Guide());
    EXPECT_EQ(Page(), "keys.md");
}

/// The list of sizes holds up its form until it is closed, but not the guide.
TEST_F(GuideFormTest, CanBeReadBesideADialog)
{
    Form& steel = walk.FormOf(Screen::SteelSelection);
    steel.show();
    FindIn<QAbstractButton>(steel, "Steeldatabasecmd").click();
    auto& sizes = FindIn<QWidget>(steel, "SteelDatabase");
    PressF1(sizes);
    EXPECT_EQ(Page(), "steel.md#the-selection");
    QTest::mouseClick(&FindIn<QAbstractButton>(Guide(), "GuideHome"), Qt::LeftButton);
    EXPECT_EQ(Page(), "README.md");
    QTest::keyClick(&Browser(), Qt::Key_Escape);
    Settle();
    EXPECT_TRUE(sizes.isActiveWindow());
}

TEST_F(GuideFormTest, GoesBackToTheFormThatAsked)
{
    Form& notes = walk.FormOf(Screen::Notes);
    PressF1(notes);
    EXPECT_FALSE(notes.isActiveWindow());
    QTest::keyClick(&Browser(), Qt::Key_Escape);
    Settle();
    EXPECT_TRUE(notes.isActiveWindow());
}

TEST_F(GuideFormTest, TurnsPagesAndForgetsThemOnceClosed)
{
    PressF1(Front());
    auto& contents = FindIn<QListWidget>(Guide(), "GuideContents");
    EXPECT_EQ(Text(contents.currentItem()->text()), "The criteria of a beam");
    EXPECT_EQ(Text(Guide().windowTitle()), "The criteria of a beam - Kordavan User Guide");
    QTest::keyClick(&contents, Qt::Key_Down);
    EXPECT_EQ(Page(), "loads.md");
    Press("GuideBack");
    EXPECT_EQ(Page(), "criteria.md");
    Press("GuideForward");
    EXPECT_EQ(Page(), "loads.md");
    Command("MnuContents");
    EXPECT_EQ(Page(), "README.md");
    QTest::keyClick(&Browser(), Qt::Key_Escape);
    PressF1(Front());
    EXPECT_FALSE(FindIn<QAbstractButton>(Guide(), "GuideBack").isEnabled());
}

TEST_F(GuideFormTest, GoesToAHeading)
{
    Guide().resize(1100, 700);
    PressF1(walk.FormOf(Screen::NotchPage));
    EXPECT_EQ(TopLine(), "The notch report");
    const int place = Browser().verticalScrollBar()->value();
    Browser().Open(QStringLiteral("notch.md#messages"));
    EXPECT_EQ(TopLine(), "Messages");
    Press("GuideBack");
    EXPECT_EQ(Browser().verticalScrollBar()->value(), place);
    Guide().resize(900, 600);
    EXPECT_EQ(TopLine(), "The notch report");
}

TEST_F(GuideFormTest, FindsWordsRoundThePage)
{
    PressF1(Front());
    EXPECT_TRUE(FindWords("deflection"));
    const int first = Browser().textCursor().position();
    EXPECT_TRUE(FindWords("deflection"));
    EXPECT_GT(Browser().textCursor().position(), first);
    Command("MnuFindPrevious");
    EXPECT_EQ(Browser().textCursor().position(), first);
    Command("MnuFindPrevious");
    EXPECT_GT(Browser().textCursor().position(), first);
    EXPECT_FALSE(FindWords("no such words"));
    EXPECT_EQ(Text(FindIn<QLabel>(Guide(), "FindLine").text()), "Not on this page.");
}

TEST_F(GuideFormTest, LettersAndPicturesGrowWithinTheWindow)
{
    PressF1(Front());
    const auto widest = [this] { return Browser().document()->size().width(); };
    const auto letters = [this] { return Browser().fontMetrics().height(); };
    const int usual = letters();
    for (int step = 0; step < 7; ++step) {
        Command("MnuLarger");
    }
    EXPECT_GE(letters(), 2 * usual - 2);
    EXPECT_EQ(Browser().horizontalScrollBar()->maximum(), 0) << widest();
    Command("MnuUsualSize");
    EXPECT_EQ(letters(), usual);
    Guide().resize(500, 400);
    Settle();
    EXPECT_EQ(Browser().horizontalScrollBar()->maximum(), 0) << widest();
}

/// A page as it is written: where its links lead, its pictures and its headings.
struct PageAsWritten {
    explicit PageAsWritten(const QString& name)
    {
        QFile file(QStringLiteral(":/guide/") + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << Text(name);
        QTextDocument text;
        text.setMarkdown(QString::fromUtf8(file.readAll()));
        for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
            if (block.blockFormat().headingLevel() > 0) {
                Anchors.insert(GuideBrowser::AnchorOf(block.text()));
            }
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                if (format.isImageFormat()) {
                    Pictures.insert(format.toImageFormat().name());
                } else if (format.isAnchor()) {
                    Links.insert(format.anchorHref());
                }
            }
        }
    }

    QSet<QString> Links;
    QSet<QString> Pictures;
    QSet<QString> Anchors;
};

/// What a link of a page names that is not in the guide.
std::string MissingPlace(const QString& page, const QString& link)
{
    const QString target = link.section(QLatin1Char('#'), 0, 0);
    const QString anchor = link.section(QLatin1Char('#'), 1);
    const QString file = target.isEmpty() ? page : target;
    if (!QFile::exists(QStringLiteral(":/guide/") + file)) {
        return Text(page + ": " + link);
    }
    return anchor.isEmpty() || PageAsWritten(file).Anchors.contains(anchor) ? std::string{}
                                                                            : Text(page + ": " + link);
}

TEST(Guide, EveryLinkAndPictureIsThereAndNothingElse)
{
    const QStringList pages = QDir(QStringLiteral(":/guide")).entryList({QStringLiteral("*.md")});
    EXPECT_GT(pages.size(), 20);
    QSet<QString> used;
    for (const QString& page : pages) {
        const PageAsWritten written(page);
        used.unite(written.Pictures);
        for (const QString& link : written.Links) {
            EXPECT_EQ(MissingPlace(page, link), "");
        }
    }
    for (const GuidePlace& place : GuidePlaces) {
        EXPECT_EQ(MissingPlace(QStringLiteral("forms"), Text(place.Link)), "");
    }
    QSet<QString> stored;
    for (const QString& picture : QDir(QStringLiteral(":/guide/images")).entryList(QDir::Files)) {
        stored.insert(QStringLiteral("images/") + picture);
    }
    EXPECT_EQ(used, stored);
}

TEST(Guide, ItsContentsListEachPageOnceByItsTitle)
{
    QStringList listed;
    for (const GuideEntry& entry : ReadGuideContents()) {
        if (!entry.Link.isEmpty()) {
            listed.append(entry.Link);
            EXPECT_TRUE(PageAsWritten(entry.Link).Anchors.contains(GuideBrowser::AnchorOf(entry.Title)))
                << Text(entry.Title);
        }
    }
    listed.sort();
    EXPECT_EQ(listed,
              QDir(QStringLiteral(":/guide")).entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name));
}

}  // namespace
}  // namespace kordavan
