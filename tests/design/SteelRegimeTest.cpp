#include "design/SteelRegime.h"

#include <gtest/gtest.h>

#include "support/CaseName.h"

namespace kordavan {
namespace {

struct RegimeCase {
    std::string_view Name;
    SteelFamily Family;
    std::string_view Shape;
    bool ksi50;
    double ProposedUBL;  // ft
    float MaxMoment;     // ft-lb
    bool LcApplies;
    bool LuApplies;
    float FbAllowed;  // psi
    bool Passes;
    std::string_view Limit;
};

class RegimeTest : public testing::TestWithParam<RegimeCase> {};

TEST_P(RegimeTest, IsChosenByLengthAndSection)
{
    const RegimeCase& c = GetParam();
    BeamProblem problem;
    problem.Family = c.Family;
    problem.ksi50 = c.ksi50;
    SteelCriteria criteria = SteelCriteriaOf(problem);
    criteria.ProposedUBL = c.ProposedUBL;
    const SteelShape& shape = SteelShapes()[FindShape(c.Family, c.Shape).value()];
    const BendingRegime regime = ChooseBendingRegime(criteria, shape, c.MaxMoment);
    EXPECT_EQ(regime.LcApplies, c.LcApplies);
    EXPECT_EQ(regime.LuApplies, c.LuApplies);
    EXPECT_EQ(regime.FbAllowed, c.FbAllowed);
    EXPECT_EQ(PassesBending(regime, shape), c.Passes);
    EXPECT_EQ(UnbracedLimitText(regime), c.Limit);
    if (regime.Applies()) {
        EXPECT_NEAR(regime.RequiredS, c.MaxMoment * 12 / c.FbAllowed, 1e-5);
    }
}

constexpr auto W = SteelFamily::W;

// W 12x 14: S 14.9 in3, Lc 3.5 ft and Lu 4.2 ft at 36 ksi, 2.5 and 3.6 ft at 50 ksi. It carries
// 14.9 * 23760 / 12 = 29502 ft-lb at 0.66 Fy and 14.9 * 21600 / 12 = 26820 ft-lb at 0.60 Fy.
INSTANTIATE_TEST_SUITE_P(
    Steps, RegimeTest,
    testing::Values(
        RegimeCase{"1 braced", W, "W 12x 14", false, 0, 20000, true, false, 23760, true, "Lc = 3.5"},
        RegimeCase{"1 at Lc and at its moment", W, "W 12x 14", false, 3.5, 29502, true, false, 23760, true,
                   "Lc = 3.5"},
        RegimeCase{"2 just beyond Lc", W, "W 12x 14", false, 3.51, 20000, false, true, 21600, true,
                   "Lu = 4.2"},
        RegimeCase{"2 at Lu and at its moment", W, "W 12x 14", false, 4.2, 26820, false, true, 21600, true,
                   "Lu = 4.2"},
        RegimeCase{"3 at Lc just over its moment", W, "W 12x 14", false, 3.5, 29503, true, false, 23760,
                   false, "Lc = 3.5"},
        RegimeCase{"4 at Lu just over its moment", W, "W 12x 14", false, 4.2, 26821, false, true, 21600,
                   false, "Lu = 4.2"},
        RegimeCase{"5 just beyond Lu", W, "W 12x 14", false, 4.21, 100, false, false, 0, false, ""},
        RegimeCase{"50 ksi at Lc", W, "W 12x 14", true, 2.5, 40000, true, false, 33000, true, "Lc = 2.5"},
        RegimeCase{"50 ksi beyond Lc", W, "W 12x 14", true, 3.5, 30000, false, true, 30000, true, "Lu = 3.6"},
        RegimeCase{"50 ksi beyond Lu", W, "W 12x 14", true, 3.61, 100, false, false, 0, false, ""}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Families, RegimeTest,
    testing::Values(RegimeCase{"W without Lc at 50 ksi", W, "W 6x 12", true, 0, 1000, false, true, 30000,
                               true, "Lu = 6.2"},
                    RegimeCase{"the same at 36 ksi", W, "W 6x 12", false, 0, 1000, true, false, 23760, true,
                               "Lc = 4.2"},
                    RegimeCase{"S with a whole limit", SteelFamily::S, "S 6x 12.5", true, 3, 1000, true,
                               false, 33000, true, "Lc = 3.0"},
                    RegimeCase{"braced channel", SteelFamily::C, "C 8x 11.5", false, 0, 1000, false, true,
                               21600, true, "Lu = 5.1"},
                    RegimeCase{"channel at Lu", SteelFamily::C, "C 8x 11.5", true, 3.7, 1000, false, true,
                               30000, true, "Lu = 3.7"},
                    RegimeCase{"channel beyond Lu", SteelFamily::C, "C 8x 11.5", true, 3.71, 1000, false,
                               false, 0, false, ""},
                    RegimeCase{"miscellaneous channel", SteelFamily::MC, "MC 7x 19.1", false, 11.4, 1000,
                               false, true, 21600, true, "Lu = 11.4"},
                    RegimeCase{"tube at any length", SteelFamily::Tube, "T 7x 4x 1/4", false, 60, 21229, true,
                               false, 27600, true, ""},  // 9.23 * 27600 / 12 = 21229
                    RegimeCase{"tube over its moment", SteelFamily::Tube, "T 7x 4x 1/4", false, 0, 21230,
                               true, false, 27600, false, ""},
                    RegimeCase{"tube of 50 ksi", SteelFamily::Tube, "T 7x 4x 1/4", true, 60, 1000, true,
                               false, 30000, true, ""},
                    RegimeCase{"plate", SteelFamily::Plate, "PL 15-1/2x 1/4", false, 60, 1000, true, false,
                               23760, true, ""},
                    RegimeCase{"pair of plates, not doubled again", SteelFamily::DoublePlate, "(2) PL 9x 3/4",
                               true, 60, 55687.5F, true, false, 33000, true, ""},  // 20.25 * 33000 / 12
                    RegimeCase{"pair over its moment", SteelFamily::DoublePlate, "(2) PL 9x 3/4", true, 0,
                               55688, true, false, 33000, false, ""}),
    CaseName);

}  // namespace
}  // namespace kordavan
