#include "design/LoadDiagram.h"

#include <algorithm>
#include <cmath>

#include "core/NumberText.h"
#include "design/CurvePeaks.h"
#include "design/TestReport.h"

namespace kordavan {

namespace {

constexpr std::string_view PoundFormat = "#,##0";

/// How one curve is spoken of, and how its values are written.
struct CurveWords {
    std::string_view Title;
    std::string_view Greatest;
    std::string_view Least;  // of a peak below zero
    std::string_view Flat;
    std::string_view Zero;  // nothing where zeroes are of no interest
    std::string_view Unit;
    std::string_view Format;
    double BeamPoint::*Value;
    bool IsDownwards;  // a peak below zero is one upwards, and written without its sign
};

constexpr CurveWords ShearWords{"Shear, lb",         "Greatest shear",  "Least shear",
                                "There is no shear", "Shear is zero",   " lb",
                                PoundFormat,         &BeamPoint::Shear, false};
constexpr CurveWords MomentWords{"Moment, ft-lb",      "Greatest moment",  "Least moment",
                                 "There is no moment", "Moment is zero",   " ft-lb",
                                 PoundFormat,          &BeamPoint::Moment, false};
constexpr CurveWords DeflectionWords{"Deflection, in.",
                                     "Greatest deflection",
                                     "Greatest upward deflection",
                                     "There is no deflection",
                                     {},
                                     " in.",
                                     "#0.000",
                                     &BeamPoint::Deflection,
                                     true};

constexpr std::string_view NoMember = "Test a member to see its deflection.";
constexpr std::string_view Elastic = "elastic, without creep";
constexpr std::string_view ElasticNote =
    " This is the elastic line, without creep; the report finds its deflections by equivalent loads.";

/// Beyond this a number is shown with all its digits, or an exponent, as it is far from any beam.
constexpr double MostFormatted = 1e9;

std::string NumberOf(double value, std::string_view format)
{
    const std::string text =
        std::abs(value) < MostFormatted ? FormatNumber(value, format) : PlainNumber(Single(value));
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    return isZero ? FormatNumber(0.0, format) : text;
}

std::string FeetText(double feet)
{
    return NumberOf(feet, "#0.00") + " ft";
}

bool IsOnePlace(const Stretch& stretch)
{
    return FeetText(stretch.From) == FeetText(stretch.To);
}

std::string StretchText(const Stretch& stretch)
{
    return IsOnePlace(stretch) ? "at " + FeetText(stretch.From)
                               : "between " + FeetText(stretch.From) + " and " + FeetText(stretch.To);
}

/// "at 3.00 ft, at 9.00 ft and between 10.00 ft and 12.00 ft from R1".
std::string PlacesText(const std::vector<Stretch>& places)
{
    std::string text;
    for (std::size_t k = 0; k < places.size(); ++k) {
        const bool isLast = k + 1 == places.size();
        text += k == 0 ? "" : isLast ? " and " : ", ";
        text += StretchText(places[k]);
    }
    return text + " from R1";
}

double MiddleOf(const Stretch& stretch)
{
    return (stretch.From + stretch.To) / 2;
}

/// The moment by which a member is chosen, which the program finds by rules of its own.
std::string DesignMomentText(const Session& session)
{
    const AnalysisResult& analysis = session.Analysis;
    const float moment = IsMemberTested(session)
                             ? std::max(analysis.MaxMomentFtLb, analysis.OverhangMomentTotal)
                             : analysis.MaxMomentApplied;
    return NumberOf(moment, PoundFormat) + " ft-lb";
}

class PlotWriter {
public:
    PlotWriter(const CurveWords& theWords, const BeamCurves& theCurves)
        : words(theWords), curves(theCurves), peaks(FindPeaks(theCurves, theWords.Value))
    {
        plot.Title = words.Title;
        plot.Value = words.Value;
        plot.IsDownwards = words.IsDownwards;
    }

    CurvePlot Write()
    {
        if (peaks.Greatest) {
            AddPeak(words.Greatest, *peaks.Greatest);
        }
        if (peaks.Least) {
            AddPeak(words.Least, *peaks.Least);
        }
        if (!peaks.Greatest && !peaks.Least) {
            Say(std::string(words.Flat));
        } else if (!words.Zero.empty() && !peaks.Zeros.empty()) {
            AddZeros();
        }
        return std::move(plot);
    }

private:
    void Say(const std::string& sentence) { plot.Peaks += (plot.Peaks.empty() ? "" : " ") + sentence + "."; }

    std::string ValueText(double value) const
    {
        return NumberOf(words.IsDownwards ? std::abs(value) : value, words.Format);
    }

    void AddPeak(std::string_view name, const Peak& peak)
    {
        const std::string value = ValueText(peak.Value);
        Say(std::string(name) + " " + value + std::string(words.Unit) + " " + PlacesText(peak.Where));
        for (const Stretch& stretch : peak.Where) {
            plot.Marks.push_back({MiddleOf(stretch), peak.Value, value + " " + StretchText(stretch)});
        }
    }

    /// The steps over the supports are said, but need no mark of their own.
    void AddZeros()
    {
        Say(std::string(words.Zero) + " " + PlacesText(peaks.Zeros));
        for (const Stretch& zero : peaks.Zeros) {
            if (!IsSupport(MiddleOf(zero))) {
                plot.Marks.push_back({MiddleOf(zero), 0, "0 " + StretchText(zero)});
            }
        }
    }

    bool IsSupport(double x) const
    {
        return std::any_of(curves.Supports.begin(), curves.Supports.end(),
                           [x](const PointForce& support) { return IsSamePlace(support.At, x); });
    }

    const CurveWords& words;
    const BeamCurves& curves;
    CurvePeaks peaks;
    CurvePlot plot;
};

CurvePlot WriteMoment(const Session& session, const BeamCurves& curves, CurveLoads loads)
{
    CurvePlot plot = PlotWriter(MomentWords, curves).Write();
    if (loads == CurveLoads::Total) {
        const std::string design = DesignMomentText(session);
        plot.Remark = "for design " + design;
        plot.Peaks += " Moment for design " + design + ".";
    }
    return plot;
}

CurvePlot WriteDeflection(const BeamCurves& curves)
{
    if (!curves.HasDeflection) {
        CurvePlot none;
        none.Title = DeflectionWords.Title;
        none.Peaks = NoMember;
        none.HasCurve = false;
        return none;
    }
    CurvePlot plot = PlotWriter(DeflectionWords, curves).Write();
    const BeamPoint& tip = curves.Points.back();
    const bool isPeak = std::any_of(plot.Marks.begin(), plot.Marks.end(),
                                    [&tip](const CurveMark& mark) { return IsSamePlace(mark.X, tip.X); });
    if (tip.X > curves.Supports.back().At && !isPeak) {
        const std::string value = NumberOf(std::abs(tip.Deflection), DeflectionWords.Format);
        plot.Marks.push_back({tip.X, tip.Deflection, value + " at the tip"});
        plot.Peaks += " The tip deflects " + value + (tip.Deflection < 0 ? " in. upwards." : " in.");
    }
    plot.Remark = Elastic;
    plot.Peaks += ElasticNote;
    return plot;
}

std::string CaptionOf(const Session& session, CurveLoads loads)
{
    if (loads == CurveLoads::Live) {
        return "Live loads alone.";
    }
    if (!IsMemberTested(session)) {
        return "All loads, without the weight of a member.";
    }
    const std::string member = TestedMemberText(session);
    const float weight = session.Analysis.SelfWeightPlf;
    return weight == 0
               ? "All loads, the weight of " + member + " left out."
               : "All loads and the weight of " + member + ", " + FormatNumber(weight, "#,##0.0") + " plf.";
}

std::string ReactionsText(const BeamCurves& curves)
{
    std::string text = "Reactions";
    for (std::size_t k = 0; k < curves.Supports.size(); ++k) {
        text += (k == 0 ? " R" : ", R") + std::to_string(k + 1) + " ";
        text += NumberOf(-curves.Supports[k].Load, PoundFormat) + " lb";
    }
    return text + ".";
}

}  // namespace

LoadDiagram ReadLoadDiagram(const Session& session, CurveLoads loads)
{
    LoadDiagram diagram;
    diagram.Curves = ComputeCurves(session, loads);
    if (diagram.IsEmpty()) {
        return diagram;
    }
    const bool isLive = loads == CurveLoads::Live;
    const BeamNumbers& beam = session.Numbers;
    diagram.Caption = CaptionOf(session, loads);
    diagram.Loads = PictureOfCalculated(isLive ? LiveLoadsAlone(beam) : beam);
    diagram.LoadsText = DescribePicture(diagram.Loads) + " " + ReactionsText(diagram.Curves);
    diagram.Plots = {PlotWriter(ShearWords, diagram.Curves).Write(),
                     WriteMoment(session, diagram.Curves, loads), WriteDeflection(diagram.Curves)};
    diagram.Plots.back().HasFeet = true;
    return diagram;
}

std::string PeakText(const LoadDiagram& diagram)
{
    if (diagram.IsEmpty()) {
        return {};
    }
    std::string text = diagram.Caption + " " + ReactionsText(diagram.Curves);
    for (const CurvePlot& plot : diagram.Plots) {
        text += "\n" + plot.Peaks;
    }
    return text;
}

std::string ReadingText(const LoadDiagram& diagram, double x)
{
    if (diagram.IsEmpty()) {
        return {};
    }
    const CurveReading reading = ReadCurves(diagram.Curves, x);
    const std::string left = NumberOf(reading.Left.Shear, PoundFormat);
    const std::string right = NumberOf(reading.Right.Shear, PoundFormat);
    std::string text = "At " + FeetText(reading.Left.X) + ":  shear " + left + " lb";
    text += left == right ? "" : ", then " + right + " lb";
    text += ";  moment " + NumberOf(reading.Left.Moment, PoundFormat) + " ft-lb";
    if (diagram.Curves.HasDeflection) {
        const double deflection = reading.Left.Deflection;
        text += ";  deflection " + NumberOf(std::abs(deflection), DeflectionWords.Format) + " in.";
        text += deflection < 0 ? " upwards" : "";
    }
    return text;
}

}  // namespace kordavan
