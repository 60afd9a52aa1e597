#include "records/RecoveryCopy.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <map>
#include <vector>

#include "records/RecoveryFields.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// All work of one person, empty as at a first start.
struct Desk {
    Session Beam;
    ColumnSession Columns;
    NotchSession Notch;

    WorkAtHand Work() { return {Beam, Columns, Notch}; }
};

/// Goes to every single value, however deep it lies; what may be absent is made to be there.
template <typename Visit>
class EachValue {
public:
    static constexpr bool IsReading = true;

    explicit EachValue(Visit valueVisit) : visit(valueVisit) {}

    template <typename Value>
    void Take(std::string_view name, Value& value)
    {
        const std::string outer = path;
        path += "." + std::string(name);
        if constexpr (requires { value.emplace(); }) {
            Take("value", value ? *value : value.emplace());
        } else if constexpr (requires { std::tuple_size<Value>::value; }) {
            for (std::size_t k = 0; k < value.size(); ++k) {
                Take(std::to_string(k), value[k]);
            }
        } else if constexpr (std::is_same_v<Value, std::string> || std::is_scalar_v<Value>) {
            visit(path, value);
        } else {
            TakeFields(*this, value);
        }
        path = outer;
    }

private:
    Visit visit;
    std::string path;
};

template <typename Visit>
void VisitAll(Desk& desk, Visit visit)
{
    EachValue<Visit> values(visit);
    TakeEach(values, "Beam", desk.Beam, "Columns", desk.Columns, "Notch", desk.Notch);
}

/// Puts something else into every value: each text its own, with what a line has to be guarded from.
void FillAll(Desk& desk)
{
    int count = 0;
    VisitAll(desk, [&count](const std::string& path, auto& value) {
        using Value = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::string>) {
            value = path + " = \\n\n\\\\ caf\u00E9 #" + std::to_string(++count);
        } else if constexpr (std::is_same_v<Value, float>) {
            value = 0.1F + static_cast<float>(++count);
        } else {
            value = static_cast<Value>(1);
        }
    });
}

std::map<std::string, std::string> AllValues(Desk& desk)
{
    std::map<std::string, std::string> values;
    VisitAll(desk, [&values](const std::string& path, auto& value) {
        if constexpr (std::is_same_v<std::remove_reference_t<decltype(value)>, std::string>) {
            values[path] = value;
        } else {
            values[path] = testing::PrintToString(static_cast<double>(value));
        }
    });
    return values;
}

/// Reads a copy of the desk into an empty one.
RecoveryRead ReadBack(Desk& desk)
{
    Desk empty;
    return ReadRecoveryCopy(MakeRecoveryCopy({"today", "Form18"}, EntryLines(desk.Work())), empty.Work());
}

/// The bytes that the construction of a record writes wherever it stands: some of each member, and no
/// padding.
template <typename Record>
std::vector<bool> MemberBytes()
{
    Record* (*volatile construct)(void*) = [](void* at) { return new (at) Record; };
    alignas(Record) std::array<std::array<unsigned char, sizeof(Record)>, 2> rooms{};
    rooms[1].fill(1);
    for (auto& room : rooms) {
        construct(room.data())->~Record();
    }
    std::vector<bool> written;
    for (std::size_t k = 0; k < sizeof(Record); ++k) {
        written.push_back(rooms[0][k] == rooms[1][k]);
    }
    return written;
}

/// The bytes of a record that lie within the values handed on.
template <typename Record>
std::vector<bool> HeldBytes()
{
    Record record{};
    std::vector<bool> held(sizeof(Record));
    const auto* const begin = reinterpret_cast<const unsigned char*>(&record);
    const auto note = [&](const std::string& /*path*/, auto& value) {
        const auto at = reinterpret_cast<const unsigned char*>(&value) - begin;
        if (at >= 0 && at < std::ssize(held)) {
            std::fill_n(held.begin() + at, sizeof(value), true);
        }
    };
    EachValue<decltype(note)> values(note);
    TakeFields(values, record);
    return held;
}

/// The members of a record that are not handed on, in bytes.
template <typename Record>
std::size_t BytesNotHeld()
{
    const std::vector<bool> members = MemberBytes<Record>();
    const std::vector<bool> held = HeldBytes<Record>();
    EXPECT_GT(std::count(members.begin(), members.end(), true), 0);
    std::size_t missing = 0;
    for (std::size_t k = 0; k < members.size(); ++k) {
        missing += members[k] && !held[k] ? 1 : 0;
    }
    return missing;
}

template <typename Record>
class EntryRecordTest : public testing::Test {
};

using EntryRecords =
    testing::Types<NdsEdition, EntriesToRestore, UnbalancedLoads, CustomEntry, MemberEntry, SelectionRecord,
                   DataSheet, RecordHeading, PrintHeader, ColumnIdentity, ColumnEntry, StudEntry,
                   EnteredHeading, ColumnSheet, ColumnRecordOnShow, NotchEntry, EnteredNotchHeading>;
TYPED_TEST_SUITE(EntryRecordTest, EntryRecords);

TYPED_TEST(EntryRecordTest, IsHeldToTheLastByte)
{
    EXPECT_EQ(BytesNotHeld<TypeParam>(), 0U);
}

/// But for the choices, which are held as the option that is on.
TEST(RecoveryCopy, HoldsABeamToTheLastByte)
{
    const BeamProblem problem;
    EXPECT_EQ(BytesNotHeld<BeamProblem>(), sizeof(problem.Support) + sizeof(problem.ThreeSpan) +
                                               sizeof(problem.Spacing) + sizeof(problem.Family));
}

TEST(RecoveryCopy, BringsEveryValueBack)
{
    Desk desk;
    FillAll(desk);
    RecoveryRead read = ReadBack(desk);
    EXPECT_EQ(read.Fault, RecoveryFault::None);
    EXPECT_EQ(read.Note.Made, "today");
    EXPECT_EQ(read.Note.Screen, "Form18");
    EXPECT_EQ(read.Beam.Problem, desk.Beam.Problem);
    EXPECT_EQ(read.Beam.KeptProblem, desk.Beam.KeptProblem);
    EXPECT_EQ(read.Beam.Multiplied, desk.Beam.Multiplied);
    EXPECT_EQ(read.Columns.WoodRecord, desk.Columns.WoodRecord);
    EXPECT_EQ(read.Notch.Entry, desk.Notch.Entry);
    Desk again{std::move(read.Beam), std::move(read.Columns), std::move(read.Notch)};
    const std::map<std::string, std::string> values = AllValues(desk);
    EXPECT_EQ(AllValues(again), values);
    EXPECT_GT(values.size(), 1000U);
}

TEST(RecoveryCopy, EmptiesWhatWasEmptied)
{
    Desk desk;
    desk.Beam.Problem.Dur = desk.Beam.Problem.DepCombo = desk.Columns.Entry.cModeText = "";
    desk.Beam.Problem.INGRADE = false;
    desk.Notch.Years.Line.reset();
    Desk start;
    start.Beam.Header.Heading1 = "of the settings";
    start.Beam.Selection.emplace();
    const RecoveryRead read = ReadRecoveryCopy(MakeRecoveryCopy({}, EntryLines(desk.Work())), start.Work());
    EXPECT_EQ(read.Beam.Problem, desk.Beam.Problem);
    EXPECT_EQ(read.Beam.Header.Heading1, "");
    EXPECT_FALSE(read.Beam.Selection);
    EXPECT_EQ(read.Columns.Entry.cModeText, "");
    EXPECT_FALSE(read.Notch.Years.Line);
}

template <typename Option>
void ExpectOptionsBack(Option BeamProblem::*choice, int count)
{
    for (int position = 0; position < count; ++position) {
        Desk desk;
        desk.Beam.Problem.*choice = static_cast<Option>(position);
        EXPECT_EQ(ReadBack(desk).Beam.Problem, desk.Beam.Problem) << position;
    }
}

TEST(RecoveryCopy, BringsEveryOptionBack)
{
    ExpectOptionsBack(&BeamProblem::Support, 4);
    ExpectOptionsBack(&BeamProblem::Spacing, 6);
    ExpectOptionsBack(&BeamProblem::Family, 7);
    ExpectOptionsBack(&BeamProblem::ThreeSpan, 2);
    ExpectOptionsBack(&BeamProblem::Combo1, 10);
}

TEST(RecoveryCopy, IsTextThatCanBeRead)
{
    Desk desk;
    desk.Beam.Problem.Span = "14";
    desk.Beam.Problem.Loads.PT[2] = "500";
    desk.Columns.Stud.Wind[0] = "25";
    const std::string copy = MakeRecoveryCopy({"Monday", "Form1"}, EntryLines(desk.Work()));
    EXPECT_THAT(copy, testing::StartsWith("Kordavan recovery copy 1\nMade=Monday\nScreen=Form1\n"));
    EXPECT_THAT(copy, HasSubstr("\nBeam.Problem.Span=14\n"));
    EXPECT_THAT(copy, HasSubstr("\nBeam.Problem.PT[2]=500\n"));
    EXPECT_THAT(copy, HasSubstr("\nColumns.Stud.Wind[0]=25\n"));
    EXPECT_THAT(copy, Not(HasSubstr("Beam.Problem.PT[1]")));
    EXPECT_THAT(copy, testing::EndsWith("\nEnd\n"));
}

TEST(RecoveryCopy, IsBrokenAtEveryShorterLength)
{
    Desk desk;
    desk.Beam.Problem.Span = "14";
    const std::string copy = MakeRecoveryCopy({"Monday", "Form1"}, EntryLines(desk.Work()));
    for (std::size_t length = 0; length < copy.size(); ++length) {
        EXPECT_EQ(ReadRecoveryCopy(copy.substr(0, length), desk.Work()).Fault, RecoveryFault::Broken)
            << length;
    }
}

struct CopyCase {
    std::string_view Name;
    std::string_view Copy;
    RecoveryFault Fault;
};

class RecoveryFaultTest : public testing::TestWithParam<CopyCase> {};

TEST_P(RecoveryFaultTest, IsFound)
{
    Desk desk;
    EXPECT_EQ(ReadRecoveryCopy(GetParam().Copy, desk.Work()).Fault, GetParam().Fault);
}

constexpr RecoveryFault Broken = RecoveryFault::Broken;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Copies, RecoveryFaultTest, testing::Values(
    CopyCase{"no entries",         "Kordavan recovery copy 1\nEnd\n", RecoveryFault::None},
    CopyCase{"newer",              "Kordavan recovery copy 2\nWhatever\n", RecoveryFault::Newer},
    CopyCase{"much newer",         "Kordavan recovery copy 10\n", RecoveryFault::Newer},
    CopyCase{"foreign",            "PROGRAM SETTINGS\nEnd\n", RecoveryFault::Foreign},
    CopyCase{"foreign bytes",      "\xFF\xFE\x01", RecoveryFault::Foreign},
    CopyCase{"no version",         "Kordavan recovery copy \nEnd\n", Broken},
    CopyCase{"version of words",   "Kordavan recovery copy one\nEnd\n", Broken},
    CopyCase{"version before",     "Kordavan recovery copy 0\nEnd\n", Broken},
    CopyCase{"text behind",        "Kordavan recovery copy 1\nEnd\nMade=today\n", Broken},
    CopyCase{"no value",           "Kordavan recovery copy 1\nMade\nEnd\n", Broken},
    CopyCase{"unknown entry",      "Kordavan recovery copy 1\nBeam.Problem.Spam=1\nEnd\n", Broken},
    CopyCase{"beyond an array",    "Kordavan recovery copy 1\nBeam.Problem.PT[6]=1\nEnd\n", Broken},
    CopyCase{"twice",              "Kordavan recovery copy 1\nMade=a\nMade=a\nEnd\n", Broken},
    CopyCase{"unknown escape",     "Kordavan recovery copy 1\nMade=a\\t\nEnd\n", Broken},
    CopyCase{"escape cut off",     "Kordavan recovery copy 1\nMade=a\\\nEnd\n", Broken},
    CopyCase{"flag of words",      "Kordavan recovery copy 1\nBeam.Problem.Wet=yes\nEnd\n", Broken},
    CopyCase{"value of nothing",   "Kordavan recovery copy 1\nBeam.Selection.Value.MemberChoice=a\nEnd\n", Broken},
    CopyCase{"last material",      "Kordavan recovery copy 1\nBeam.Problem.Combo1=9\nEnd\n", RecoveryFault::None},
    CopyCase{"no such material",   "Kordavan recovery copy 1\nBeam.Problem.Combo1=10\nEnd\n", Broken},
    CopyCase{"negative material",  "Kordavan recovery copy 1\nBeam.Problem.Combo1=-1\nEnd\n", Broken},
    CopyCase{"half a position",    "Kordavan recovery copy 1\nNotch.Entry.DurListbox=0.5\nEnd\n", Broken},
    CopyCase{"far position",       "Kordavan recovery copy 1\nNotch.Entry.DurListbox=99999\nEnd\n", Broken},
    CopyCase{"last product",       "Kordavan recovery copy 1\nBeam.Entry.Product=25\nEnd\n", RecoveryFault::None},
    CopyCase{"no such product",    "Kordavan recovery copy 1\nBeam.Entry.Product=26\nEnd\n", Broken},
    CopyCase{"load without end",   "Kordavan recovery copy 1\nBeam.IncreasingTotalLoad=1e99\nEnd\n", Broken},
    CopyCase{"load of words",      "Kordavan recovery copy 1\nBeam.IncreasingTotalLoad=2 lb\nEnd\n", Broken}),
    CaseName);
// clang-format on

}  // namespace
}  // namespace kordavan
