#include "forms/OwnSectionGroup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QStackedWidget>

#include "design/OwnSelection.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

struct FamilyRow {
    bool CustomEntry::*Family;
    std::string_view Name;
    std::string_view Caption;
    std::string_view Tip;
};

constexpr std::array FamilyRows{
    FamilyRow{&CustomEntry::Wid2x, "Wid2x", "2x", "Dimension lumber 2 and 3 in. thick, and built-up 2x"},
    FamilyRow{&CustomEntry::Wid4x, "Wid4x", "4x", "Dimension lumber 4 in. thick"},
    FamilyRow{&CustomEntry::Wid6x, "Wid6x", "6x and timbers", "Timbers from 5 in. up, by half inches"},
    FamilyRow{&CustomEntry::WidGLB, "WidGLB", "Glu-lam", "Glu-lams of other combinations or laminations"},
    FamilyRow{&CustomEntry::WidGLBHDR, "WidGLBHDR", "Glu-lam header", "Glu-lam headers, 3-1/2 and 5-1/2 in."},
};

constexpr int DiameterDigits = 6;
constexpr int NoteDigits = 44;

}  // namespace

OwnSectionGroup::OwnSectionGroup(const GroupContext& context)
    : EntryGroup(context, "OwnSection", "Member"), faces(new QStackedWidget)
{
    faces->addWidget(MakeProductPage());
    faces->addWidget(MakeWoodPage());
    Grid().addWidget(faces, 0, 0);
}

void OwnSectionGroup::ShowScreen(const OwnScreen& screen)
{
    faces->setCurrentIndex(screen.IsComposite ? 0 : 1);
    products->setCurrentIndex(static_cast<int>(Shared().Beam.Entry.Product));
    makersLine->setText(Text(screen.LVLname));
    note->setText(Text(screen.boisenote));
    diameter->setEnabled(screen.IsRound);
    duration->setText(Text(screen.DurationText));
    duration->setVisible(screen.IsRound);
    for (QRadioButton* const family : families) {
        family->setEnabled(!screen.IsRound);
    }
    laminations->setEnabled(screen.HasLaminations);
}

QWidget* OwnSectionGroup::MakeProductPage()
{
    auto* const page = new QWidget;
    auto* const lines = new QGridLayout(page);
    lines->setContentsMargins(0, 0, 0, 0);
    products = new QComboBox;
    Describe(*products, {.Name = "Combo1", .Tip = "Product of composite lumber"});
    IgnoreStrayWheel(*products);
    for (const SclProduct& product : SclProducts()) {
        products->addItem(Text(product.Name));
    }
    connect(products, &QComboBox::activated, this, &OwnSectionGroup::ProductChosen);
    makersLine = MakeNamedLabel("LVLname");
    note = MakeNamedLabel("boisenote");
    note->setWordWrap(true);
    note->setMinimumWidth(DigitsWidth(*note, NoteDigits));
    note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lines->addWidget(MakeCaption("&Product", *products), 0, 0);
    lines->addWidget(products, 0, 1);
    lines->addWidget(makersLine, 1, 1);
    lines->addWidget(note, 2, 0, 1, 2);
    lines->setColumnStretch(1, 1);
    lines->setRowStretch(2, 1);
    return page;
}

QWidget* OwnSectionGroup::MakeWoodPage()
{
    auto* const page = new QWidget;
    auto* const lines = new QGridLayout(page);
    lines->setContentsMargins(0, 0, 0, 0);
    AddShapes(*lines);
    AddFamilies(*lines);
    lines->setColumnStretch(2, 1);
    lines->setRowStretch(static_cast<int>(FamilyRows.size()) + 1, 1);
    return page;
}

void OwnSectionGroup::AddShapes(QGridLayout& lines)
{
    CustomEntry& custom = Shared().Beam.Entry.Custom;
    auto* const shapes = new QButtonGroup(this);
    QRadioButton* const rectangular =
        MakeOption({.Name = "Rectoption", .Tip = "Sawn or glued, with a breadth and a depth"}, "Rectangular");
    QRadioButton* const round = MakeOption({.Name = "Roundoption", .Tip = "A pole or log"}, "Round");
    Shared().Boxes.BindOption(*rectangular, custom.Roundoption, false);
    Shared().Boxes.BindOption(*round, custom.Roundoption, true);
    shapes->addButton(rectangular);
    shapes->addButton(round);
    diameter = new NumericBox({.Name = "Diam", .Tip = "Diameter in inches"}, DiameterDigits, nullptr,
                              Shared().Numbers);
    Shared().Boxes.Bind(*diameter, custom.Diam);
    duration = MakeNamedLabel("DurationInForce");
    auto* const line = new QHBoxLayout;
    line->addWidget(round);
    line->addWidget(MakeCaption("diameter", *diameter));
    line->addWidget(diameter);
    line->addWidget(MakeLabel("in."));
    line->addStretch(1);
    lines.addWidget(rectangular, 0, 0);
    lines.addLayout(line, 0, 1, 1, 2);
    lines.addWidget(duration, 1, 1, 1, 2);
}

void OwnSectionGroup::AddFamilies(QGridLayout& lines)
{
    CustomEntry& custom = Shared().Beam.Entry.Custom;
    auto* const options = new QButtonGroup(this);
    for (std::size_t k = 0; k < FamilyRows.size(); ++k) {
        const FamilyRow& row = FamilyRows[k];
        families[k] = MakeOption({.Name = row.Name, .Tip = row.Tip}, row.Caption);
        options->addButton(families[k]);
        Shared().Boxes.ShowOption(*families[k], custom.*row.Family, true);
        connect(families[k], &QRadioButton::clicked, this, [this, family = row.Family] {
            Change([family](Session& session) { ChooseFamily(session.Entry, family); });
        });
        auto* const indented = new QHBoxLayout;
        constexpr int indent = 18;
        indented->addSpacing(indent);
        indented->addWidget(families[k]);
        lines.addLayout(indented, static_cast<int>(k) + 1, 0);
    }
    laminations = AddCheck({.Name = "SPG", .Tip = "Glu-lams of Southern Pine laminations, 1-3/8 in. each"},
                           "So. Pine laminations, 1-3/8 in.", custom.SPG);
    constexpr int glulamLine = 4;
    lines.addWidget(laminations, glulamLine, 1, 1, 2);
}

}  // namespace kordavan
