#include "forms/DiagramSheet.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPalette>
#include <QSvgGenerator>

#include "forms/PlotPainter.h"
#include "forms/StatusColor.h"

namespace kordavan {

namespace {

constexpr int Width = 900;  // in units of the screen
constexpr int HeadingHeight = 34;
constexpr int PartHeight = 190;
constexpr int Height = HeadingHeight + static_cast<int>(DiagramParts.size()) * PartHeight;
constexpr int TextHeight = 13;        // whatever the desk's own type is
constexpr int Sharpness = 2;          // pixels to a unit
constexpr int ScreenResolution = 96;  // units to an inch

}  // namespace

DiagramSheet::DiagramSheet(const LoadDiagram& theDiagram, QString theHeading)
    : diagram(theDiagram), heading(std::move(theHeading))
{
}

QImage DiagramSheet::Image() const
{
    QImage image(Sharpness * Width, Sharpness * Height, QImage::Format_RGB32);
    image.setDevicePixelRatio(Sharpness);
    Paint(image);
    return image;
}

QByteArray DiagramSheet::Png() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    Image().save(&buffer, "PNG");
    return bytes;
}

QByteArray DiagramSheet::Svg() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(ScreenResolution);
    generator.setSize({Width, Height});
    generator.setViewBox(QRect(0, 0, Width, Height));
    generator.setTitle(heading);
    Paint(generator);
    return bytes;
}

void DiagramSheet::Paint(QPaintDevice& device) const
{
    const QPalette palette = PaperPalette();
    QPainter painter(&device);
    QFont font = QApplication::font();
    font.setPixelSize(TextHeight);
    painter.setFont(font);
    painter.fillRect(QRect(0, 0, Width, Height), palette.base());
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(QRect(0, 0, Width, HeadingHeight), Qt::AlignCenter, heading);
    for (const DiagramPart part : DiagramParts) {
        const QRectF area(0, HeadingHeight + static_cast<int>(part) * PartHeight, Width, PartHeight);
        PlotPainter(painter, area, palette, diagram, part).Draw();
    }
}

}  // namespace kordavan
