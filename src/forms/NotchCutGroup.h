#pragma once

#include <vector>

#include "forms/EntryGroup.h"
#include "notch/NotchSession.h"
#include "notch/NotchTexts.h"

class QLabel;

namespace kordavan {

class LineList;

/// The notch, the conditions of use, and the edition that it is checked by.
class NotchCutGroup : public EntryGroup {
    Q_OBJECT

public:
    NotchCutGroup(const GroupContext& context, NotchSession& currentNotch);

    void ShowTexts(const NotchTexts& texts);

Q_SIGNALS:
    /// The entries have changed by more than typing.
    void Changed();

private:
    void AddDepth();
    void AddType();
    void AddUse();
    void AddYears();
    void AddLine(int line, QLabel* caption, QWidget* box, std::string_view unit);
    void ClickYear(int line);
    void ShowYear();

    NotchSession& notch;
    QLabel* minimum = nullptr;
    QLabel* wetFactor = nullptr;
    QLabel* yearLine = nullptr;
    LineList* years = nullptr;
    std::vector<QWidget*> setbackParts;
    std::vector<QWidget*> taperParts;
};

}  // namespace kordavan
