#pragma once

#include <QWidget>
#include <vector>

#include "forms/PagePicture.h"
#include "records/RecordPage.h"

class QLabel;

namespace kordavan {

/// A record's page on the screen: its cells are labels that can be selected and copied, laid out as on paper
/// and enlarged with the window up to a limit.
class RecordSheet : public QWidget {
    Q_OBJECT

public:
    RecordSheet();

    /// @param newPicture  for the page's diagram
    void Show(const RecordPage& newPage, const PagePicture& newPicture, const QString& fontFamily);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Cell {
        QLabel* Shown;
        const PageText* Text;
    };

    void MakeCells();
    void PlaceCells();
    void PaintCell(const Cell& cell) const;
    double Scale(int width) const;
    QRectF Sheet() const;

    RecordPage page;
    PagePicture picture;
    QString family;
    std::vector<Cell> cells;
};

}  // namespace kordavan
