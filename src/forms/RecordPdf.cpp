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

QByteArray PdfOf(const PdfPage& page)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(Text(page.Page.Title));
    writer.setCreator(QStringLiteral("Kordavan"));
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    const QRectF sheet(0, 0, writer.width(), writer.height());
    PagePainter(page.Page, page.Family, PageInk::OnPaper()).Paint(painter, sheet, page.Picture);
    painter.end();
    return bytes;
}

}  // namespace

std::string SavePdf(const std::string& path, const PdfPage& page)
{
    const QByteArray bytes = PdfOf(page);
    return ReplaceFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

Outcome AskToSavePdf(const PdfPage& page, DesktopPort& desktop, UserPort& user)
{
    const std::optional<std::string> path = desktop.AskSaveFile(SavePdfDialog);
    if (!path) {
        return Outcome::Refused;
    }
    const std::string fault = SavePdf(*path, page);
    return fault.empty() ? Outcome::Done : RefuseSaving(*path, fault, user);
}

}  // namespace kordavan
