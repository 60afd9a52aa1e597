#include "forms/EditionGroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include "records/DefaultsFile.h"

namespace kordavan {

namespace {

struct EditionOption {
    Edition Value;
    std::string_view Name;
    std::string_view Caption;
};

constexpr std::array EditionOptions{
    EditionOption{Edition::Nds1997, "OptionNDS97", "NDS 1&997"},
    EditionOption{Edition::Nds2001, "OptionNDS91", "NDS 2&001"},
    EditionOption{Edition::Nds2005, "OptionNDS05", "NDS 200&5"},
    EditionOption{Edition::Nds2012, "OptionNDS12", "NDS 201&2"},
    EditionOption{Edition::Nds2015, "OptionNDS15", "NDS 20&15"},
    EditionOption{Edition::Nds2018, "OptionNDS18", "NDS 201&8"},
};

static_assert(EditionOptions.size() == EditionOptionCount);

constexpr std::string_view OptionTip =
    "Design by this edition from now on; saving keeps it for the next start";
constexpr std::string_view HowToChangeForNow =
    "To temporarily change the NDS edition, select year above, and then select Close.";

}  // namespace

EditionGroup::EditionGroup(const GroupContext& context)
    : EntryGroup(context, "EditionGroup", "NDS edition"),
      ingrade(MakeCheck({.Name = "defINGRADE", .Tip = "On is 91 NDS, Off is 97 NDS."}, "In-grade values"))
{
    AddOptions();
    AddAdvice();
    ingrade->setParent(this);
    ingrade->hide();
}

/// Left to itself, Tab would first come to the first option instead of the chosen one.
void EditionGroup::SetEdition(Edition now)
{
    edition = now;
    ingrade->setChecked(now != Edition::Nds1997);
    for (std::size_t k = 0; k < options.size(); ++k) {
        const bool isStop = now == Edition::None || now == EditionOptions[k].Value;
        options[k]->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void EditionGroup::AddOptions()
{
    for (std::size_t k = 0; k < options.size(); ++k) {
        const EditionOption& row = EditionOptions[k];
        options[k] = MakeOption({.Name = row.Name, .Tip = OptionTip}, row.Caption);
        choice.addButton(options[k]);
        Shared().Boxes.ShowOption(*options[k], edition, row.Value);
        connect(options[k], &QRadioButton::clicked, this, [this, value = row.Value] { Choose(value); });
        Grid().addWidget(options[k], static_cast<int>(k), 0);
    }
}

void EditionGroup::AddAdvice()
{
    QLabel* const advice = MakeNamedLabel("Label10", HowToChangeForNow);
    advice->setWordWrap(true);
    constexpr int adviceDigits = 24;
    advice->setMinimumWidth(DigitsWidth(*advice, adviceDigits));
    const int gapLine = Grid().rowCount();
    Grid().setRowMinimumHeight(gapLine, advice->fontMetrics().height() / 2);
    Grid().addWidget(advice, gapLine + 1, 0, Qt::AlignTop);
    Grid().setRowStretch(gapLine + 1, 1);
}

/// The edition in force chosen again is no change, and so withdraws nothing.
void EditionGroup::Choose(Edition chosen)
{
    if (chosen == edition) {
        return;
    }
    Shared().Apply([chosen](Session& session, UserPort& /*user*/) {
        ChooseEdition(session, chosen);
        return Outcome::Done;
    });
}

}  // namespace kordavan
