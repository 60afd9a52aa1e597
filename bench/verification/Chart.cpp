#include "Chart.h"

#include <array>
#include <cmath>

#include "Figure.h"

namespace kordavan::Verification {

namespace {

constexpr double Width = 960;

/// A rectangle of the drawing in which values are plotted along straight axes.
struct Plot {
    double Left;
    double Top;
    double Right;
    double Bottom;
    double FromX;
    double ToX;
    double FromY;
    double ToY;

    double X(double value) const { return Left + (value - FromX) / (ToX - FromX) * (Right - Left); }
    double Y(double value) const { return Bottom - (value - FromY) / (ToY - FromY) * (Bottom - Top); }
};

/// Where the letters of a text stand to its place.
enum class Anchor { Start, Middle, End };

std::string Place(double x, double y, const std::string& nameX = "x", const std::string& nameY = "y")
{
    return nameX + "=\"" + Fixed(x, 1) + "\" " + nameY + "=\"" + Fixed(y, 1) + "\"";
}

std::string TextAt(double x, double y, Anchor anchor, const std::string& text, const std::string& style = "")
{
    static constexpr std::array Names{"start", "middle", "end"};
    return "<text " + Place(x, y) + " text-anchor=\"" + Names[static_cast<std::size_t>(anchor)] + "\"" +
           style + ">" + text + "</text>\n";
}

std::string LineFrom(double x1, double y1, double x2, double y2, const std::string& style)
{
    return "<line " + Place(x1, y1, "x1", "y1") + " " + Place(x2, y2, "x2", "y2") + " " + style + "/>\n";
}

std::string Rectangle(double x, double y, double width, double height, const std::string& fill)
{
    return "<rect " + Place(x, y) + " " + Place(width, height, "width", "height") + " fill=\"" + fill +
           "\"/>\n";
}

constexpr std::string_view GridStyle = "stroke=\"#d9d9d9\"";
constexpr std::string_view ZeroStyle = "stroke=\"#333333\" stroke-width=\"1.5\"";
constexpr std::string_view UnsafeFill = "#fbeae8";
constexpr std::string_view Bold = " font-weight=\"bold\"";

int StepsOf(double from, double to, double step)
{
    return static_cast<int>(std::lround((to - from) / step));
}

std::string VerticalGrid(const Plot& plot, double step, int decimals)
{
    std::string svg;
    for (int i = 0; i <= StepsOf(plot.FromX, plot.ToX, step); ++i) {
        const double value = plot.FromX + i * step;
        svg += LineFrom(plot.X(value), plot.Top, plot.X(value), plot.Bottom, std::string(GridStyle));
        svg += TextAt(plot.X(value), plot.Bottom + 18, Anchor::Middle, Fixed(value, decimals));
    }
    return svg;
}

std::string HorizontalGrid(const Plot& plot, double step)
{
    std::string svg;
    for (int i = 0; i <= StepsOf(plot.FromY, plot.ToY, step); ++i) {
        const double value = plot.FromY + i * step;
        svg += LineFrom(plot.Left, plot.Y(value), plot.Right, plot.Y(value), std::string(GridStyle));
        svg += TextAt(plot.Left - 8, plot.Y(value) + 4, Anchor::End, Signed(value, 0));
    }
    return svg;
}

struct CurveStyle {
    std::string_view Colour;
    std::string_view Dash;
    std::string_view Label;
};

/// The first four families of the sweep, whose axes all run along the span.
constexpr std::array Curves{CurveStyle{"#1f5fa8", "", "one point load at a"},
                            CurveStyle{"#b85400", "9 4", "two point loads, a from each end"},
                            CurveStyle{"#2a7f3f", "3 3", "partial load of length a from a support"},
                            CurveStyle{"#7a3b9c", "12 3 3 3", "partial load of length a about midspan"}};

std::string PolylineOf(const Plot& plot, const SweepFamily& family, const CurveStyle& style)
{
    std::string svg = "<polyline fill=\"none\" stroke-width=\"2.5\" stroke=\"" + std::string(style.Colour) +
                      "\" stroke-dasharray=\"" + std::string(style.Dash) + "\" points=\"";
    for (const SweepPoint& point : family.Points) {
        svg += Fixed(plot.X(point.Place), 1) + "," + Fixed(plot.Y(point.Difference), 1) + " ";
    }
    svg.back() = '"';
    return svg + "/>\n";
}

std::string LegendLine(double x, double y, const CurveStyle& style)
{
    return LineFrom(x, y - 4, x + 44, y - 4,
                    "stroke-width=\"2.5\" stroke=\"" + std::string(style.Colour) + "\" stroke-dasharray=\"" +
                        std::string(style.Dash) + "\"") +
           TextAt(x + 52, y, Anchor::Start, std::string(style.Label));
}

std::string DrawCurves(const std::vector<SweepFamily>& families)
{
    const Plot plot{80, 70, Width - 30, 390, 0, 1, -10, 30};
    std::string svg = TextAt(plot.Left, 32, Anchor::Start,
                             "Simple span: deflection by the equivalent uniform load", std::string(Bold));
    svg += TextAt(plot.Left, 52, Anchor::Start,
                  "difference from beam theory, %; below 0 Kordavan is on the unsafe side");
    svg += Rectangle(plot.Left, plot.Y(0), plot.Right - plot.Left, plot.Bottom - plot.Y(0),
                     std::string(UnsafeFill));
    svg += HorizontalGrid(plot, 5) + VerticalGrid(plot, 0.1, 1);
    svg += LineFrom(plot.Left, plot.Y(0), plot.Right, plot.Y(0), std::string(ZeroStyle));
    for (std::size_t k = 0; k < Curves.size(); ++k) {
        svg += PolylineOf(plot, families[k], Curves[k]);
        svg += LegendLine(plot.Left + 520, plot.Top + 24 + 22 * static_cast<double>(k), Curves[k]);
    }
    return svg + TextAt((plot.Left + plot.Right) / 2, plot.Bottom + 40, Anchor::Middle,
                        "place or length of the load, a / L");
}

std::vector<const SweepFamily*> DeflectionFamilies(const std::vector<SweepGroup>& sweep)
{
    std::vector<const SweepFamily*> families;
    for (const SweepGroup& group : sweep) {
        for (const SweepFamily& family : group.Families) {
            if (family.Quantity.starts_with("deflection")) {
                families.push_back(&family);
            }
        }
    }
    return families;
}

constexpr double BarPitch = 20;
constexpr double RangesTop = 520;

double RangesBottom(std::size_t families)
{
    return RangesTop + BarPitch * static_cast<double>(families);
}

std::string RangeBar(const Plot& plot, const SweepFamily& family, double y)
{
    const double left = plot.X(family.LowestFound());
    const double right = plot.X(family.HighestFound());
    const bool isTip = family.Quantity != "deflection";
    return TextAt(plot.Left - 10, y + 4, Anchor::End, family.Name + (isTip ? ": tip" : "")) +
           Rectangle(left - 1, y - 5, right - left + 2, 10, isTip ? "#b85400" : "#1f5fa8") +
           LineFrom(plot.X(family.MeanFound()), y - 8, plot.X(family.MeanFound()), y + 8,
                    "stroke=\"#000000\" stroke-width=\"2\"");
}

std::string DrawRanges(const std::vector<const SweepFamily*>& families)
{
    const Plot plot{400, RangesTop, Width - 30, RangesBottom(families.size()), -100, 40, 0, 1};
    std::string svg = TextAt(30, plot.Top - 42, Anchor::Start,
                             "All deflections: lowest to highest, mean marked", std::string(Bold));
    svg += TextAt(30, plot.Top - 22, Anchor::Start,
                  "blue: the span; orange: the tip of an overhang; shaded: Kordavan on the unsafe side");
    svg += Rectangle(plot.Left, plot.Top, plot.X(0) - plot.Left, plot.Bottom - plot.Top,
                     std::string(UnsafeFill));
    svg += VerticalGrid(plot, 20, 0);
    svg += LineFrom(plot.X(0), plot.Top, plot.X(0), plot.Bottom, std::string(ZeroStyle));
    for (std::size_t k = 0; k < families.size(); ++k) {
        svg += RangeBar(plot, *families[k], plot.Top + BarPitch * (static_cast<double>(k) + 0.5));
    }
    return svg + TextAt((plot.Left + plot.Right) / 2, plot.Bottom + 40, Anchor::Middle,
                        "difference from beam theory, %");
}

}  // namespace

std::string DrawChart(const std::vector<SweepGroup>& sweep)
{
    const std::vector<const SweepFamily*> families = DeflectionFamilies(sweep);
    const double height = RangesBottom(families.size()) + 60;
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + Place(Width, height, "width", "height") +
           " viewBox=\"0 0 " + Fixed(Width, 0) + " " + Fixed(height, 0) +
           "\" font-family=\"DejaVu Sans, Helvetica, Arial, sans-serif\" font-size=\"13\" fill=\"#1a1a1a\">\n"
           "<title>Differences of Kordavan's deflections from beam theory</title>\n" +
           Rectangle(0, 0, Width, height, "#ffffff") + DrawCurves(sweep.front().Families) +
           DrawRanges(families) + "</svg>\n";
}

}  // namespace kordavan::Verification
