#include "forms/SteelDatabaseDialog.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "design/SteelTexts.h"
#include "forms/Kit.h"

namespace kordavan {

SteelDatabaseDialog::SteelDatabaseDialog(QWidget& owner, const std::vector<std::string_view>& names,
                                         const QString& current)
    : QDialog(&owner), list(new QListWidget)
{
    setObjectName(QStringLiteral("SteelDatabase"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Text(SteelScreenTexts::DatabaseTitle));
    Describe(*list,
             {.Name = "SteelSizes", .Tip = "Sizes of this shape; type the beginning of one to find it"});
    list->setFlow(QListView::TopToBottom);
    list->setWrapping(true);
    list->setResizeMode(QListView::Adjust);
    for (const std::string_view name : names) {
        list->addItem(Text(name));
    }
    constexpr int gapDigits = 3;
    list->setGridSize({list->sizeHintForColumn(0) + DigitsWidth(*this, gapDigits), list->sizeHintForRow(0)});
    const QList<QListWidgetItem*> found = list->findItems(current, Qt::MatchExactly);
    list->setCurrentItem(found.isEmpty() ? list->item(0) : found.first());

    auto* const buttons = new QDialogButtonBox;
    QPushButton* const take = buttons->addButton(QStringLiteral("&Take Size"), QDialogButtonBox::AcceptRole);
    Describe(*take, {.Name = "TakeSize", .Tip = "Writes the size into the box (Enter)"});
    take->setDefault(true);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &SteelDatabaseDialog::TakeCurrent);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(list, &QListWidget::itemDoubleClicked, this, &SteelDatabaseDialog::TakeCurrent);

    auto* const column = new QVBoxLayout(this);
    column->addWidget(list, 1);
    column->addWidget(buttons);
    constexpr int digitsWide = 106;
    constexpr int linesHigh = 26;
    const QSize roomy(DigitsWidth(*this, digitsWide), linesHigh * fontMetrics().height());
    resize(roomy.boundedTo(owner.screen()->availableSize()));
}

void SteelDatabaseDialog::TakeCurrent()
{
    const QListWidgetItem* const item = list->currentItem();
    if (item != nullptr) {
        Q_EMIT Taken(item->text());
    }
    close();
}

}  // namespace kordavan
