#include "forms/HelpButton.h"

namespace kordavan {

HelpButton::HelpButton(std::string_view name, std::string_view topic,
                       std::initializer_list<std::string_view> boxes)
    : topicText(Text(topic))
{
    for (const std::string_view box : boxes) {
        boxNames.append(Text(box));
    }
    setText(QStringLiteral("?"));
    setObjectName(Text(name));
    setToolTip(QStringLiteral("Help: %1 (Shift+F1)").arg(topicText));
    setAccessibleName(QStringLiteral("Help: %1").arg(topicText));
    setFocusPolicy(Qt::NoFocus);
    setAutoRaise(false);
}

bool HelpButton::Explains(const QString& controlName) const
{
    return boxNames.contains(controlName.section(QLatin1Char('['), 0, 0));
}

}  // namespace kordavan
