#include "forms/FileDialog.h"

#include <QApplication>
#include <QFileDialog>

#include "forms/Kit.h"

namespace kordavan {

namespace {

/// "All Files (*.*)" would leave out files without a dot.
QString PatternOf(const QString& pattern)
{
    return pattern == QLatin1String("*.*") ? QStringLiteral("*.* *") : pattern;
}

QStringList FiltersOf(const FileDialogText& text)
{
    const QStringList parts = Text(text.Filters).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype k = 0; k + 1 < parts.size(); k += 2) {
        const QString caption = parts[k].section(QLatin1String(" ("), 0, 0);
        filters.append(QStringLiteral("%1 (%2)").arg(caption, PatternOf(parts[k + 1])));
    }
    return filters;
}

/// A name without an extension takes that of the filter, where it has one: "Pictures (*.png)".
void FollowFilter(QFileDialog& dialog, const QString& filter)
{
    const QString suffix = filter.section(QLatin1String("(*."), 1).chopped(1);
    if (!dialog.defaultSuffix().isEmpty() && !suffix.isEmpty() && !suffix.contains(QLatin1Char('*'))) {
        dialog.setDefaultSuffix(suffix);
    }
}

std::optional<std::string> Run(const FileDialogText& text, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(QApplication::activeWindow(), Text(text.Title));
    const QStringList filters = FiltersOf(text);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(text.SelectedFilter - 1));
    dialog.setDefaultSuffix(Text(text.DefaultExtension));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& filter) { FollowFilter(dialog, filter); });
    dialog.selectFile(Text(text.FileName));
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString file = dialog.selectedFiles().constFirst();
        const bool isPattern = file.contains(QLatin1Char('*'));
        if (!isPattern) {
            return Text(file);
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> AskFileToOpen(const FileDialogText& text)
{
    return Run(text, QFileDialog::AcceptOpen);
}

std::optional<std::string> AskFileToSave(const FileDialogText& text)
{
    return Run(text, QFileDialog::AcceptSave);
}

}  // namespace kordavan
