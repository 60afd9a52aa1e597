#include "forms/RecordSheet.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "forms/Kit.h"
#include "forms/PagePainter.h"
#include "forms/StatusColor.h"

namespace kordavan {

namespace {

constexpr double MostEnlarged = 1.3;

QString CellName(const PageText& text, int other)
{
    if (!text.Name.empty()) {
        return Text(text.Name);
    }
    return text.Label == 0 ? QStringLiteral("Line%1").arg(other) : QStringLiteral("Label%1").arg(text.Label);
}

Qt::Alignment AlignmentOf(PageAlign align)
{
    if (align == PageAlign::Center) {
        return Qt::AlignCenter;
    }
    return Qt::AlignVCenter | (align == PageAlign::Right ? Qt::AlignRight : Qt::AlignLeft);
}

}  // namespace

RecordSheet::RecordSheet()
{
    setObjectName(QStringLiteral("RecordSheet"));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void RecordSheet::Show(const RecordPage& newPage, const PagePicture& newPicture, const QString& fontFamily)
{
    page = newPage;
    picture = newPicture;
    family = fontFamily;
    setAccessibleDescription(Text(DescribePagePicture(picture)));
    MakeCells();
    PlaceCells();
    updateGeometry();
    update();
}

/// A point of the page is as large as a point of the text around it.
QSize RecordSheet::sizeHint() const
{
    const double scale = fontMetrics().height() / 12.0;
    return {static_cast<int>(page.Width * scale), static_cast<int>(page.Height * scale)};
}

QSize RecordSheet::minimumSizeHint() const
{
    return sizeHint();
}

int RecordSheet::heightForWidth(int width) const
{
    return static_cast<int>(page.Height * Scale(width));
}

double RecordSheet::Scale(int width) const
{
    const double natural = sizeHint().width() / page.Width;
    return std::clamp(width / page.Width, natural, natural * MostEnlarged);
}

QRectF RecordSheet::Sheet() const
{
    const double scale = Scale(width());
    const double left = std::max(0.0, (width() - page.Width * scale) / 2);
    return {left, 0, page.Width * scale, page.Height * scale};
}

void RecordSheet::MakeCells()
{
    for (const Cell& cell : cells) {
        delete cell.Shown;
    }
    cells.clear();
    int other = 0;
    for (const PageText& text : page.Texts) {
        auto* const label = new QLabel(Text(text.Text), this);
        label->setTextFormat(Qt::PlainText);
        label->setObjectName(CellName(text, text.Label == 0 ? ++other : 0));
        label->setAlignment(AlignmentOf(text.Align));
        label->setTextInteractionFlags(text.StartsBlock
                                           ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                           : Qt::TextInteractionFlags(Qt::TextSelectableByMouse));
        label->installEventFilter(this);
        label->setFocusPolicy(text.StartsBlock ? Qt::StrongFocus : Qt::ClickFocus);
        label->show();
        cells.push_back({label, &text});
    }
}

void RecordSheet::PlaceCells()
{
    const QRectF sheet = Sheet();
    const double scale = sheet.width() / page.Width;
    for (const Cell& cell : cells) {
        const PageRect& area = cell.Text->Area;
        QFont font = PageFont(cell.Text->Style, page.TextSize, family);
        font.setPixelSize(
            std::max(1, static_cast<int>(PageTextSize(cell.Text->Style, page.TextSize) * scale)));
        font.setBold(font.bold() || IsFailure(*cell.Text));
        QRectF place(sheet.left() + area.Left * scale, area.Top * scale, area.Width * scale,
                     area.Height * scale);
        if (cell.Text->Style == PageStyle::Status) {
            place.setLeft(SignArea(place).right() + SignArea(place).width() / 3);
        }
        cell.Shown->setFont(FittedFont(font, cell.Shown->text(), place.width()));
        cell.Shown->setGeometry(place.toAlignedRect());
        PaintCell(cell);
    }
}

void RecordSheet::PaintCell(const Cell& cell) const
{
    if (cell.Text->Style == PageStyle::Status) {
        PaintStatus(*cell.Shown, IsFailure(*cell.Text));
        return;
    }
    QPalette colors = palette();
    if (cell.Text->Style == PageStyle::Caption) {
        colors.setColor(QPalette::WindowText, PageInk::OnScreen(palette()).Caption);
    }
    cell.Shown->setPalette(colors);
}

/// Labels do not show by themselves that they have the focus.
bool RecordSheet::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void RecordSheet::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PagePainter(page, family, PageInk::OnScreen(palette())).PaintGround(painter, Sheet(), picture);
    for (const Cell& cell : cells) {
        if (cell.Shown->hasFocus()) {
            constexpr double thickness = 2;
            painter.setPen(QPen(palette().color(QPalette::Highlight), thickness));
            painter.drawRect(cell.Shown->geometry().adjusted(-3, -1, 3, 1));
        }
    }
}

void RecordSheet::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PlaceCells();
}

void RecordSheet::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        PlaceCells();
    }
}

}  // namespace kordavan
