#pragma once

#include <QWidget>
#include <optional>

#include "design/LoadPicture.h"
#include "records/RecordPage.h"

namespace kordavan {

/// A page as it will print, black on white, as large as its room.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    PagePreview();

    void Show(const RecordPage& newPage, const std::optional<LoadPicture>& newLoads,
              const QString& fontFamily);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    RecordPage page;
    std::optional<LoadPicture> loads;
    QString family;
};

}  // namespace kordavan
