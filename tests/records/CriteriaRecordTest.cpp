#include "records/CriteriaRecord.h"

#include "design/LoadTools.h"
#include "records/CriteriaBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;

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
