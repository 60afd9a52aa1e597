#include "forms/SupportGroup.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>

#include "design/LoadingConditions.h"

namespace kordavan {

namespace {

struct SupportRow {
    SupportCondition Support;
    std::string_view Option;
    std::string_view Caption;
    std::string_view Help;
    std::string_view Tip;
};

constexpr std::array SupportRows{
    SupportRow{SupportCondition::SimpleSpan, "SimpleSpanbutton", "&Simple Span", "Command3D1",
               "One span on two supports; choosing another condition clears all loads"},
    SupportRow{SupportCondition::Overhanging, "OHbutton", "O&verhanging (OH)", "Command3D2",
               "One span with an overhang past the support R2; choosing it clears all loads"},
    SupportRow{SupportCondition::HipValley, "IncButton", "Hips and Valle&ys", "Command3D10",
               "A simple span with a load rising from R1 to R2; choosing it clears all loads"},
    SupportRow{SupportCondition::MultipleSpans, "Multibutton", "M&ultiple Spans", "Command3D30",
               "Two or three equal spans under a uniform load; choosing it clears all loads"},
};

}  // namespace

SupportGroup::SupportGroup(const GroupContext& context)
    : EntryGroup(context, "SupportGroup", "Support condition")
{
    auto* const options = new QButtonGroup(this);
    int line = 0;
    for (const SupportRow& row : SupportRows) {
        QRadioButton* const option = MakeOption({.Name = row.Option, .Tip = row.Tip}, row.Caption);
        options->addButton(option);
        Shared().Boxes.ShowOption(*option, context.Beam.Problem.Support, row.Support);
        connect(option, &QRadioButton::clicked, this, [this, support = row.Support] {
            Change([support](Session& session) { SwitchSupport(session, support); });
        });
        Grid().addWidget(option, line, 0);
        Grid().addWidget(row.Support == SupportCondition::MultipleSpans
                             ? AddHelp(row.Help, {row.Option})
                             : MakeDiagramHelp(row.Help, row.Option, row.Support),
                         line, 1);
        ++line;
    }
    Grid().setRowStretch(line, 1);
    Grid().setColumnStretch(0, 1);
}

HelpButton* SupportGroup::MakeDiagramHelp(std::string_view name, std::string_view option,
                                          SupportCondition support)
{
    std::string_view topic = "Entering loads, simple span";
    if (support == SupportCondition::Overhanging) {
        topic = "Entering loads, overhanging";
    } else if (support == SupportCondition::HipValley) {
        topic = "Entering loads, hips and valleys";
    }
    auto* const help = new HelpButton(name, topic, {option});
    connect(help, &QToolButton::clicked, this, [this, support] { Q_EMIT DiagramAsked(support); });
    return help;
}

}  // namespace kordavan
