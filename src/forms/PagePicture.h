#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <string>
#include <variant>

#include "columns/StudResult.h"
#include "design/LoadPicture.h"
#include "notch/NotchPicture.h"

namespace kordavan {

/// What is drawn into the room that a page has for a diagram: nothing, the loads of a beam, the wind on a
/// stud and its moment, or a notched end.
using PagePicture = std::variant<std::monostate, LoadPicture, StudTest, NotchPicture>;

/// Draws a picture into a rectangle, in the painter's font.
void PaintPagePicture(QPainter& painter, const QRectF& area, const QPalette& palette,
                      const PagePicture& picture);

/// The picture in words, for those who do not see it; empty where there is none.
std::string DescribePagePicture(const PagePicture& picture);

}  // namespace kordavan
