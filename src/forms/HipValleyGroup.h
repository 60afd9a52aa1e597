#pragma once

#include "design/CriteriaScreen.h"
#include "forms/EntryGroup.h"

class QPushButton;

namespace kordavan {

/// The roof load of a hip or valley: loads, plan sides and the quarters that load the member.
class HipValleyGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit HipValleyGroup(const GroupContext& context);

    void ShowScreen(const CriteriaScreen& screen);

    QPushButton& CalculateCommand() { return *calculate; }

Q_SIGNALS:
    /// The equivalent load stands in the uniform boxes.
    void Calculated();

private:
    void AddLoads();
    void AddPlan();
    void AddCommands();

    QPushButton* calculate = nullptr;
};

}  // namespace kordavan
