#pragma once

#include <QStringList>
#include <QToolButton>
#include <initializer_list>
#include <string_view>

#include "forms/Kit.h"

namespace kordavan {

/// The small square beside what it explains. It is out of the Tab chain; Shift+F1 in one of its boxes presses
/// it.
class HelpButton : public QToolButton {
    Q_OBJECT

public:
    /// @param topic  what it explains, in a few words
    /// @param boxes  names of the controls it belongs to; an array by its name without index
    HelpButton(std::string_view name, std::string_view topic, std::initializer_list<std::string_view> boxes);

    QString Topic() const { return topicText; }

    /// True when the control of this name is one of those it explains.
    bool Explains(const QString& controlName) const;

private:
    QString topicText;
    QStringList boxNames;
};

}  // namespace kordavan
