#pragma once

#include <QString>
#include <optional>
#include <string>

#include "forms/PagePicture.h"
#include "records/RecordPage.h"

class QWidget;

namespace kordavan {

/// A page to print.
struct PrintJob {
    const RecordPage& Page;
    const PagePicture& Picture;
    QString Family;  // of the font
};

enum class PrintEnd {
    Printed,
    NotDrawn,  // the printer took the job, but not what is on the page
    Failed     // or cancelled
};

/// What the forms need of the desk's printers.
class PrinterPort {
public:
    PrinterPort() = default;
    PrinterPort(const PrinterPort&) = delete;
    PrinterPort& operator=(const PrinterPort&) = delete;
    virtual ~PrinterPort() = default;

    virtual bool HasPrinter() = 0;

    /// The printer that the next page goes to, by its name.
    virtual std::string CurrentPrinter() = 0;
    virtual void UsePrinter(const std::string& name) = 0;

    /// Lets the person choose printer, paper and copies.
    virtual void AskSetup(QWidget& owner) = 0;

    /// The font that the person chooses; none when cancelled.
    virtual std::optional<std::string> AskFont(QWidget& owner, const std::string& current) = 0;

    virtual PrintEnd Print(const PrintJob& job) = 0;
};

}  // namespace kordavan
