#include "records/AnsiText.h"

#include <gmock/gmock.h>

#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::Each;
using testing::IsEmpty;
using testing::Not;

struct AnsiCase {
    std::string_view Name;
    std::string_view Ansi;
    std::string_view Text;
};

class AnsiTextTest : public testing::TestWithParam<AnsiCase> {};

TEST_P(AnsiTextTest, GoesBothWays)
{
    EXPECT_EQ(TextOfAnsi(GetParam().Ansi), GetParam().Text);
    EXPECT_EQ(AnsiOfText(GetParam().Text), GetParam().Ansi);
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, AnsiTextTest,
    testing::Values(AnsiCase{"empty", "", ""}, AnsiCase{"ASCII", " 2x10 DF-L #2~\x7F", " 2x10 DF-L #2~\x7F"},
                    AnsiCase{"control characters", std::string_view("\0\t\n\x1F", 4),
                             std::string_view("\0\t\n\x1F", 4)},
                    AnsiCase{"80 to 87", "\x80\x82\x83\x84\x85\x86\x87", "€‚ƒ„…†‡"},
                    AnsiCase{"88 to 8E", "\x88\x89\x8A\x8B\x8C\x8E", "ˆ‰Š‹ŒŽ"},
                    AnsiCase{"91 to 97", "\x91\x92\x93\x94\x95\x96\x97", "‘’“”•–—"},
                    AnsiCase{"98 to 9F", "\x98\x99\x9A\x9B\x9C\x9E\x9F", "˜™š›œžŸ"},
                    AnsiCase{"left open", "\x81\x8D\x8F\x90\x9D", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"},
                    AnsiCase{"first of Latin-1", "\xA0\xA1\xBD", "\xC2\xA0¡½"},
                    AnsiCase{"last of Latin-1", "\xC0\xD7\xE9\xFF", "À×éÿ"}),
    CaseName);

struct UnmappedCase {
    std::string_view Name;
    std::string_view Text;
};

class UnmappedTextTest : public testing::TestWithParam<UnmappedCase> {};

TEST_P(UnmappedTextTest, GivesOneQuestionMarkForACharacter)
{
    EXPECT_EQ(AnsiOfText("a" + std::string(GetParam().Text) + "b"), "a?b");
}

INSTANTIATE_TEST_SUITE_P(Characters, UnmappedTextTest,
                         testing::Values(UnmappedCase{"after Latin-1", "\u0100"},
                                         UnmappedCase{"number of a byte with another meaning", "\xC2\x80"},
                                         UnmappedCase{"the last such", "\xC2\x9F"},
                                         UnmappedCase{"three bytes", "\u2192"},
                                         UnmappedCase{"four bytes", "\U0001F332"}),
                         CaseName);

class MalformedTextTest : public testing::TestWithParam<UnmappedCase> {};

TEST_P(MalformedTextTest, GivesQuestionMarks)
{
    const std::string ansi = AnsiOfText(GetParam().Text);
    EXPECT_THAT(ansi, Not(IsEmpty()));
    EXPECT_THAT(ansi, Each('?'));
    EXPECT_EQ(AnsiOfText("a" + std::string(GetParam().Text) + "b"), "a" + ansi + "b");
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, MalformedTextTest,
    testing::Values(UnmappedCase{"continuation alone", "\x80"}, UnmappedCase{"two continuations", "\xBF\xBF"},
                    UnmappedCase{"first of two alone", "\xC3"}, UnmappedCase{"first of three alone", "\xE2"},
                    UnmappedCase{"two of three", "\xE2\x82"}, UnmappedCase{"three of four", "\xF0\x9F\x8C"},
                    UnmappedCase{"half of a pair", "\xED\xA0\x80"},
                    UnmappedCase{"beyond Unicode", "\xF4\x90\x80\x80"},
                    UnmappedCase{"no first byte", "\xFF\xFE"}, UnmappedCase{"overlong letter", "\xC1\x81"},
                    UnmappedCase{"overlong zero", "\xC0\x80"},
                    UnmappedCase{"overlong slash of three", "\xE0\x80\xAF"},
                    UnmappedCase{"overlong slash of four", "\xF0\x80\x80\xAF"},
                    UnmappedCase{"first of five", "\xF8\x80\x80\x81\x81"}),
    CaseName);

TEST(AnsiText, BringsEveryByteBack)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string ansi(1, static_cast<char>(byte));
        EXPECT_EQ(AnsiOfText(TextOfAnsi(ansi)), ansi) << byte;
    }
}

}  // namespace
}  // namespace kordavan
