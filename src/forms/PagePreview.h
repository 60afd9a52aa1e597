#pragma once

#include <QWidget>

#include "forms/PagePicture.h"
#include "records/RecordPage.h"

namespace kordavan {

/// A page as it will print, black on white, as large as its room.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    PagePreview();

    void Show(const RecordPage& newPage, const PagePicture& newPicture, const QString& fontFamily);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    RecordPage page;
    PagePicture picture;
    QString family;
};

}  // namespace kordavan
