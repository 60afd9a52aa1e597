#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

#include "design/LoadPicture.h"
#include "design/RecordPage.h"

class QPainter;
class QPalette;

namespace kordavan {

/// Where the sign of a status stands, before its text.
QRectF SignArea(const QRectF& status);

/// How a page is painted: black on white on paper, in the colours of the palette on the screen.
struct PageInk {
    QColor Text;
    QColor Caption;
    QColor Rule;
    QColor Tint;
    QColor Fail;

    /// Black and gray on white paper.
    static PageInk OnPaper();
    static PageInk OnScreen(const QPalette& palette);
};

/// Size of a style in points, on a page whose cells are in this size.
double PageTextSize(PageStyle style, double textSize);

/// The font of a style on a page of this size; the sizes of a page are points.
QFont PageFont(PageStyle style, double textSize, const QString& family);

/// Paints a record's page into a rectangle of any device, scaled to its width.
class PagePainter {
public:
    PagePainter(const RecordPage& recordPage, QString fontFamily, const PageInk& pageInk);

    /// @param loads  shown in the page's room for a diagram; none leaves it empty
    void Paint(QPainter& painter, const QRectF& target, const LoadPicture* loads) const;

    /// The rules, tints, signs and the diagram alone, for a screen whose texts are controls.
    void PaintGround(QPainter& painter, const QRectF& target, const LoadPicture* loads) const;

private:
    void PaintText(QPainter& painter, const PageText& text) const;

    const RecordPage& page;
    QString family;
    PageInk ink;
};

}  // namespace kordavan
