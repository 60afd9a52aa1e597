#pragma once

#include <QElapsedTimer>

#include "forms/DesktopPort.h"

namespace kordavan {

/// The desk that the program runs on.
class QtDesktop : public DesktopPort {
public:
    QtDesktop();

    CalendarDay Today() override;
    int MinutesSinceStart() override;
    bool OpenFileExplorer() override;
    void EndProgram() override;

private:
    QElapsedTimer sinceStart;
};

}  // namespace kordavan
