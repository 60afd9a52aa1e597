#pragma once

#include "design/SelectionRecord.h"

namespace kordavan {

/// What the forms need of the desk besides the person: the clock and the shell.
class DesktopPort {
public:
    DesktopPort() = default;
    DesktopPort(const DesktopPort&) = delete;
    DesktopPort& operator=(const DesktopPort&) = delete;
    virtual ~DesktopPort() = default;

    virtual CalendarDay Today() = 0;
    virtual int MinutesSinceStart() = 0;
    virtual bool OpenFileExplorer() = 0;  // false when there is none
    virtual void EndProgram() = 0;
};

}  // namespace kordavan
