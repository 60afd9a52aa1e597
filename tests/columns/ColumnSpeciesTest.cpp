#include "columns/ColumnSpecies.h"

#include <gmock/gmock.h>

#include <functional>
#include <set>
#include <string>

#include "columns/ColumnCriteria.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using enum ColumnValueGroup;

std::vector<const DimensionValues*> DimensionRows()
{
    std::vector<const DimensionValues*> rows;
    for (const std::string_view name : StudSpeciesNames()) {
        if (const DimensionValues* const row = FindDimensionValues(name)) {
            rows.push_back(row);
        }
    }
    return rows;
}

template <typename Rows, typename Value>
double SumByPlace(const Rows& rows, Value value)
{
    double sum = 0;
    double place = 0;
    for (const auto& row : rows) {
        sum += ++place * std::invoke(value, *row);
    }
    return sum;
}

// Each figure times its place in the list, summed by awk over the published list: a slip in a figure or in
// the order shows.
TEST(DimensionTable, AddsUp)
{
    const auto rows = DimensionRows();
    ASSERT_EQ(rows.size(), 48U);
    EXPECT_EQ(SumByPlace(rows, &DimensionValues::Fc), 1102350);
    EXPECT_NEAR(SumByPlace(rows, &DimensionValues::E), 1627.9, 1e-4);
    EXPECT_EQ(SumByPlace(rows, &DimensionValues::Fb), 981400);
}

TEST(DimensionTable, DiffersIn1997InOneRowAlone)
{
    for (const DimensionValues* const row : DimensionRows()) {
        const double raised = row->Name == "Hem-Fir #1" ? 50 : 0;
        EXPECT_EQ(FcOfEdition(*row, Edition::Nds1997) - FcOfEdition(*row, Edition::Nds2001), raised)
            << row->Name;
    }
}

TEST(DimensionTable, FallsFromGradeToGrade)
{
    const auto rows = DimensionRows();
    for (std::size_t first = 0; first < rows.size(); first += 4) {
        const std::string species(rows[first]->Name.substr(0, rows[first]->Name.rfind(' ')));
        for (std::size_t grade = 1; grade < 4; ++grade) {
            EXPECT_TRUE(rows[first + grade]->Name.starts_with(species)) << species;
            EXPECT_LE(rows[first + grade]->Fc, rows[first + grade - 1]->Fc) << species;
        }
        EXPECT_TRUE(IsStudGrade(species + " Stud"));
        EXPECT_FALSE(IsStudGrade(species + " #2"));
    }
    EXPECT_FALSE(IsStudGrade("My own Stud"));
}

TEST(TimberTable, AddsUp)
{
    double stringers = 0;
    double posts = 0;
    double E = 0;
    double place = 0;
    const auto names = ColumnSpeciesNames(PostAndTimber);
    ASSERT_EQ(names.size(), 40U);
    for (const std::string_view name : names) {
        const auto post = FindColumnValues(name, PostAndTimber, Edition::Nds2018);
        const auto stringer = FindColumnValues(name, BeamAndStringer, Edition::Nds2018);
        ++place;
        posts += post ? place * post->Fc : 0;
        E += post ? place * post->E : 0;
        stringers += stringer ? place * stringer->Fc : 0;
    }
    EXPECT_EQ(posts, 555925);
    EXPECT_NEAR(E, 886.5, 1e-4);
    // 524475 with Southern Pine, whose 950, 825 and 525 stand in the places 37 to 39.
    EXPECT_EQ(stringers, 524475 - (37 * 950 + 38 * 825 + 39 * 525));
}

TEST(TimberTable, HasPostsWeakerThanStringersInThreeNamedRows)
{
    std::set<std::string_view> weaker;
    for (const std::string_view name : ColumnSpeciesNames(BeamAndStringer)) {
        const auto post = FindColumnValues(name, PostAndTimber, Edition::Nds2018);
        const auto stringer = FindColumnValues(name, BeamAndStringer, Edition::Nds2018);
        if (post && post->Fc < stringer->Fc) {
            weaker.insert(name);
        }
    }
    EXPECT_THAT(weaker, ElementsAre("Eastern Hem-Tam #2", "Red Oak #2", "White Oak #2"));
}

TEST(ColumnNames, EndWithCustomAndLeaveSouthernPineOutOfStringers)
{
    const auto dimension = ColumnSpeciesNames(DimensionLumber);
    EXPECT_EQ(dimension.size(), 52U);
    EXPECT_EQ(dimension[47], "Western Woods Stud");
    EXPECT_EQ(dimension[48], "Southern Pine Select");
    const auto stringers = ColumnSpeciesNames(BeamAndStringer);
    EXPECT_EQ(stringers.size(), 37U);
    EXPECT_EQ(stringers[35], "Western Woods #2");
    EXPECT_EQ(StudSpeciesNames().size(), 49U);
    for (const auto& names : {dimension, stringers, ColumnSpeciesNames(PostAndTimber), StudSpeciesNames()}) {
        EXPECT_EQ(names.back(), "Custom");
    }
}

TEST(PickedSpecies, BringsTheValuesOfItsGroupAndEdition)
{
    struct Pick {
        std::string_view Name;
        ColumnValueGroup Group;
        Edition Nds;
        std::string_view Fc;
        std::string_view E;
    };
    for (const Pick& pick : {Pick{"Hem-Fir #1", DimensionLumber, Edition::Nds1997, "1350", "1.5"},
                             Pick{"Hem-Fir #1", DimensionLumber, Edition::Nds2001, "1300", "1.5"},
                             Pick{"DF-L South #2", PostAndTimber, Edition::Nds1997, "650", "1.0"},
                             Pick{"DF-L South #2", BeamAndStringer, Edition::Nds2018, "550", "1.0"},
                             Pick{"White Oak #2", DimensionLumber, Edition::Nds2018, "700", "8.9"},
                             Pick{"Southern Pine #1", DimensionLumber, Edition::Nds2018, "825", "1.5"},
                             Pick{"Southern Pine #1", BeamAndStringer, Edition::Nds2018, "77", "1.7"},
                             Pick{"My own", PostAndTimber, Edition::Nds2018, "77", "1.7"},
                             Pick{"Custom", PostAndTimber, Edition::Nds2018, "", ""}}) {
        ColumnEntry entry;
        entry.ValueGroup = pick.Group;
        entry.cFcText = "77";
        entry.cEtext = "1.7";
        PickColumnSpecies(entry, pick.Name, pick.Nds);
        EXPECT_EQ(entry.ColSpeciesCombo, pick.Name);
        EXPECT_EQ(entry.cFcText, pick.Fc) << pick.Name;
        EXPECT_EQ(entry.cEtext, pick.E) << pick.Name;
    }
}

TEST(PickedSpecies, FollowsTheEditionUnlessTyped)
{
    ColumnEntry entry;
    PickColumnSpecies(entry, "Hem-Fir #1", Edition::Nds1997);
    ChangeColumnEdition(entry, Edition::Nds1997, Edition::Nds2018);
    EXPECT_EQ(entry.cFcText, "1300");
    entry.cFcText = "1290";
    ChangeColumnEdition(entry, Edition::Nds2018, Edition::Nds1997);
    EXPECT_EQ(entry.cFcText, "1290");
}

TEST(PickedSpecies, SaysWhenValuesOfDimensionLumberAreThoseOfTimbers)
{
    ColumnEntry entry;
    PickColumnSpecies(entry, "Southern Pine #2", Edition::Nds2018);
    EXPECT_EQ(ColumnSpeciesNote(entry, Edition::Nds2018),
              "Southern Pine has no values of dimension lumber here: Fc and E are those of timbers.");
    entry.cFcText = "1450";
    entry.cEtext = "1.4";
    EXPECT_EQ(ColumnSpeciesNote(entry, Edition::Nds2018), "");
    PickColumnSpecies(entry, "DF-L #2", Edition::Nds2018);
    EXPECT_EQ(ColumnSpeciesNote(entry, Edition::Nds2018), "");
}

}  // namespace
}  // namespace kordavan
