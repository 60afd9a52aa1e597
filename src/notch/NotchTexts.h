#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "notch/NotchResult.h"
#include "notch/NotchSession.h"

namespace kordavan {

/// The texts of the notch screen by the names of its labels.
struct NotchTexts {
    std::string WetUseLabel;
    std::string YearLine;
    std::string DnMinimum;
    std::string AdjFvLabel;
    std::string AnLabel;
    std::string CritLabel;
    std::string CriticalfvLabel;
    std::string CritPsiLabel;
    std::string RatioTitle;
    std::string RatioLabel;
    std::string ShearStatusLabel;
    std::string MinSpanLabel;
    std::string TaperAngleLabel;
    std::string NotchNote;  // what else must be known: no rule, an earlier result, a cut past the centre
    bool Fails = false;
    bool IsOutdated = false;        // the entries or the year have changed since the run
    bool IsOfEarlierRun = false;    // the result shown is not of the last run
    std::optional<double> Ratio{};  // 1 for the whole capacity
};

/// What the screen says. Wet use, year and the least depth follow the entries; the rest is of the last run.
NotchTexts DescribeNotch(const NotchSession& notch);

/// One line of the report page.
struct NotchReportLine {
    std::string_view Caption;
    std::string Figure;
    std::string_view Unit;
};

/// The entries of the last run, and what its checks rest on, for its page.
std::vector<NotchReportLine> NotchEntryLines(const NotchRun& run);
std::vector<NotchReportLine> NotchResultLines(const NotchRun& run);

}  // namespace kordavan
