#pragma once

#include <array>

#include "forms/Bindings.h"
#include "forms/EntryGroup.h"
#include "forms/Form.h"
#include "forms/NumericBox.h"
#include "records/RecentFiles.h"

class QComboBox;
class QStackedWidget;

namespace kordavan {

class ConditionsGroup;
class Form4;
class HipValleyGroup;
class LoadSketch;
class MultiSpanGroup;
class PartialCalculator;
class PartialLoadGroup;
class PointLoadGroup;
class SpanGroup;
class SteelGroup;
class SupportGroup;
class UniformLoadGroup;

/// The criteria of the beam: the first screen.
class Form1 : public Form {
    Q_OBJECT

public:
    explicit Form1(Walk& walk);

    void Activate() override;
    GuidePage Guide() override;

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;

private:
    QLayout* MakeHead();
    QLayout* MakeCriteria();
    QLayout* MakeLoads();
    QLayout* MakeSketch();
    QWidget* MakePointAndPartialPage();
    void MakeFoot();
    void MakeMenus();
    void OrderTabs();

    Outcome Apply(const SessionChange& change);
    void AfterEdit(const QString& box);
    void Refresh();
    void ShowDiagram(SupportCondition support);
    void StartNew();
    void OpenBeam();
    void OpenRecent(const std::string& path);
    void LoadBeam(const std::string& path);
    void SaveBeam();
    void MakeFileMenu();
    void ShowRecentFiles();
    void OpenExplorer();
    void ChooseMaterial(SpeciesGroup group);
    void Calculate();
    void OpenSelection();

    Bindings bindings;
    NumericBoxContext numbers;
    GroupContext context;

    SupportGroup* supportGroup = nullptr;
    SpanGroup* spanGroup = nullptr;
    ConditionsGroup* conditionsGroup = nullptr;
    SteelGroup* steelGroup = nullptr;
    LoadSketch* sketch = nullptr;
    UniformLoadGroup* uniformGroup = nullptr;
    QStackedWidget* tables = nullptr;
    PointLoadGroup* pointGroup = nullptr;
    PartialCalculator* partialCalculator = nullptr;
    PartialLoadGroup* partialGroup = nullptr;
    HipValleyGroup* hipGroup = nullptr;
    MultiSpanGroup* multiGroup = nullptr;
    QComboBox* material = nullptr;
    QLabel* resultLine = nullptr;
    QPushButton* calculate = nullptr;
    Form4* gauge = nullptr;
    QAction* dataRecord = nullptr;
    QAction* diagram = nullptr;
    std::array<QAction*, MostRecentFiles> recentFiles{};
};

}  // namespace kordavan
