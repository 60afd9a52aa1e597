#include "SweepText.h"

#include <algorithm>
#include <cmath>

#include "Expression.h"
#include "Figure.h"

namespace kordavan::Verification {

namespace {

/// The closed formulas against which the elastic curve is checked may differ by no more than their own
/// digits, %.
constexpr double YardstickLimit = 0.001;

/// Differences below this are no more than the single precision of what is stored, %.
constexpr double RoundingOfFigures = 0.001;

struct ClosedForm {
    std::string Name;
    std::string Step;
    double Theory;
};

/// 10 ft spans, 1000 lb or 100 plf, EI of 100 million lb-in2.
std::vector<ClosedForm> ClosedForms()
{
    constexpr double EI = 1e8;
    constexpr double L = 10;
    const std::vector<double> simple{0, L};
    const ElasticCurve uniform({L, EI, simple, {}, {{100, 100, 0, L}}});
    const ElasticCurve point({L, EI, simple, {{1000, 4}}, {}});
    const ElasticCurve rising({L, EI, simple, {}, {{0, 100, 0, L}}});
    const ElasticCurve tip({L + 4, EI, simple, {{1000, L + 4}}, {}});
    const ElasticCurve overhang({L + 4, EI, simple, {}, {{100, 100, L, L + 4}}});
    const ElasticCurve two({2 * L, EI, {0, L, 2 * L}, {}, {{100, 100, 0, 2 * L}}});
    const ElasticCurve three({3 * L, EI, {0, L, 2 * L, 3 * L}, {}, {{100, 100, 0, 3 * L}}});
    return {{"Uniform load, deflection", "5 x w x L^4 x 1728 / (384 x EI)", uniform.GreatestDeflection(0, L)},
            {"Point load at 4 ft, moment", "P x 4 x 6 / L", point.GreatestMoment(0, L)},
            {"Point load at 4 ft, greatest deflection", "P x 4 x ((L^2 - 4^2) / 3)^1.5 / (3 x L) x 1728 / EI",
             point.GreatestDeflection(0, L)},
            {"Rising load, moment", "w x L^2 / (9 x sqrt(3))", rising.GreatestMoment(0, L)},
            {"Rising load, deflection at 0.5193 L",
             "w x L^4 / 360 x 0.5193296 x (7 - 10 x 0.5193296^2 + 3 x 0.5193296^4) x 1728 / EI",
             rising.GreatestDeflection(0, L)},
            {"Load at the tip of a 4 ft overhang, tip", "P x 4^2 x (L + 4) / 3 x 1728 / EI",
             tip.Deflection(L + 4)},
            {"The same, lift of the span", "-P x 4 x L^2 / (9 x sqrt(3)) x 1728 / EI",
             tip.GreatestDeflection(0, L)},
            {"Uniform load on a 4 ft overhang, tip", "w x 4^3 x (4 x L + 3 x 4) / 24 x 1728 / EI",
             overhang.Deflection(L + 4)},
            {"Two spans, end reaction", "3 / 8 x w x L", two.Reaction(0)},
            {"Two spans, moment at the support", "-w x L^2 / 8", two.Moment(L)},
            {"Two spans, deflection at 0.4215 L",
             "w x L^4 / 48 x 0.4215351 x (1 - 3 x 0.4215351^2 + 2 x 0.4215351^3) x 1728 / EI",
             two.GreatestDeflection(0, L)},
            {"Three spans, end reaction", "0.4 x w x L", three.Reaction(0)},
            {"Three spans, moment at the support", "-w x L^2 / 10", three.Moment(L)}};
}

/// Where the family is farthest from theory; nowhere, when all of it is rounding.
std::string WorstPlace(const SweepFamily& family)
{
    const auto worst = std::max_element(family.Points.begin(), family.Points.end(),
                                        [](const SweepPoint& one, const SweepPoint& other) {
                                            return std::abs(one.Difference) < std::abs(other.Difference);
                                        });
    if (std::abs(worst->Difference) < RoundingOfFigures) {
        return "";
    }
    return family.Axis + " = " + Figure(std::round(1000 * worst->Place) / 1000);
}

std::string Rounded(double difference)
{
    return Signed(difference, std::abs(difference) < 0.1 ? 3 : 1);
}

std::string LimitsText(const SweepFamily& family)
{
    return Figure(family.Lowest) + " to " + (family.Highest > 0 ? "+" : "") + Figure(family.Highest);
}

void WriteFamily(const SweepFamily& family, Manual& manual)
{
    manual.Text += "| " + family.Name + " | " + family.Quantity + " | " +
                   std::to_string(family.Points.size()) + " | " + Rounded(family.LowestFound()) + " | " +
                   Rounded(family.MeanFound()) + " | " + Rounded(family.HighestFound()) + " | " +
                   WorstPlace(family) + " | " + LimitsText(family) + " |\n";
    if (!(family.LowestFound() >= family.Lowest && family.HighestFound() <= family.Highest)) {
        manual.Faults.push_back(family.Name + ", " + family.Quantity + ": " + Rounded(family.LowestFound()) +
                                " to " + Rounded(family.HighestFound()) + " % leaves its limits");
    }
}

}  // namespace

void WriteYardstick(const std::string& number, Manual& manual)
{
    manual.Text +=
        "### " + number +
        " The yardstick\n\n"
        "The exact figures below come from the differential equation of the elastic curve, solved in this "
        "manual's own program without equivalent loads and without stations. It is checked against closed "
        "formulas first: P = 1000 lb, w = 100 plf, L = 10 ft, EI = 100,000,000 lb-in2.\n\n"
        "| Beam and quantity | Closed formula | gives | Elastic curve | Difference, % |\n"
        "|---|---|---:|---:|---:|\n";
    for (const ClosedForm& form : ClosedForms()) {
        Symbols symbols = ReadGivens("P = 1000 lb, w = 100 plf, L = 10 ft, EI = 100000000 lb-in2");
        const double exact = WorkOut(form.Step, symbols);
        const double difference = 100 * (form.Theory - exact) / exact;
        manual.Text += "| " + form.Name + " | `" + form.Step + "` | " + Figure(exact) + " | " +
                       Figure(form.Theory) + " | " + Signed(difference, 3) + " |\n";
        if (!(std::abs(difference) <= YardstickLimit)) {
            manual.Faults.push_back("yardstick, " + form.Name + ": " + Signed(difference, 4) + " %");
        }
    }
    manual.Text += "\n";
}

void WriteSweep(const std::vector<SweepGroup>& sweep, Manual& manual)
{
    for (const SweepGroup& group : sweep) {
        manual.Text +=
            "**" + group.Title +
            "**\n\n| Loads | Quantity | Beams | Lowest, % | Mean, % | Highest, % | Farthest at | Limits, % |\n"
            "|---|---|---:|---:|---:|---:|---|---:|\n";
        for (const SweepFamily& family : group.Families) {
            WriteFamily(family, manual);
        }
        manual.Text += "\n";
    }
}

}  // namespace kordavan::Verification
