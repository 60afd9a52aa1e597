#include <gmock/gmock.h>

#include <map>

#include "design/SteelBuilder.h"
#include "records/DataRecordPage.h"
#include "records/DataSheetFill.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

constexpr CalendarDay Day{.Year = 2026, .Month = 3, .Day = 7};

using Cells = std::map<std::size_t, std::string>;

DataSheet Filled(const Session& session)
{
    ScriptedUser user;
    DataSheet sheet = FillDataRecord(session, Day, user);
    EXPECT_TRUE(user.Told.empty());
    return sheet;
}

void ExpectCells(const DataSheet& sheet, const Cells& cells)
{
    for (const auto& [label, text] : cells) {
        EXPECT_EQ(sheet[label], text) << "Label" << label;
    }
}

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

struct SteelCase {
    std::string_view Name;
    SteelFamily Family;
    std::string_view Shape;
    std::string_view UBLtext;
    std::string_view MemberLine;
    std::string_view Factor;
    std::string_view FactorCaption;
    std::string_view Support;  // both lines
    std::string_view BearingCaption;
};

class SteelSheetTest : public testing::TestWithParam<SteelCase> {};

TEST_P(SteelSheetTest, StatesYieldFactorBracingAndBearing)
{
    const SteelCase& c = GetParam();
    Session session = SteelSession(c.Family, "6", "100", "60");
    session.Problem.UBLtext = c.UBLtext;
    TestedShape(session, c.Shape);
    const DataSheet sheet = Filled(session);
    EXPECT_TRUE(sheet.IsSteel);
    EXPECT_EQ(sheet[5], c.MemberLine);
    EXPECT_EQ(sheet[35], c.Factor);
    EXPECT_EQ(sheet[31], c.FactorCaption);
    EXPECT_EQ(sheet[173] + "|" + sheet[174], c.Support);
    EXPECT_EQ(sheet[60], c.BearingCaption);
    ExpectCells(sheet, {{23, "Ref. Value Fy"},
                        {70, "Wood Default"},
                        {167, "405"},
                        {175, "0.40"},
                        {33, ""},
                        {37, ""},
                        {188, ""},
                        {176, ""},
                        {168, "N/A "}});
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, SteelSheetTest,
    testing::Values(
        SteelCase{"compact", SteelFamily::W, "W 8x 18", "4", "W 8x 18, 36 ksi Wide Flange Steel", "0.66",
                  "YP Factor, Lc", "Lateral Support:|Lc = 5.5 ft max.", "Min Bearing Length"},
        SteelCase{"channel", SteelFamily::C, "C 8x 11.5", "4", "C 8x 11.5, 36 ksi Steel Channel", "0.60",
                  "YP Factor, Lu", "Lateral Support:|Lu = 5.1 ft max.", "Min Bearing Length"},
        SteelCase{"tube", SteelFamily::Tube, "T 7x 4x 1/4", "Any", "T 7x 4x 1/4, 46 ksi Steel Tube", "0.60",
                  "YP Factor", "Lateral Support:|@ Bearing Points", "Min Bearing Length"},
        SteelCase{"plate", SteelFamily::Plate, "PL 9x 5/8", "0",
                  "PL 9x 5/8 in., plus 2x wood sistered each side, 36 ksi steel flitch plate(s) ", "0.66",
                  "YP Factor, Lc", "Top Load Only +|Full Lat. Bracing", "Wood Bearing Area"}),
    CaseName);

/// 30 kips on the thin web of a W 8x 10 (0.17 in.) need bearing; a pound does not.
TEST(SteelSheet, ListsTheBearingAtPointLoads)
{
    Session session = SteelSession(SteelFamily::W, "6", "100", "60");
    SetPoint(session.Problem, 0, "30000", "3", "20000");
    SetPoint(session.Problem, 2, "1", "2", "1");
    TestedShape(session, "W 8x 10");
    const DataSheet sheet = Filled(session);
    EXPECT_THAT(sheet[34], testing::StartsWith("      B = "));
    EXPECT_EQ(sheet[38], "");
    EXPECT_THAT(sheet[176], testing::StartsWith("At Point Loads: Provide these minimum bearing lengths"));
}

TEST(SteelSheet, WhoseRegimeIsUnknownSaysSo)
{
    Session session = SteelSession(SteelFamily::W, "6", "100", "60");
    TestedShape(session, "W 8x 18");
    session.Steel.LcApplies = session.Steel.LuApplies = false;
    ScriptedUser user;
    const DataSheet sheet = FillDataRecord(session, Day, user);
    ExpectCells(sheet, {{31, "error"}, {35, "error"}, {5, "W 8x 18, 36 ksi Wide Flange Steel"}});
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told[0].Text,
                testing::StartsWith("An error has occurred entering data in the data record.  "));
}

/// Every cell of the sheet, each with a text of its own and all notes.
DataSheet FullSheet()
{
    DataSheet sheet;
    for (std::size_t label = 1; label < DataSheet::LabelCount; ++label) {
        sheet[label] = "c" + std::to_string(label);
    }
    sheet.Label133Missing = "second header";
    sheet.ReportNotes = {"n1", "n2", "n3", "n4", "n5", "n6", "n7"};
    return sheet;
}

class RecordPageTest : public testing::TestWithParam<bool> {};

TEST_P(RecordPageTest, HoldsEveryCellOnceWithinTheMargins)
{
    const RecordPage page = LayOutDataRecord(FullSheet(), {.HighDpi = GetParam()});
    std::map<std::size_t, int> times;
    for (const PageText& text : page.Texts) {
        ++times[text.Label];
        EXPECT_GE(text.Area.Left, 36) << text.Label;
        EXPECT_LE(text.Area.Left + text.Area.Width, page.Width - 36 + 1e-9) << text.Label;
        EXPECT_LE(text.Area.Top + text.Area.Height, page.Height - 36) << text.Label;
    }
    times.erase(0);
    for (const auto& [label, count] : times) {
        EXPECT_EQ(count, 1) << label;
    }
    constexpr std::size_t cellsOfTheSheet = 181;  // 194 numbers less the 13 that name no cell
    EXPECT_EQ(times.size(), cellsOfTheSheet);
    ASSERT_TRUE(page.Diagram);
    EXPECT_EQ(page.Tints.empty(), !GetParam());
}

INSTANTIATE_TEST_SUITE_P(Layouts, RecordPageTest, testing::Bool());

TEST(RecordPage, TextsDoNotLieOnOneAnother)
{
    const RecordPage page = LayOutDataRecord(FullSheet(), {});
    for (std::size_t a = 0; a < page.Texts.size(); ++a) {
        for (std::size_t b = a + 1; b < page.Texts.size(); ++b) {
            const PageRect& one = page.Texts[a].Area;
            const PageRect& other = page.Texts[b].Area;
            const bool apart =
                one.Left + one.Width <= other.Left + 1e-9 || other.Left + other.Width <= one.Left + 1e-9 ||
                one.Top + one.Height <= other.Top + 0.1 || other.Top + other.Height <= one.Top + 0.1;
            EXPECT_TRUE(apart) << page.Texts[a].Text << " and " << page.Texts[b].Text;
        }
    }
}

TEST(RecordPage, WithoutNotesHasNoHeadingForThem)
{
    const auto texts = [](const DataSheet& sheet, bool hasNotes) {
        const RecordPage page = LayOutDataRecord(sheet, {.HasNotes = hasNotes});
        std::vector<std::string> all;
        for (const PageText& text : page.Texts) {
            all.push_back(text.Text);
        }
        return all;
    };
    EXPECT_THAT(texts(FullSheet(), true), testing::Contains("Notes"));
    EXPECT_THAT(texts(FullSheet(), false), testing::Not(testing::Contains("Notes")));
    EXPECT_THAT(texts(DataSheet{}, true), testing::Not(testing::Contains("Notes")));
}

TEST(RecordPage, AsTextKeepsItsLinesAndColumns)
{
    const std::string text = PlainTextOf(LayOutDataRecord(FullSheet(), {}));
    EXPECT_THAT(text, testing::HasSubstr("second header"));
    const std::size_t critical = text.find("c13 ");
    const std::size_t below = text.find("c15 ");
    const auto column = [&text](std::size_t at) { return at - text.rfind('\n', at); };
    EXPECT_EQ(column(critical), column(below));
    EXPECT_THAT(text, testing::ContainsRegex("c9 +c13 +c14 +c111 +c152"));
    EXPECT_THAT(text, testing::HasSubstr("\nn7\n"));
}

TEST(RecordPage, AsTextCountsLettersNotBytes)
{
    DataSheet plain = FullSheet();
    plain[1] = "Project: Hauser";
    DataSheet accented = FullSheet();
    accented[1] = "Project: H\u00E4user";
    const auto dateColumn = [](const DataSheet& sheet) {
        const std::string text = PlainTextOf(LayOutDataRecord(sheet, {}));
        const std::size_t at = text.find("c4\n");
        return at - text.rfind('\n', at);
    };
    EXPECT_EQ(dateColumn(accented), dateColumn(plain) + 1);  // of two bytes, one letter
}

}  // namespace
}  // namespace kordavan
