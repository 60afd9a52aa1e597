#pragma once

#include "forms/EntryGroup.h"
#include "notch/NotchSession.h"

class QLabel;

namespace kordavan {

class SpeciesBox;

/// What is notched: its shear, kind, size, species and base value.
class NotchMemberGroup : public EntryGroup {
    Q_OBJECT

public:
    NotchMemberGroup(const GroupContext& context, NotchSession& currentNotch);

    void ShowEntries();

Q_SIGNALS:
    /// The entries have changed by more than typing.
    void Changed();

private:
    void AddMember();
    void AddSizes();
    void AddSpecies();
    void AddLine(int line, QLabel* caption, QWidget* box, std::string_view unit);

    NotchSession& notch;
    NumericBox* breadth = nullptr;
    QLabel* depthCaption = nullptr;
    SpeciesBox* species = nullptr;
};

}  // namespace kordavan
