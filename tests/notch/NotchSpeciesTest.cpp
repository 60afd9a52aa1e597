#include "notch/NotchCheck.h"

#include <gmock/gmock.h>

#include "notch/NotchBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::Contains;
using testing::Not;

TEST(NotchSpecies, AreThoseOfTheMember)
{
    EXPECT_THAT(NotchSpeciesNames(Sawn), Contains("DF-L #2").Times(1));
    EXPECT_THAT(NotchSpeciesNames(Sawn), Contains("So. Pine #2 SR"));
    EXPECT_THAT(NotchSpeciesNames(Log), Not(Contains("So. Pine #2")));
    EXPECT_THAT(NotchSpeciesNames(Log), Contains("So. Pine #2 SR"));
    EXPECT_EQ(NotchSpeciesNames(Glulam).size(), 8U);
    EXPECT_THAT(NotchSpeciesNames(Glulam), Not(Contains("DF-L #2")));
}

struct PickCase {
    std::string_view Name;
    NotchMember Member;
    std::string Breadth;
    std::string_view Species;
    Edition Nds;
    std::string_view Fv;
};

class NotchPick : public testing::TestWithParam<PickCase> {};

TEST_P(NotchPick, BringsItsFv)
{
    const PickCase& test = GetParam();
    NotchEntry entry = PlainNotch(test.Member);
    entry.breadthtextbox = test.Breadth;
    entry.Fvtextbox = "as typed";
    PickNotchSpecies(entry, test.Species, test.Nds);
    EXPECT_EQ(entry.Species, test.Species);
    EXPECT_EQ(entry.Fvtextbox, test.Fv);
}

// NDS Supplement: DF-L 180 psi as dimension lumber and 170 as timber, 95 and 85 in 1997.
INSTANTIATE_TEST_SUITE_P(
    Values, NotchPick,
    testing::Values(PickCase{"2x", Sawn, "1.5", "DF-L #2", Edition::Nds2018, "180"},
                    PickCase{"4x in 1997", Sawn, "3.5", "DF-L #2", Edition::Nds1997, "95"},
                    PickCase{"6x", Sawn, "5.5", "DF-L #2", Edition::Nds2001, "170"},
                    PickCase{"6x in 1997", Sawn, "5.5", "DF-L #2", Edition::Nds1997, "85"},
                    PickCase{"no breadth yet", Sawn, "", "DF-L #2", Edition::Nds2018, "180"},
                    PickCase{"log", Log, "", "DF-L #2", Edition::Nds2018, "170"},
                    PickCase{"glulam", Glulam, "5.125", "GLB 24F-V4 DF/DF", Edition::Nds2018, "240"},
                    PickCase{"not a glulam", Glulam, "5.125", "DF-L #2", Edition::Nds2018, "as typed"},
                    PickCase{"own name", Sawn, "3.5", "of the house", Edition::Nds2018, "as typed"}),
    CaseName);

}  // namespace
}  // namespace kordavan
