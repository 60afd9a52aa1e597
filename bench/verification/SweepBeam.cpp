#include "SweepBeam.h"

#include <array>
#include <charconv>
#include <cmath>

namespace kordavan::Verification {

namespace {

constexpr double MemberBreadth = 5.5;          // in.
constexpr double MemberDepth = 11.5;           // in.
constexpr double ModulusOfElasticity = 1.6e6;  // psi, DF-L #1 timber
constexpr double WeightPerInch2 = 0.243;       // plf

/// The boxes of the loads: those on the span come first, those on the overhang from these rows on.
constexpr std::size_t FirstTipPoint = 4;
constexpr std::size_t FirstTipPartial = 3;

std::string DigitsOf(double value)
{
    std::array<char, 32> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

/// The rows of one load box as a JSON array: those on the span, blanks, those on the overhang.
template <class Load, class Value>
std::string LoadBox(const std::string& name, const std::vector<Load>& onSpan,
                    const std::vector<Load>& onOverhang, std::size_t firstOnOverhang, Value value)
{
    std::vector<std::string> rows;
    rows.reserve(onSpan.size());
    for (const Load& load : onSpan) {
        rows.push_back(DigitsOf(value(load)));
    }
    if (!onOverhang.empty()) {
        rows.resize(firstOnOverhang);
    }
    for (const Load& load : onOverhang) {
        rows.push_back(DigitsOf(value(load)));
    }
    std::string text = ",\"" + name + "\":[";
    for (std::size_t k = 0; k < rows.size(); ++k) {
        text += (k == 0 ? "\"" : ",\"") + rows[k] + "\"";
    }
    return text + "]";
}

std::string PointBoxes(const SweepBeam& beam)
{
    const auto weight = [](const PointLoad& load) { return load.P; };
    const auto place = [](const PointLoad& load) { return load.At; };
    return LoadBox("PT", beam.Points, beam.TipPoints, FirstTipPoint, weight) +
           LoadBox("LPT", beam.Points, beam.TipPoints, FirstTipPoint, weight) +
           LoadBox("DIS", beam.Points, beam.TipPoints, FirstTipPoint, place);
}

std::string PartialBoxes(const SweepBeam& beam)
{
    const auto weight = [](const LineLoad& load) { return load.Begin; };
    return LoadBox("PAR", beam.Partials, beam.TipPartials, FirstTipPartial, weight) +
           LoadBox("LPAR", beam.Partials, beam.TipPartials, FirstTipPartial, weight) +
           LoadBox("BEGP", beam.Partials, beam.TipPartials, FirstTipPartial,
                   [](const LineLoad& load) { return load.From; }) +
           LoadBox("ENDP", beam.Partials, beam.TipPartials, FirstTipPartial,
                   [](const LineLoad& load) { return load.To; });
}

/// Sides of a square bay whose diagonal is the span.
double HipSide(const SweepBeam& beam)
{
    return beam.Span / std::sqrt(2.0);
}

std::string ConditionBoxes(const SweepBeam& beam)
{
    if (beam.HipPsf > 0) {
        const std::string side = DigitsOf(HipSide(beam));
        const std::string psf = DigitsOf(beam.HipPsf);
        const std::string uniform = DigitsOf(beam.UNIF);
        return ",\"IncButton\":true,\"Areas\":[true,true],\"IncTL\":\"" + psf + "\",\"IncLL\":\"" + psf +
               "\",\"IncUnifTL\":\"" + uniform + "\",\"IncUnifLL\":\"" + uniform + "\",\"Trib1\":\"" + side +
               "\",\"Trib2\":\"" + side + "\"";
    }
    std::string text = ",\"UNIF\":\"" + DigitsOf(beam.UNIF) + "\",\"LUNIF\":\"" + DigitsOf(beam.UNIF) + "\"";
    if (beam.Overhang > 0) {
        text += ",\"OHbutton\":true";
    }
    if (beam.Spans > 1) {
        text +=
            std::string(",\"Multibutton\":true,\"") + (beam.Spans == 2 ? "TwoSpan" : "ThreeSpan") + "\":true";
    }
    return text;
}

}  // namespace

std::string RequestOf(const SweepBeam& beam)
{
    return "{\"task\":\"beam\",\"criteria\":{\"Span\":\"" + DigitsOf(beam.Span) + "\"" +
           ConditionBoxes(beam) + PointBoxes(beam) + PartialBoxes(beam) +
           ",\"NoWeight\":" + (beam.WithWeight ? "false" : "true") +
           R"(},"member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})";
}

ElasticBeam TheoryOf(const SweepBeam& beam)
{
    const double spans = beam.Spans * beam.Span;
    ElasticBeam theory{
        .Length = spans + beam.Overhang,
        .EI = ModulusOfElasticity * MemberBreadth * MemberDepth * MemberDepth * MemberDepth / 12,
        .Supports = {},
        .Points = beam.Points,
        .Lines = beam.Partials};
    for (int k = 0; k <= beam.Spans; ++k) {
        theory.Supports.push_back(k * beam.Span);
    }
    for (const PointLoad& load : beam.TipPoints) {
        theory.Points.push_back({load.P, beam.Span + load.At});
    }
    for (const LineLoad& load : beam.TipPartials) {
        theory.Lines.push_back({load.Begin, load.End, beam.Span + load.From, beam.Span + load.To});
    }
    if (beam.UNIF > 0) {
        theory.Lines.push_back({beam.UNIF, beam.UNIF, 0, spans});
    }
    if (beam.HipPsf > 0) {
        const double whole = beam.HipPsf * HipSide(beam) * HipSide(beam) / 2;
        theory.Lines.push_back({0, 2 * whole / beam.Span, 0, beam.Span});
    }
    if (beam.WithWeight) {
        const double weight = MemberBreadth * MemberDepth * WeightPerInch2;
        theory.Lines.push_back({weight, weight, 0, theory.Length});
    }
    return theory;
}

}  // namespace kordavan::Verification
