#include "forms/PagePreview.h"

#include <QPainter>
#include <algorithm>

#include "forms/Kit.h"
#include "forms/PagePainter.h"

namespace kordavan {

PagePreview::PagePreview()
{
    Describe(*this, {.Name = "Preview", .Tip = "The page as it will print"});
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PagePreview::Show(const RecordPage& newPage, const PagePicture& newPicture, const QString& fontFamily)
{
    page = newPage;
    picture = newPicture;
    family = fontFamily;
    setAccessibleDescription(Text(PlainTextOf(page) + DescribePagePicture(picture)));
    update();
}

QSize PagePreview::sizeHint() const
{
    constexpr int linesWide = 32;
    const int width = linesWide * fontMetrics().height();
    return {width, static_cast<int>(width * page.Height / page.Width)};
}

QSize PagePreview::minimumSizeHint() const
{
    return sizeHint() / 2;
}

void PagePreview::paintEvent(QPaintEvent* /*event*/)
{
    const double scale = std::min(width() / page.Width, height() / page.Height);
    const QRectF sheet((width() - page.Width * scale) / 2, (height() - page.Height * scale) / 2,
                       page.Width * scale, page.Height * scale);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::white);
    painter.drawRect(sheet.adjusted(0.5, 0.5, -0.5, -0.5));
    PagePainter(page, family, PageInk::OnPaper()).Paint(painter, sheet, picture);
}

}  // namespace kordavan
