#pragma once

#include <QButtonGroup>
#include <array>

#include "core/NdsEdition.h"
#include "forms/EntryGroup.h"

class QCheckBox;
class QRadioButton;

namespace kordavan {

inline constexpr std::size_t EditionOptionCount = 6;

/// The edition in force; an option that is clicked puts its own in force at once.
class EditionGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit EditionGroup(const GroupContext& context);

    /// To be called before the bindings show.
    void SetEdition(Edition now);

private:
    void AddOptions();
    void AddAdvice();
    void Choose(Edition chosen);

    Edition edition = Edition::None;
    std::array<QRadioButton*, EditionOptionCount> options{};
    QButtonGroup choice;
    QCheckBox* ingrade;
};

}  // namespace kordavan
