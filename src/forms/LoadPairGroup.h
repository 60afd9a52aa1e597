#pragma once

#include <array>
#include <vector>

#include "design/DefaultSettings.h"
#include "forms/EntryGroup.h"

class QLabel;

namespace kordavan {

/// Pairs of common uniform loads. A box is judged as the person leaves it, and keeps the focus while its text
/// is at fault.
class LoadPairGroup : public EntryGroup {
    Q_OBJECT

public:
    LoadPairGroup(const GroupContext& context, std::array<LoadPair, LoadPairCount>& pairs);

    /// The boxes may be left at fault for this control, which judges them itself or leaves them as they are.
    void SpareOnTheWayTo(QWidget& control) { sparing.push_back(&control); }

Q_SIGNALS:
    void BoxLeft(NumericBox* box, Qt::FocusReason reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    NumericBox* AddBox(std::string_view array, std::size_t index, std::string_view what, std::string& bound);
    QLabel* MakeHead(std::string_view caption, NumericBox& firstBox);
    void JudgeLeft(NumericBox* box, Qt::FocusReason reason);

    std::vector<QWidget*> sparing;
};

}  // namespace kordavan
