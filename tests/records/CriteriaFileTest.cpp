#include "records/CriteriaFile.h"

#include <gmock/gmock.h>

#include "design/NewBeam.h"
#include "records/RecordBytes.h"
#include "records/RecordDay.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr std::string_view UnbalancedText =
    "Kordavan cannot save criteria when loads are unbalanced.  Please restore the loads by clicking the "
    "RESTORE button below the point loads entry boxes and then save the criteria.";
constexpr std::string_view UnfitCriteriaText =
    "A Beam Criteria file cannot hold the number in this box: it is too large, or a deflection limit that is "
    "no whole number.  Please change it and save again.";
constexpr std::string_view WrongCriteriaText =
    "The Beam Criteria for this form could not be loaded.  Please check to see if you selected the "
    "appropriate file.\n"
    "\n"
    "Beam Criteria files have a default extension of *.CRI\n"
    "Custom Value files have an extension of *.VAL\n"
    "Column Data Records have an extension of *.COL\n"
    "Beam Data Records have the default extension of *.DAT\n"
    "\n"
    "You may have saved your data under a different filename or file type.";

Session BeamSession()
{
    Session session;
    session.Problem.ID = "B1";
    session.Problem.Span = "12.5";
    session.Problem.Loads.UNIF = "100";
    session.Problem.Loads.LUNIF = "60";
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "1/02/26"};
    session.NoteClipboard[0] = "a note";
    return session;
}

/// Nothing of the session is other than it was.
void ExpectBeamSession(const Session& session)
{
    const Session untouched = BeamSession();
    EXPECT_TRUE(session.Problem == untouched.Problem);
    EXPECT_TRUE(session.KeptProblem == untouched.KeptProblem);
    ASSERT_TRUE(session.Selection);
    EXPECT_EQ(session.Selection->MemberChoice, "4x  10 DF-L #2");
    EXPECT_EQ(session.NoteClipboard[0], "a note");
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2018);
}

TEST(SaveCriteriaFile, TellsThePathAndKeepsTheEntriesAsSaved)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("beam one.CRI");
    Session session = BeamSession();
    ScriptedUser user;
    EXPECT_TRUE(HasUnsavedEntries(session));
    EXPECT_EQ(SaveCriteriaFile(session, path, Day, user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("Beam Criteria saved to disk as\n    " + path)));
    EXPECT_FALSE(HasUnsavedEntries(session));
    EXPECT_TRUE(session.Problem == BeamSession().Problem);
    EXPECT_EQ(std::filesystem::file_size(path), 1613U);
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(LoadCriteriaFile, ReplacesTheBeamAndTellsTheEdition)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("beam.CRI");
    Session saved = BeamSession();
    saved.Nds = EditionFlags(Edition::Nds2012);
    ScriptedUser saver;
    ASSERT_EQ(SaveCriteriaFile(saved, path, Day, saver), Outcome::Done);
    Session session;
    session.Problem.Descrip = "another beam";
    ScriptedUser user;
    EXPECT_EQ(LoadCriteriaFile(session, path, user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("This criteria was saved under NDS 2012 standards.")));
    EXPECT_TRUE(session.Problem == BeamSession().Problem);
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2012);
    EXPECT_FALSE(HasUnsavedEntries(session));
    session.Problem.Descrip = "ridge";
    EXPECT_TRUE(HasUnsavedEntries(session));
}

struct UnsavableCriteriaCase {
    std::string_view Name;
    void (*Spoil)(Session&);
    std::string_view Text;
    std::string_view Focus;
};

class UnsavableTest : public testing::TestWithParam<UnsavableCriteriaCase> {};

TEST_P(UnsavableTest, IsRefusedBeforeAnyFileIsTouched)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("beam.CRI");
    Session session = BeamSession();
    GetParam().Spoil(session);
    const BeamProblem before = session.Problem;
    ScriptedUser user;
    EXPECT_EQ(CheckCriteriaSavable(session, user), Outcome::Refused);
    EXPECT_EQ(SaveCriteriaFile(session, path, Day, user), Outcome::Refused);
    EXPECT_EQ(folder.FileCount(), 0U);
    PutFile(path, "old");
    EXPECT_EQ(SaveCriteriaFile(session, path, Day, user), Outcome::Refused);
    EXPECT_EQ(FileBytes(path), "old");
    EXPECT_THAT(user.Told, testing::AllOf(testing::SizeIs(3),
                                          testing::Each(RefusalOf(GetParam().Text, GetParam().Focus))));
    EXPECT_TRUE(session.Problem == before);
    EXPECT_TRUE(HasUnsavedEntries(session));
}

INSTANTIATE_TEST_SUITE_P(
    Sessions, UnsavableTest,
    testing::Values(
        UnsavableCriteriaCase{"span unbalanced", [](Session& s) { s.Unbalanced.Span = true; }, UnbalancedText,
                              ""},
        UnsavableCriteriaCase{"overhang unbalanced", [](Session& s) { s.Unbalanced.Overhang = true; },
                              UnbalancedText, ""},
        UnsavableCriteriaCase{"load too large", [](Session& s) { s.Problem.Loads.PT[2] = "1e300"; },
                              UnfitCriteriaText, "PT[2]"},
        UnsavableCriteriaCase{"limit with a fraction", [](Session& s) { s.Problem.MaxDefl = "240.5"; },
                              UnfitCriteriaText, "MaxDefl"}),
    CaseName);

TEST(CheckCriteriaSavable, SaysNothingOfEntriesThatFit)
{
    ScriptedUser user;
    EXPECT_EQ(CheckCriteriaSavable(BeamSession(), user), Outcome::Done);
    EXPECT_EQ(CheckCriteriaSavable(Session{}, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(SaveCriteriaFile, TellsAFaultAndKeepsTheEntriesUnsaved)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("gone/beam.CRI");
    Session session = BeamSession();
    ScriptedUser user;
    EXPECT_EQ(SaveCriteriaFile(session, path, Day, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("This file could not be saved; what stood in it is unchanged:\n    " +
                                      path + "\nNo such file or directory")));
    ExpectBeamSession(session);
    EXPECT_TRUE(HasUnsavedEntries(session));
}

struct WrongCriteriaCase {
    std::string_view Name;
    std::string Bytes;
};

class WrongFileTest : public testing::TestWithParam<WrongCriteriaCase> {};

TEST_P(WrongFileTest, IsNoCriteriaAndChangesNothing)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("wrong.CRI");
    PutFile(path, GetParam().Bytes);
    Session session = BeamSession();
    ScriptedUser user;
    EXPECT_EQ(LoadCriteriaFile(session, path, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(testing::AllOf(RefusalOf(WrongCriteriaText), Field(&Message::Title, "Kordavan"),
                                           Field(&Message::Icon, MessageIcon::Warning))));
    ExpectBeamSession(session);
}

INSTANTIATE_TEST_SUITE_P(
    Files, WrongFileTest,
    testing::Values(WrongCriteriaCase{"empty", ""}, WrongCriteriaCase{"half a tag", "\xF5"},
                    WrongCriteriaCase{"data record", RecordBytes(1613).Short(0, 555).All()},
                    WrongCriteriaCase{"defaults", RecordBytes(322).Short(0, 4321).All()},
                    WrongCriteriaCase{"next tag below", RecordBytes(1613).Short(0, -14).All()},
                    WrongCriteriaCase{"tag without its sign", RecordBytes(1613).Short(0, 2007).All()},
                    WrongCriteriaCase{"tag with its bytes swapped",
                                      RecordBytes(1613).Text(0, "\xF8\x29").All()},
                    WrongCriteriaCase{"text", "Beam B1, ridge"}),
    CaseName);

TEST(LoadCriteriaFile, TellsAFileThatCannotBeRead)
{
    const TemporaryFolder folder;
    Session session = BeamSession();
    ScriptedUser user;
    EXPECT_EQ(LoadCriteriaFile(session, folder.Path("none.CRI"), user), Outcome::Refused);
    EXPECT_EQ(LoadCriteriaFile(session, folder.Path(), user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("This file could not be read:\n    " +
                                                 folder.Path("none.CRI") + "\nNo such file or directory"),
                                       RefusalOf("This file could not be read:\n    " + folder.Path() +
                                                 "\nIs a directory")));
    ExpectBeamSession(session);
    EXPECT_EQ(folder.FileCount(), 0U);
}

TEST(LoadCriteriaFile, RefusesARecordOfNoNumbersWithNothingChanged)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("odd.CRI");
    RecordBytes odd(1613);
    PutFile(path, odd.Short(0, -2007).Text(92, std::string_view("\0\0\xC0\x7F", 4)).All());  // no number
    Session session = BeamSession();
    ScriptedUser user;
    EXPECT_EQ(LoadCriteriaFile(session, path, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("This Beam Criteria file holds a value that is no number "
                                                 "(Span), so it was not loaded.")));
    ExpectBeamSession(session);
}

}  // namespace
}  // namespace kordavan
