#pragma once

#include <memory>

#include "forms/PrinterPort.h"

class QPrinter;

namespace kordavan {

/// The printers of the system. They are asked for when first needed, as finding them takes its time.
class QtPrinters : public PrinterPort {
public:
    QtPrinters();
    ~QtPrinters() override;

    bool HasPrinter() override;
    std::string CurrentPrinter() override;
    void UsePrinter(const std::string& name) override;
    void AskSetup(QWidget& owner) override;
    std::optional<std::string> AskFont(QWidget& owner, const std::string& current) override;
    PrintEnd Print(const PrintJob& job) override;

private:
    QPrinter& Printer();

    std::unique_ptr<QPrinter> printer;
};

}  // namespace kordavan
