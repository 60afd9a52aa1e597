#pragma once

#include "forms/Bindings.h"
#include "forms/EntryGroup.h"
#include "forms/Form.h"

class QPushButton;

namespace kordavan {

class NotchCutGroup;
class NotchMemberGroup;
class NotchResultGroup;
class NotchSketch;
class NotchStatusLine;

/// The check of a notched member.
class FormOstrimane : public Form {
    Q_OBJECT

public:
    explicit FormOstrimane(Walk& walk);

    /// Another edition in force takes the place of the year that was chosen here.
    void Activate() override;

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;

private:
    QLayout* MakeOutcome();
    void MakeFoot();
    void MakeMenus();
    void OrderTabs();

    NotchSession& Notch() { return TheWalk().Notch(); }

    /// Shows the session as it stands, with what the last edit brings with it.
    void Refresh();
    void Calculate();

    Bindings bindings;
    NumericBoxContext numbers;
    GroupContext context;
    NotchEntry shownEntry;
    NotchYears shownYears;

    NotchMemberGroup* memberGroup = nullptr;
    NotchCutGroup* cutGroup = nullptr;
    NotchSketch* sketch = nullptr;
    NotchResultGroup* resultGroup = nullptr;
    NotchStatusLine* status = nullptr;
    QPushButton* report = nullptr;
    QPushButton* calculate = nullptr;
};

}  // namespace kordavan
