#include "forms/NotchSketch.h"

#include "forms/NotchPainter.h"

namespace kordavan {

NotchSketch::NotchSketch()
    : SketchPane({.Name = "NotchSketch", .Tip = "The end of the member on its support, with its notch"})
{
}

void NotchSketch::ShowPicture(const NotchPicture& newPicture)
{
    picture = newPicture;
    Show(DescribeNotchPicture(picture));
}

void NotchSketch::Draw(QPainter& painter, const QRectF& area, const SketchColors& colors) const
{
    NotchPainter(painter, area, colors).Draw(picture);
}

}  // namespace kordavan
