#include "forms/ColumnSketch.h"

#include "forms/ColumnPainter.h"

namespace kordavan {

ColumnSketch::ColumnSketch()
    : SketchPane({.Name = "ColumnSketch", .Tip = "The column with its load, in the planes that are braced"})
{
}

void ColumnSketch::ShowPicture(const ColumnPicture& newPicture)
{
    picture = newPicture;
    Show(DescribeColumn(picture));
}

void ColumnSketch::Draw(QPainter& painter, const QRectF& area, const SketchColors& colors) const
{
    ColumnPainter(painter, area, colors).Draw(picture);
}

}  // namespace kordavan
