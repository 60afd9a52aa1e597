#pragma once

#include <QList>
#include <QString>

namespace kordavan {

/// A line of the contents of the guide: a page with its link, or the heading of a group, which has none.
struct GuideEntry {
    QString Title;
    QString Link;
};

/// The contents as the first page of the guide lists them.
QList<GuideEntry> ReadGuideContents();

}  // namespace kordavan
