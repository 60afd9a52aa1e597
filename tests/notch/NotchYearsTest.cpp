#include "notch/NotchYears.h"

#include <gmock/gmock.h>

#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct OpeningCase {
    Edition Nds;
    std::int16_t Year;
    std::optional<std::size_t> Line;
    std::string_view Text;
};

class NotchYearsOpen : public testing::TestWithParam<OpeningCase> {};

TEST_P(NotchYearsOpen, InTheEditionOfTheSettings)
{
    const OpeningCase& test = GetParam();
    const NotchYears years = OpeningNotchYears(test.Nds);
    EXPECT_EQ(years.NdsYear, test.Year);
    EXPECT_EQ(years.Line, test.Line);
    EXPECT_EQ(NotchYearText(years), test.Text);
}

INSTANTIATE_TEST_SUITE_P(
    Editions, NotchYearsOpen,
    testing::Values(OpeningCase{Edition::Nds2018, 2018, 0, "In force: NDS 2018. No rule: not computed."},
                    OpeningCase{Edition::Nds2015, 2015, 1, "In force: NDS 2015. No rule: not computed."},
                    OpeningCase{Edition::Nds2012, 2012, 2, "In force: NDS 2012. No rule: not computed."},
                    OpeningCase{Edition::Nds2005, 2005, 3, "In force: NDS 2005."},
                    OpeningCase{Edition::Nds2001, 2001, std::nullopt, "In force: NDS 2001."},
                    OpeningCase{Edition::Nds1997, 1997, std::nullopt, "In force: NDS 1997."},
                    OpeningCase{Edition::None, 2018, 0, "In force: NDS 2018. No rule: not computed."}),
    CaseName);

TEST(NotchYears, AClickGoesByTheOlderList)
{
    ScriptedUser user;
    NotchYears years;
    constexpr std::array<std::int16_t, 3> clicked{2005, 2001, 1997};
    for (std::size_t line = 0; line < clicked.size(); ++line) {
        ClickNotchYear(years, line, user);
        EXPECT_EQ(years, (NotchYears{.NdsYear = clicked[line], .Line = line}));
    }
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(NotchYears, TheLastLineSelectsNone)
{
    ScriptedUser user;
    NotchYears years{.NdsYear = 2001, .Line = 1};
    ClickNotchYear(years, 3, user);
    EXPECT_EQ(years, (NotchYears{.NdsYear = 2001, .Line = 1}));
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("No NDS year selected.", "NDSyearList")));
    EXPECT_EQ(user.Told.front().Title, "Kordavan");
}

}  // namespace
}  // namespace kordavan
