#pragma once

#include <array>

#include "design/SteelSelection.h"
#include "forms/Bindings.h"
#include "forms/SelectionForm.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kordavan {

class RatioBar;

/// The selection of a steel shape: up to sixteen candidates on two pages, and a box for any size.
class Form22 : public SelectionForm {
    Q_OBJECT

public:
    explicit Form22(Walk& walk);

    void Activate() override;

protected:
    QAbstractButton* DefaultCommand() override;

private:
    /// The controls of a candidate.
    struct Line {
        QPushButton* StlPick;
        QLabel* StlDepLab;
        QLabel* StlWidLab;
        QLabel* UBLlab;
        QLabel* StlSecPerct;
        RatioBar* SectionBar;
        QLabel* StlShearPerct;
        RatioBar* ShearBar;
    };

    void BuildHeader();
    void BuildCandidates();
    void AddHeadings(QGridLayout& grid);
    void AddLine(QGridLayout& grid, std::size_t index);
    void BuildPaging();
    void BuildEntry();
    void BuildFoot();
    void BuildMenus();

    void ShowTexts();
    void ShowPage();
    static void ShowLine(const Line& line, const SteelSlot* slot);
    void FocusOnStart();
    void TurnToSecondPage();
    void TurnToFirstPage();
    void OnPick(std::size_t index);
    void ShowDatabase();
    void OnCmdOK();

    Bindings boxes;
    QLabel* family = nullptr;
    QLabel* bracing = nullptr;
    std::array<Line, SteelPageLines> lines{};
    QPushButton* firstPage = nullptr;
    QPushButton* moreShapes = nullptr;
    QLabel* page = nullptr;
    QLineEdit* choice = nullptr;
    QLabel* parts = nullptr;
    QLabel* example = nullptr;
    QLabel* status = nullptr;
    QPushButton* okButton = nullptr;
};

}  // namespace kordavan
