#pragma once

#include <array>
#include <vector>

#include "design/Selection.h"
#include "design/SteelSelection.h"
#include "design/TestReport.h"
#include "forms/Form.h"

class QLabel;
class QPushButton;

namespace kordavan {

class NoteLine;
class ReportTable;
class SectionSketch;
class StatusSign;
class StepButtons;

/// The report of the member tested last, from which its size can be stepped up and down.
class Form5 : public Form {
    Q_OBJECT

public:
    explicit Form5(Walk& walk);

    void Activate() override;

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void BuildHeader();
    void BuildTable();
    void BuildLines();
    void BuildNotes();
    void BuildStepping();
    void BuildFoot();
    void BuildMenus();
    void AddNote(NoteLine* note);

    void ShowReport();
    void ShowOverall(bool isQualified);
    void OnSizeStep(SizeStep step);
    void OnShapeStep(SteelStep step);
    void OnNewBeam();
    void OnSelectMember();

    std::array<QLabel*, TestReportFields.size()> fields{};
    std::vector<NoteLine*> notes;
    NoteLine* tip = nullptr;
    ReportTable* table = nullptr;
    SectionSketch* sketch = nullptr;
    StepButtons* stepping = nullptr;
    StatusSign* overallSign = nullptr;
    QLabel* overall = nullptr;
    QPushButton* selectButton = nullptr;
};

}  // namespace kordavan
