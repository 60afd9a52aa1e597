#include "core/EntryRules.h"

#include <gtest/gtest.h>

#include <string>

#include "support/CaseName.h"

namespace kordavan {
namespace {

struct EntryCase {
    std::string_view Box;
    std::string_view Text;
    EntryVerdict Verdict;
};

class EntryRuleTest : public testing::TestWithParam<EntryCase> {};

TEST_P(EntryRuleTest, JudgesATypedText)
{
    const EntryRule* const rule = FindEntryRule(GetParam().Box);
    ASSERT_NE(rule, nullptr);
    EXPECT_EQ(JudgeEntry(*rule, GetParam().Text), GetParam().Verdict)
        << GetParam().Box << " \"" << GetParam().Text << "\"";
}

constexpr auto Stands = EntryVerdict::Stands;
constexpr auto Emptied = EntryVerdict::Emptied;
constexpr auto Refused = EntryVerdict::Refused;

INSTANTIATE_TEST_SUITE_P(
    Boxes, EntryRuleTest,
    testing::Values(
        EntryCase{"UNIF", "60", Stands}, EntryCase{"UNIF", "", Stands}, EntryCase{"UNIF", "0", Emptied},
        EntryCase{"UNIF", "0.00", Emptied}, EntryCase{"UNIF", "-", Refused}, EntryCase{"UNIF", "-5", Refused},
        EntryCase{"UNIF", "1,200", Refused}, EntryCase{"UNIF", ".", Refused},
        EntryCase{"UNIF", "1e999", Refused}, EntryCase{"LPT", "abc", Refused}, EntryCase{"DIS", ".", Stands},
        EntryCase{"DIS", "1.", Stands}, EntryCase{"DIS", ".5", Stands}, EntryCase{"DIS", "0", Stands},
        EntryCase{"BEGP", "0", Stands}, EntryCase{"ENDP", "-1", Refused}, EntryCase{"UBLtext", "Any", Stands},
        EntryCase{"UBLtext", "0", Stands}, EntryCase{"UBLtext", "any", Refused},
        EntryCase{"CantUBLtext", "Any", Stands}, EntryCase{"Pitchtext", ".", Stands},
        EntryCase{"Pitchtext", "0", Stands}, EntryCase{"Span", ".", Refused},
        EntryCase{"Span", "NaN", Refused}, EntryCase{"Trib1", "0", Stands}, EntryCase{"IncTL", "0", Emptied},
        EntryCase{"Text2", "0", Emptied}),
    CaseName);

TEST(EntryRules, LetAnyBeTypedInAnUnbracedBox)
{
    const EntryRule& rule = *FindEntryRule("UBLtext");
    for (const std::string_view text : {"A", "An", "Any"}) {
        EXPECT_EQ(JudgeEntry(rule, text, EntryState::BeingTyped), Stands) << text;
    }
    EXPECT_EQ(JudgeEntry(rule, "An"), Refused);
    EXPECT_EQ(JudgeEntry(rule, "n", EntryState::BeingTyped), Refused);
    EXPECT_EQ(JudgeEntry(*FindEntryRule("Span"), "A", EntryState::BeingTyped), Refused);
}

TEST(EntryRules, LeaveTextBoxesAlone)
{
    for (const std::string_view box : {"Proj", "Descrip", "Dur", "MaxDefl", "DepCombo"}) {
        EXPECT_EQ(FindEntryRule(box), nullptr) << box;
    }
}

TEST(EntryRules, TellsWhatIsWrongInTheWordsOfTheBox)
{
    EXPECT_EQ(FindEntryRule("CantUBLtext")->Message,
              "Please enter a valid numeric value for the unbraced length of Overhang in feet (enter in the "
              "blue box).");
    EXPECT_EQ(FindEntryRule("DIS")->Message,
              "Please enter a numeric value for the DISTANCE to the point load.");
}

TEST(EntryRules, RefuseToInsertALoadOfAMillion)
{
    const EntryRule& load = *FindEntryRule("PT");
    const EntryRule& distance = *FindEntryRule("DIS");
    EXPECT_EQ(InsertRefusal(&load, "999998.5"), "");
    EXPECT_EQ(InsertRefusal(&load, "999999"), "Number is too large to insert");
    EXPECT_EQ(InsertRefusal(&distance, "1000000"), "");
    EXPECT_EQ(InsertRefusal(nullptr, "1000000"), "");
    EXPECT_EQ(InsertRefusal(nullptr, ""), "The calculator shows no number to insert.");
}

TEST(EntryRules, WarnOfADurationOnlyOnceItCannotBecomeOne)
{
    for (const std::string_view text : {"", "0", "0.", ".", "0.9", "0.90", "1.15", "2.0", "2"}) {
        EXPECT_FALSE(IsDoubtfulDuration(text)) << text;
    }
    for (const std::string_view text : {"0.8", "0.89", "2.01", "3", "abc"}) {
        EXPECT_TRUE(IsDoubtfulDuration(text)) << text;
    }
}

}  // namespace
}  // namespace kordavan
