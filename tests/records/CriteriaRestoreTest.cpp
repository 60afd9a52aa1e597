#include <limits>

#include "design/EntryAdjustment.h"
#include "design/NewBeam.h"
#include "records/CriteriaBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

struct GenerationCase {
    std::string_view Name;
    int Tag;
    bool HoldsStatus;
    bool HoldsEdition;
    bool HoldsChoice;
};

class GenerationTest : public testing::TestWithParam<GenerationCase> {};

TEST_P(GenerationTest, RestoresItsEntries)
{
    const GenerationCase& c = GetParam();
    Session session = OtherSession();
    Restore(FilledCriteria(c.Tag).All(), session);
    BeamProblem expected = FilledProblem();
    if (!c.HoldsStatus) {
        expected.CantUBLtext = "";
        expected.Incised = expected.ksi50 = false;
    }
    expected.NoWeight = c.HoldsChoice;
    ExpectSame(session.Problem, expected);
    EXPECT_FALSE(HasUnsavedEntries(session));
    RestoreEntries(session);  // nothing of the beam before is put back
    ExpectSame(session.Problem, expected);
    EXPECT_FALSE(session.Unbalanced.Span);
    EXPECT_EQ(session.IncreasingTotalLoad, 0);
    EXPECT_EQ(session.Header.Heading1, "Timber & Sons");
    EXPECT_EQ(session.Header.Heading2, "Caf\u00E9 Street 5");
    EXPECT_EQ(session.Header.Initialbox, "JD");
}

TEST_P(GenerationTest, LeavesWhatItDoesNotHold)
{
    const GenerationCase& c = GetParam();
    Session session = OtherSession();
    session.Problem.Incised = session.Problem.ksi50 = true;
    Restore(FilledCriteria(c.Tag).Short(698, 0).Short(702, 0).All(), session);
    EXPECT_EQ(session.Problem.Incised, !c.HoldsStatus);
    EXPECT_EQ(session.Problem.ksi50, !c.HoldsStatus);
    ASSERT_EQ(session.Selection.has_value(), c.HoldsStatus);
    EXPECT_EQ(CriteriaResultLine(session.Selection),
              c.HoldsStatus ? " Selection:   4x  10 DF-L #2   -  Status: Fails   -  Date: 1/02/26"
                            : "   Selection:  None");
    EXPECT_EQ(session.NoteClipboard[0], c.HoldsEdition ? "first note" : "old note");
    EXPECT_EQ(session.NoteClipboard[5], c.HoldsEdition ? "" : "old sixth");
    EXPECT_EQ(session.NoteClipboard[6], c.HoldsEdition ? "last note" : "");
    ExpectFlags(session.Nds, EditionFlags(c.HoldsEdition ? Edition::Nds2012 : Edition::Nds2005));
    EXPECT_EQ(session.Entry.BreadthText, c.HoldsChoice ? "4x" : "6x");
    EXPECT_EQ(session.Entry.DepthText, c.HoldsChoice ? "10" : "12");
    EXPECT_EQ(session.Entry.SpeciesText, c.HoldsChoice ? "DF-L #2" : "Hem-Fir #1");
    EXPECT_EQ(session.Entry.ShapeName, c.HoldsChoice ? "W 8x 18" : "");
}

INSTANTIATE_TEST_SUITE_P(Tags, GenerationTest,
                         testing::Values(GenerationCase{"first", -11, false, false, false},
                                         GenerationCase{"with status", -12, true, false, false},
                                         GenerationCase{"with edition", -13, true, true, false},
                                         GenerationCase{"with choice", -2007, true, true, true}),
                         CaseName);

TEST(RestoreCriteria, TakesOnlyTheOldestEditionFromTheSecondGeneration)
{
    Session session = OtherSession();
    Restore(FilledCriteria(-12).On(700).On(1611).All(), session);
    ExpectFlags(session.Nds, {.Nds1997 = true, .Nds2005 = true});
    Restore(FilledCriteria(-12).All(), session);
    ExpectFlags(session.Nds, {.Nds2005 = true});
}

TEST(RestoreCriteria, GivesEmptyBoxesForABlankRecord)
{
    const Session session = Restored(BlankCriteria(-2007).All());
    BeamProblem expected;
    expected.Dur = expected.MaxDefl = expected.LMaxDefl = "";
    expected.INGRADE = false;
    expected.ThreeSpan = true;
    ExpectSame(session.Problem, expected);
    EXPECT_EQ(session.Problem.Support, SupportCondition::SimpleSpan);
    EXPECT_FALSE(session.Selection);
    EXPECT_THAT(session.NoteClipboard, Each(""));
    EXPECT_EQ(EditionInForce(session.Nds), Edition::None);
}

TEST(RestoreCriteria, TakesAShortFileAsFarAsItGoes)
{
    const Session session = Restored(FilledCriteria(-2007).All().substr(0, 140));  // ends within PT[0]
    EXPECT_EQ(session.Problem.Span, "16.5");
    EXPECT_EQ(session.Problem.Loads.LUNIF, "60.25");
    EXPECT_EQ(session.Problem.Loads.PT[0], "");
    EXPECT_EQ(session.Problem.UBLtext, "");
    EXPECT_EQ(session.Header.Heading1, "");
    EXPECT_FALSE(session.Selection);
}

struct HeldNumberCase {
    std::string_view Name;
    std::size_t Offset;
    float Held;
    std::string BeamProblem::*Box;
    std::string_view Text;
};

class RestoredNumberTest : public testing::TestWithParam<HeldNumberCase> {};

TEST_P(RestoredNumberTest, ReadsAsItWasTyped)
{
    const HeldNumberCase& c = GetParam();
    const Session session = Restored(BlankCriteria(-2007).Float(c.Offset, c.Held).All());
    EXPECT_EQ(session.Problem.*c.Box, c.Text);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, RestoredNumberTest,
    testing::Values(HeldNumberCase{"no duration", 96, 0, &BeamProblem::Dur, ""},
                    HeldNumberCase{"normal duration", 96, 1, &BeamProblem::Dur, "1.00"},
                    HeldNumberCase{"snow", 96, 1.15F, &BeamProblem::Dur, "1.15"},
                    HeldNumberCase{"permanent", 96, 0.9F, &BeamProblem::Dur, "0.9"},
                    HeldNumberCase{"span of 1", 92, 1, &BeamProblem::Span, "1"},
                    HeldNumberCase{"no span", 92, 0, &BeamProblem::Span, ""},
                    HeldNumberCase{"negative span", 92, -3.5F, &BeamProblem::Span, "-3.5"},
                    HeldNumberCase{"long span", 92, 1e9F, &BeamProblem::Span, "1000000000"},
                    HeldNumberCase{"braced", 556, 0, &BeamProblem::UBLtext, ""},
                    HeldNumberCase{"held zero elsewhere", 92, 0.0001F, &BeamProblem::Span, "0.0001"}),
    CaseName);

TEST(RestoreCriteria, TellsAStartOfZeroFromAnEmptyRow)
{
    const RecordBytes bytes =
        BlankCriteria(-2007).Text(270, HeldZeroBytes).Float(278, 0.00011F).Text(286, HeldZeroBytes);
    EXPECT_THAT(Restored(bytes.All()).Problem.Loads.BEGP, ElementsAre("0", "", "0.00011", "", "0"));
}

struct SpacingCase {
    std::string_view Name;
    bool Rep;
    std::size_t Offset;  // of the flag that is on; 0 for none
    RepetitiveSpacing Spacing;
};

class RestoredSpacingTest : public testing::TestWithParam<SpacingCase> {};

TEST_P(RestoredSpacingTest, IsThatOfItsFlag)
{
    const SpacingCase& c = GetParam();
    RecordBytes bytes = BlankCriteria(-2007);
    bytes.Short(110, c.Rep ? -1 : 0);
    if (c.Offset != 0) {
        bytes.On(c.Offset);
    }
    const Session session = Restored(bytes.All());
    EXPECT_EQ(session.Problem.Rep, c.Rep);
    EXPECT_EQ(SpacingInForce(session.Problem), c.Spacing);
}

INSTANTIATE_TEST_SUITE_P(Flags, RestoredSpacingTest,
                         testing::Values(SpacingCase{"12 in", true, 112, RepetitiveSpacing::Ctr12},
                                         SpacingCase{"16 in", true, 114, RepetitiveSpacing::Ctr16},
                                         SpacingCase{"19 in", true, 116, RepetitiveSpacing::Ctr19},
                                         SpacingCase{"24 in", true, 118, RepetitiveSpacing::Ctr24},
                                         SpacingCase{"none", true, 0, RepetitiveSpacing::Ctr0},
                                         SpacingCase{"not repetitive", false, 0, RepetitiveSpacing::None}),
                         CaseName);

struct SupportCase {
    std::string_view Name;
    std::vector<std::size_t> Flags;
    SupportCondition Support;
    bool ThreeSpan;
    std::string_view UBLtext;
    std::string_view CantUBLtext;
};

class RestoredSupportTest : public testing::TestWithParam<SupportCase> {};

TEST_P(RestoredSupportTest, BringsItsUnbracedLengths)
{
    const SupportCase& c = GetParam();
    RecordBytes bytes = BlankCriteria(-2007);
    bytes.Float(556, 6).Float(694, 2);
    for (const std::size_t offset : c.Flags) {
        bytes.On(offset);
    }
    const BeamProblem problem = Restored(bytes.All()).Problem;
    EXPECT_EQ(problem.Support, c.Support);
    EXPECT_EQ(problem.ThreeSpan, c.ThreeSpan);
    EXPECT_EQ(problem.UBLtext, c.UBLtext);
    EXPECT_EQ(problem.CantUBLtext, c.CantUBLtext);
}

INSTANTIATE_TEST_SUITE_P(
    Flags, RestoredSupportTest,
    testing::Values(SupportCase{"simple", {120}, SupportCondition::SimpleSpan, true, "6", ""},
                    SupportCase{"overhang", {126}, SupportCondition::Overhanging, true, "6", "2"},
                    SupportCase{"hip", {128}, SupportCondition::HipValley, true, "6", ""},
                    SupportCase{"two spans", {122, 124}, SupportCondition::MultipleSpans, false, "0", "0"},
                    SupportCase{"three spans", {122}, SupportCondition::MultipleSpans, true, "0", "0"},
                    SupportCase{
                        "two flags", {120, 122, 124}, SupportCondition::MultipleSpans, false, "0", "0"},
                    SupportCase{"none", {}, SupportCondition::SimpleSpan, true, "6", ""}),
    CaseName);

struct AdvisoryCase {
    std::string_view Name;
    std::string Bytes;
    std::string_view Text;  // empty where nothing is told
};

class EditionAdvisoryTest : public testing::TestWithParam<AdvisoryCase> {};

TEST_P(EditionAdvisoryTest, NamesTheLatestOfTheFlags)
{
    ScriptedUser user;
    TellCriteriaEdition(PackedRecord(CriteriaLayout, GetParam().Bytes), user);
    if (GetParam().Text.empty()) {
        EXPECT_THAT(user.Told, IsEmpty());
    } else {
        EXPECT_THAT(user.Told, ElementsAre(AlertOf(GetParam().Text)));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Records, EditionAdvisoryTest,
    testing::Values(
        AdvisoryCase{"none", BlankCriteria(-2007).All(),
                     "This criteria was saved under NDS 2001 or earlier standards. NDS Edition unknown."},
        AdvisoryCase{"none of the third generation", BlankCriteria(-13).All(),
                     "This criteria was saved under NDS 2001 or earlier standards. NDS Edition unknown."},
        AdvisoryCase{"first and last", BlankCriteria(-2007).On(700).On(1611).All(),
                     "This criteria was saved under NDS 2018 standards."},
        AdvisoryCase{"2012 beside 2005", BlankCriteria(-2007).On(1301).On(1607).All(),
                     "This criteria was saved under NDS 2012 standards."},
        AdvisoryCase{"2001 beside 1997", BlankCriteria(-13).On(700).On(1299).All(),
                     "This criteria was saved under NDS 2001 standards."},
        AdvisoryCase{"first generation", BlankCriteria(-11).On(1611).All(), ""},
        AdvisoryCase{"second generation", BlankCriteria(-12).On(700).On(1611).All(), ""}),
    CaseName);

TEST(RestoreCriteria, LeavesTheCustomValuesAlone)
{
    RecordBytes bytes = FilledCriteria(-2007);
    bytes.Text(1423, "Custom beam").Text(1483, "2400").Text(1487, "190").Text(1491, "1.8").Text(1495, "560");
    bytes.Text(1499, "6x").Text(1509, "12").Text(1519, "of the file");
    for (std::size_t offset = 1579; offset < 1599; offset += 2) {
        bytes.On(offset);
    }
    Session session;
    session.Entry.Custom.Fb = "1000";
    session.Entry.Custom.Wid4x = true;
    Restore(bytes.Text(1599, "8.5").All(), session);
    const CustomEntry& custom = session.Entry.Custom;
    EXPECT_EQ(custom.Fb, "1000");
    EXPECT_EQ(custom.Fv + custom.E + custom.FcPerp + custom.Diam, "");
    EXPECT_TRUE(custom.Wid4x);
    EXPECT_FALSE(custom.Wid2x || custom.Wid6x || custom.WidGLB || custom.WidGLBHDR || custom.SPG ||
                 custom.MSRCheckbox || custom.MELCheckbox || custom.Roundoption || custom.CustomIngradeSP);
}

struct AbsurdCase {
    std::string_view Name;
    std::string Bytes;
    std::string_view Field;
};

class AbsurdRecordTest : public testing::TestWithParam<AbsurdCase> {};

TEST_P(AbsurdRecordTest, IsRefusedWithNothingChanged)
{
    Session session = OtherSession();
    const Session before = session;
    ScriptedUser user;
    EXPECT_EQ(RestoreCriteria(PackedRecord(CriteriaLayout, GetParam().Bytes), session, user),
              Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("This Beam Criteria file holds a value that is no number (" +
                                      std::string(GetParam().Field) + "), so it was not loaded.")));
    ExpectSame(session.Problem, before.Problem);
    ExpectSame(session.KeptProblem, before.KeptProblem);
    ExpectFlags(session.Nds, before.Nds);
    EXPECT_EQ(session.Header.Heading1, "old head");
    EXPECT_EQ(CriteriaResultLine(session.Selection), CriteriaResultLine(before.Selection));
    EXPECT_EQ(session.NoteClipboard, before.NoteClipboard);
    EXPECT_EQ(session.Entry.DepthText, "12");
    EXPECT_TRUE(session.Restore.HipLoadsGrown);
    EXPECT_TRUE(session.Unbalanced.Span);
    EXPECT_EQ(session.IncreasingTotalLoad, 2000);
}

constexpr float Infinite = std::numeric_limits<float>::infinity();
constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();

INSTANTIATE_TEST_SUITE_P(
    Records, AbsurdRecordTest,
    testing::Values(AbsurdCase{"span", FilledCriteria(-2007).Float(92, NoNumber).All(), "Span"},
                    AbsurdCase{"duration", FilledCriteria(-11).Float(96, Infinite).All(), "Dur"},
                    AbsurdCase{"point load", FilledCriteria(-12).Float(150, Infinite).All(), "PT"},
                    AbsurdCase{"start", FilledCriteria(-13).Float(286, -Infinite).All(), "BEGP"},
                    AbsurdCase{"overhang", FilledCriteria(-2007).Float(694, NoNumber).All(), "CantUBLtext"},
                    AbsurdCase{"first of two",
                               FilledCriteria(-2007).Float(134, NoNumber).Float(130, NoNumber).All(), "UNIF"},
                    AbsurdCase{"no such material", FilledCriteria(-2007).Short(104, 10).All(), "Combo1"},
                    AbsurdCase{"negative material", FilledCriteria(-11).Short(104, -1).All(), "Combo1"}),
    CaseName);

TEST(RestoreCriteria, PassesOverANumberThatItsGenerationDoesNotHold)
{
    const Session session = Restored(FilledCriteria(-11).Float(694, NoNumber).All());
    EXPECT_EQ(session.Problem.CantUBLtext, "");
}

}  // namespace
}  // namespace kordavan
