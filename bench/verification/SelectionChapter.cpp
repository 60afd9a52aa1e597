#include <array>

#include "Chapters.h"

namespace kordavan::Verification {

namespace {

/// A joist of the International Residential Code, Table R502.3.1(2): 40 psf live, 10 psf dead, 16 in. on
/// centre.
struct PrintedSpan {
    std::string_view Depth;
    std::string_view Species;
    int Group;  // of the program's list of species
    int Feet;
    int Inches;
};

constexpr std::array PrintedSpans{
    PrintedSpan{"6", "SPF #2", 4, 9, 4},   PrintedSpan{"8", "SPF #2", 4, 12, 3},
    PrintedSpan{"10", "SPF #2", 4, 15, 5}, PrintedSpan{"12", "SPF #2", 4, 17, 10},
    PrintedSpan{"6", "HF #2", 0, 9, 1},    PrintedSpan{"8", "HF #2", 0, 12, 0},
    PrintedSpan{"10", "HF #2", 0, 15, 2},  PrintedSpan{"12", "HF #2", 0, 17, 7}};

std::string JoistRequest(const PrintedSpan& printed, int inches)
{
    return R"({"task":"beam","criteria":{"Span":)" + std::to_string(inches / 12.0) +
           R"(,"UNIF":"50","LUNIF":"40","Rep":true,"Ctr16":true,"NoWeight":true,"Combo1":)" +
           std::to_string(printed.Group) + R"(},"member":{"BreadthText":"2x","DepthText":")" +
           std::string(printed.Depth) + R"(","SpeciesText":")" + std::string(printed.Species) + R"("}})";
}

Case SpanCase(const PrintedSpan& printed, int more, const std::string& verdict)
{
    const int inches = 12 * printed.Feet + printed.Inches + more;
    const std::string text = std::to_string(printed.Feet) + " ft " + std::to_string(printed.Inches) + " in.";
    return {"2x" + std::string(printed.Depth) + " " + std::string(printed.Species),
            JoistRequest(printed, inches),
            "",
            {TextRow(more < 0 ? "an inch shorter" : "an inch longer", "printed: " + text, "test.Overall",
                     verdict)}};
}

Example JoistSpans()
{
    Example example{
        "Joist spans of the building code",
        "International Residential Code (2009 to 2015), Table R502.3.1(2): floor joists at 16 in., 40 psf live, "
        "10 psf dead, L / 360. The printed spans are rounded to the inch: an inch less must pass, an inch more "
        "must fail. The weight of the joist is within the 10 psf.",
        {}};
    for (const PrintedSpan& printed : PrintedSpans) {
        example.Cases.push_back(SpanCase(printed, -1, "OK"));
        example.Cases.push_back(SpanCase(printed, 1, "Fail"));
    }
    return example;
}

Example QuickPicks()
{
    return {
        "Quick picks for the joist F1 (13.5 ft, 69.3 plf, 53.3 plf live)",
        "The smallest depth of each breadth that passes, found by hand from S needed = 12 M / Fb' and from the live "
        "deflection, limit 0.45 in.",
        {{"",
          R"({"task":"select","criteria":{"Span":"13.5","UNIF":"52","LUNIF":"40","Rep":true,"Ctr16":true}})",
          "",
          {TextRow("2x DF-L #2", "2x8: S needed 15.8 of 13.1; 2x10: 17.5 of 21.4", "picks.9.DepthText", "10"),
           TextRow("(2) 2x DF-L #2", "6: deflection 0.60 of 0.45; 8: 0.26", "picks.10.DepthText", "8"),
           TextRow("(4) 2x DF-L #2", "4: S needed 13.1 of 12.3; 6: 0.30 of 0.45", "picks.12.DepthText", "6"),
           TextRow("4x DF-L #2", "6: deflection 0.51 of 0.45; 8: 0.22", "picks.13.DepthText", "8"),
           TextRow("2x HF #2", "2x8: S needed 16.8 of 13.1; 2x10: 18.5 of 21.4", "picks.0.DepthText", "10"),
           TextRow("3-1/8x glulam", "least depth: S needed 8.7 of 42.2", "picks.17.DepthText", "9")}}}};
}

Example SteelScan()
{
    return {
        "Steel scan for the garage beam S1 (20 ft, 720 plf, 480 live), depth up to 14 in., L / 360 and L / 480",
        "Catalogue order. W 12x 19 is out: I needed for a total deflection of 0.667 in. is 138 in4 and it has 130. "
        "W 10x 22 with 118 is out too; W 12x 22 with 156 is the first of them.",
        {{"",
          R"({"task":"steel-scan","criteria":{"Span":"20","UNIF":"720","LUNIF":"480","UBLtext":"1.33",)"
          R"("MaxDefl":"360","LMaxDefl":"480","Combo1":9,"WFbutton":true,"DepCombo":"14"}})",
          "M = 37100 ft-lb, R = 7420 lb",
          {TextRow("First shape", "I of 156 in4, 138 needed", "slots.0.StlPick", "W 12x 22"),
           {"Its section, %", "M x 12 / 23760 / 25.4 x 100", "slots.0.StlSecPerct", 1},
           {"Its shear, %", "R / (12.31 x 0.26) / 14400 x 100", "slots.0.StlShearPerct", 4},
           TextRow("Second shape", "W 14x 22, I = 199 in4", "slots.1.StlPick", "W 14x 22"),
           {"Its section, %", "M x 12 / 23760 / 29 x 100", "slots.1.StlSecPerct", 1}}}}};
}

}  // namespace

Chapter SelectionChapter()
{
    return {"Selection",
            "What the program offers, against what a hand search finds.",
            {JoistSpans(), QuickPicks(), SteelScan()}};
}

}  // namespace kordavan::Verification
