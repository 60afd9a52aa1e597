#pragma once

#include <QElapsedTimer>

#include "forms/DesktopPort.h"
#include "forms/QtPrinters.h"

namespace kordavan {

/// The desk that the program runs on.
class QtDesktop : public DesktopPort {
public:
    QtDesktop();

    CalendarDay Today() override;
    std::string MomentInWords() override;
    int MinutesSinceStart() override;
    bool OpenFileExplorer() override;
    void EndProgram() override;
    std::optional<std::string> AskOpenFile(const FileDialogText& text) override;
    std::optional<std::string> AskSaveFile(const FileDialogText& text) override;
    PrinterPort& Printers() override { return printers; }
    void CopyPicture(const QImage& picture, const std::string& words) override;
    std::string FixedFilesFolder() override;

private:
    QElapsedTimer sinceStart;
    QtPrinters printers;
};

}  // namespace kordavan
