#include "forms/SelectionForm.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace kordavan {

void SelectionForm::BuildHeader(std::initializer_list<QWidget*> facts,
                                const std::array<std::string_view, 3>& loadNames)
{
    auto* const line = new QHBoxLayout;
    line->setSpacing(DigitsWidth(*this, 4));
    for (QWidget* const fact : facts) {
        line->addWidget(fact);
    }
    line->addStretch(1);
    for (std::size_t k = 0; k < loads.size(); ++k) {
        loads[k] = MakeNamedLabel(loadNames[k]);
        loads[k]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        line->addWidget(loads[k]);
    }
    Body().addLayout(line);
    Body().addWidget(MakeRule());
}

void SelectionForm::ShowLoads(std::string_view moment, std::string_view firstReaction,
                              std::string_view secondReaction)
{
    loads[0]->setText(Text(moment));
    loads[1]->setText(Text(firstReaction));
    loads[2]->setText(Text(secondReaction));
}

void SelectionForm::BuildOtherMenus(GuidePage page)
{
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"backmnu", "Back to the criteria (Esc)"}, "&Back", [this] { GoBack(); });
    AddCommand(goTo, {"MnuCriteria", "The entries of this beam"}, "&Criteria Form 1",
               [this] { TheWalk().Go(Screen::Criteria); });
    AddDiagramCommand(goTo);
    AddToolsMenu();
    AddHelpMenu(page);
}

bool SelectionForm::TakeNewAnalysis()
{
    const bool isNew = analysisShown != TheWalk().AnalysisCount;
    analysisShown = TheWalk().AnalysisCount;
    return isNew;
}

void SelectionForm::GoBack()
{
    TheWalk().Go(Screen::Criteria);
}

}  // namespace kordavan
