#include "columns/StudDiagram.h"

#include "columns/StudMoment.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

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
    const bool isGreatest = StudMomentWarning(test).empty();
    if (test.Result.MaxMoment != 0) {
        plot.Marks.push_back(
            MarkAt(test.Result.MaxMomentAtFt, test.Result.MaxMoment, isGreatest ? "" : ", worked with"));
    }
    if (!isGreatest) {
        const StudStation& greatest = StationOfGreatestMoment(test.Stations);
        plot.Marks.push_back(MarkAt(greatest.At, greatest.Moment, ", the greatest"));
    }
    return diagram;
}

}  // namespace kordavan
