#include "forms/PagePicture.h"

#include "columns/StudPicture.h"
#include "forms/BeamPainter.h"
#include "forms/NotchPainter.h"
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
    } else if (const auto* const notch = std::get_if<NotchPicture>(&picture)) {
        const SketchColors colors(palette);
        NotchPainter(painter, area, colors).Draw(*notch);
    }
}

std::string DescribePagePicture(const PagePicture& picture)
{
    if (const auto* const beam = std::get_if<LoadPicture>(&picture)) {
        return DescribePicture(*beam);
    }
    if (const auto* const stud = std::get_if<StudTest>(&picture)) {
        return DescribeStudMoment(*stud);
    }
    const auto* const notch = std::get_if<NotchPicture>(&picture);
    return notch == nullptr ? std::string() : DescribeNotchPicture(*notch);
}

}  // namespace kordavan
