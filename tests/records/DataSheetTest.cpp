#include <gmock/gmock.h>

#include "design/DesignBuilder.h"
#include "records/SheetBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

DataSheet SheetOf(Session& session, const MemberEntry& entry)
{
    session.Entry = entry;
    Calculate(session);
    Tested(session, entry);
    return Filled(session);
}

/// 4x10 DF-L #2, 100 plf (60 live) on 12 ft: A = 32.375 in2, w = 7.867 plf, M = 107.867 x 144 / 8 = 1942
/// ft-lb, R = 647 lb, S = 49.91 in3; Fb' = 900 x 1.2 = 1080 psi asks for 21.57 in3; I = 230.8 in4. Live load:
/// 5 x 5 x 144^4 / (384 x 1.6e6 x 230.8) = 0.076 in.; Fc-perp 625 psi: 1.04 in2.
TEST(DataSheet, OfWoodStatesMemberChecksAndSupports)
{
    Session session = PlainSession();
    session.Problem.Proj = "Barn";
    session.Problem.ID = "B1";
    session.Header = {.Heading1 = "Timber & Sons", .Heading2 = "", .Initialbox = "JD"};
    session.NoteClipboard[0] = "Paint the ends.";
    const DataSheet sheet = SheetOf(session, Member("4x", "10", "DF-L #2"));
    ExpectCells(sheet, {{1, "Project: Barn"},
                        {2, "Beam ID: B1"},
                        {3, "Description: "},
                        {4, "Date: 3/07/26"},
                        {169, "Prepared by: JD"},
                        {132, "Timber & Sons"},
                        {5, "DF-L #2  4x 10 in."},
                        {6, "NDS 2018"},
                        {13, "21.57"},
                        {14, "49.91"},
                        {111, "OK"},
                        {152, "43%"},
                        {17, "0.60"},
                        {109, "0.40"},
                        {106, "0.08"},
                        {24, "900"},
                        {27, "1080"},
                        {29, "1.6"},
                        {70, "625"},
                        {167, "625"},
                        {31, "CF Size Factor"},
                        {35, "1.200"},
                        {36, "1.00"},
                        {37, "1.00"},
                        {41, "N/A"},
                        {34, "Cm Wet Use"},
                        {38, "1.00"},
                        {190, "1.0000"},
                        {189, ""},
                        {12, "Beam Span"},
                        {61, "12.0"},
                        {140, ""},
                        {62, "647 #"},
                        {63, "647 #"},
                        {64, "360 #"},
                        {65, "1942"},
                        {66, "647 #"},
                        {168, "N/A "},
                        {67, "94"},
                        {143, "7.87"},
                        {68, "L / 240"},
                        {45, " L / 360"},
                        {134, "(1.5) DL Defl="},
                        {136, ""},
                        {60, "Min Bearing Area"},
                        {71, "R1= 1.0 in\u00B2"},
                        {72, "Uniform TL:"},
                        {73, "100  = A"},
                        {118, "60"},
                        {194, ""},
                        {156, ""}});
    EXPECT_EQ(sheet.ReportNotes[0], "Paint the ends.");
}

struct LineCase {
    std::string_view Name;
    void (*Change)(Session&);
    MemberEntry Entry;
    std::string_view MemberLine;
    std::string_view AttributeLine;
};

class MemberLineTest : public testing::TestWithParam<LineCase> {};

TEST_P(MemberLineTest, TellsTheMemberAndWhatApplies)
{
    Session session = PlainSession();
    GetParam().Change(session);
    const DataSheet sheet = SheetOf(session, GetParam().Entry);
    EXPECT_EQ(sheet[5], GetParam().MemberLine);
    EXPECT_EQ(sheet[6], GetParam().AttributeLine);
}

CustomEntry OwnValues()
{
    CustomEntry custom;
    custom.Fb = "1500";
    custom.Fv = "150";
    custom.E = "1.4";
    custom.FcPerp = "500";
    return custom;
}

MemberEntry Pole()
{
    MemberEntry entry = Member("", "", "Own");
    entry.Custom = OwnValues();
    entry.Custom.Roundoption = true;
    entry.Custom.Diam = "12";
    return entry;
}

INSTANTIATE_TEST_SUITE_P(
    Beams, MemberLineTest,
    testing::Values(
        LineCase{"treated joist",
                 [](Session& s) {
                     s.Problem.Wet = s.Problem.Incised = s.Problem.Rep = true;
                     s.Problem.Spacing = RepetitiveSpacing::Ctr16;
                 },
                 Member("2x", "12", "HF #2"), "PT HF #2  2x 12 in. @ 16 in oc",
                 ", Repetitive Use, Wet Use, Incised, NDS 2018"},
        LineCase{"glulam is not incised", [](Session& s) { s.Problem.Incised = true; },
                 Member("3-1/8x", "9", "GLB 24F-V4 DF/DF"), "GLB 24F-V4 DF/DF  3-1/8x 9 in.", "NDS 2018"},
        LineCase{"spans",
                 [](Session& s) {
                     s.Problem.Support = SupportCondition::MultipleSpans;
                     s.Problem.UBLtext = s.Problem.CantUBLtext = "0";
                     s.Nds = EditionFlags(Edition::Nds1997);
                 },
                 Member("4x", "10", "DF-L #2"), "DF-L #2  4x 10 in.", ", Equal Multi-Span, NDS 1997"},
        LineCase{"pole", [](Session& s) { s.Problem.Combo1 = SpeciesGroup::Custom; }, Pole(),
                 "Own  12 in. round", "NDS 2018"},
        LineCase{"rafter",
                 [](Session& s) {
                     s.Problem.Roofbutton = true;
                     s.Problem.Pitchtext = "6";
                 },
                 Member("4x", "10", "DF-L #2"), "DF-L #2  4x 10 in.", "NDS 2018, DL adj: 6:12 pitch"}),
    CaseName);

/// 8 ft with 3 ft of overhang under 100 plf on both.
TEST(DataSheet, OfAnOverhangHasItsRows)
{
    Session session = PlainSession();
    session.Problem.Span = "8";
    session.Problem.Support = SupportCondition::Overhanging;
    SetPartial(session.Problem, 3, "100", "0", "3", "60");
    session.Problem.UBLtext = "4";
    session.Problem.CantUBLtext = "3";
    const DataSheet sheet = SheetOf(session, Member("4x", "10", "DF-L #2"));
    ExpectCells(sheet, {{130, "Overhang Length"},
                        {131, "3.0 ft"},
                        {140, "Total Beam Length"},
                        {141, "11.0 ft"},
                        {156, "OH TL Defl"},
                        {158, "0.30"},
                        {163, "0.20"},
                        {146, "OH TL Actual Defl"},
                        {94, "K = 100  (OH)"},
                        {99, "0"},
                        {104, "3.0"},
                        {128, "60"},
                        {173, "Lu = 4.0 Ft"},
                        {174, "Lu @OH = 3.0 Ft"},
                        {189, "Cl Stability @ OH"}});
    EXPECT_THAT(sheet[192], testing::StartsWith("     Le = "));
    EXPECT_THAT(sheet[6], testing::EndsWith(", Overhang"));
}

TEST(DataSheet, WithoutLiveLoadLeavesItsCellsEmpty)
{
    Session session = PlainSession();
    session.Problem.Loads.LUNIF = "";
    session.Problem.Dur = "0.90";
    const DataSheet sheet = SheetOf(session, Member("4x", "10", "DF-L #2"));
    for (const std::size_t label : {110U, 109U, 106U, 114U, 155U, 51U, 64U, 53U, 145U, 43U, 45U, 44U, 107U}) {
        EXPECT_EQ(sheet[label], "") << label;
    }
}

/// A sheet of the plain beam after a change to what was worked out for it, for states that few beams reach.
DataSheet ChangedSheet(void (*change)(Session&))
{
    Session session = PlainSession();
    Calculate(session);
    Tested(session, Member("4x", "10", "DF-L #2"));
    change(session);
    return Filled(session);
}

struct ChangeCase {
    std::string_view Name;
    void (*Change)(Session&);
    Cells Expected;
};

class ChangedSheetTest : public testing::TestWithParam<ChangeCase> {};

TEST_P(ChangedSheetTest, ShowsItInItsCells)
{
    ExpectCells(ChangedSheet(GetParam().Change), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Ratios, ChangedSheetTest,
    testing::Values(
        ChangeCase{"of a stiff beam",
                   [](Session& s) { s.Analysis.TotalDeflRatio = s.Analysis.LiveDeflRatio = 1001; },
                   {{69, "L / >1000"}, {107, "L / >1000"}}},
        ChangeCase{"at the limit", [](Session& s) { s.Analysis.TotalDeflRatio = 1000; }, {{69, "L / 1,000"}}},
        ChangeCase{"upwards", [](Session& s) { s.Analysis.TotalDeflRatio = -999; }, {{69, "L / 999"}}},
        ChangeCase{"hardly upwards",
                   [](Session& s) { s.Analysis.TotalDeflRatio = s.Analysis.LiveDeflRatio = -1001; },
                   {{69, "L / < -1000"}, {107, "L / < -1000"}}},
        ChangeCase{"hardly upwards in a check that fails",
                   [](Session& s) {
                       s.Analysis.LiveDeflRatio = -1001;
                       s.Member.Result.LDeflStatus = StatusFail;
                   },
                   {{107, "L / < 1000"}}},
        ChangeCase{
            "without deflection", [](Session& s) { s.Analysis.TotalDeflIn = 0; }, {{69, "L / >1000"}}}),
    CaseName);

// 1.5 x 0.30 = 0.45; 1.5 x 0.006 = 0.009.
INSTANTIATE_TEST_SUITE_P(Deflections, ChangedSheetTest,
                         testing::Values(ChangeCase{"below a hundredth",
                                                    [](Session& s) {
                                                        s.Member.Result.TotalDeflection =
                                                            s.Member.Result.LiveDeflection = -0.009F;
                                                        s.Member.Result.DeadDeflection = 0.009F;
                                                    },
                                                    {{18, "0.01"}, {106, "<0.01"}, {135, "<0.01 in."}}},
                                         ChangeCase{"none of dead load",
                                                    [](Session& s) { s.Member.Result.DeadDeflection = 0; },
                                                    {{135, "0.00 in."}}},
                                         ChangeCase{"camber",
                                                    [](Session& s) {
                                                        s.Member.Candidate.BreadthKey = BreadthKey::Glulam;
                                                        s.Member.Result.DeadDeflection = 0.3F;
                                                    },
                                                    {{136, "Recom Camber="}, {137, "0.45 in"}}},
                                         ChangeCase{"hardly any camber",
                                                    [](Session& s) {
                                                        s.Member.Candidate.BreadthKey = BreadthKey::Glulam;
                                                        s.Member.Result.DeadDeflection = 0.006F;
                                                    },
                                                    {{137, "<0.01 in."}}}),
                         CaseName);

INSTANTIATE_TEST_SUITE_P(
    States, ChangedSheetTest,
    testing::Values(ChangeCase{"uplift",
                               [](Session& s) { s.Analysis.R1Total = -5; },
                               {{6, "NDS 2018, Uplift @ R1"}, {62, "-5 #"}}},
                    ChangeCase{"unbalanced overhang",
                               [](Session& s) { s.Unbalanced.Overhang = true; },
                               {{6, "NDS 2018, Unbalanced OH LL"}, {170, "(Uniform Ld on Backspan)"}}},
                    ChangeCase{"unbalanced span",
                               [](Session& s) { s.Unbalanced.Span = true; },
                               {{6, "NDS 2018, Unbalanced Backspan LL"}, {170, ""}}},
                    ChangeCase{"too slender",
                               [](Session& s) { s.Member.Stability.Span.RbOver50 = true; },
                               {{194, "FAILURE: Rb > 50!"}}},
                    ChangeCase{"too slender overhang",
                               [](Session& s) { s.Member.Stability.Overhang.RbOver50 = true; },
                               {{194, "FAILURE: Rb > 50!"}}},
                    ChangeCase{"volume factor",
                               [](Session& s) {
                                   s.Member.Factors.CvGoverns = true;
                                   s.Member.Factors.Cv = 0.875F;
                               },
                               {{31, "Cv Volume"}, {35, "0.875"}}},
                    ChangeCase{"no weight", [](Session& s) { s.Numbers.NoWeight = true; }, {{143, "0"}}},
                    ChangeCase{"a load from the support on",
                               [](Session& s) {
                                   s.Numbers.Loads.PAR[1] = 50;
                                   s.Numbers.Loads.BEGP[1] = 0.0001F;
                                   s.Numbers.Loads.ENDP[1] = 2.5F;
                               },
                               {{92, "I = 50"}, {97, "0"}, {102, "2.5"}}},
                    ChangeCase{"increasing load",
                               [](Session& s) {
                                   s.Numbers.Support = SupportCondition::HipValley;
                                   s.Numbers.IncreasingTotalLoad = 1200;
                                   s.Numbers.IncreasingLiveLoad = 700;
                               },
                               {{6, "NDS 2018, Increasing Load"},
                                {72, "Increasing"},
                                {73, "TL = 1200"},
                                {117, "Increasing"},
                                {118, "LL = 700"}}}),
    CaseName);

/// DF-L #1 4x10, Fb 1000 x 1.2 = 1200 psi, above the 1150 psi from which wet use counts: 0.85 x 0.80 = 0.68,
/// 0.97 x 0.80 = 0.776, 0.90 x 0.95 = 0.855, 0.67 (Supplement, table 4A; NDS table 4.3.8).
struct ServiceCase {
    std::string_view Name;
    bool IsWet;
    bool IsIncised;
    Edition Nds;
    Cells Expected;
};

class ServiceFactorTest : public testing::TestWithParam<ServiceCase> {};

TEST_P(ServiceFactorTest, IsTheProductOfWetAndIncised)
{
    Session session = PlainSession(GetParam().Nds);
    session.Problem.Wet = GetParam().IsWet;
    session.Problem.Incised = GetParam().IsIncised;
    ExpectCells(SheetOf(session, Member("4x", "10", "DF-L #1")), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Factors, ServiceFactorTest,
    testing::Values(
        ServiceCase{"wet",
                    true,
                    false,
                    Edition::Nds2018,
                    {{34, "Cm Wet Use"}, {38, "0.85"}, {42, "0.97"}, {46, "0.90"}, {49, "0.67"}}},
        ServiceCase{"incised",
                    false,
                    true,
                    Edition::Nds2018,
                    {{34, "Ci Incised"}, {38, "0.80"}, {42, "0.80"}, {46, "0.95"}, {49, "1.00"}}},
        ServiceCase{"both",
                    true,
                    true,
                    Edition::Nds2018,
                    {{34, "Cm Wet+Ci Incised"}, {38, "0.68"}, {42, "0.776"}, {46, "0.855"}, {49, "0.67"}}},
        ServiceCase{"incised of 1997",
                    false,
                    true,
                    Edition::Nds1997,
                    {{34, "Ci Incised"}, {42, "1.00"}, {46, "0.95"}}}),
    CaseName);

/// 0.745 - 1.225 COV with the 0.25 of visually graded lumber is 0.43875 (NDS 2001, 3.3.3.8 and appendix F).
TEST(DataSheet, OfOldEditionsTellsTheBucklingCoefficient)
{
    Session session = PlainSession(Edition::Nds1997);
    session.Problem.UBLtext = "8";
    EXPECT_THAT(SheetOf(session, Member("4x", "10", "DF-L #2"))[192], testing::EndsWith("    Kbe = 0.439"));
}

/// The form factor of round members stands in its own place since NDS 2005, where it is part of the values.
TEST(DataSheet, OfAPoleNamesTheFormFactorSince2005)
{
    for (const auto& [nds, caption] :
         {std::pair(Edition::Nds1997, "Cr Repetitive"), std::pair(Edition::Nds2018, "Cf Form Factor")}) {
        Session session = PlainSession(nds);
        session.Problem.Combo1 = SpeciesGroup::Custom;
        ExpectCells(SheetOf(session, Pole()), {{33, caption}, {37, "1.00"}});
    }
}

struct NoteCase {
    std::string_view Name;
    bool CustomEntry::*Flag;
    std::string_view Note;
};

class OwnValuesNoteTest : public testing::TestWithParam<NoteCase> {};

TEST_P(OwnValuesNoteTest, SaysWhoseTheValuesAre)
{
    Session session = PlainSession();
    session.Problem.Combo1 = SpeciesGroup::Custom;
    MemberEntry entry = Member("4x", "10", "Own");
    entry.Custom = OwnValues();
    entry.Custom.*GetParam().Flag = true;
    EXPECT_EQ(SheetOf(session, entry)[194], GetParam().Note);
}

INSTANTIATE_TEST_SUITE_P(
    Grades, OwnValuesNoteTest,
    testing::Values(NoteCase{"own", &CustomEntry::Wid4x, "USER'S CUSTOM REF VALUES"},
                    NoteCase{"pine", &CustomEntry::CustomIngradeSP, "USER'S SO. PINE REF VALUES"},
                    NoteCase{"MEL", &CustomEntry::MELCheckbox, "USER'S M.E.L. REF VALUES"},
                    NoteCase{"MSR", &CustomEntry::MSRCheckbox, "USER'S M.S.R. REF VALUES"}),
    CaseName);

/// What is ticked after the test is of another member.
TEST(DataSheet, NamesTheGradingThatWasTested)
{
    Session session = PlainSession();
    session.Problem.Combo1 = SpeciesGroup::Custom;
    MemberEntry entry = Member("4x", "10", "Own");
    entry.Custom = OwnValues();
    entry.Custom.MSRCheckbox = true;
    session.Entry = entry;
    Calculate(session);
    Tested(session, entry);
    session.Entry.Custom.MSRCheckbox = false;
    session.Entry.Custom.MELCheckbox = true;
    EXPECT_EQ(Filled(session)[6], ", MSR Lumber, NDS 2018");
}

TEST(DataSheet, TellsOfTwoGradesAtOnce)
{
    Session session = PlainSession();
    session.Problem.Combo1 = SpeciesGroup::Custom;
    MemberEntry entry = Member("4x", "10", "Own");
    entry.Custom = OwnValues();
    entry.Custom.CustomIngradeSP = entry.Custom.MSRCheckbox = true;
    session.Entry = entry;
    Calculate(session);
    Tested(session, entry);
    ScriptedUser user;
    FillDataRecord(session, Day, user);
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told[0].Text, testing::StartsWith("Error: Both So. Pine AND MEL/MSR machine grades"));
}

/// The allowable shear without splits is 2 x 90 psi.
TEST(DataSheet, WithoutSplitsShowsItsShearFactor)
{
    Session session = PlainSession(Edition::Nds1997);
    session.Problem.Span = "6";
    session.Problem.Loads.UNIF = "1000";
    session.Problem.Loads.LUNIF = "700";
    const DataSheet sheet = SheetOf(session, Member("4x", "12", "DF-L #2"));
    ExpectCells(sheet, {{41, "2.00"}, {48, "(No Splits)"}, {26, "180"}, {112, "OK"}});
    EXPECT_THAT(sheet[6], testing::HasSubstr(", No Splits, NDS 1997"));
}

}  // namespace
}  // namespace kordavan
