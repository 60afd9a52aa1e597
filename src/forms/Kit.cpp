#include "forms/Kit.h"

#include <QCheckBox>
#include <QEvent>
#include <QFontMetrics>
#include <QFrame>
#include <QGraphicsOpacityEffect>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QToolButton>

#include "core/Message.h"
#include "forms/TextBox.h"

namespace kordavan {

namespace {

class StrayWheelFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isStray = event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus();
        if (isStray) {
            event->ignore();
        }
        return isStray;
    }
};

}  // namespace

QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Text(const QString& text)
{
    return text.toStdString();
}

QString ArrayName(std::string_view array, std::size_t index)
{
    return Text(BoxName(array, index));
}

void Describe(QWidget& control, const ControlText& text)
{
    control.setObjectName(Text(text.Name));
    SetTip(control, text.Tip);
}

void SetTip(QWidget& control, std::string_view tip)
{
    control.setToolTip(Text(tip));
    const auto* const button = qobject_cast<QAbstractButton*>(&control);
    const bool hasCaption = button != nullptr && button->text().size() > 1;
    if (hasCaption) {
        control.setAccessibleDescription(Text(tip));
    } else {
        control.setAccessibleName(Text(tip));
    }
}

void IgnoreStrayWheel(QWidget& list)
{
    list.setFocusPolicy(Qt::StrongFocus);
    list.installEventFilter(new StrayWheelFilter(&list));
}

void KeepPlace(QWidget& control)
{
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

void LetFade(QWidget& control)
{
    constexpr double fadedOpacity = 0.45;
    auto* const effect = new QGraphicsOpacityEffect(&control);
    effect->setOpacity(fadedOpacity);
    effect->setEnabled(false);
    control.setGraphicsEffect(effect);
}

void Fade(QWidget& control, bool isFaded)
{
    control.graphicsEffect()->setEnabled(isFaded);
}

QLabel* MakeLabel(std::string_view caption)
{
    return new QLabel(Text(caption));
}

QLabel* MakeNamedLabel(std::string_view name, std::string_view caption)
{
    auto* const label = new QLabel(Text(caption));
    label->setObjectName(Text(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* MakeCaption(std::string_view caption, QWidget& box)
{
    auto* const label = new QLabel(Text(caption));
    label->setBuddy(&box);
    return label;
}

QPushButton* MakeButton(const ControlText& text, std::string_view caption)
{
    auto* const button = new QPushButton(Text(caption));
    Describe(*button, text);
    button->setAutoDefault(false);
    return button;
}

QCheckBox* MakeCheck(const ControlText& text, std::string_view caption)
{
    auto* const check = new QCheckBox(Text(caption));
    Describe(*check, text);
    return check;
}

QRadioButton* MakeOption(const ControlText& text, std::string_view caption)
{
    auto* const option = new QRadioButton(Text(caption));
    Describe(*option, text);
    return option;
}

void SetCaption(QAbstractButton& button, std::string_view caption)
{
    const QKeySequence keys = button.shortcut();
    button.setText(Text(caption));
    button.setShortcut(keys);
}

QToolButton* MakeCycle(const ControlText& text, const QKeySequence& keys)
{
    auto* const button = new QToolButton;
    Describe(*button, text);
    button->setText(QStringLiteral("\u21bb"));
    button->setShortcut(keys);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QLineEdit* MakeTextBox(const ControlText& text, int mostCharacters)
{
    auto* const box = new TextBox;
    Describe(*box, text);
    box->setMaxLength(mostCharacters);
    return box;
}

QLabel* MakePanel(std::string_view name)
{
    QLabel* const panel = MakeNamedLabel(name);
    panel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    panel->setFocusPolicy(Qt::NoFocus);
    panel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return panel;
}

QLabel* MakeHeading(std::string_view caption)
{
    QLabel* const heading = MakeLabel(caption);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

QLabel* MakeColumnHead(std::string_view caption)
{
    QLabel* const head = MakeLabel(caption);
    head->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return head;
}

QFrame* MakeRule()
{
    auto* const rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    return rule;
}

bool IsDark(const QPalette& palette)
{
    constexpr float middle = 0.5F;
    return palette.color(QPalette::Window).lightnessF() < middle;
}

void PaintOverhang(QLineEdit& box, OverhangPaint paint)
{
    if (paint == OverhangPaint::None) {
        box.setPalette({});
        return;
    }
    QPalette palette;
    palette.setColor(QPalette::Base,
                     paint == OverhangPaint::Total ? QColor(0x00, 0x00, 0x80) : QColor(0x00, 0x00, 0xC0));
    palette.setColor(QPalette::Text, Qt::white);
    box.setPalette(palette);
}

void ChainTabStops(const std::vector<QWidget*>& order)
{
    QWidget* last = nullptr;
    const auto chain = [&last](QWidget* next) {
        if ((next->focusPolicy() & Qt::TabFocus) == 0 || next->focusProxy() != nullptr) {
            return;
        }
        if (last != nullptr) {
            QWidget::setTabOrder(last, next);
        }
        last = next;
    };
    for (QWidget* const part : order) {
        if (part->focusPolicy() != Qt::NoFocus) {
            chain(part);
            continue;
        }
        for (QWidget* const inner : part->findChildren<QWidget*>()) {
            const bool isInPopup = inner->window() != part->window();
            if (!isInPopup) {
                chain(inner);
            }
        }
    }
}

int DigitsWidth(const QWidget& widget, int digits)
{
    return digits * widget.fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

}  // namespace kordavan
