#pragma once

#include <string>
#include <vector>

#include "columns/ColumnSession.h"

namespace kordavan {

/// One line of a column's report: what it is, its figure and unit.
struct ColumnReportLine {
    std::string Name;  // of the panel that shows the figure
    std::string Caption;
    std::string Figure;
    std::string Unit;
    std::string Note{};  // what the figure means or comes from, where that needs saying
};

/// Lines that belong together.
struct ColumnReportBlock {
    std::string Heading;
    std::vector<ColumnReportLine> Lines;
};

/// The full report of a tested size, for the screen.
struct WoodColumnReport {
    std::string Member;     // such as "(2) 2x 6 nailed built-up column, DF-L #2"
    std::string Governing;  // which plane governs and why, in a sentence
    std::string Status;     // "OK" or "Fail"
    std::string Reason;     // why it fails, in a sentence; empty when it passes
    double Ratio = 0;       // fc / Fc'; 0 where there is none
    std::string RatioText;
    std::vector<ColumnReportBlock> Blocks;
};

WoodColumnReport ReportWoodColumn(const WoodColumnTest& test);

}  // namespace kordavan
