#include "records/CriteriaRecord.h"

#include <gmock/gmock.h>

#include <limits>
#include <variant>
#include <vector>

#include "core/CriteriaFields.h"
#include "design/DesignBuilder.h"
#include "design/EntryAdjustment.h"
#include "design/LoadTools.h"
#include "design/NewBeam.h"
#include "records/CriteriaLayout.h"
#include "records/RecordBytes.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr CalendarDay Day{.Year = 2026, .Month = 3, .Day = 7};

/// The 32-bit float nearest to 0.0001, as a file holds it.
constexpr std::string_view HeldZeroBytes = "\x17\xB7\xD1\x38";

/// The tag, blank texts, all else 0.
RecordBytes BlankCriteria(int tag)
{
    RecordBytes bytes(1613);
    bytes.Short(0, tag).Blanks(2, 90).Blanks(322, 228).Blanks(574, 120).Blanks(704, 595);
    return bytes.Blanks(1303, 276).Blanks(1599, 6);
}

/// An overhanging beam without any field that is as in a new one.
RecordBytes FilledCriteria(int tag)
{
    RecordBytes bytes = BlankCriteria(tag);
    bytes.Text(2, "Barn").Text(37, "ridge").Text(67, "B1");
    bytes.Float(92, 16.5F).Float(96, 1.15F).Short(100, 180).Short(102, 480).Short(104, 5);
    bytes.On(108).On(110).On(114).On(126);
    bytes.Float(130, 100).Float(134, 60.25F);
    bytes.Float(138, 500).Float(158, 700).Float(182, 300).Float(186, 4).Float(206, 2.5F);
    bytes.Float(210, 40).Float(226, 80).Float(246, 35.5F).Float(250, 6).Float(266, 4.75F);
    bytes.Text(270, HeldZeroBytes).Float(286, 1);
    bytes.Float(290, 25).Float(294, 40).Float(298, 10).Float(302, 12).Float(314, 14).Float(318, 7);
    bytes.Text(322, "Timber & Sons").Text(432, "Caf\xE9 Street 5").Text(542, "JD");
    bytes.On(550).Float(552, 5).Float(556, 4.5F).On(568);
    bytes.Text(574, "4x  10 DF-L #2").Text(674, "Fails").Text(682, "1/02/26");
    bytes.Float(694, 2.25F).On(698).On(702);
    bytes.Text(704, "first note").Text(1214, "last note");
    bytes.Text(1303, "4x").Text(1323, "10").Text(1343, "DF-L #2").Text(1383, "W 8x 18");
    return bytes.On(1595).On(1605).On(1607);
}

BeamProblem FilledProblem()
{
    BeamProblem problem;
    problem.Proj = "Barn";
    problem.Descrip = "ridge";
    problem.ID = "B1";
    problem.Span = "16.5";
    problem.Dur = "1.15";
    problem.MaxDefl = "180";
    problem.LMaxDefl = "480";
    problem.Combo1 = SpeciesGroup::SouthernPine;
    problem.INGRADE = false;
    problem.Wet = problem.Rep = problem.Roofbutton = true;
    problem.Incised = problem.ksi50 = problem.NoWeight = true;
    problem.Spacing = RepetitiveSpacing::Ctr16;
    problem.Support = SupportCondition::Overhanging;
    problem.ThreeSpan = true;
    problem.Pitchtext = "5";
    problem.UBLtext = "4.5";
    problem.CantUBLtext = "2.25";
    problem.Family = SteelFamily::Tube;
    LoadSet& loads = problem.Loads;
    loads.UNIF = "100";
    loads.LUNIF = "60.25";
    SetPoint(problem, 0, "500", "4");
    SetPoint(problem, 5, "700", "2.5", "300");
    SetPartial(problem, 0, "40", "0", "6");
    SetPartial(problem, 4, "80", "1", "4.75", "35.5");
    loads.IncLL = "25";
    loads.IncTL = "40";
    loads.Trib1 = "10";
    loads.Trib2 = "12";
    loads.IncUnifTL = "14";
    loads.IncUnifLL = "7";
    return problem;
}

Session FilledSession()
{
    Session session;
    session.Problem = FilledProblem();
    session.Nds = EditionFlags(Edition::Nds2012);
    session.Header = {.Heading1 = "Timber & Sons", .Heading2 = "Caf\u00E9 Street 5", .Initialbox = "JD"};
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "Fails", "1/02/26"};
    session.NoteClipboard = {"first note", "", "", "", "", "", "last note"};
    session.Entry = Member("4x", "10", "DF-L #2");
    session.Entry.ShapeName = "W 8x 18";
    return session;
}

/// Another beam, with something in each place that a file may or may not restore.
Session OtherSession()
{
    Session session;
    session.Problem.Proj = "Shed";
    session.Problem.Span = "9";
    session.Problem.Loads.PT[3] = "77";
    session.Problem.Loads.Areas[2] = true;
    session.Nds = EditionFlags(Edition::Nds2005);
    session.Header = {.Heading1 = "old head", .Heading2 = "old second", .Initialbox = "OLD"};
    session.Selection = SelectionRecord{"2x  6 Hem-Fir #1", "OK", "5/05/25"};
    session.NoteClipboard = {"old note", "", "", "", "", "old sixth", ""};
    session.Entry = Member("6x", "12", "Hem-Fir #1");
    session.Restore.LoadsMultipliedFlag = session.Restore.HipLoadsGrown = true;
    session.Restore.SavedIncTL = "99";
    session.Unbalanced.Span = true;
    session.IncreasingTotalLoad = 2000;
    return session;
}

/// The names of the fields in which two beams differ; options are for the equality of the whole.
std::vector<std::string_view> DifferingFields(const BeamProblem& a, const BeamProblem& b)
{
    std::vector<std::string_view> names;
    for (const CriteriaField& field : CriteriaFields()) {
        const auto isSame = [&](const auto& target) {
            if constexpr (requires { a.*target; }) {
                return a.*target == b.*target;
            } else if constexpr (requires { a.Loads.*target; }) {
                return a.Loads.*target == b.Loads.*target;
            } else {
                return true;
            }
        };
        if (!std::visit(isSame, field.Target)) {
            names.push_back(field.Name);
        }
    }
    return names;
}

void ExpectSame(const BeamProblem& actual, const BeamProblem& expected)
{
    EXPECT_THAT(DifferingFields(actual, expected), IsEmpty());
    EXPECT_EQ(actual.Support, expected.Support);
    EXPECT_EQ(actual.ThreeSpan, expected.ThreeSpan);
    EXPECT_EQ(actual.Spacing, expected.Spacing);
    EXPECT_EQ(actual.Family, expected.Family);
    EXPECT_EQ(actual.Combo1, expected.Combo1);
    EXPECT_TRUE(actual == expected);
}

void ExpectFlags(const NdsEdition& actual, const NdsEdition& expected)
{
    EXPECT_EQ(actual.Nds1997, expected.Nds1997);
    EXPECT_EQ(actual.Nds2001, expected.Nds2001);
    EXPECT_EQ(actual.Nds2005, expected.Nds2005);
    EXPECT_EQ(actual.Nds2012, expected.Nds2012);
    EXPECT_EQ(actual.Nds2015, expected.Nds2015);
    EXPECT_EQ(actual.Nds2018, expected.Nds2018);
}

/// Restores what must be accepted without a word.
void Restore(std::string_view bytes, Session& session)
{
    ScriptedUser user;
    const PackedRecord record(CriteriaLayout, bytes);
    ASSERT_EQ(CheckCriteriaTag(record, user), Outcome::Done);
    ASSERT_EQ(RestoreCriteria(record, session, user), Outcome::Done)
        << (user.Told.empty() ? "" : user.Told.back().Text);
    EXPECT_THAT(user.Told, IsEmpty());
}

Session Restored(std::string_view bytes)
{
    Session session;
    Restore(bytes, session);
    return session;
}

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

struct NumberCase {
    std::string_view Name;
    std::size_t Offset;
    float Held;
    std::string BeamProblem::*Box;
    std::string_view Text;
};

class RestoredNumberTest : public testing::TestWithParam<NumberCase> {};

TEST_P(RestoredNumberTest, ReadsAsItWasTyped)
{
    const NumberCase& c = GetParam();
    const Session session = Restored(BlankCriteria(-2007).Float(c.Offset, c.Held).All());
    EXPECT_EQ(session.Problem.*c.Box, c.Text);
}

INSTANTIATE_TEST_SUITE_P(Boxes, RestoredNumberTest,
                         testing::Values(NumberCase{"no duration", 96, 0, &BeamProblem::Dur, ""},
                                         NumberCase{"normal duration", 96, 1, &BeamProblem::Dur, "1.00"},
                                         NumberCase{"snow", 96, 1.15F, &BeamProblem::Dur, "1.15"},
                                         NumberCase{"permanent", 96, 0.9F, &BeamProblem::Dur, "0.9"},
                                         NumberCase{"span of 1", 92, 1, &BeamProblem::Span, "1"},
                                         NumberCase{"no span", 92, 0, &BeamProblem::Span, ""},
                                         NumberCase{"negative span", 92, -3.5F, &BeamProblem::Span, "-3.5"},
                                         NumberCase{"long span", 92, 1e9F, &BeamProblem::Span, "1000000000"},
                                         NumberCase{"braced", 556, 0, &BeamProblem::UBLtext, ""},
                                         NumberCase{"held zero elsewhere", 92, 0.0001F, &BeamProblem::Span,
                                                    "0.0001"}),
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

struct FamilyCase {
    std::string_view Name;
    std::size_t Offset;
    SteelFamily Family;
    std::string_view UBLtext = "6";  // of a steel beam whose record says 6 ft
};

class SteelFamilyTest : public testing::TestWithParam<FamilyCase> {};

TEST_P(SteelFamilyTest, HasItsFlag)
{
    const FamilyCase& c = GetParam();
    EXPECT_EQ(Restored(BlankCriteria(-11).On(c.Offset).All()).Problem.Family, c.Family);
    const RecordBytes steel = BlankCriteria(-2007).Short(104, 9).Float(556, 6).On(c.Offset);
    EXPECT_EQ(Restored(steel.All()).Problem.UBLtext, c.UBLtext);
    Session session;
    session.Problem.Family = c.Family;
    EXPECT_EQ(MakeCriteriaRecord(session, Day).Record.Bytes().substr(560, 14),
              RecordBytes(1613).On(c.Offset).All().substr(560, 14));
}

INSTANTIATE_TEST_SUITE_P(Flags, SteelFamilyTest,
                         testing::Values(FamilyCase{"W", 560, SteelFamily::W},
                                         FamilyCase{"S", 562, SteelFamily::S},
                                         FamilyCase{"C", 564, SteelFamily::C},
                                         FamilyCase{"MC", 566, SteelFamily::MC},
                                         FamilyCase{"tube", 568, SteelFamily::Tube, "Any"},
                                         FamilyCase{"plate", 570, SteelFamily::Plate, "0"},
                                         FamilyCase{"double plate", 572, SteelFamily::DoublePlate, "0"}),
                         CaseName);

struct EditionCase {
    std::string_view Year;
    std::size_t Offset;
};

class CriteriaEditionTest : public testing::TestWithParam<EditionCase> {};

TEST_P(CriteriaEditionTest, IsRestoredToldAndWritten)
{
    const auto [year, offset] = GetParam();
    const NdsEdition flags = EditionFlags(EditionOfYear(year));
    const std::string bytes = BlankCriteria(-13).On(offset).All();
    Session session = OtherSession();
    Restore(bytes, session);
    ExpectFlags(session.Nds, flags);
    ScriptedUser user;
    TellCriteriaEdition(PackedRecord(CriteriaLayout, bytes), user);
    EXPECT_THAT(
        user.Told,
        ElementsAre(AllOf(AlertOf("This criteria was saved under NDS " + std::string(year) + " standards."),
                          Field(&Message::Icon, MessageIcon::Information))));
    session = FilledSession();
    session.Nds = flags;
    const std::string expected = FilledCriteria(-2007).Short(1607, 0).On(offset).All();
    EXPECT_EQ(FirstDifference(MakeCriteriaRecord(session, Day).Record.Bytes(), expected), "");
}

INSTANTIATE_TEST_SUITE_P(Flags, CriteriaEditionTest,
                         testing::Values(EditionCase{"1997", 700}, EditionCase{"2001", 1299},
                                         EditionCase{"2005", 1301}, EditionCase{"2012", 1607},
                                         EditionCase{"2015", 1609}, EditionCase{"2018", 1611}),
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

TEST(MakeCriteriaRecord, WritesEveryEntryAtItsPlace)
{
    const CriteriaRecordMade made = MakeCriteriaRecord(FilledSession(), Day);
    EXPECT_EQ(made.UnfitBox, "");
    EXPECT_EQ(FirstDifference(made.Record.Bytes(), FilledCriteria(-2007).All()), "");
}

TEST(MakeCriteriaRecord, OfANewBeamHoldsItsFewEntries)
{
    RecordBytes expected = BlankCriteria(-2007);
    expected.Float(96, 1).Short(100, 240).Short(102, 360).On(106).On(120).On(124).On(560).On(1611);
    expected.Text(682, "3/07/26").On(1595);
    EXPECT_EQ(FirstDifference(MakeCriteriaRecord(Session{}, Day).Record.Bytes(), expected.All()), "");
}

TEST(MakeCriteriaRecord, WritesTheCustomValuesToo)
{
    Session session = FilledSession();
    CustomEntry& custom = session.Entry.Custom;
    custom.Fb = "2400";
    custom.Fv = "190";
    custom.E = "1.8";
    custom.FcPerp = "560";
    custom.Diam = "8.5";
    custom.Wid4x = custom.SPG = custom.MELCheckbox = custom.Roundoption = true;
    RecordBytes expected = FilledCriteria(-2007);
    expected.Text(1483, "2400").Text(1487, "190").Text(1491, "1.8").Text(1495, "560");
    expected.On(1583).On(1587).On(1591).Short(1595, 0).On(1597).Text(1599, "8.5");
    EXPECT_EQ(FirstDifference(MakeCriteriaRecord(session, Day).Record.Bytes(), expected.All()), "");
}

TEST(MakeCriteriaRecord, CutsTextsThatAreTooLong)
{
    Session session = FilledSession();
    session.Problem.ID = "an identification of 26 let";
    session.NoteClipboard[6] = std::string(90, 'n');
    RecordBytes expected = FilledCriteria(-2007);
    expected.Text(67, "an identification of 26 l").Text(1214, std::string(85, 'n'));
    EXPECT_EQ(FirstDifference(MakeCriteriaRecord(session, Day).Record.Bytes(), expected.All()), "");
}

TEST(MakeCriteriaRecord, TakesLoadsAsTypedThoughACalculationHasMultipliedThem)
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    problem.Rep = true;
    problem.Spacing = RepetitiveSpacing::Ctr16;
    SetPoint(problem, 1, "700", "4", "450");
    SetPartial(problem, 0, "80", "0", "6", "35");
    Calculate(session);
    ASSERT_NE(problem.Loads.UNIF, "100");
    const std::string bytes = MakeCriteriaRecord(session, Day).Record.Bytes();
    RecordBytes expected(1613);
    expected.Float(130, 100).Float(134, 60).Float(142, 700).Float(166, 450).Float(190, 4);
    expected.Float(210, 80).Float(230, 35).Float(250, 6).Text(270, HeldZeroBytes);
    EXPECT_EQ(FirstDifference(bytes.substr(130, 160), expected.All().substr(130, 160)), "");
    EXPECT_NE(problem.Loads.UNIF, "100");  // the boxes stay as the calculation left them
}

struct ZeroCase {
    std::string_view Name;
    std::string_view Text;
    std::string_view Bytes;
};

class UnbracedLengthTest : public testing::TestWithParam<ZeroCase> {};

TEST_P(UnbracedLengthTest, IsHeldAsANumber)
{
    Session session = FilledSession();
    session.Problem.UBLtext = GetParam().Text;
    EXPECT_EQ(MakeCriteriaRecord(session, Day).Record.Bytes().substr(556, 4), GetParam().Bytes);
}

constexpr std::string_view ZeroBytes("\0\0\0\0", 4);

INSTANTIATE_TEST_SUITE_P(Texts, UnbracedLengthTest,
                         testing::Values(ZeroCase{"blank", "", ZeroBytes}, ZeroCase{"Any", "Any", ZeroBytes},
                                         ZeroCase{"braced", "0", ZeroBytes},
                                         ZeroCase{"2 ft", "2", std::string_view("\0\0\0\x40", 4)}),
                         CaseName);

class PartialStartTest : public testing::TestWithParam<ZeroCase> {};

TEST_P(PartialStartTest, HoldsAZeroSoThatItIsNoBlank)
{
    Session session = FilledSession();
    session.Problem.Loads.BEGP[2] = GetParam().Text;
    EXPECT_EQ(MakeCriteriaRecord(session, Day).Record.Bytes().substr(278, 4), GetParam().Bytes);
}

INSTANTIATE_TEST_SUITE_P(Texts, PartialStartTest,
                         testing::Values(ZeroCase{"blank", "", ZeroBytes}, ZeroCase{"0", "0", HeldZeroBytes},
                                         ZeroCase{"0.00", "0.00", HeldZeroBytes},
                                         ZeroCase{"2 ft", "2", std::string_view("\0\0\0\x40", 4)}),
                         CaseName);

struct UnfitCase {
    std::string_view Name;
    void (*Spoil)(BeamProblem&);
    std::string_view Box;
};

class UnfitNumberTest : public testing::TestWithParam<UnfitCase> {};

TEST_P(UnfitNumberTest, NamesItsBox)
{
    Session session = FilledSession();
    GetParam().Spoil(session.Problem);
    EXPECT_EQ(MakeCriteriaRecord(session, Day).UnfitBox, GetParam().Box);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, UnfitNumberTest,
    testing::Values(UnfitCase{"span", [](BeamProblem& p) { p.Span = "1e300"; }, "Span"},
                    UnfitCase{"just too large", [](BeamProblem& p) { p.Loads.UNIF = "3.41e38"; }, "UNIF"},
                    UnfitCase{"just fits", [](BeamProblem& p) { p.Loads.UNIF = "3.40e38"; }, ""},
                    UnfitCase{"negative", [](BeamProblem& p) { p.Loads.PT[5] = "-1e300"; }, "PT[5]"},
                    UnfitCase{"start", [](BeamProblem& p) { p.Loads.BEGP[1] = "1e300"; }, "BEGP[1]"},
                    UnfitCase{"limit too large", [](BeamProblem& p) { p.MaxDefl = "40000"; }, "MaxDefl"},
                    UnfitCase{"limit with a fraction", [](BeamProblem& p) { p.MaxDefl = "240.5"; },
                              "MaxDefl"},
                    UnfitCase{"largest limit", [](BeamProblem& p) { p.MaxDefl = "32767"; }, ""},
                    UnfitCase{"one more", [](BeamProblem& p) { p.LMaxDefl = "32768"; }, "LMaxDefl"},
                    UnfitCase{"whole with decimals", [](BeamProblem& p) { p.MaxDefl = "240.0"; }, ""},
                    UnfitCase{"the first of two",
                              [](BeamProblem& p) {
                                  p.Loads.LUNIF = "1e300";
                                  p.LMaxDefl = "1.5";
                              },
                              "LMaxDefl"}),
    CaseName);

struct RoundTripCase {
    std::string_view Name;
    void (*Change)(BeamProblem&);
};

class CriteriaRoundTripTest : public testing::TestWithParam<RoundTripCase> {};

TEST_P(CriteriaRoundTripTest, GivesTheSameBeam)
{
    Session session = FilledSession();
    GetParam().Change(session.Problem);
    const CriteriaRecordMade made = MakeCriteriaRecord(session, Day);
    EXPECT_EQ(made.UnfitBox, "");
    Session loaded = OtherSession();
    Restore(made.Record.Bytes(), loaded);
    ExpectSame(loaded.Problem, session.Problem);
    EXPECT_EQ(loaded.NoteClipboard, session.NoteClipboard);
    EXPECT_EQ(CriteriaResultLine(loaded.Selection), CriteriaResultLine(session.Selection));
    EXPECT_EQ(FirstDifference(MakeCriteriaRecord(loaded, Day).Record.Bytes(), made.Record.Bytes()), "");
}

void BeSimple(BeamProblem& problem)
{
    problem.Support = SupportCondition::SimpleSpan;
    problem.CantUBLtext = "";
}

void BeContinuous(BeamProblem& problem, bool threeSpan)
{
    problem.Support = SupportCondition::MultipleSpans;
    problem.ThreeSpan = threeSpan;
    problem.UBLtext = problem.CantUBLtext = "0";
}

INSTANTIATE_TEST_SUITE_P(
    Beams, CriteriaRoundTripTest,
    testing::Values(RoundTripCase{"overhanging", [](BeamProblem&) {}}, RoundTripCase{"simple", BeSimple},
                    RoundTripCase{"a new beam", [](BeamProblem& p) { p = BeamProblem{}; }},
                    RoundTripCase{"hip",
                                  [](BeamProblem& p) {
                                      BeSimple(p);
                                      p.Support = SupportCondition::HipValley;
                                  }},
                    RoundTripCase{"two spans", [](BeamProblem& p) { BeContinuous(p, false); }},
                    RoundTripCase{"three spans", [](BeamProblem& p) { BeContinuous(p, true); }},
                    RoundTripCase{"no repetition",
                                  [](BeamProblem& p) {
                                      p.Rep = false;
                                      p.Spacing = RepetitiveSpacing::None;
                                  }},
                    RoundTripCase{"no spacing", [](BeamProblem& p) { p.Spacing = RepetitiveSpacing::Ctr0; }},
                    RoundTripCase{"12 in", [](BeamProblem& p) { p.Spacing = RepetitiveSpacing::Ctr12; }},
                    RoundTripCase{"19 in", [](BeamProblem& p) { p.Spacing = RepetitiveSpacing::Ctr19; }},
                    RoundTripCase{"24 in", [](BeamProblem& p) { p.Spacing = RepetitiveSpacing::Ctr24; }},
                    RoundTripCase{"steel",
                                  [](BeamProblem& p) {
                                      p.Combo1 = SpeciesGroup::Steel;
                                      p.Family = SteelFamily::DoublePlate;
                                      p.UBLtext = "0";
                                      p.ksi50 = false;
                                  }},
                    RoundTripCase{"every box",
                                  [](BeamProblem& p) {
                                      p.Loads.PT = {"1", "2", "3", "4", "5", "6"};
                                      p.Loads.LPT = {"0.5", "1.25", "0.1", "", "4.9999", "5"};
                                      p.Loads.DIS = {"0.125", "1.1", "2.2", "3.3", "4.4", "5.5"};
                                      p.Loads.PAR = {"11", "12", "13", "14", "15"};
                                      p.Loads.LPAR = {"1.1", "1.2", "1.3", "1.4", "1.5"};
                                      p.Loads.BEGP = {"0", "0.5", "1", "0", "2"};
                                      p.Loads.ENDP = {"1", "2", "3", "4", "5"};
                                  }},
                    RoundTripCase{"odd numbers",
                                  [](BeamProblem& p) {
                                      p.Span = "33.333332";
                                      p.Loads.UNIF = "-12.7";
                                      p.Loads.LUNIF = "16777216";
                                      p.Pitchtext = "0.05";
                                  }},
                    RoundTripCase{"odd letters",
                                  [](BeamProblem& p) { p.Proj = "\u00BD \u201CHaus\u201D \u00DF"; }}),
    CaseName);

struct HipCase {
    std::string_view Name;
    bool HasSlope;
    std::string_view IncLL;
    std::string_view IncUnifTL;
    std::string_view IncUnifLL;
};

class HipRoundTripTest : public testing::TestWithParam<HipCase> {};

TEST_P(HipRoundTripTest, KeepsTheIncreasingLoadThatTheToolComputed)
{
    const HipCase& c = GetParam();
    Session session;
    BeamProblem& problem = session.Problem;
    problem.Support = SupportCondition::HipValley;
    problem.Roofbutton = c.HasSlope;
    problem.Pitchtext = c.HasSlope ? "9" : "";
    problem.Loads.IncTL = "40";
    problem.Loads.IncLL = c.IncLL;
    problem.Loads.IncUnifTL = c.IncUnifTL;
    problem.Loads.IncUnifLL = c.IncUnifLL;
    problem.Loads.Trib1 = "10";
    problem.Loads.Trib2 = "13";
    problem.Loads.Areas = {true, true, false, true};
    problem.Loads.CalctheSpan = true;
    ScriptedUser user;
    ASSERT_EQ(CalculateHipValley(session, user), Outcome::Done);
    ASSERT_GT(session.IncreasingTotalLoad, 0);
    const std::string bytes = MakeCriteriaRecord(session, Day).Record.Bytes();
    EXPECT_EQ(bytes.substr(294, 4), std::string_view("\0\0\x20\x42", 4));  // 40, as typed
    const Session loaded = Restored(bytes);
    EXPECT_EQ(loaded.Problem.Loads.IncTL, "40");
    EXPECT_EQ(loaded.Problem.Loads.IncUnifTL, c.IncUnifTL);
    const float total = session.IncreasingTotalLoad;
    const float live = session.IncreasingLiveLoad;
    EXPECT_NEAR(loaded.IncreasingTotalLoad, total, 1e-5 * static_cast<double>(total));
    EXPECT_NEAR(loaded.IncreasingLiveLoad, live, 1e-5 * static_cast<double>(live));
}

INSTANTIATE_TEST_SUITE_P(Roofs, HipRoundTripTest,
                         testing::Values(HipCase{"flat", false, "25", "", ""},
                                         HipCase{"flat without live load", false, "", "12", ""},
                                         HipCase{"flat with a load beside", false, "25", "12", "7.5"},
                                         HipCase{"slope", true, "25", "", ""},
                                         HipCase{"slope with a load beside", true, "25", "12.3", "7.5"}),
                         CaseName);

TEST(CriteriaRecord, NamesTheCompositeProduct)
{
    Session session;
    session.Problem.Combo1 = SpeciesGroup::Scl;
    session.Entry.Product = 2;
    EXPECT_EQ(MakeCriteriaRecord(session, Day).Record.Text("Custom.Combo1"), "1.9E TJ Microllam LVL");
    session.Problem.Combo1 = SpeciesGroup::Custom;
    EXPECT_EQ(MakeCriteriaRecord(session, Day).Record.Text("Custom.Combo1"), "");
}

}  // namespace
}  // namespace kordavan
