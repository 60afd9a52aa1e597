#include "forms/PartialLoadGroup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "design/LoadPicture.h"
#include "design/LoadTools.h"
#include "design/LoadingConditions.h"

namespace kordavan {

namespace {

enum PartialBox { LiveBox, TotalBox, BeginBox, EndBox };

constexpr std::string_view StartTip = "Start of the load, feet from R1; 0 on the support";
constexpr std::string_view EndTip = "End of the load, feet from R1";
constexpr std::string_view OverhangStartTip = "Start of the load, feet from R2, on the overhang";
constexpr std::string_view OverhangEndTip = "End of the load, feet from R2, on the overhang";

}  // namespace

PartialLoadGroup::PartialLoadGroup(const GroupContext& context)
    : LoadTable(context, "Frame3D5", "Partial uniform loads")
{
    AddRows();
    QPushButton* const open = MakeButton(
        {.Name = "CalcPSFPartial", .Tip = "Enter these loads as psf times lengths (Alt+8)"}, "Calc PSF");
    open->setShortcut(QKeySequence(Qt::ALT | Qt::Key_8));
    connect(open, &QPushButton::clicked, this, &PartialLoadGroup::CalculatorAsked);
    auto* const line = new QHBoxLayout;
    line->addWidget(open);
    line->addStretch(1);
    line->addWidget(AddHelp("Command3D16", {"LPT", "PT", "DIS", "LPAR", "PAR", "BEGP", "ENDP", "UBSpan",
                                            "UBOH", "CalcPSFPartial"}));
    Grid().addLayout(line, LineOf(PartialSlotCount), 1, 1, Grid().columnCount() - 1);
    Grid().setRowStretch(LineOf(PartialSlotCount) + 1, 1);
}

void PartialLoadGroup::ShowScreen(const CriteriaScreen& screen)
{
    for (std::size_t k = FirstOverhangPartial; k < PartialSlotCount; ++k) {
        const bool isOver = screen.HasOverhang;
        for (NumericBox* const box : rows[k].Boxes) {
            PaintOverhang(*box, isOver ? OverhangPaint::Total : OverhangPaint::None);
        }
        PaintOverhang(*rows[k].Boxes[LiveBox], isOver ? OverhangPaint::Live : OverhangPaint::None);
        const std::string letter = std::string(1, PartialLetter(k)) + ": ";
        SetTip(*rows[k].Boxes[BeginBox], letter + std::string(isOver ? OverhangStartTip : StartTip));
        SetTip(*rows[k].Boxes[EndBox], letter + std::string(isOver ? OverhangEndTip : EndTip));
        rows[k].Tag->setVisible(isOver);
    }
}

void PartialLoadGroup::AddRows()
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    AddHeadings({"LL plf", "LL+DL plf", "start ft", "end ft"});
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        const std::vector<NumericBox*> boxes =
            AddRow(PartialLetter(k), k,
                   {{"LPAR", "Live partial uniform load, plf", LoadDigits, &loads.LPAR[k]},
                    {"PAR", "Total partial uniform load, live and dead, plf", LoadDigits, &loads.PAR[k]},
                    {"BEGP", StartTip, DistanceDigits, &loads.BEGP[k]},
                    {"ENDP", EndTip, DistanceDigits, &loads.ENDP[k]}},
                   ClearPartialRow);
        AddLetter(BoxName("Labl21", k), PartialLetter(k), k, ClearPartialRow);
        rows[k] = {.Boxes = {boxes[LiveBox], boxes[TotalBox], boxes[BeginBox], boxes[EndBox]},
                   .Tag = nullptr};
        if (k >= FirstOverhangPartial) {
            rows[k].Tag = AddOverhangTag(k);
        }
    }
    MakeTableClearable(ClearPartialLoads);
}

PartialCalculator::PartialCalculator(const GroupContext& context)
    : LoadTable(context, "FramePSF", "PSF times tributary length")
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    AddHeadings({"LL psf", "LL+DL psf", "ft"});
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        const std::vector<NumericBox*> boxes =
            AddRow(PartialLetter(k), k,
                   {{"LPSF", "Live area load, psf", LoadDigits, &loads.LPSF[k]},
                    {"PSF", "Total area load, live and dead, psf", LoadDigits, &loads.PSF[k]},
                    {"TribPSF", "Tributary length, feet", DistanceDigits, &loads.TribPSF[k]}},
                   ClearPartialCalculatorRow);
        if (k == 0) {
            first = boxes.front();
        }
    }
    MakeTableClearable(ClearPartialCalculatorRows);
    insert = MakeButton(
        {.Name = "Command3D21", .Tip = "Psf times lengths into the partial loads, and close (Alt+9)"},
        "Multiply and Insert");
    insert->setShortcut(QKeySequence(Qt::ALT | Qt::Key_9));
    connect(insert, &QPushButton::clicked, this, [this] {
        const auto products = [](Session& session, UserPort& user) {
            return InsertPartialLoads(session.Problem, user);
        };
        if (Edit(products) == Outcome::Done) {
            PutAway();
        }
    });
    QPushButton* const clear =
        MakeButton({.Name = "Command3D22", .Tip = "Empty this calculator, and close (Alt+0)"}, "Clear");
    clear->setShortcut(QKeySequence(Qt::ALT | Qt::Key_0));
    connect(clear, &QPushButton::clicked, this, [this] {
        Change([](Session& session) { ClearPartialCalculator(session.Problem); });
        PutAway();
    });
    auto* const line = new QHBoxLayout;
    line->addWidget(insert);
    line->addWidget(clear);
    line->addWidget(AddHelp("Command3D24", {"LPSF", "PSF", "TribPSF", "Command3D21", "Command3D22"}));
    Grid().addLayout(line, LineOf(PartialSlotCount), 0, 1, Grid().columnCount());
    Grid().setRowStretch(LineOf(PartialSlotCount) + 1, 1);
    KeepPlace(*this);
    hide();
}

void PartialCalculator::Open()
{
    show();
    first->setFocus();
    Q_EMIT Opened();
}

void PartialCalculator::PutAway()
{
    hide();
    Q_EMIT Closed();
}

}  // namespace kordavan
