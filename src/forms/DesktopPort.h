#pragma once

#include <optional>
#include <string>

#include "design/SelectionRecord.h"
#include "records/FileDialogs.h"

class QImage;

namespace kordavan {

class PrinterPort;

/// What the forms need of the desk besides the person: clock, shell and files.
class DesktopPort {
public:
    DesktopPort() = default;
    DesktopPort(const DesktopPort&) = delete;
    DesktopPort& operator=(const DesktopPort&) = delete;
    virtual ~DesktopPort() = default;

    virtual CalendarDay Today() = 0;
    virtual std::string MomentInWords() = 0;  // "Saturday, March 7, 2026 at 2:32 PM"
    virtual int MinutesSinceStart() = 0;
    virtual bool OpenFileExplorer() = 0;  // false when there is none
    virtual void EndProgram() = 0;

    /// The file that the person chooses; none when cancelled.
    virtual std::optional<std::string> AskOpenFile(const FileDialogText& text) = 0;
    virtual std::optional<std::string> AskSaveFile(const FileDialogText& text) = 0;

    virtual PrinterPort& Printers() = 0;
    /// Puts a picture and what it says in words on the clipboard.
    virtual void CopyPicture(const QImage& picture, const std::string& words) = 0;

    /// Where the files of fixed name lie.
    virtual std::string FixedFilesFolder() = 0;
};

}  // namespace kordavan
