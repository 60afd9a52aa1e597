#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include "design/LoadDiagram.h"

namespace kordavan {

/// A load diagram as a picture for other documents: all parts under a heading, always dark on white.
class DiagramSheet {
public:
    /// @param theDiagram  not empty; must outlive the sheet
    DiagramSheet(const LoadDiagram& theDiagram, QString theHeading);

    QImage Image() const;
    QByteArray Png() const;
    QByteArray Svg() const;

private:
    void Paint(QPaintDevice& device) const;

    const LoadDiagram& diagram;
    QString heading;
};

}  // namespace kordavan
