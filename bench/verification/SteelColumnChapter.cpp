#include <array>

#include "Chapters.h"

namespace kordavan::Verification {

namespace {

std::string ColumnRequest(const std::string& load, const std::string& feet, const std::string& size)
{
    return R"({"task":"steel-column","column":{"cReacText":")" + load + R"(","cHTtext":"30","cD1text":")" +
           feet + R"(","cD2text":"10","cFcText":"1500","cEtext":"1.6","ColSpeciesCombo":"Custom"},"size":)" +
           size + "}";
}

const std::string StandardPipe =
    R"({"Size":"4 in. diam.","TypeAndGrade":"Standard Wt. Pipe A501 or A53 Grade B"})";
const std::string Tube = R"({"Size":"4 x 4 x 1/4","TypeAndGrade":"Structural Tube ASTM A500 Grade B"})";

/// A row of AISC Manual, 9th edition, Table C-36: allowable stress of main members of 36 ksi steel.
struct PrintedStress {
    std::string_view KLoverR;
    std::string_view Feet;  // of a 4 in. standard pipe, r = 1.51 in., that has this slenderness
    std::string_view Fa;    // ksi
};

constexpr std::array PrintedStresses{
    PrintedStress{"50", "6.29166667", "18.35"}, PrintedStress{"100", "12.58333333", "12.98"},
    PrintedStress{"150", "18.875", "6.64"}, PrintedStress{"200", "25.16666667", "3.73"}};

Example TableOfStresses()
{
    Example example{
        "Allowable stress of 36 ksi steel, on a 4 in. standard pipe (r = 1.51 in.)",
        "Printed values: AISC Manual of Steel Construction, 9th edition, Table C-36, to a hundredth of a ksi.",
        {}};
    for (const PrintedStress& printed : PrintedStresses) {
        example.Cases.push_back({"Kl / r = " + std::string(printed.KLoverR),
                                 ColumnRequest("5000", std::string(printed.Feet), StandardPipe),
                                 "",
                                 {{"Fa, ksi, as printed", std::string(printed.Fa), "result.Fa", 0.1}}});
    }
    return example;
}

Example BothSidesOfCc()
{
    return {
        "Pipe and tube, both sides of Cc",
        "AISC ASD E2, equations E2-1 and E2-2; Cc = sqrt(2 pi^2 E / Fy), 126.1 at 36 and 111.6 at 46 ksi, which the program "
        "has as 111.5. Pi is 3.1416 there.",
        {{"4 in. pipe, 12 ft, 30 kips",
          ColumnRequest("30000", "12", StandardPipe),
          "P = 30 kips, r = 1.51 in., A = 3.17 in2",
          {{"Cc", "Cc = sqrt(2 x pi^2 x 29000 / 36)", "result.Cc", 0.01},
           {"Kl / r", "S = 144 / r", "result.KLoverR"},
           {"Fa, ksi", "Fa = (1 - S^2 / (2 x Cc^2)) x 36 / (5 / 3 + 3 x S / (8 x Cc) - S^3 / (8 x Cc^3))",
            "result.Fa", 0.01},
           {"Area required, in2", "P / Fa", "result.RequiredArea", 0.01},
           {"Stress, ksi", "P / A", "result.ActualStress"}}},
         {"4 in. pipe, 20 ft, 10 kips",
          ColumnRequest("10000", "20", StandardPipe),
          "P = 10 kips, r = 1.51 in.",
          {{"Kl / r, beyond Cc", "S = 240 / r", "result.KLoverR"},
           {"Fa, ksi", "Fa = 12 x pi^2 x 29000 / (23 x S^2)", "result.Fa"},
           {"Area required, in2", "P / Fa", "result.RequiredArea"}}},
         {"Tube 4 x 4 x 1/4, 10 ft, 40 kips",
          ColumnRequest("40000", "10", Tube),
          "P = 40 kips, r = 1.51 in.",
          {{"Cc", "Cc = sqrt(2 x pi^2 x 29000 / 46)", "result.Cc", 0.1},
           {"Kl / r", "S = 120 / r", "result.KLoverR"},
           {"Fa, ksi", "Fa = (1 - S^2 / (2 x Cc^2)) x 46 / (5 / 3 + 3 x S / (8 x Cc) - S^3 / (8 x Cc^3))",
            "result.Fa", 0.05},
           {"Area required, in2", "P / Fa", "result.RequiredArea", 0.05}}},
         {"Tube 4 x 4 x 1/4, 16 ft, 15 kips",
          ColumnRequest("15000", "16", Tube),
          "P = 15 kips, r = 1.51 in.",
          {{"Kl / r, beyond Cc", "S = 192 / r", "result.KLoverR"},
           {"Fa, ksi", "Fa = 12 x pi^2 x 29000 / (23 x S^2)", "result.Fa"}}},
         {"Tube 4 x 4 x 1/4, no unbraced length",
          ColumnRequest("40000", "0", Tube),
          "",
          {{"Fa, ksi", "46 / (5 / 3)", "result.Fa"}}}}};
}

}  // namespace

Chapter SteelColumnChapter()
{
    return {"Steel columns",
            "Allowable stress design, K = 1, load at the centre.",
            {TableOfStresses(), BothSidesOfCc()}};
}

}  // namespace kordavan::Verification
