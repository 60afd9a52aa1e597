#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "core/NumberText.h"
#include "design/CalculateAction.h"
#include "records/ColumnRecordFile.h"
#include "records/ColumnRecordLayout.h"
#include "records/CriteriaFile.h"
#include "records/CriteriaLayout.h"
#include "records/CriteriaRecord.h"
#include "records/CustomPostFile.h"
#include "records/CustomPostLayout.h"
#include "records/CustomValuesFile.h"
#include "records/CustomValuesLayout.h"
#include "records/DataRecordFile.h"
#include "records/DataRecordLayout.h"
#include "records/DefaultsFile.h"
#include "records/DefaultsLayout.h"
#include "records/RecentFiles.h"
#include "records/RecordBytes.h"
#include "records/SclFile.h"
#include "records/SclLayout.h"
#include "records/StudRecordFile.h"
#include "records/StudRecordLayout.h"

namespace kordavan {
namespace {

constexpr int Rounds = 3000;

/// Hears everything, wants nothing.
class RefusingUser : public UserPort {
public:
    void Tell(const Message& message) override { EXPECT_FALSE(message.Text.empty()); }
    bool Ask(const Message& question) override
    {
        Tell(question);
        return false;
    }
};

/// Files of any length and any bytes, the same in every run.
class HostileFiles {
public:
    std::size_t Below(std::size_t end) { return random() % end; }
    bool Coin() { return Below(2) == 0; }

    std::string AnyBytes(std::size_t most)
    {
        std::string bytes(Below(most + 1), '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(Below(256));
        }
        return bytes;
    }

    /// With that tag in half of the files that are long enough for one.
    std::string AnyFile(std::size_t most, int tag)
    {
        std::string bytes = AnyBytes(most);
        if (bytes.size() >= 2 && Coin()) {
            bytes.replace(0, 2, RecordBytes(2).Short(0, tag).All());
        }
        return bytes;
    }

    int CriteriaTag() { return CriteriaTags[Below(CriteriaTags.size())]; }

    /// A sensible beam with a few numbers that are not, under any flags: it is loaded as it stands.
    std::string NastyCriteria()
    {
        constexpr std::array<float, 12> numbers{0,       -1,    0.5F,  0.0001F, 1e-45F, 1e-30F,
                                                1000000, 1e10F, 1e30F, 3e38F,   -3e38F, 240};
        RecordBytes bytes(1613);
        bytes.Text(574, AnyBytes(100)).Text(704, AnyBytes(595)).Text(1303, AnyBytes(280));
        bytes.Float(92, 12).Float(96, 1).Short(100, 240).Short(102, 360).Float(130, 100).Float(134, 60);
        for (std::size_t spoilt = Below(6); spoilt > 0; --spoilt) {
            bytes.Float(NumberOffset(), numbers[Below(numbers.size())]);
        }
        for (const std::size_t offset : {106, 108, 110, 112, 114, 116, 118, 120, 122, 124, 126, 128, 550}) {
            bytes.Short(offset, Below(4) == 0 ? -1 : 0);
        }
        return bytes.Short(0, CriteriaTag()).Short(104, static_cast<int>(Below(10))).All();
    }

private:
    /// The place of any number among the entries.
    std::size_t NumberOffset()
    {
        constexpr std::array<std::pair<std::size_t, std::size_t>, 5> runs{
            {{92, 100}, {130, 306}, {314, 322}, {552, 560}, {694, 698}}};
        const auto [begin, end] = runs[Below(runs.size())];
        return begin + 4 * Below((end - begin) / 4);
    }

    std::mt19937 random{20260307};  // NOLINT: the same files in every run
};

Session WorkedSession()
{
    Session session;
    session.Problem.Proj = "Shed";
    session.Problem.Span = "9";
    session.Problem.Loads.PT[3] = "77";
    session.KeptProblem = session.Problem;
    session.NoteClipboard[2] = "a note";
    return session;
}

/// A new file each time: a file system may take its time to cut and fill an old one again and again.
void PutNew(const std::string& path, std::string_view bytes)
{
    std::filesystem::remove(path);
    PutFile(path, bytes);
}

/// A beam from a file, calculated by somebody who agrees to nothing. True where it came through.
bool IsCalculated(Session& session)
{
    RefusingUser user;
    if (CalculateAction(session, user) == Outcome::Refused) {
        return false;
    }
    EXPECT_TRUE(std::isfinite(session.Analysis.R1Applied));
    EXPECT_TRUE(std::isfinite(session.Analysis.R2Applied));
    EXPECT_TRUE(std::isfinite(session.Analysis.MaxMomentApplied));
    return true;
}

TEST(HostileFiles, AreRecordsOfSomeKind)
{
    HostileFiles files;
    std::size_t letters = 0;
    for (int round = 0; round < Rounds; ++round) {
        for (const RecordLayout* layout :
             {&CriteriaLayout, &DataRecordLayout, &DefaultsLayout, &CustomValuesLayout, &SclLayout,
              &CustomSclLayout, &WoodColumnRecordLayout, &SteelColumnRecordLayout, &StudRecordLayout}) {
            const std::string bytes = files.AnyBytes(5000);
            const PackedRecord record(*layout, bytes);
            ASSERT_EQ(record.Bytes().size(), layout->Size);
            for (const RecordField& field : layout->Fields) {
                for (std::size_t k = 0; field.Type == FieldType::Text && k < field.Count; ++k) {
                    const std::string text = record.Text(field.Name, k);
                    ASSERT_TRUE(text.empty() || text.back() != ' ');
                    letters += text.size();
                }
            }
        }
    }
    EXPECT_GT(letters, 0U);
}

TEST(HostileFiles, LeaveTheBeamWholeOrGiveOneThatCanBeCalculated)
{
    HostileFiles files;
    const Session before = WorkedSession();
    int loaded = 0;
    int refused = 0;
    int calculated = 0;
    for (int round = 0; round < Rounds; ++round) {
        const std::string bytes =
            files.Coin() ? files.AnyFile(2000, files.CriteriaTag()) : files.NastyCriteria();
        const PackedRecord record(CriteriaLayout, bytes);
        Session session = before;
        RefusingUser user;
        if (CheckCriteriaTag(record, user) == Outcome::Refused ||
            RestoreCriteria(record, session, user) == Outcome::Refused) {
            ++refused;
            ASSERT_TRUE(session.Problem == before.Problem) << "round " << round;
            ASSERT_TRUE(session.KeptProblem == before.KeptProblem) << "round " << round;
            ASSERT_EQ(session.NoteClipboard, before.NoteClipboard) << "round " << round;
            continue;
        }
        ++loaded;
        TellCriteriaEdition(record, user);
        calculated += IsCalculated(session) ? 1 : 0;
        MakeCriteriaRecord(session, {});
    }
    EXPECT_GT(refused, Rounds / 10);
    EXPECT_GT(loaded, Rounds / 10);
    EXPECT_GT(calculated, Rounds / 50);
}

TEST(HostileFiles, OnDiskAreLoadedOrRefused)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("odd.CRI");
    HostileFiles files;
    const Session before = WorkedSession();
    for (int round = 0; round < Rounds / 10; ++round) {
        const std::string bytes = files.AnyFile(4000, -2007);
        PutNew(path, bytes);
        Session session = before;
        RefusingUser user;
        if (LoadCriteriaFile(session, path, user) == Outcome::Refused) {
            ASSERT_TRUE(session.Problem == before.Problem) << "round " << round;
        }
        ASSERT_EQ(FileBytes(path), bytes);
    }
}

TEST(HostileFiles, GiveDefaultsThatABeamCanBeginWith)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(DefaultsFileName);
    HostileFiles files;
    int taken = 0;
    for (int round = 0; round < Rounds; ++round) {
        const std::string bytes = files.AnyFile(500, 4321);
        PutNew(path, bytes);
        Session session = WorkedSession();
        session.Problem.Loads.UNIF = "100";
        RefusingUser user;
        LoadDefaults(session, path, user);
        taken += bytes.starts_with("\xE1\x10") ? 1 : 0;
        ASSERT_EQ(session.Problem.Proj, "Shed");
        ASSERT_LT(static_cast<std::size_t>(session.Problem.Combo1), SpeciesGroups.size());
        for (const LoadPair& pair : session.Defaults.LoadPairs) {
            ASSERT_TRUE(pair.Live.empty() || IsNumeric(pair.Live)) << pair.Live;
            ASSERT_TRUE(pair.Total.empty() || IsNumeric(pair.Total)) << pair.Total;
        }
        IsCalculated(session);
    }
    EXPECT_GT(taken, Rounds / 4);
}

void ExpectNumberOrNothing(const std::string& text)
{
    EXPECT_TRUE(text.empty() || IsNumeric(text)) << text;
}

TEST(HostileFiles, GiveCustomValuesThatCanBeSavedAgain)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("odd.VAL");
    HostileFiles files;
    int loaded = 0;
    for (int round = 0; round < Rounds; ++round) {
        PutNew(path, files.AnyFile(80, CustomValuesTag));
        Session session;
        session.Entry.Custom.Fb = "as it was";
        RefusingUser user;
        if (LoadCustomValues(session, path, user) == Outcome::Refused) {
            ASSERT_EQ(session.Entry.Custom.Fb, "as it was");
            continue;
        }
        ++loaded;
        for (const auto text : {&CustomEntry::Fb, &CustomEntry::Fv, &CustomEntry::FcPerp, &CustomEntry::E}) {
            ExpectNumberOrNothing(session.Entry.Custom.*text);
        }
        ASSERT_EQ(MakeCustomValuesRecord(session.Entry).UnfitBox, "");
    }
    EXPECT_GT(loaded, Rounds / 4);
}

TEST(HostileFiles, GivePostValuesThatCanBeSavedAgain)
{
    HostileFiles files;
    int taken = 0;
    for (int round = 0; round < Rounds; ++round) {
        const PackedRecord record(CustomPostLayout, files.AnyFile(60, CustomPostTag));
        RefusingUser user;
        if (CheckCustomPost(record, user) == Outcome::Refused) {
            continue;
        }
        ++taken;
        ColumnEntry entry;
        RestoreCustomPost(record, entry);
        ExpectNumberOrNothing(entry.cFcText);
        ExpectNumberOrNothing(entry.cEtext);
        ColumnEntry again;
        RestoreCustomPost(MakeCustomPostRecord(entry), again);
        ASSERT_EQ(again, entry) << "round " << round;
    }
    EXPECT_GT(taken, Rounds / 4);
}

TEST(HostileFiles, GiveSclValuesThatBoxesCanShow)
{
    const TemporaryFolder folder;
    HostileFiles files;
    int held = 0;
    for (int round = 0; round < Rounds / 3; ++round) {
        PutNew(folder.Path(SclFileName), files.AnyFile(300, SclTag));
        PutNew(folder.Path(CustomSclFileName), files.AnyFile(120, CustomSclTag));
        for (const std::size_t product : {0, 22, 23, 24, 25}) {
            RefusingUser user;
            const SclValues values = LoadSclValues(folder.Path(), product, user);
            for (const auto text :
                 {&SclValues::Fb, &SclValues::Fv, &SclValues::E, &SclValues::FcPerp, &SclValues::Exponent}) {
                ExpectNumberOrNothing(values.*text);
            }
            held += values.Fb.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(held, Rounds / 3);
}

TEST(HostileFiles, GiveSheetsThatCanBeSavedAgain)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("odd.Dat");
    HostileFiles files;
    int shown = 0;
    for (int round = 0; round < Rounds / 10; ++round) {
        PutNew(path, files.AnyFile(6000, files.Coin() ? DataRecordTag : OldDataRecordTag));
        DataSheet sheet;
        RefusingUser user;
        if (OpenDataRecord(path, sheet, user) == Outcome::Refused) {
            ASSERT_EQ(sheet, DataSheet{});
            continue;
        }
        ++shown;
        DataSheet again = sheet;
        RestoreDataSheet(MakeDataRecord(sheet, {sheet[1], sheet[2], sheet[3]}), again);
        ASSERT_EQ(again, sheet) << "round " << round;
    }
    EXPECT_GT(shown, Rounds / 40);
}

TEST(HostileFiles, GiveColumnSheetsThatCanBeSavedAgain)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("odd.Col");
    HostileFiles files;
    int shown = 0;
    for (int round = 0; round < Rounds / 10; ++round) {
        PutNew(path, files.AnyFile(2000, files.Coin() ? WoodColumnTag : SteelColumnTag));
        for (const ColumnRecordKind kind : {ColumnRecordKind::Wood, ColumnRecordKind::Steel}) {
            ColumnSheet sheet;
            RefusingUser user;
            if (OpenColumnRecord(path, kind, sheet, user) == Outcome::Refused) {
                ASSERT_EQ(sheet, ColumnSheet{});
                continue;
            }
            ++shown;
            ASSERT_EQ(ReadColumnSheet(MakeColumnRecord(sheet, kind, true), kind), sheet) << "round " << round;
        }
    }
    EXPECT_GT(shown, Rounds / 40);
}

TEST(HostileFiles, GiveStudsThatListsCanShow)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("odd.Wsc");
    HostileFiles files;
    ColumnSession before;
    before.Stud.WindStudHt = "9";
    int shown = 0;
    for (int round = 0; round < Rounds / 10; ++round) {
        PutNew(path, files.AnyFile(1200, StudRecordTag));
        ColumnSession columns = before;
        ReportNoteLines notes;
        RefusingUser user;
        if (OpenStudRecord(path, columns, notes, user) == Outcome::Refused) {
            ASSERT_TRUE(columns.Stud == before.Stud);
            continue;
        }
        ++shown;
        ASSERT_LT(static_cast<std::size_t>(columns.Stud.BreadthCombo), StudBreadths.size());
        ASSERT_LT(static_cast<std::size_t>(columns.Stud.DepthCombo), StudDepths.size());
        const PackedRecord again = MakeStudRecord({columns.Identity, columns.Stud, notes});
        ASSERT_TRUE(ReadStudRecord(again).Entry == columns.Stud) << "round " << round;
    }
    EXPECT_GT(shown, Rounds / 40);
}

TEST(HostileFiles, MakeAListOfAtMostEight)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(RecentFilesName);
    HostileFiles files;
    for (int round = 0; round < Rounds / 10; ++round) {
        PutNew(path, files.AnyBytes(4000));
        ASSERT_LE(ReadRecentFiles(path).size(), MostRecentFiles);
    }
}

}  // namespace
}  // namespace kordavan
