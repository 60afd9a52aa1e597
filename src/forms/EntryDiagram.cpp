#include "forms/EntryDiagram.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "forms/DiagramPainter.h"

namespace kordavan {

namespace {

// The tags are the captions of the boxes on the criteria form; a load tells its shape, begin, end, row and
// the place of its tag, a distance its ends and row.

constexpr std::array SimpleLoads{
    DiagramLoad{DiagramShape::Bar, 0.00, 1.00, 0, 0.13, "A: LL, LL+DL plf"},
    DiagramLoad{DiagramShape::Bar, 0.50, 0.82, 1, 0.66, "H: LL, LL+DL plf"},
    DiagramLoad{DiagramShape::Arrow, 0.30, 0.30, 0, 0.30, "B: LL, LL+DL lbs"},
};

constexpr std::array SimpleDistances{
    DiagramDistance{0.00, 0.30, 0, "B: at ft"},
    DiagramDistance{0.00, 0.50, 1, "H: start ft"},
    DiagramDistance{0.00, 0.82, 2, "H: end ft"},
    DiagramDistance{0.00, 1.00, 3, "Beam Span in feet"},
};

constexpr double OverhangR2 = 0.60;

constexpr std::array OverhangLoads{
    DiagramLoad{DiagramShape::Bar, 0.00, OverhangR2, 0, 0.10, "A: LL, LL+DL plf"},
    DiagramLoad{DiagramShape::Bar, 0.34, 0.52, 1, 0.43, "H: LL, LL+DL plf"},
    DiagramLoad{DiagramShape::Bar, 0.82, 1.00, 0, 0.91, "K: LL, LL+DL plf", true},
    DiagramLoad{DiagramShape::Arrow, 0.22, 0.22, 0, 0.22, "B: LL, LL+DL lbs"},
    DiagramLoad{DiagramShape::Arrow, 0.74, 0.74, 0, 0.74, "F: LL, LL+DL lbs", true},
};

constexpr std::array OverhangDistances{
    DiagramDistance{0.00, 0.22, 0, "B: at ft"},
    DiagramDistance{0.00, 0.34, 1, "H: start ft"},
    DiagramDistance{0.00, 0.52, 2, "H: end ft"},
    DiagramDistance{0.00, OverhangR2, 3, "Beam Span in feet"},
    DiagramDistance{OverhangR2, 0.74, 0, "F: at ft", true},
    DiagramDistance{OverhangR2, 0.82, 1, "K: start ft", true},
    DiagramDistance{OverhangR2, 1.00, 2, "K: end ft", true},
};

constexpr std::array HipLoads{
    DiagramLoad{DiagramShape::Bar, 0.00, 1.00, 0, 0.50, "Uniform load beside it, plf: LL, LL+DL"},
    DiagramLoad{DiagramShape::Rising, 0.00, 1.00, 1, 0.40, "Roof load, psf: LL, LL+DL"},
};

constexpr std::array HipDistances{
    DiagramDistance{0.00, 1.00, 0, "Beam Span in feet"},
};

constexpr PlanDiagram HipPlan{"side 1 ft", "side 2 ft", "1/4", {true, false, false, true}};

/// What differs from one support condition to another.
struct DiagramContent {
    std::string_view Form;
    std::string_view Title;
    std::string_view Description;  // the picture in words
    std::string_view Lines;
    BeamDiagram Beam;
    const PlanDiagram* Plan;  // at the left of the beam; none without a roof
};

constexpr DiagramContent SimpleContent{
    "Form9",
    "Entering Loads: Simple Span",
    "A beam from R1 to R2, the beam span in feet. Load A, uniform over the whole span: LL and LL+DL in plf. "
    "Load B, a point load: LL and LL+DL in lbs, at so many feet from R1. Load H, a partial uniform load: LL "
    "and LL+DL in plf, from its start to its end, both in feet from R1.",
    "LL+DL is the whole load, LL the live part of it, hatched here. LL may stay empty.\n"
    "Distances are feet and decimals, measured from R1: 13 ft 3 in. is 13.25.\n"
    "Point loads have the letters B to G, partial uniform loads H to L.\n"
    "A partial load that begins on the support R1 needs a start of 0.\n"
    "The weight of the beam is added by itself; leave it out of the loads.",
    {1, 2, SimpleLoads, SimpleDistances},
    nullptr};

constexpr DiagramContent OverhangContent{
    "Form16",
    "Entering Loads: Overhanging",
    "A beam from R1 over R2 to the tip of its overhang. On the span, measured from R1: load A, uniform, LL "
    "and LL+DL in plf; point load B, LL and LL+DL in lbs, at ft; partial load H, LL and LL+DL in plf, start "
    "ft and end ft. On the overhang, measured from R2: point load F, LL and LL+DL in lbs, at ft; partial "
    "load K, LL and LL+DL in plf, start ft and end ft.",
    "Loads A to E and H to J stand on the span, measured from R1; F, G, K and L, the blue boxes, on the "
    "overhang, measured from R2.\n"
    "The overhang reaches as far as its farthest load; it needs at least one.\n"
    "A ends at R2: a uniform load on the overhang is a partial load, K or L. One that begins on the support "
    "needs a start of 0.\n"
    "LL+DL is the whole load, LL the live part of it, hatched here. LL may stay empty.\n"
    "The weight of the beam, overhang and all, is added by itself; leave it out of the loads.",
    {OverhangR2, 2, OverhangLoads, OverhangDistances},
    nullptr};

constexpr DiagramContent HipContent{
    "Form17",
    "Entering Loads: Hips and Valleys",
    "At the left the roof in plan, side 1 across and side 2 down, in feet, with a square to check on each "
    "of its quarters; the member runs along the diagonal from R1 at the lower left to R2 at the upper "
    "right. At the right the member from R1 to R2, the beam span in feet: the roof load, LL and LL+DL in "
    "psf, rises from nothing at R1 to its most at R2; under it stands the uniform load beside it, LL and "
    "LL+DL in plf.",
    "Enter the sides of the plan, and check the squares of the quarters that load the member.\n"
    "The load rises from nothing at R1 to its most at R2. A uniform load beside it may stay empty.\n"
    "With 'Span Auto-Calc' checked, the diagonal becomes the beam span.\n"
    "'Calculate Load' finds the equivalent uniform load, ETL, that stands for the rising one.\n"
    "LL+DL is the whole load, LL the live part of it, hatched here. The weight of the member is added by "
    "itself.",
    {1, 2, HipLoads, HipDistances},
    &HipPlan};

const DiagramContent& ContentOf(EntryDiagramKind kind)
{
    switch (kind) {
        case EntryDiagramKind::SimpleSpan:
            return SimpleContent;
        case EntryDiagramKind::Overhanging:
            return OverhangContent;
        case EntryDiagramKind::HipValley:
            return HipContent;
    }
    return SimpleContent;
}

}  // namespace

Diagram::Diagram(EntryDiagramKind diagramKind) : kind(diagramKind)
{
    const DiagramContent& content = ContentOf(kind);
    Describe(*this, {.Name = "Diagram"});
    setAccessibleName(Text(content.Title));
    setAccessibleDescription(Text(content.Description));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize Diagram::sizeHint() const
{
    constexpr int digits = 102;
    return {DigitsWidth(*this, digits), minimumSizeHint().height()};
}

QSize Diagram::minimumSizeHint() const
{
    constexpr int digits = 78;
    constexpr double least = 15;  // lines of text
    constexpr double margins = 2;
    const double lines = std::max(DiagramPainter::HeightOf(ContentOf(kind).Beam), least) + margins;
    return {DigitsWidth(*this, digits), static_cast<int>(lines * fontMetrics().height())};
}

void Diagram::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const DiagramContent& content = ContentOf(kind);
    const double margin = fontMetrics().height();
    QRectF area = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    if (content.Plan != nullptr) {
        constexpr double planShare = 0.42;
        QRectF plan = area;
        plan.setWidth(planShare * area.width());
        area.setLeft(plan.right());
        DiagramPainter(painter, plan, palette()).Draw(*content.Plan);
    }
    DiagramPainter(painter, area, palette()).Draw(content.Beam);
}

EntryDiagram::EntryDiagram(Walk& theWalk, EntryDiagramKind kind)
    : BesideForm(theWalk, ContentOf(kind).Form),
      close(MakeButton({.Name = "CmdClose", .Tip = "Close this diagram (Enter or Esc)"}, "&Close"))
{
    const DiagramContent& content = ContentOf(kind);
    setWindowTitle(Text(content.Title));
    AddHelpMenu(kind == EntryDiagramKind::HipValley ? GuidePage::Hips : GuidePage::Loads);
    Body().addWidget(new Diagram(kind), 1);
    for (const QString& line : Text(content.Lines).split(QLatin1Char('\n'))) {
        auto* const label = new QLabel(line);
        label->setWordWrap(true);
        Body().addWidget(label);
    }
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, [this] { CloseAsked(); });
    Foot().addStretch(1);
    Foot().addWidget(close);
}

QAbstractButton* EntryDiagram::DefaultCommand()
{
    return close;
}

}  // namespace kordavan
