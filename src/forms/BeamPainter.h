#pragma once

#include <QColor>
#include <QPainter>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <vector>

#include "design/LoadPicture.h"

namespace kordavan {

/// Colours of a sketch, by the palette of the widget.
struct SketchColors {
    QColor Line;
    QColor Text;
    QColor Faint;
    QColor Load;
    QColor OverhangTotal;
    QColor OverhangLive;

    explicit SketchColors(const QPalette& palette);
};

/// Where a drawn load can be pointed at.
struct DrawnLoad {
    QRectF Area;
    PictureLoad Load;
};

/// What a sketch writes beside a load.
enum class LoadCaptions { LettersAndSizes, Letters };

/// Draws a beam with its supports and loads into a rectangle.
///
/// Distributed loads stand in rows over the beam, as high as their size asks beside the largest; point loads
/// are arrows down to the beam. The live part is hatched. A load without a place stands faded at the left
/// edge.
class BeamPainter {
public:
    /// Beside the drawn beam, in heights of a line of text.
    static constexpr double SideMargin = 3.5;

    BeamPainter(QPainter& painter, const QRectF& area, const SketchColors& colors,
                LoadCaptions captions = LoadCaptions::LettersAndSizes);

    std::vector<DrawnLoad> Draw(const LoadPicture& picture);

private:
    double Across(double feet) const;
    double RowHeight() const;
    int RowFor(double from, double to);

    void DrawBeam(const LoadPicture& picture);
    void DrawSupport(double x, int number);
    void DrawDimensions(const LoadPicture& picture);
    QRectF BarOf(const PictureLoad& load, int row) const;
    void DrawDistributed(const PictureLoad& load, int row);
    void Hatch(const QPolygonF& shape, const QColor& color);
    void DrawEquivalent(const LoadPicture& picture);
    void DrawPoint(const PictureLoad& load);
    QRectF ShaftOf(const PictureLoad& load) const;
    void DrawUnplaced(const PictureLoad& load);
    void DrawCaption(const PictureLoad& load, QPointF at);
    bool IsFree(const QRectF& where) const;
    QRectF FreePlace(const QRectF& wanted) const;
    QColor ColorOf(const PictureLoad& load) const;
    QColor TintOf(const PictureLoad& load) const;
    void Remember(const QRectF& where, const PictureLoad& load);

    QPainter& painter;
    QRectF area;
    const SketchColors& colors;
    LoadCaptions captions;
    double lineHeight;
    double left = 0;
    double right = 0;
    double beamY = 0;
    double perFoot = 1;
    double mostRowShare = 0;
    double largestDistributed = 0;
    double largestPoint = 0;
    int unplacedCount = 0;
    std::vector<std::vector<std::pair<double, double>>> rows;
    std::vector<QRectF> occupied;  // by arrows, bars and captions
    std::vector<DrawnLoad> drawn;
};

}  // namespace kordavan
