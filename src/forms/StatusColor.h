#pragma once

#include <QColor>
#include <QPalette>

class QLabel;

namespace kordavan {

/// The red of a failed check, dark on a light palette and light on a dark one.
QColor FailColor(const QPalette& palette);

/// The amber of an alert.
QColor AlertColor(const QPalette& palette);

/// The palette of pictures on white paper.
QPalette PaperPalette();

/// Writes a label bold in the colour of a failed check, or like any other label.
void PaintStatus(QLabel& label, bool fails);

}  // namespace kordavan
