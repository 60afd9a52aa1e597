#include "forms/EntryGroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include "forms/Form.h"

namespace kordavan {

EntryGroup::EntryGroup(const GroupContext& context, std::string_view name, std::string_view heading)
    : QGroupBox(Text(heading)), shared(context), grid(new QGridLayout(this))
{
    setObjectName(Text(name));
    constexpr int tight = 3;
    grid->setVerticalSpacing(tight);
    grid->setHorizontalSpacing(2 * tight);
}

/// The heading is bold; a bold font of the group would make its boxes bold too.
void EntryGroup::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    option.fontMetrics = QFontMetrics(bold);
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

NumericBox* EntryGroup::AddNumber(const ControlText& text, int digits, std::string& bound)
{
    const std::string_view ruleName = text.Name.substr(0, text.Name.find('['));
    auto* const box = new NumericBox(text, digits, FindEntryRule(ruleName), shared.Numbers);
    shared.Boxes.Bind(*box, bound);
    return box;
}

NumericBox* EntryGroup::AddNumber(std::string_view array, std::size_t index, std::string_view tip, int digits,
                                  std::string& bound)
{
    const std::string name = BoxName(array, index);
    return AddNumber({.Name = name, .Tip = tip}, digits, bound);
}

QCheckBox* EntryGroup::AddCheck(const ControlText& text, std::string_view caption, bool& bound)
{
    QCheckBox* const check = MakeCheck(text, caption);
    shared.Boxes.Bind(*check, bound);
    return check;
}

HelpButton* EntryGroup::AddHelp(std::string_view button, std::initializer_list<std::string_view> boxes)
{
    return shared.Owner.MakeHelp(*FindCriteriaHelp(button), boxes);
}

QPushButton* EntryGroup::AddCommand(const ControlText& text, std::string_view caption,
                                    const SessionChange& change)
{
    QPushButton* const button = MakeButton(text, caption);
    connect(button, &QPushButton::clicked, this, [this, change] { Edit(change); });
    return button;
}

Outcome EntryGroup::Edit(const SessionChange& change)
{
    return shared.Apply(
        [&change](Session& session, UserPort& user) { return ChangeEntries(session, user, change); });
}

void EntryGroup::Change(const std::function<void(Session&)>& change)
{
    Edit([&change](Session& session, UserPort& /*user*/) {
        change(session);
        return Outcome::Done;
    });
}

}  // namespace kordavan
