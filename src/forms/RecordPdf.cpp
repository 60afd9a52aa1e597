#include "forms/RecordPdf.h"

#include <QBuffer>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "forms/Kit.h"
#include "forms/PagePainter.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

QByteArray PdfOf(const RecordPage& page, const std::optional<LoadPicture>& loads, const QString& family)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(Text(page.Title));
    writer.setCreator(QStringLiteral("Kordavan"));
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    const QRectF sheet(0, 0, writer.width(), writer.height());
    PagePainter(page, family, PageInk::OnPaper()).Paint(painter, sheet, loads ? &*loads : nullptr);
    painter.end();
    return bytes;
}

}  // namespace

std::string SavePdf(const std::string& path, const RecordPage& page, const std::optional<LoadPicture>& loads,
                    const QString& family)
{
    const QByteArray bytes = PdfOf(page, loads, family);
    return ReplaceFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace kordavan
