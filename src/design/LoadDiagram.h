#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "design/BeamCurves.h"
#include "design/LoadPicture.h"

namespace kordavan {

/// What a label of a plot points at.
struct CurveMark {
    double X = 0;      // ft from R1
    double Value = 0;  // 0 where the curve crosses the axis
    std::string Text;
};

/// One of the curves with what is written on it.
struct CurvePlot {
    std::string_view Title;
    double BeamPoint::*Value = nullptr;
    bool IsDownwards = false;      // values above zero are drawn below the axis
    std::string Remark;            // beside the title
    std::vector<CurveMark> Marks;  // peaks and zeroes
    std::string Peaks;             // the same in words
    bool HasCurve = true;          // false where there is nothing to draw, for the reason in Peaks
    bool HasFeet = false;          // the feet of all curves are written below this one
};

inline constexpr std::size_t CurveCount = 3;

/// The load diagram: the beam with its loads over the curves of shear, moment and deflection.
struct LoadDiagram {
    std::string Caption;  // which loads
    LoadPicture Loads;
    std::string LoadsText;  // loads and reactions in words
    BeamCurves Curves;
    std::array<CurvePlot, CurveCount> Plots;

    bool IsEmpty() const { return Curves.Points.empty(); }
};

/// The diagram of the beam as it was calculated last; empty before the first calculation.
LoadDiagram ReadLoadDiagram(const Session& session, CurveLoads loads);

/// Caption, reactions and the peaks of all curves, a line for each.
std::string PeakText(const LoadDiagram& diagram);

/// What the curves are at a place, ft from R1; empty for an empty diagram.
std::string ReadingText(const LoadDiagram& diagram, double x);

}  // namespace kordavan
