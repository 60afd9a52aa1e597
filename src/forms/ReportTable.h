#pragma once

#include <QWidget>
#include <array>

#include "design/TestReport.h"

class QGridLayout;
class QLabel;

namespace kordavan {

class HelpButton;
class RatioBar;
class StatusSign;

inline constexpr std::size_t ReportRowCount = 6;

/// The checks of the test report, each with what is critical, what is there, its status and its ratio.
/// Rows that do not apply keep their place.
class ReportTable : public QWidget {
    Q_OBJECT

public:
    explicit ReportTable(HelpButton* help);

    /// Shows the signs, colours and bars of a report whose texts stand in the labels already.
    void Show(const TestReport& report);

private:
    struct Row {
        QLabel* Caption;
        QLabel* Critical;
        QLabel* Actual;
        QLabel* Unit;
        StatusSign* PassSign;
        QLabel* Status;
        QLabel* Percent;
        RatioBar* Bar;
    };

    void AddHeadings(HelpButton* help);
    QLabel* AddText(std::string_view name, int line, int column, Qt::Alignment alignment);
    void AddRow(std::size_t index);
    static void NameFigures(const Row& row);

    QGridLayout* grid;
    std::array<Row, ReportRowCount> rows{};
};

}  // namespace kordavan
