#pragma once

#include "columns/ColumnScreen.h"
#include "forms/Bindings.h"
#include "forms/EntryGroup.h"
#include "forms/Form.h"
#include "records/ColumnRecordFile.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace kordavan {

class ColumnLoadGroup;
class ColumnSketch;
class ColumnValuesGroup;
class StudGroup;
class StudStatusLine;

/// The criteria of a column, with faces for wood, steel and studs under wind.
class Form18 : public Form {
    Q_OBJECT

public:
    explicit Form18(Walk& walk);

    /// Values picked from the tables are brought to the edition in force.
    void Activate() override;
    GuidePage Guide() override;

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;

private:
    QLayout* MakeHead();
    QLayout* MakeFaces();
    QWidget* MakeColumnPage();
    void MakeFoot();
    void MakeMenus();
    void MakeFileMenu();
    void OrderTabs();

    Edition EditionNow();
    void Refresh();
    void Calculate();
    void CheckStud();
    void StartNew();
    void LoadRecord(ColumnRecordKind kind, Screen screen);
    void LoadStud();
    void SaveStud();
    void LoadValues();
    void SaveValues();

    Bindings bindings;
    NumericBoxContext numbers;
    GroupContext context;

    QStackedWidget* pages = nullptr;
    ColumnLoadGroup* loadGroup = nullptr;
    ColumnValuesGroup* valuesGroup = nullptr;
    ColumnSketch* sketch = nullptr;
    StudGroup* studGroup = nullptr;
    QLabel* resultLine = nullptr;
    StudStatusLine* studStatus = nullptr;
    QPushButton* studReport = nullptr;
    QPushButton* checkStud = nullptr;
    QPushButton* calculate = nullptr;
};

}  // namespace kordavan
