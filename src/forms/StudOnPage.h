#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "columns/StudResult.h"

namespace kordavan {

/// Paints a wall stud lying down, its base at the left, with the blocks of wind that press on it from above
/// or draw it downwards, and below it the diagram of its moment.
void PaintStudOnPage(QPainter& painter, const QRectF& area, const QPalette& palette, const StudTest& test);

}  // namespace kordavan
