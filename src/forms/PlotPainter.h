#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "design/LoadDiagram.h"
#include "forms/BeamPainter.h"

class QPalette;

namespace kordavan {

/// The parts of a load diagram, from top to bottom.
enum class DiagramPart { Loads, Shear, Moment, Deflection };

inline constexpr std::array DiagramParts{DiagramPart::Loads, DiagramPart::Shear, DiagramPart::Moment,
                                         DiagramPart::Deflection};

/// The feet along a part that is drawn into an area; parts of equal width have one axis.
class FeetAxis {
public:
    /// @param line    height of a line of text
    /// @param length  of the beam, ft, greater than 0
    FeetAxis(const QRectF& area, double line, double length);

    double Left() const { return left; }
    double Right() const { return right; }
    double Length() const { return length; }
    double Across(double feet) const { return left + feet / length * (right - left); }

    /// The place at a point of the area, ft from R1; at most the ends of the beam.
    double FeetAt(double x) const;

private:
    double left;
    double right;
    double length;
};

/// What stands over a part: its title at the left, a remark at the right as far as there is room.
struct PlotTitle {
    std::string_view Title;
    std::string_view Remark{};
};

/// Writes a title at the top of an area.
void DrawPlotTitle(QPainter& painter, const QRectF& area, const SketchColors& colors, const PlotTitle& title);

/// Draws one part of a load diagram into a rectangle.
///
/// The title stands at the top, the beam or the filled curve below it. The lowest curve has the feet written
/// under it. A label that finds no free place is left out.
class PlotPainter {
public:
    /// @param drawn  a diagram that is not empty
    PlotPainter(QPainter& painter, const QRectF& area, const QPalette& palette, const LoadDiagram& drawn,
                DiagramPart drawnPart);

    /// @param cursor  a place that is marked by a line, ft from R1
    void Draw(std::optional<double> cursor = {});

private:
    void SettleHeights();
    double Down(double value) const;

    void DrawCursor(double feet);

    void DrawFeet(bool isWritten);
    void DrawAxis();
    void DrawCurve();
    QPolygonF OutlineOfCurve() const;
    void DrawMarks(const QPainterPath& path);
    QRectF PlaceLabel(const CurveMark& mark, const QSizeF& size, const QPainterPath& path) const;
    void DrawDot(double x, double y);

    QPainter& painter;
    const LoadDiagram& diagram;
    const CurvePlot* plot;  // none of the loads
    SketchColors colors;
    QColor ground;
    double line;  // height of a line of text
    FeetAxis axis;
    QRectF whole;
    QRectF room;          // of the beam or curve, below the title
    double axisY;         // of the value zero
    double perValue = 0;  // downwards, so negative for values that are drawn upwards
    std::vector<QRectF> taken;
};

}  // namespace kordavan
