#include "forms/GuideBrowser.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "forms/Kit.h"

namespace kordavan {

namespace {

constexpr double LinePercent = 125;
constexpr double ZoomStep = 1.1;
constexpr double LeastPictureScale = 0.1;
constexpr int MostZoomSteps = 12;

QString ResourceOf(const QString& link)
{
    return QStringLiteral("qrc:/guide/") + link;
}

/// Calls with the cursor on each fragment of the text whose format meets a condition.
template <typename Condition, typename Change>
void ForFragments(QTextDocument& document, const Condition& condition, const Change& change)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (condition(fragment.charFormat())) {
                QTextCursor cursor(&document);
                cursor.setPosition(fragment.position());
                cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
                change(cursor, fragment.charFormat());
            }
        }
    }
}

/// Headings get their anchors, for which a page as written has no place.
void AnchorHeadings(QTextDocument& document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            QTextCursor cursor(block);
            cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            QTextCharFormat format;
            format.setAnchor(true);
            format.setAnchorNames({GuideBrowser::AnchorOf(block.text())});
            cursor.mergeCharFormat(format);
        }
    }
}

/// A page begins with its heading, which as written has no anchor.
bool IsSetOut(const QTextDocument& document)
{
    return document.firstBlock().begin().fragment().charFormat().isAnchor();
}

void SpaceLines(QTextDocument& document, double lineHeight)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format;
        const bool hasPicture = block.text().contains(QChar::ObjectReplacementCharacter);
        format.setLineHeight(hasPicture ? 100 : LinePercent, QTextBlockFormat::ProportionalHeight);
        if (block.blockFormat().headingLevel() > 1) {
            format.setTopMargin(1.25 * lineHeight);
            format.setBottomMargin(0.25 * lineHeight);
        }
        QTextCursor(block).mergeBlockFormat(format);
    }
}

void RuleTables(QTextDocument& document, double lineHeight, const QColor& rule)
{
    for (QTextFrame* const frame : document.rootFrame()->childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setBorderCollapse(true);
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(rule);
            format.setCellPadding(0.3 * lineHeight);
            format.setTopMargin(0.5 * lineHeight);
            format.setBottomMargin(0.75 * lineHeight);
            table->setFormat(format);
        }
    }
}

}  // namespace

GuideBrowser::GuideBrowser()
{
    Describe(*this, {.Name = "GuideText", .Tip = {}});
    setAccessibleName(QStringLiteral("The page of the guide"));
    setOpenExternalLinks(false);
    setUndoRedoEnabled(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // the same width for a page while it loads
    usualPointSize = font().pointSizeF();
    connect(this, &QTextBrowser::sourceChanged, this, &GuideBrowser::ShowPlace);
}

void GuideBrowser::Open(const QString& link)
{
    setSource(QUrl(ResourceOf(link)));
}

void GuideBrowser::ZoomBy(int steps)
{
    zoomSteps = std::clamp(zoomSteps + steps, -MostZoomSteps / 2, MostZoomSteps);
    ApplyZoom();
}

void GuideBrowser::ZoomToUsual()
{
    zoomSteps = 0;
    ApplyZoom();
}

bool GuideBrowser::Find(const QString& words, QTextDocument::FindFlags flags)
{
    QTextCursor found = document()->find(words, textCursor(), flags);
    if (found.isNull()) {
        QTextCursor edge(document());
        edge.movePosition(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End
                                                                      : QTextCursor::Start);
        found = document()->find(words, edge, flags);
    }
    if (found.isNull()) {
        return false;
    }
    setTextCursor(found);
    return true;
}

QString GuideBrowser::AnchorOf(const QString& heading)
{
    QString anchor;
    for (const QChar letter : heading.toLower()) {
        if (letter.isLetterOrNumber() || letter == QLatin1Char('-')) {
            anchor += letter;
        } else if (letter == QLatin1Char(' ')) {
            anchor += QLatin1Char('-');
        }
    }
    return anchor;
}

/// A link within the page does not always load it again.
void GuideBrowser::ShowPlace(const QUrl& place)
{
    if (!IsSetOut(*document())) {
        SetOut();
    }
    if (place.hasFragment()) {
        scrollToAnchor(place.fragment());
    }
}

void GuideBrowser::SetOut()
{
    const double lineHeight = fontMetrics().height();
    document()->setDocumentMargin(lineHeight);
    QTextCursor changes(document());
    changes.beginEditBlock();
    AnchorHeadings(*document());
    SpaceLines(*document(), lineHeight);
    RuleTables(*document(), lineHeight, palette().color(QPalette::Mid));
    changes.endEditBlock();
    FitPictures();
}

/// Pictures are scaled here, as the page itself would scale them coarsely.
void GuideBrowser::FitPictures()
{
    const double room = viewport()->width() - 2 * document()->documentMargin();
    const double zoom = std::pow(ZoomStep, zoomSteps);
    QTextCursor changes(document());
    changes.beginEditBlock();
    ForFragments(
        *document(), [](const QTextCharFormat& format) { return format.isImageFormat(); },
        [&](QTextCursor& cursor, const QTextCharFormat& format) {
            QTextImageFormat place = format.toImageFormat();
            QImage picture(QStringLiteral(":/guide/") + place.name());
            const double scale = std::min(zoom, room / std::max(picture.width(), 1));
            const QSizeF size = picture.size() * std::max(scale, LeastPictureScale);
            picture = picture.convertToFormat(QImage::Format_RGB32)
                          .scaled((size * devicePixelRatioF()).toSize(), Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation);
            picture.setDevicePixelRatio(devicePixelRatioF());
            document()->addResource(QTextDocument::ImageResource,
                                    document()->baseUrl().resolved(QUrl(place.name())), picture);
            place.setWidth(size.width());
            place.setHeight(size.height());
            cursor.setCharFormat(place);
        });
    changes.endEditBlock();
    FinishLayout();
}

/// A page is laid out step by step, as it comes into sight; going to a place needs its whole length at once.
void GuideBrowser::FinishLayout()
{
    QAbstractTextDocumentLayout& layout = *document()->documentLayout();
    Q_EMIT layout.documentSizeChanged(layout.documentSize());
}

int GuideBrowser::ReadingPlace() const
{
    return verticalScrollBar()->value() == 0 ? 0 : cursorForPosition({0, 0}).position();
}

void GuideBrowser::ReadOnAt(int place)
{
    const QTextBlock block = document()->findBlock(place);
    const double top = place == 0 ? 0 : document()->documentLayout()->blockBoundingRect(block).top();
    verticalScrollBar()->setValue(static_cast<int>(top));
}

void GuideBrowser::ApplyZoom()
{
    QFont letters = font();
    letters.setPointSizeF(usualPointSize * std::pow(ZoomStep, zoomSteps));
    setFont(letters);
}

/// Letters of another size, or colours of another palette, set the page out anew where it was being read.
void GuideBrowser::changeEvent(QEvent* event)
{
    const int place = ReadingPlace();
    QTextBrowser::changeEvent(event);
    const bool isLook = event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange;
    if (isLook && !source().isEmpty()) {
        reload();
        ReadOnAt(place);
    }
}

void GuideBrowser::resizeEvent(QResizeEvent* event)
{
    const int place = ReadingPlace();
    QTextBrowser::resizeEvent(event);
    FitPictures();
    ReadOnAt(place);
}

void GuideBrowser::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        ZoomBy(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
    } else {
        QTextBrowser::wheelEvent(event);
    }
}

}  // namespace kordavan
