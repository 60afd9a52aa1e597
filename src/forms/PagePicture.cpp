#include "forms/PagePicture.h"

#include "columns/StudPicture.h"
#include "forms/BeamPainter.h"
#include "forms/StudOnPage.h"

namespace kordavan {

/// Loads of a beam are told by their letters, as their figures stand in the rows below.
void PaintPagePicture(QPainter& painter, const QRectF& area, const QPalette& palette,
                      const PagePicture& picture)
{
    if (const auto* const beam = std::get_if<LoadPicture>(&picture)) {
        const SketchColors colors(palette);
        BeamPainter(painter, area, colors, LoadCaptions::Letters).Draw(*beam);
    } else if (const auto* const stud = std::get_if<StudTest>(&picture)) {
        PaintStudOnPage(painter, area, palette, *stud);
    }
}

std::string DescribePagePicture(const PagePicture& picture)
{
    if (const auto* const beam = std::get_if<LoadPicture>(&picture)) {
        return DescribePicture(*beam);
    }
    const auto* const stud = std::get_if<StudTest>(&picture);
    return stud == nullptr ? std::string() : DescribeStudMoment(*stud);
}

}  // namespace kordavan
