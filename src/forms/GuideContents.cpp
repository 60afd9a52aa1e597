#include "forms/GuideContents.h"

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include "forms/GuidePages.h"
#include "forms/Kit.h"

namespace kordavan {

namespace {

/// Links of the list below the heading; those in running text are no contents.
GuideEntry EntryOf(const QTextBlock& block)
{
    if (block.blockFormat().headingLevel() > 1) {
        return {.Title = block.text(), .Link = {}};
    }
    if (block.textList() != nullptr) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isAnchor()) {
                return {.Title = part.fragment().text(), .Link = format.anchorHref()};
            }
        }
    }
    return {};
}

}  // namespace

QList<GuideEntry> ReadGuideContents()
{
    const QString first = Text(LinkOf(GuidePage::Contents));
    QFile file(QStringLiteral(":/guide/") + first);
    QTextDocument page;
    if (file.open(QIODevice::ReadOnly)) {
        page.setMarkdown(QString::fromUtf8(file.readAll()));
    }
    QList<GuideEntry> entries{{.Title = page.begin().text(), .Link = first}};
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        const GuideEntry entry = EntryOf(block);
        if (!entry.Title.isEmpty()) {
            entries.append(entry);
        }
    }
    return entries;
}

}  // namespace kordavan
