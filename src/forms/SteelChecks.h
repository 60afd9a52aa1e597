#pragma once

#include <QWidget>
#include <array>
#include <string_view>
#include <vector>

#include "columns/SteelColumn.h"

class QGridLayout;
class QLabel;

namespace kordavan {

class RatioBar;
class StatusSign;

/// The checks of a steel column: slenderness, stress and area, each with what is critical and what is there,
/// and with status and ratio where it has them.
class SteelChecks : public QWidget {
    Q_OBJECT

public:
    static constexpr std::size_t CheckCount = 3;

    SteelChecks();

    void Show(const SteelColumnTest& test, const std::vector<SteelReportLine>& texts);

private:
    struct Row {
        QLabel* Critical;
        QLabel* Actual;
        StatusSign* PassSign;
        QLabel* Status;
        QLabel* Ratio;
        RatioBar* Bar;
    };

    void AddHeadings();
    void AddRow(std::size_t index);
    QLabel* AddFigure(std::string_view name, std::string_view description, int line, int column);

    QGridLayout* grid;
    std::array<Row, CheckCount> rows{};
};

/// The text of a report by its meaning; empty where there is none.
std::string SteelTextOf(const std::vector<SteelReportLine>& texts, std::string_view name);

}  // namespace kordavan
