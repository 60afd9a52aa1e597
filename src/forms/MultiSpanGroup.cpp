#include "forms/MultiSpanGroup.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "design/LoadingConditions.h"

namespace kordavan {

namespace {

enum Column { TwoColumn, ThreeColumn, HelpColumn, RestColumn };
enum Line { TextLine, OptionLine, NoteLine, LineCount };

constexpr std::string_view HowToEnter =
    "All spans are EQUAL in length with a continuous uniform load. Enter load magnitude at  'Uniform Load' "
    "at left. Enter ONE SPAN length under 'BeamSpan in feet' above.";

}  // namespace

MultiSpanGroup::MultiSpanGroup(const GroupContext& context)
    : EntryGroup(context, "MultiFrame", "Two or three equal spans")
{
    BeamProblem& problem = context.Beam.Problem;
    QLabel* const text = MakeNamedLabel("MultiFrameText", HowToEnter);
    text->setWordWrap(true);
    QRadioButton* const two =
        MakeOption({.Name = "TwoSpan", .Tip = "The beam runs over three supports"}, "Two equal spans");
    QRadioButton* const three =
        MakeOption({.Name = "ThreeSpan", .Tip = "The beam runs over four supports"}, "Three equal spans");
    auto* const options = new QButtonGroup(this);
    options->addButton(two);
    options->addButton(three);
    context.Boxes.BindOption(*two, problem.ThreeSpan, false);
    context.Boxes.BindOption(*three, problem.ThreeSpan, true);
    equalReactions = MakeNamedLabel("EqualReactions");
    QPushButton* const cancel =
        MakeButton({.Name = "CancelMultiSpan", .Tip = "Back to a simple span (Alt+6)"}, "Cancel");
    cancel->setShortcut(QKeySequence(Qt::ALT | Qt::Key_6));
    connect(cancel, &QPushButton::clicked, this, [this] {
        Change([](Session& session) { SwitchSupport(session, SupportCondition::SimpleSpan); });
    });
    Grid().addWidget(text, TextLine, TwoColumn, 1, RestColumn + 1);
    Grid().addWidget(two, OptionLine, TwoColumn);
    Grid().addWidget(three, OptionLine, ThreeColumn);
    Grid().addWidget(AddHelp("Command3D31", {"TwoSpan", "ThreeSpan"}), OptionLine, HelpColumn);
    Grid().addWidget(equalReactions, NoteLine, TwoColumn, 1, HelpColumn);
    Grid().addWidget(cancel, NoteLine, RestColumn, Qt::AlignRight);
    Grid().setColumnStretch(RestColumn, 1);
    Grid().setRowStretch(LineCount, 1);
}

void MultiSpanGroup::ShowScreen(const CriteriaScreen& screen)
{
    equalReactions->setText(Text(screen.EqualReactions));
}

}  // namespace kordavan
