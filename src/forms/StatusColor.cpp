#include "forms/StatusColor.h"

#include <QLabel>
#include <QPalette>

#include "forms/Kit.h"

namespace kordavan {

QColor FailColor(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0xFF, 0x80, 0x80) : QColor(0x80, 0x00, 0x00);
}

QColor AlertColor(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0xFF, 0xC8, 0x50) : QColor(0x98, 0x58, 0x00);
}

QPalette PaperPalette()
{
    QPalette palette(QColor(0xF0, 0xF0, 0xF0));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0x1F, 0x5F, 0xA8));
    return palette;
}

void PaintStatus(QLabel& label, bool fails)
{
    QPalette palette;
    if (fails) {
        palette.setColor(QPalette::WindowText, FailColor(label.palette()));
    }
    label.setPalette(palette);
    QFont font = label.font();
    font.setBold(fails);
    label.setFont(font);
}

}  // namespace kordavan
