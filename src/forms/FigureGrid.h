#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "columns/WoodColumnReport.h"

class QGridLayout;
class QHBoxLayout;
class QLabel;

namespace kordavan {

/// Blocks of figures under their headings, in columns side by side: captions, right-aligned figures, their
/// units and what is to be said of them.
class FigureGrid : public QWidget {
    Q_OBJECT

public:
    /// @param count  of the columns
    explicit FigureGrid(std::size_t count);

    void Show(const std::vector<ColumnReportBlock>& blocks);

private:
    struct Line {
        QLabel* Caption;
        QLabel* Figure;
        QLabel* Unit;
        QLabel* Note;
        int Column;
    };

    void Build(const std::vector<ColumnReportBlock>& blocks);
    QGridLayout* AddColumn();
    void AddBlock(QGridLayout& grid, const ColumnReportBlock& block);
    void GiveRoomToNotes();
    static void ShowLine(const Line& line, const ColumnReportLine& shown);

    std::size_t columnCount;
    QHBoxLayout* row;
    QWidget* table = nullptr;
    QHBoxLayout* columns = nullptr;
    std::vector<std::string> built;  // headings and names of the lines that have been made
    std::vector<Line> lines;
};

}  // namespace kordavan
