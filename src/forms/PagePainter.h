#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRectF>
#include <QString>

#include "forms/PagePicture.h"
#include "records/RecordPage.h"

class QPainter;

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
    QPalette Sketch;  // of the diagram

    /// Black and gray on white paper.
    static PageInk OnPaper();
    static PageInk OnScreen(const QPalette& palette);
};

/// Size of a style in points, on a page whose cells are in this size.
double PageTextSize(PageStyle style, double textSize);

/// The font of a style on a page of this size; the sizes of a page are points.
QFont PageFont(PageStyle style, double textSize, const QString& family);

/// The font made smaller until a text fits into a width, in the pixels of the font.
QFont FittedFont(const QFont& font, const QString& text, double width);

/// True of a text that says that a check fails.
bool IsFailure(const PageText& text);

/// Paints a record's page into a rectangle of any device, scaled to its width.
class PagePainter {
public:
    PagePainter(const RecordPage& recordPage, QString fontFamily, const PageInk& pageInk);

    /// @param picture  shown in the page's room for a diagram
    void Paint(QPainter& painter, const QRectF& target, const PagePicture& picture) const;

    /// The rules, tints, signs and the diagram alone, for a screen whose texts are controls.
    void PaintGround(QPainter& painter, const QRectF& target, const PagePicture& picture) const;

private:
    /// Sets the painter to the units of fonts on the page.
    void Enter(QPainter& painter, const QRectF& target) const;
    void PaintMarks(QPainter& painter) const;
    void PaintDiagram(QPainter& painter, const PagePicture& picture) const;
    void PaintText(QPainter& painter, const PageText& text) const;

    const RecordPage& page;
    QString family;
    PageInk ink;
};

}  // namespace kordavan
