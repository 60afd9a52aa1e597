#include "forms/NoteLine.h"

#include <QHBoxLayout>
#include <algorithm>
#include <limits>

#include "forms/Kit.h"
#include "forms/StatusSign.h"

namespace kordavan {

NoteLabel::NoteLabel(std::string_view name, std::string_view longest) : longestText(Text(longest))
{
    setObjectName(Text(name));
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

int NoteLabel::heightForWidth(int width) const
{
    const QRect room(0, 0, width, std::numeric_limits<short>::max());
    const QRect needed = fontMetrics().boundingRect(room, Qt::TextWordWrap, longestText);
    return std::max(QLabel::heightForWidth(width), needed.height());
}

NoteLine::NoteLine(std::string_view name, std::string_view longest, NoteKind kind)
    : label(new NoteLabel(name, longest)), line(new QHBoxLayout(this))
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    line->setContentsMargins(0, 0, 0, 0);
    if (kind == NoteKind::Alert) {
        line->addWidget(new StatusSign(Text(name) + QStringLiteral("Sign"), Sign::Alert), 0, Qt::AlignTop);
    }
    line->addWidget(label, 1);
}

void NoteLine::Append(QWidget* widget)
{
    label->setWordWrap(false);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    line->setStretchFactor(label, 0);
    line->addWidget(widget);
    line->addStretch(1);
}

void NoteLine::Tell(std::string_view text)
{
    label->setText(Text(text));
    Show();
}

void NoteLine::Show()
{
    setVisible(!label->text().isEmpty());
}

}  // namespace kordavan
