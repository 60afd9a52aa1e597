#include "columns/StudDiagram.h"

#include <algorithm>
#include <cmath>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double SamePart = 1e-6;

std::string MomentText(double moment)
{
    return FormatNumber(moment, "#,##0") + " ft-lb";
}

CurveMark MarkAt(double x, double moment, const std::string& remark)
{
    return {.X = x,
            .Value = moment,
            .Text = MomentText(moment) + " at " + FormatNumber(x, "#0.00") + " ft" + remark};
}

BeamCurves CurvesOf(const StudTest& test)
{
    BeamCurves curves;
    curves.Length = test.Problem.StudHeight;
    curves.Supports = {{.At = 0, .Load = 0}, {.At = curves.Length, .Load = 0}};
    for (const StudStation& station : test.Stations) {
        BeamPoint point;
        point.X = station.At;
        point.Moment = station.Moment;
        curves.Points.push_back(point);
    }
    return curves;
}

/// The moment that is greatest in size, inwards or outwards.
CurveMark GreatestOf(const BeamCurves& curves)
{
    const auto top = std::max_element(
        curves.Points.begin(), curves.Points.end(),
        [](const BeamPoint& a, const BeamPoint& b) { return std::abs(a.Moment) < std::abs(b.Moment); });
    return MarkAt(top->X, top->Moment, ", the greatest");
}

}  // namespace

LoadDiagram ReadStudDiagram(const StudTest& test)
{
    LoadDiagram diagram;
    diagram.Curves = CurvesOf(test);
    CurvePlot& plot = diagram.Plots[1];
    plot.Title = "Moment, ft-lb";
    plot.Value = &BeamPoint::Moment;
    plot.HasFeet = true;
    plot.Remark = "worked with " + MomentText(test.Result.MaxMoment);
    const CurveMark greatest = GreatestOf(diagram.Curves);
    const bool isChecked =
        std::abs(greatest.Value - test.Result.MaxMoment) <= SamePart * std::abs(greatest.Value);
    if (test.Result.MaxMoment != 0) {
        plot.Marks.push_back(
            MarkAt(test.Result.MaxMomentAtFt, test.Result.MaxMoment, isChecked ? "" : ", worked with"));
    }
    if (!isChecked) {
        plot.Marks.push_back(greatest);
    }
    return diagram;
}

}  // namespace kordavan
