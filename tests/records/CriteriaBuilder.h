#pragma once

#include <gmock/gmock.h>

#include <variant>
#include <vector>

#include "core/CriteriaFields.h"
#include "design/DesignBuilder.h"
#include "records/CriteriaLayout.h"
#include "records/CriteriaRecord.h"
#include "records/RecordBytes.h"
#include "records/RecordDay.h"

namespace kordavan {

/// The 32-bit float nearest to 0.0001, as a file holds it.
inline constexpr std::string_view HeldZeroBytes = "\x17\xB7\xD1\x38";

/// The tag, blank texts, all else 0.
inline RecordBytes BlankCriteria(int tag)
{
    RecordBytes bytes(1613);
    bytes.Short(0, tag).Blanks(2, 90).Blanks(322, 228).Blanks(574, 120).Blanks(704, 595);
    return bytes.Blanks(1303, 276).Blanks(1599, 6);
}

/// An overhanging beam without any field that is as in a new one.
inline RecordBytes FilledCriteria(int tag)
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

inline BeamProblem FilledProblem()
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

inline Session FilledSession()
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
inline Session OtherSession()
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
inline std::vector<std::string_view> DifferingFields(const BeamProblem& a, const BeamProblem& b)
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

inline void ExpectSame(const BeamProblem& actual, const BeamProblem& expected)
{
    EXPECT_THAT(DifferingFields(actual, expected), testing::IsEmpty());
    EXPECT_EQ(actual.Support, expected.Support);
    EXPECT_EQ(actual.ThreeSpan, expected.ThreeSpan);
    EXPECT_EQ(actual.Spacing, expected.Spacing);
    EXPECT_EQ(actual.Family, expected.Family);
    EXPECT_EQ(actual.Combo1, expected.Combo1);
    EXPECT_TRUE(actual == expected);
}

inline void ExpectFlags(const NdsEdition& actual, const NdsEdition& expected)
{
    EXPECT_EQ(actual.Nds1997, expected.Nds1997);
    EXPECT_EQ(actual.Nds2001, expected.Nds2001);
    EXPECT_EQ(actual.Nds2005, expected.Nds2005);
    EXPECT_EQ(actual.Nds2012, expected.Nds2012);
    EXPECT_EQ(actual.Nds2015, expected.Nds2015);
    EXPECT_EQ(actual.Nds2018, expected.Nds2018);
}

/// Restores what must be accepted without a word.
inline void Restore(std::string_view bytes, Session& session)
{
    ScriptedUser user;
    const PackedRecord record(CriteriaLayout, bytes);
    ASSERT_EQ(CheckCriteriaTag(record, user), Outcome::Done);
    ASSERT_EQ(RestoreCriteria(record, session, user), Outcome::Done)
        << (user.Told.empty() ? "" : user.Told.back().Text);
    EXPECT_THAT(user.Told, testing::IsEmpty());
}

inline Session Restored(std::string_view bytes)
{
    Session session;
    Restore(bytes, session);
    return session;
}

}  // namespace kordavan
