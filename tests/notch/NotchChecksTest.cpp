#include "notch/NotchCheck.h"

#include <gmock/gmock.h>

#include <array>

#include "notch/NotchBuilder.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view DnTooGreat =
    "The value for Dn (depth remaining at notch) is greater than the depth of the member.";

TEST(NotchChecks, GoInOrder)
{
    NotchEntry entry;
    entry.NotchListBox = 3;
    struct Step {
        void (*Mend)(NotchEntry&);
        std::string_view Text;
        std::string_view Focus;
    };
    const std::vector<Step> steps{
        {[](NotchEntry&) {}, "Please enter a valid numeric value for V.", "MaxVtextbox"},
        {[](NotchEntry& n) { n.MaxVtextbox = "2000"; }, "Please enter a valid numeric value for the Breadth.",
         "breadthtextbox"},
        {[](NotchEntry& n) { n.breadthtextbox = "3.5"; }, "Please enter a valid numeric value for the Depth.",
         "depthtextbox"},
        {[](NotchEntry& n) { n.depthtextbox = "10"; }, "Please select or enter a specie and grade",
         "SpeciesCombo"},
        {[](NotchEntry& n) { n.Species = "my own"; }, "Please select or enter the Base Fv Value.",
         "Fvtextbox"},
        {[](NotchEntry& n) { n.Fvtextbox = "180"; }, "Please enter a valid numeric value for Dn.",
         "dnTextbox"},
        {[](NotchEntry& n) { n.dnTextbox = "10.01"; }, DnTooGreat, "dnTextbox"},
        {[](NotchEntry& n) { n.dnTextbox = "8"; }, "Error at Calc selection, OK Cmd", "NotchListBox"},
        {[](NotchEntry& n) { n.NotchListBox = 1, n.eTextbox = "four"; },
         "Please enter a valid numeric value, enter a zero or leave the box blank", "eTextbox"},
        {[](NotchEntry& n) { n.NotchListBox = 2; }, "Please enter a valid numeric value for rd. ",
         "rdTextbox"},
        {[](NotchEntry& n) { n.rdTextbox = "9.25"; }, "Please enter a valid numeric value for t. ",
         "tTextbox"},
        {[](NotchEntry& n) { n.tTextbox = "5.5"; }, "Please enter a valid numeric value for rp. ",
         "rpTextbox"},
        {[](NotchEntry& n) { n.rpTextbox = "90"; }, "Please enter a valid numeric value for rp. ",
         "rpTextbox"},
    };
    for (const Step& step : steps) {
        step.Mend(entry);
        ScriptedUser user;
        EXPECT_EQ(ValidateNotch(entry, user), Outcome::Refused);
        EXPECT_THAT(user.Told, ElementsAre(RefusalOf(step.Text, step.Focus)));
    }
    entry.rpTextbox = "89.9";
    ScriptedUser user;
    EXPECT_EQ(ValidateNotch(entry, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(NotchChecks, WantNumbersAbove0)
{
    constexpr std::array numbers{&NotchEntry::MaxVtextbox,  &NotchEntry::breadthtextbox,
                                 &NotchEntry::depthtextbox, &NotchEntry::Fvtextbox,
                                 &NotchEntry::dnTextbox,    &NotchEntry::rdTextbox,
                                 &NotchEntry::tTextbox,     &NotchEntry::rpTextbox};
    for (std::string NotchEntry::*const number : numbers) {
        for (const char* const text : {"", " ", "0", "-4", "4in", "1,000", "nan", "inf", "1e999"}) {
            NotchEntry entry = PlainNotch(Sawn, Tapered);
            entry.*number = text;
            ScriptedUser user;
            EXPECT_EQ(ValidateNotch(entry, user), Outcome::Refused) << text;
        }
    }
}

TEST(NotchChecks, LetASetbackBeBlankOr0AndAskNothingAboutItElsewhere)
{
    for (const auto& [text, outcome] :
         {std::pair{"", Outcome::Done}, std::pair{"  ", Outcome::Done}, std::pair{"0", Outcome::Done},
          std::pair{"4", Outcome::Done}, std::pair{"-1", Outcome::Refused}}) {
        NotchEntry entry = PlainNotch(Sawn, Compression);
        entry.eTextbox = text;
        ScriptedUser user;
        EXPECT_EQ(ValidateNotch(entry, user), outcome) << text;
        entry.NotchListBox = 0;
        EXPECT_EQ(ValidateNotch(entry, user), Outcome::Done) << text;
    }
}

TEST(NotchChecks, LetDnBeTheWholeDepthAndALogHaveNoBreadth)
{
    NotchEntry entry = PlainNotch(Log, Compression);
    entry.dnTextbox = "10";
    entry.breadthtextbox = "";
    ScriptedUser user;
    EXPECT_EQ(ValidateNotch(entry, user), Outcome::Done);
    EXPECT_EQ(ReadNotchProblem(entry, 2005).Breadth, 10);
    EXPECT_EQ(ResultOf(entry, 2005).AreaAtNotch, 78.54);
    entry.breadthtextbox = "wide";
    EXPECT_EQ(ValidateNotch(entry, user), Outcome::Refused);
    entry.breadthtextbox = "";
    entry.MemberListBox = 2;
    EXPECT_EQ(ValidateNotch(entry, user), Outcome::Refused);
}

TEST(NotchRuns, KeepTheEarlierResultWhereTheYearHasNoRule)
{
    ScriptedUser user;
    NotchSession notch = NotchUnder(2018);
    ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
    EXPECT_FALSE(notch.Run->Result.IsComputed());
    EXPECT_FALSE(notch.Earlier.has_value());
    notch.Years.NdsYear = 2005;
    ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
    EXPECT_TRUE(notch.Run->Result.IsComputed());
    for (const std::int16_t year : std::array<std::int16_t, 2>{2015, 2012}) {
        notch.Years.NdsYear = year;
        ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
        EXPECT_EQ(notch.Run->Problem.NdsYear, year);
        ASSERT_TRUE(notch.Earlier.has_value());
        EXPECT_EQ(notch.Earlier->Problem.NdsYear, 2005);
    }
    notch.Years.NdsYear = 1997;
    ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
    EXPECT_FALSE(notch.Earlier.has_value());
}

TEST(NotchRuns, ARefusalKeepsTheLastRun)
{
    ScriptedUser user;
    NotchSession notch = NotchUnder(2005);
    ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
    notch.Entry.dnTextbox = "";
    EXPECT_EQ(CalculateNotch(notch, user), Outcome::Refused);
    EXPECT_EQ(notch.Run->Entry, PlainNotch());
    for (const char* const V : {"1e308", "1e-320"}) {
        notch.Entry = PlainNotch();
        notch.Entry.MaxVtextbox = V;
        notch.Entry.Fvtextbox = "1e-308";
        notch.Entry.breadthtextbox = "1e-20";
        user.Told.clear();
        EXPECT_EQ(CalculateNotch(notch, user), Outcome::Refused) << V;
        EXPECT_THAT(user.Told, ElementsAre(RefusalOf("Error: Notch requirements could not be calculated.")));
        EXPECT_EQ(user.Told.front().Title, "Kordavan");
        EXPECT_EQ(notch.Run->Entry, PlainNotch());
    }
}

}  // namespace
}  // namespace kordavan
