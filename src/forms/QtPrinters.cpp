#include "forms/QtPrinters.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QInputDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>

#include "forms/Kit.h"
#include "forms/PagePainter.h"

namespace kordavan {

QtPrinters::QtPrinters() = default;
QtPrinters::~QtPrinters() = default;

QPrinter& QtPrinters::Printer()
{
    if (!printer) {
        printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setPageSize(QPageSize(QPageSize::Letter));
        printer->setFullPage(true);
        printer->setDocName(QStringLiteral("Kordavan Data Record"));
    }
    return *printer;
}

bool QtPrinters::HasPrinter()
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

std::string QtPrinters::CurrentPrinter()
{
    return Text(Printer().printerName());
}

void QtPrinters::UsePrinter(const std::string& name)
{
    Printer().setPrinterName(Text(name));
}

void QtPrinters::AskSetup(QWidget& owner)
{
    QPrintDialog dialog(&Printer(), &owner);
    dialog.setWindowTitle(QStringLiteral("Print Setup"));
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);  // saving as a PDF is a command of its own
    for (auto* const buttons : dialog.findChildren<QDialogButtonBox*>()) {
        if (QPushButton* const accept = buttons->button(QDialogButtonBox::Ok)) {
            accept->setText(QStringLiteral("&OK"));
        }
    }
    dialog.exec();
}

std::optional<std::string> QtPrinters::AskFont(QWidget& owner, const std::string& current)
{
    const QStringList families = QFontDatabase::families();
    bool isChosen = false;
    const QString family =
        QInputDialog::getItem(&owner, QStringLiteral("Kordavan"), QStringLiteral("&Font"), families,
                              static_cast<int>(families.indexOf(Text(current))), false, &isChosen);
    return isChosen && !family.isEmpty() ? std::optional(Text(family)) : std::nullopt;
}

/// The page is scaled to the width of the paper and keeps its upper edge.
PrintEnd QtPrinters::Print(const PrintJob& job)
{
    Printer().setPageOrientation(QPageLayout::Portrait);
    QPainter painter;
    if (!painter.begin(&Printer())) {
        return PrintEnd::Failed;
    }
    const QRectF paper = Printer().pageLayout().fullRectPixels(Printer().resolution());
    const double scale = std::min(paper.width() / job.Page.Width, paper.height() / job.Page.Height);
    const QRectF sheet((paper.width() - job.Page.Width * scale) / 2, 0, job.Page.Width * scale,
                       job.Page.Height * scale);
    PagePainter(job.Page, job.Family, PageInk::OnPaper()).Paint(painter, sheet, job.Picture);
    if (!painter.isActive() || sheet.isEmpty()) {
        return PrintEnd::NotDrawn;
    }
    const bool isWhole = painter.end() && Printer().printerState() != QPrinter::Error;
    return isWhole ? PrintEnd::Printed : PrintEnd::Failed;
}

}  // namespace kordavan
