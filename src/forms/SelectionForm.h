#pragma once

#include <array>
#include <initializer_list>

#include "forms/Form.h"

class QLabel;

namespace kordavan {

/// What the selection screens of wood, of the user's own values and of steel have in common: the applied
/// loads at the head, the way back to the criteria, and that each analysis begins anew.
class SelectionForm : public Form {
    Q_OBJECT

public:
    using Form::Form;

protected:
    /// A line of other facts at the left and of moment and reactions at the right.
    /// @param loadNames  of the three labels
    void BuildHeader(std::initializer_list<QWidget*> facts, const std::array<std::string_view, 3>& loadNames);

    void ShowLoads(std::string_view moment, std::string_view firstReaction, std::string_view secondReaction);

    /// The menus behind the File menu.
    void BuildOtherMenus(GuidePage page);

    /// True the first time that it is asked after an analysis.
    bool TakeNewAnalysis();

    void GoBack() override;

private:
    std::array<QLabel*, 3> loads{};
    int analysisShown = 0;
};

}  // namespace kordavan
