#include "forms/SteelChecks.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <optional>

#include "design/TestReport.h"
#include "forms/Kit.h"
#include "forms/RatioBar.h"
#include "forms/StatusColor.h"
#include "forms/StatusSign.h"

namespace kordavan {

namespace {

enum Column {
    CaptionColumn,
    CriticalColumn,
    ActualColumn,
    UnitColumn,
    SignColumn,
    StatusColumn,
    RatioColumn,
    BarColumn
};

constexpr int CaptionDigits = 20;
constexpr int FigureDigits = 10;
constexpr int StatusDigits = 6;
constexpr int BarDigits = 40;

/// The texts of a check by their meaning in the report, and the names of the panels that show them.
struct CheckNames {
    std::string_view Caption;
    std::string_view Unit;
    std::string_view Critical;
    std::string_view CriticalPanel;
    std::string_view Actual;
    std::string_view ActualPanel;
    std::string_view Status{};
    std::string_view StatusPanel{};
    std::string_view Ratio{};
    std::string_view RatioPanel{};
};

constexpr std::array<CheckNames, SteelChecks::CheckCount> Names{{
    {"Slenderness KL/r", "", "KL/r critical", "StlKLrCritical", "KL/r actual", "StlKLrActual", "KL/r status",
     "StlKLrStatus", "KL/r ratio", "StlKLrRatio"},
    {"Axial stress", "ksi", "stress critical", "StlStressCritical", "stress actual", "StlStressActual"},
    {"Area", "in\u00b2", "area required", "StlAreaRequired", "area actual", "StlAreaActual", "area status",
     "StlAreaStatus", "area ratio", "StlAreaRatio"},
}};

int LineOf(std::size_t index)
{
    return static_cast<int>(index) + 1;
}

}  // namespace

std::string SteelTextOf(const std::vector<SteelReportLine>& texts, std::string_view name)
{
    const auto found = std::find_if(texts.begin(), texts.end(),
                                    [name](const SteelReportLine& line) { return line.Name == name; });
    return found == texts.end() ? std::string{} : found->Text;
}

SteelChecks::SteelChecks() : grid(new QGridLayout(this))
{
    setObjectName(QStringLiteral("SteelChecks"));
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(DigitsWidth(*this, 1));
    grid->setColumnMinimumWidth(CaptionColumn, DigitsWidth(*this, CaptionDigits));
    AddHeadings();
    for (std::size_t index = 0; index < CheckCount; ++index) {
        AddRow(index);
    }
    for (const Column column : {CriticalColumn, ActualColumn, RatioColumn}) {
        grid->setColumnMinimumWidth(column, DigitsWidth(*this, FigureDigits));
    }
    grid->setColumnMinimumWidth(StatusColumn, DigitsWidth(*this, StatusDigits));
    grid->setColumnStretch(BarColumn + 1, 1);
}

void SteelChecks::Show(const SteelColumnTest& test, const std::vector<SteelReportLine>& texts)
{
    const std::array passes{test.Result.SlendernessPasses, true, test.Result.AreaPasses};
    for (std::size_t index = 0; index < CheckCount; ++index) {
        const Row& row = rows[index];
        const CheckNames& names = Names[index];
        row.Critical->setText(Text(SteelTextOf(texts, names.Critical)));
        row.Actual->setText(Text(SteelTextOf(texts, names.Actual)));
        if (names.Status.empty()) {
            continue;
        }
        const std::string ratio = SteelTextOf(texts, names.Ratio);
        row.PassSign->Show(passes[index] ? Sign::Passes : Sign::Fails);
        row.Status->setText(Text(SteelTextOf(texts, names.Status)));
        PaintStatus(*row.Status, !passes[index]);
        row.Ratio->setText(Text(ratio));
        row.Bar->Show(RatioOf(ratio), !passes[index]);
        row.Bar->setAccessibleDescription(Text(ratio));
    }
}

void SteelChecks::AddHeadings()
{
    grid->addWidget(MakeHeading("Checks"), 0, CaptionColumn);
    grid->addWidget(MakeHeading("Critical"), 0, CriticalColumn, Qt::AlignRight);
    grid->addWidget(MakeHeading("Actual"), 0, ActualColumn, Qt::AlignRight);
    grid->addWidget(MakeHeading("Status"), 0, StatusColumn, Qt::AlignLeft);
    grid->addWidget(MakeHeading("Ratio"), 0, RatioColumn, Qt::AlignRight);
}

/// A check without a status of its own has neither sign nor ratio.
void SteelChecks::AddRow(std::size_t index)
{
    const CheckNames& names = Names[index];
    const std::string caption(names.Caption);
    const int line = LineOf(index);
    grid->addWidget(MakeLabel(names.Caption), line, CaptionColumn);
    grid->addWidget(MakeLabel(names.Unit), line, UnitColumn);
    Row& row = rows[index];
    row.Critical = AddFigure(names.CriticalPanel, caption + ", critical", line, CriticalColumn);
    row.Actual = AddFigure(names.ActualPanel, caption + ", actual", line, ActualColumn);
    if (names.Status.empty()) {
        return;
    }
    row.Status = AddFigure(names.StatusPanel, caption + ", status", line, StatusColumn);
    row.Status->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    row.Ratio = AddFigure(names.RatioPanel, caption + ", ratio", line, RatioColumn);
    row.PassSign = new StatusSign(Text(names.StatusPanel) + QStringLiteral("Sign"));
    row.Bar = new RatioBar(Text(names.RatioPanel) + QStringLiteral("Bar"));
    row.Bar->setMinimumWidth(DigitsWidth(*this, BarDigits));
    row.Bar->setAccessibleName(Text(caption + ", ratio"));
    grid->addWidget(row.PassSign, line, SignColumn, Qt::AlignVCenter);
    grid->addWidget(row.Bar, line, BarColumn, Qt::AlignVCenter);
}

QLabel* SteelChecks::AddFigure(std::string_view name, std::string_view description, int line, int column)
{
    QLabel* const figure = MakeNamedLabel(name);
    figure->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure->setAccessibleDescription(Text(description));
    grid->addWidget(figure, line, column);
    return figure;
}

}  // namespace kordavan
