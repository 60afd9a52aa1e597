#include "forms/StudSketch.h"

#include "forms/StudPainter.h"

namespace kordavan {

StudSketch::StudSketch()
    : SketchPane({.Name = "StudSketch", .Tip = "The stud, lying, with its wind and axial loads"})
{
}

void StudSketch::ShowPicture(const StudPicture& newPicture)
{
    picture = newPicture;
    Show(DescribeStud(picture));
}

void StudSketch::Draw(QPainter& painter, const QRectF& area, const SketchColors& colors) const
{
    StudPainter(painter, area, colors).Draw(picture);
}

}  // namespace kordavan
