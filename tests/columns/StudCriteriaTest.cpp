#include "columns/StudCriteria.h"

#include <gmock/gmock.h>

#include <string_view>
#include <vector>

#include "columns/ColumnSpecies.h"
#include "columns/StudBuilder.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// One entry that stops the run, all others being in order.
struct RefusalCase {
    std::string_view Name;
    void (*Spoil)(StudEntry& stud);
    std::string_view Text;
    std::string_view Focus;
};

void PrintTo(const RefusalCase& row, std::ostream* out)
{
    *out << row.Name;
}

constexpr std::string_view FbRange =
    "The base value entered for the Fb is out of range. Please enter an Fb between 200 and 3100";
constexpr std::string_view FcRange =
    "The base value entered for the Fc is out of range. Please enter an Fc between 250 and 2300";
constexpr std::string_view ERange =
    "The base value entered for the E is out of range. Please enter an E between 0.5 and 2.0 (value divided "
    "by 1,000,000)";
constexpr std::string_view BegBeyondEnd =
    "The Beginning distance of a load can't be further than the load's End distance.";
constexpr std::string_view BegBeyondHeight =
    "The Beginning distance of a load can't be larger than the Stud Height.";
constexpr std::string_view EndBeyondHeight =
    "The End distance of a load can't be further than the overall Stud Height.";
constexpr std::string_view EnterAxialCd =
    "The default value for NO duration of load factor is 1.0. Other values are 1.15 for Snow, 1.25 for No "
    "Snow, and 1.6 for wind.";
constexpr std::string_view EnterWindCd =
    "The default value for NO duration of load factor is 1.0. Wind load on studs qualifies for a duration of "
    "load factor of 1.6.";
constexpr std::string_view EnterHeight =
    "Please enter a stud height in decimal feet. Example: 10.75 = 10 ft - 9 in.";
constexpr std::string_view EnterAxial = "Please enter a load for the Axial Point Load or Axial PLF.";
constexpr std::string_view EnterWindA =
    "Please enter a load for Wind Load A. Wind loads B and C are optional.";
constexpr std::string_view EnterEndA = "Please enter an end distance for Wind Load A.";
constexpr std::string_view EnterSpecies =
    "For your documentation, please enter a custom Species and Grade name or select one from the drop down "
    "list.";

const std::vector<RefusalCase> Refusals{
    {"no height", [](StudEntry& s) { s.WindStudHt = ""; }, EnterHeight, "WindStudHt"},
    {"no axial load", [](StudEntry& s) { s.AxialPLFtextbox = "0"; }, EnterAxial, "AxialPLFtextbox"},
    {"wind A of 0", [](StudEntry& s) { s.Wind[0] = "0"; }, EnterWindA, "WindA"},
    {"no end of A", [](StudEntry& s) { s.End[0] = ""; }, EnterEndA, "EndA"},
    {"end of A 0", [](StudEntry& s) { s.End[0] = "0"; }, EnterEndA, "EndA"},
    {"no beginning of B", [](StudEntry& s) { s.Wind[1] = "5", s.End[1] = "4"; },
     "Please enter a Beginning location for Wind Load B.", "BegB"},
    {"no end of B", [](StudEntry& s) { s.Wind[1] = "5", s.Beg[1] = "0"; },
     "Please enter an End location for Wind Load B.", "EndB"},
    {"no beginning of C", [](StudEntry& s) { s.Wind[2] = "-5", s.End[2] = "4"; },
     "Please enter a Beginning location for Wind Load C.", "BegC"},
    {"no end of C", [](StudEntry& s) { s.Wind[2] = "5", s.Beg[2] = "0"; },
     "Please enter an End location for Wind Load C.", "EndC"},
    {"no Fb", [](StudEntry& s) { s.WindStudFb = ""; }, "Please enter an Fb Base Value.", "WindStudFb"},
    {"no Fc", [](StudEntry& s) { s.WindStudFc = ""; }, "Please enter an Fc Base Value.", "WindStudFc"},
    {"no E", [](StudEntry& s) { s.WindStudE = ""; }, "Please enter an E Base Value.", "WindStudE"},
    {"no species", [](StudEntry& s) { s.WindStudCombo = ""; }, EnterSpecies, "WindStudCombo"},
    {"Fb below its range", [](StudEntry& s) { s.WindStudFb = "199.9"; }, FbRange, "WindStudFb"},
    {"Fb at its upper bound", [](StudEntry& s) { s.WindStudFb = "3100"; }, FbRange, "WindStudFb"},
    {"Fc below its range", [](StudEntry& s) { s.WindStudFc = "249.9"; }, FcRange, "WindStudFc"},
    {"Fc at its upper bound", [](StudEntry& s) { s.WindStudFc = "2300"; }, FcRange, "WindStudFc"},
    {"E below its range", [](StudEntry& s) { s.WindStudE = ".49"; }, ERange, "WindStudE"},
    {"E at its upper bound", [](StudEntry& s) { s.WindStudE = "2"; }, ERange, "WindStudE"},
    {"A begins beyond its end", [](StudEntry& s) { s.Beg[0] = "6", s.End[0] = "5.9"; }, BegBeyondEnd, "BegA"},
    {"B begins beyond the height", [](StudEntry& s) { s.Beg[1] = "10.1", s.End[1] = "11"; }, BegBeyondHeight,
     "BegB"},
    {"C ends beyond the height", [](StudEntry& s) { s.Wind[2] = "5", s.Beg[2] = "0", s.End[2] = "10.01"; },
     EndBeyondHeight, "EndC"},
    {"an absent load ends beyond the height", [](StudEntry& s) { s.End[1] = "12"; }, EndBeyondHeight, "EndB"},
    {"height below 0",
     [](StudEntry& s) {
         s.WindStudHt = "-9", s.Beg = {"-9", "-9", "-9"}, s.End = s.Beg;
     },
     "The stud height can't be below 0.", "WindStudHt"},
    {"spacing below 0", [](StudEntry& s) { s.WindStudSpacing = "-16"; }, "The stud spacing can't be below 0.",
     "WindStudSpacing"},
    {"axial load of wall below 0", [](StudEntry& s) { s.AxialPLFtextbox = "-1"; },
     "The Axial PLF can't be below 0: studs in tension are not checked here.", "AxialPLFtextbox"},
    {"axial point load below 0", [](StudEntry& s) { s.AxialPointTextbox = "-1"; },
     "The Axial Point Load can't be below 0: studs in tension are not checked here.", "AxialPointTextbox"},
    {"axial duration below 0", [](StudEntry& s) { s.AxialDurTextbox = "-1"; },
     "A duration of load factor can't be below 0.", "AxialDurTextbox"},
    {"wind duration below 0", [](StudEntry& s) { s.DurWindTextbox = "-1.6"; },
     "A duration of load factor can't be below 0.", "DurWindTextbox"},
    {"A begins below the base", [](StudEntry& s) { s.Beg[0] = "-0.5"; },
     "The Beginning distance of a load counts from the base of the stud and can't be below 0.", "BegA"},
};

class StudRefusal : public testing::TestWithParam<RefusalCase> {};

TEST_P(StudRefusal, TellsWhatIsWrongAndWhereAndChangesNothing)
{
    StudEntry stud = PlainStud();
    GetParam().Spoil(stud);
    const StudEntry entered = stud;
    ScriptedUser user;
    EXPECT_EQ(ValidateStudProblem(stud, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(GetParam().Text, GetParam().Focus)));
    EXPECT_EQ(stud, entered);
}

INSTANTIATE_TEST_SUITE_P(Entries, StudRefusal, testing::ValuesIn(Refusals), CaseName);

struct AcceptedCase {
    std::string_view Name;
    void (*Change)(StudEntry& stud);
};

void PrintTo(const AcceptedCase& row, std::ostream* out)
{
    *out << row.Name;
}

class StudAccepted : public testing::TestWithParam<AcceptedCase> {};

TEST_P(StudAccepted, PassesWithoutAWord)
{
    StudEntry stud = PlainStud();
    GetParam().Change(stud);
    const StudEntry entered = stud;
    ScriptedUser user;
    EXPECT_EQ(ValidateStudProblem(stud, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_EQ(stud, entered);
}

INSTANTIATE_TEST_SUITE_P(
    Limits, StudAccepted,
    testing::Values(AcceptedCase{"plain", [](StudEntry&) {}},
                    AcceptedCase{"point load alone",
                                 [](StudEntry& s) { s.AxialPLFtextbox = "", s.AxialPointTextbox = "1"; }},
                    AcceptedCase{"A from the base by an empty box", [](StudEntry& s) { s.Beg[0] = ""; }},
                    AcceptedCase{"B of no extent, at the top",
                                 [](StudEntry& s) { s.Wind[1] = "5", s.Beg[1] = "10", s.End[1] = "10"; }},
                    AcceptedCase{"B of 0 without places", [](StudEntry& s) { s.Wind[1] = "0"; }},
                    AcceptedCase{"suction", [](StudEntry& s) { s.Wind[0] = "-20"; }},
                    AcceptedCase{"lower bounds",
                                 [](StudEntry& s) {
                                     s.WindStudFb = "200", s.WindStudFc = "250", s.WindStudE = "0.5";
                                 }},
                    AcceptedCase{"below the upper bounds",
                                 [](StudEntry& s) {
                                     s.WindStudFb = "3099.9", s.WindStudFc = "2299.9", s.WindStudE = "1.99";
                                 }}),
    CaseName);

/// With everything wrong at once the checks come one after the other as each box is mended.
TEST(StudCriteria, CheckInTheirOrder)
{
    StudEntry stud;
    stud.AxialDurTextbox = "";
    stud.DurWindTextbox = "0";
    stud.Wind[2] = "5";
    stud.Beg[1] = "20";
    struct Step {
        void (*Mend)(StudEntry& stud);
        std::string_view Focus;
    };
    const std::vector<Step> steps{
        {[](StudEntry&) {}, "WindStudHt"},
        {[](StudEntry& s) { s.WindStudHt = "10", s.WindStudSpacing = "-16"; }, "AxialPLFtextbox"},
        {[](StudEntry& s) { s.AxialPLFtextbox = "-600"; }, "WindA"},
        {[](StudEntry& s) { s.Wind[0] = "20"; }, "EndA"},
        {[](StudEntry& s) { s.End[0] = "10"; }, "BegC"},
        {[](StudEntry& s) { s.Beg[2] = "0"; }, "EndC"},
        {[](StudEntry& s) { s.End[2] = "5"; }, "WindStudFb"},
        {[](StudEntry& s) { s.WindStudFb = "1"; }, "WindStudFc"},
        {[](StudEntry& s) { s.WindStudFc = "1"; }, "WindStudE"},
        {[](StudEntry& s) { s.WindStudE = "9"; }, "WindStudCombo"},
        {[](StudEntry& s) { s.WindStudCombo = "Custom"; }, "WindStudFb"},
        {[](StudEntry& s) { s.WindStudFb = "900"; }, "WindStudFc"},
        {[](StudEntry& s) { s.WindStudFc = "1350"; }, "WindStudE"},
        {[](StudEntry& s) { s.WindStudE = "1.6"; }, "AxialDurTextbox"},
        {[](StudEntry&) {}, "DurWindTextbox"},  // the first has been filled in
        {[](StudEntry&) {}, "BegB"},
        {[](StudEntry& s) { s.Beg[1] = ""; }, "WindStudSpacing"},
        {[](StudEntry& s) { s.WindStudSpacing = "16"; }, "AxialPLFtextbox"},
    };
    for (const Step& step : steps) {
        step.Mend(stud);
        ScriptedUser user;
        EXPECT_EQ(ValidateStudProblem(stud, user), Outcome::Refused);
        ASSERT_FALSE(user.Told.empty());
        EXPECT_EQ(user.Told.back().Focus, step.Focus);
    }
    EXPECT_EQ(stud.AxialDurTextbox, "1.0");
    EXPECT_EQ(stud.DurWindTextbox, "1.6");
}

TEST(StudCriteria, FillAMissingSpacingAndGoOn)
{
    for (const std::string_view spacing : {"", "0", "none"}) {
        StudEntry stud = PlainStud();
        stud.WindStudSpacing = spacing;
        ScriptedUser user;
        EXPECT_EQ(ValidateStudProblem(stud, user), Outcome::Done);
        EXPECT_THAT(user.Told, ElementsAre(AlertOf("The minimum stud spacing is 12 inches o.c. for PSF of 1 "
                                                   "sq ft, without repetitive use factor.",
                                                   "WindStudSpacing")));
        EXPECT_EQ(stud.WindStudSpacing, "12");
    }
}

TEST(StudCriteria, FillAMissingDurationAndStop)
{
    StudEntry stud = PlainStud();
    stud.AxialDurTextbox = "0";
    stud.DurWindTextbox = "";
    ScriptedUser user;
    EXPECT_EQ(ValidateStudProblem(stud, user), Outcome::Refused);
    EXPECT_EQ(stud.AxialDurTextbox, "1.0");
    EXPECT_EQ(stud.DurWindTextbox, "");
    EXPECT_EQ(ValidateStudProblem(stud, user), Outcome::Refused);
    EXPECT_EQ(stud.DurWindTextbox, "1.6");
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(EnterAxialCd, "AxialDurTextbox"),
                                       RefusalOf(EnterWindCd, "DurWindTextbox")));
}

TEST(StudSpecies, PickingANameFillsItsValues)
{
    StudEntry stud;
    PickStudSpecies(stud, "White Oak #1", Edition::Nds2018);
    EXPECT_EQ(stud.WindStudCombo, "White Oak #1");
    EXPECT_EQ(stud.WindStudFb, "875");
    EXPECT_EQ(stud.WindStudFc, "900");
    EXPECT_EQ(stud.WindStudE, "1.0");
    PickStudSpecies(stud, "of the house", Edition::Nds2018);
    EXPECT_EQ(stud.WindStudFb, "875");
    PickStudSpecies(stud, CustomSpecies, Edition::Nds2018);
    EXPECT_EQ(stud.WindStudCombo, "Custom");
    EXPECT_EQ(stud.WindStudFb + stud.WindStudFc + stud.WindStudE, "");
}

TEST(StudSpecies, PickedValuesFollowTheEditionAndTypedOnesStay)
{
    StudEntry stud;
    PickStudSpecies(stud, "Hem-Fir #1", Edition::Nds1997);
    EXPECT_EQ(stud.WindStudFc, "1350");
    ChangeStudEdition(stud, Edition::Nds1997, Edition::Nds2018);
    EXPECT_EQ(stud.WindStudFc, "1300");
    stud.WindStudFc = "1250";
    ChangeStudEdition(stud, Edition::Nds2018, Edition::Nds1997);
    EXPECT_EQ(stud.WindStudFc, "1250");
}

}  // namespace
}  // namespace kordavan
