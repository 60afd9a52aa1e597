#pragma once

#include <QPainter>
#include <QRectF>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "core/BeamProblem.h"
#include "forms/BeamPainter.h"

namespace kordavan {

enum class DiagramShape { Bar, Arrow, Rising };

/// A load of a diagram. Its places are shares of the drawn beam; rows count upwards from the beam.
struct DiagramLoad {
    DiagramShape Shape;
    double Begin;
    double End;
    int Row;
    double TagPlace;  // of the middle of the tag
    std::string_view Tag;
    bool OnOverhang = false;
};

/// A distance of a diagram between two shares of the drawn beam; rows count downwards from the beam.
struct DiagramDistance {
    double From;
    double To;
    int Row;
    std::string_view Tag;
    bool OnOverhang = false;
};

/// A beam from R1 over R2 to its tip.
struct BeamDiagram {
    double R2;  // share of the drawn beam; 1 without an overhang
    int LoadRows;
    std::span<const DiagramLoad> Loads;
    std::span<const DiagramDistance> Distances;
};

/// A roof plan, its member along the diagonal from R1 up to R2.
struct PlanDiagram {
    std::string_view AcrossTag;
    std::string_view DownTag;
    std::string_view QuarterTag;
    std::array<bool, PlanQuarterCount> IsChecked;
};

/// Draws into a rectangle how entries stand for loads and distances: each value wears the caption of the box
/// that takes it. Bars and arrows stand for loads, their live part hatched; arrowed lines are distances.
class DiagramPainter {
public:
    DiagramPainter(QPainter& painter, const QRectF& area, const QPalette& palette);

    void Draw(const BeamDiagram& diagram);
    void Draw(const PlanDiagram& diagram);

    /// The room that a beam diagram asks for, in heights of a line of text.
    static double HeightOf(const BeamDiagram& diagram);

private:
    double Across(double share) const;
    const QColor& ColorOf(const DiagramLoad& load) const;
    const QColor& LiveColorOf(const DiagramLoad& load) const;
    double TopOfLead(double share) const;
    double DistanceY(int row) const;
    QRectF BarOf(const DiagramLoad& load) const;

    void Settle(const BeamDiagram& diagram);
    void DrawLoad(const DiagramLoad& load);
    void DrawBar(const DiagramLoad& load);
    void DrawArrow(const DiagramLoad& load);
    void DrawRising(const DiagramLoad& load);
    void DrawSupport(double x, std::string_view name);
    void DrawDistance(const DiagramDistance& distance);
    void DrawQuarters(const QRectF& plan, const PlanDiagram& diagram);
    void DrawMember(const QRectF& plan);
    void DrawCheck(QPointF center, bool isChecked, std::string_view tag);
    void DrawDimension(QPointF from, QPointF to, std::string_view tag, const QColor& color);
    void DrawHead(QPointF tip, QPointF from, double length, const QColor& color);
    QRectF TagArea(QPointF center, std::string_view tag) const;
    void DrawTag(QPointF center, std::string_view tag, const QColor& ink);

    QPainter& painter;
    QRectF area;
    SketchColors colors;
    QColor ground;
    double line;  // height of a line of text
    double left = 0;
    double right = 0;
    double beamY = 0;
    double rowHeight = 0;      // of loads over the beam
    double secondSupport = 1;  // share of the drawn beam
};

}  // namespace kordavan
