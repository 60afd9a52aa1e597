#pragma once

#include "design/CriteriaScreen.h"
#include "forms/EntryGroup.h"

class QLabel;

namespace kordavan {

/// Two or three equal spans.
class MultiSpanGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit MultiSpanGroup(const GroupContext& context);

    void ShowScreen(const CriteriaScreen& screen);

private:
    QLabel* equalReactions = nullptr;
};

}  // namespace kordavan
