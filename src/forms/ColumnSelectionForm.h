#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "records/ColumnRecordFile.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace kordavan {

class NoteLine;
class RatioBar;
class StatusSign;

/// The result line of a tested column.
struct ColumnVerdict {
    std::string Status;
    bool Passes = false;
    std::string RatioText{};
    std::optional<double> Ratio{};  // 1 for the whole capacity; none leaves the bar out
};

/// What the selections of wood and steel columns have in common: the facts of the column at the head, a
/// report that fades once the size in the boxes is another one, the verdict at the foot, and the ways to the
/// criteria and to the record.
class ColumnSelectionForm : public Form {
    Q_OBJECT

public:
    /// @param recordKind    of the record that the size goes on
    /// @param recordScreen  which shows it
    ColumnSelectionForm(Walk& walk, std::string_view name, ColumnRecordKind recordKind, Screen recordScreen);

protected:
    void BuildHead();

    /// The member line, the mark of changed entries, and the report or, before a test, what to do.
    void BuildReport(QWidget* report, std::string_view whatToDo);

    /// @param select  the name of the button that puts the size on record
    void BuildFoot(std::string_view select, QPushButton* test);
    void BuildMenus(GuidePage page);

    void ShowFacts(const std::vector<std::string>& facts);

    /// Shows that nothing has been tested.
    void ShowNoReport();

    /// @param isOutdated  the entries are no longer those of the report
    void ShowReport(const std::string& member, const ColumnVerdict& verdict, bool isOutdated);

    QAbstractButton* DefaultCommand() override;
    void GoBack() override;
    void changeEvent(QEvent* event) override;

    /// Shows the report of the size tested last, if there is one.
    virtual void ShowTest() = 0;

private:
    void ShowVerdict(const ColumnVerdict& verdict);
    void OnSelect();

    ColumnRecordKind kind;
    Screen recordForm;
    QLabel* head = nullptr;
    QLabel* memberLine = nullptr;
    QWidget* outdatedMark = nullptr;
    QStackedWidget* pages = nullptr;
    QWidget* figures = nullptr;
    QWidget* verdictLine = nullptr;
    StatusSign* sign = nullptr;
    QLabel* status = nullptr;
    QLabel* ratioText = nullptr;
    RatioBar* ratioBar = nullptr;
    QPushButton* testButton = nullptr;
    QPushButton* selectButton = nullptr;
};

}  // namespace kordavan
