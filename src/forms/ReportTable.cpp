#include "forms/ReportTable.h"

#include <QGridLayout>
#include <QLabel>

#include "forms/HelpButton.h"
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
    PercentColumn,
    BarColumn,
    HelpColumn
};

constexpr int FigureDigits = 9;
constexpr int PercentDigits = 6;
constexpr int StatusDigits = 6;

struct RowNames {
    std::string_view Caption;
    std::string_view Critical;
    std::string_view Actual;
    std::string_view Unit;
    std::string_view Status;
    std::string_view Percent;
    std::string TestReport::*StatusText;
    std::string TestReport::*PercentText;
};

constexpr std::array<RowNames, ReportRowCount> Names{{
    {"Label7", "SectionReq", "SectionProp", "in\u00b3", "SecStatus", "SecPercent", &TestReport::SecStatus,
     &TestReport::SecPercent},
    {"Label8", "ShearReq", "ShearProp", "in\u00b2", "ShearStatus", "HorPercent", &TestReport::ShearStatus,
     &TestReport::HorPercent},
    {"Label9", "DeflReq", "DeflProp", "in.", "DeflStatus", "DeflPercent", &TestReport::DeflStatus,
     &TestReport::DeflPercent},
    {"Label12", "LDeflReq", "LDeflProp", "in.", "LDeflStatus", "LDeflPercent", &TestReport::LDeflStatus,
     &TestReport::LDeflPercent},
    {"Label13", "OHDeflReq", "OHDeflProp", "in.", "OHDeflStatus", "OHDeflPercent", &TestReport::OHDeflStatus,
     &TestReport::OHDeflPercent},
    {"Label14", "OHLDeflReq", "OHLDeflProp", "in.", "OHLDeflStatus", "OHLDeflPercent",
     &TestReport::OHLDeflStatus, &TestReport::OHLDeflPercent},
}};

int LineOf(std::size_t row)
{
    return static_cast<int>(row) + 1;
}

Sign SignOf(std::string_view status)
{
    if (status.empty()) {
        return Sign::None;
    }
    return status == StatusFail ? Sign::Fails : Sign::Passes;
}

}  // namespace

ReportTable::ReportTable(HelpButton* help) : grid(new QGridLayout(this))
{
    setObjectName(QStringLiteral("ReportTable"));
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(DigitsWidth(*this, 1));
    AddHeadings(help);
    for (std::size_t row = 0; row < ReportRowCount; ++row) {
        AddRow(row);
    }
    grid->setColumnMinimumWidth(CriticalColumn, DigitsWidth(*this, FigureDigits));
    grid->setColumnMinimumWidth(ActualColumn, DigitsWidth(*this, FigureDigits));
    grid->setColumnMinimumWidth(StatusColumn, DigitsWidth(*this, StatusDigits));
    grid->setColumnMinimumWidth(PercentColumn, DigitsWidth(*this, PercentDigits));
}

void ReportTable::Show(const TestReport& report)
{
    for (std::size_t index = 0; index < ReportRowCount; ++index) {
        const Row& row = rows[index];
        const std::string& status = report.*Names[index].StatusText;
        const std::string& percent = report.*Names[index].PercentText;
        const bool fails = status == StatusFail;
        row.PassSign->Show(SignOf(status));
        PaintStatus(*row.Status, fails);
        row.Bar->Show(RatioOf(percent), fails);
        NameFigures(row);
        row.Caption->setVisible(!status.empty());
        row.Unit->setVisible(!status.empty());
    }
}

/// Tells assistive tools which figure of which row they read.
void ReportTable::NameFigures(const Row& row)
{
    const QString caption = row.Caption->text();
    row.Critical->setAccessibleDescription(QStringLiteral("%1, critical").arg(caption));
    row.Actual->setAccessibleDescription(QStringLiteral("%1, actual").arg(caption));
    row.Status->setAccessibleDescription(QStringLiteral("%1, status").arg(caption));
    row.Percent->setAccessibleDescription(QStringLiteral("%1, ratio").arg(caption));
    row.Bar->setAccessibleName(QStringLiteral("%1, ratio").arg(caption));
    row.Bar->setAccessibleDescription(row.Percent->text());
}

void ReportTable::AddHeadings(HelpButton* help)
{
    constexpr std::array headings{std::pair{"Critical", CriticalColumn}, std::pair{"Actual", ActualColumn},
                                  std::pair{"Ratio", PercentColumn}};
    for (const auto& [caption, column] : headings) {
        grid->addWidget(MakeHeading(caption), 0, column, Qt::AlignRight);
    }
    grid->addWidget(MakeHeading("Status"), 0, StatusColumn, Qt::AlignLeft);
    grid->addWidget(help, 0, BarColumn, Qt::AlignLeft);
}

QLabel* ReportTable::AddText(std::string_view name, int line, int column, Qt::Alignment alignment)
{
    QLabel* const label = MakeNamedLabel(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAlignment(alignment | Qt::AlignVCenter);
    grid->addWidget(label, line, column);
    return label;
}

void ReportTable::AddRow(std::size_t index)
{
    const RowNames& names = Names[index];
    const int line = LineOf(index);
    const QString status = Text(names.Status);
    Row& row = rows[index];
    row.Caption = AddText(names.Caption, line, CaptionColumn, Qt::AlignLeft);
    row.Critical = AddText(names.Critical, line, CriticalColumn, Qt::AlignRight);
    row.Actual = AddText(names.Actual, line, ActualColumn, Qt::AlignRight);
    row.Unit = MakeLabel(names.Unit);
    row.Unit->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row.PassSign = new StatusSign(status + QStringLiteral("Sign"));
    row.Bar = new RatioBar(status + QStringLiteral("Bar"));
    grid->addWidget(row.Unit, line, UnitColumn);
    grid->addWidget(row.PassSign, line, SignColumn, Qt::AlignVCenter);
    row.Status = AddText(names.Status, line, StatusColumn, Qt::AlignLeft);
    row.Percent = AddText(names.Percent, line, PercentColumn, Qt::AlignRight);
    grid->addWidget(row.Bar, line, BarColumn, Qt::AlignVCenter);
    KeepPlace(*row.Caption);
    KeepPlace(*row.Unit);
}

}  // namespace kordavan
