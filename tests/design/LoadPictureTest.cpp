#include "design/LoadPicture.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "design/DesignBuilder.h"
#include "design/Unbalance.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::SizeIs;

auto Is(const PictureLoad& load)
{
    return FieldsAre(load.Kind, load.Letter, load.Slot, load.Begin, load.End, load.Total, load.Live,
                     load.HasPlace, load.OnOverhang);
}

constexpr auto UniformKind = PictureLoadKind::Uniform;
constexpr auto Point = PictureLoadKind::Point;
constexpr auto Partial = PictureLoadKind::Partial;

constexpr PictureLoad PlainUniform{.Kind = UniformKind, .Letter = 'A', .End = 12, .Total = 100, .Live = 60};

/// A span of 12 ft with a load in the first and the last row of each table.
Session LoadedSession(SupportCondition support)
{
    Session session = PlainSession();
    session.Problem.Support = support;
    SetPoint(session.Problem, 0, "400", "5.5", "250");
    SetPoint(session.Problem, 5, "500", "3", "300");
    SetPartial(session.Problem, 0, "80", "2", "6", "50");
    SetPartial(session.Problem, 4, "30", "0", "4");
    return session;
}

TEST(LoadPicture, OfASimpleSpanHasEveryRowOnTheSpan)
{
    const LoadPicture picture = ReadLoadPicture(LoadedSession(SupportCondition::SimpleSpan));
    EXPECT_THAT(
        picture.Loads,
        ElementsAre(
            Is(PlainUniform),
            Is({.Kind = Point, .Letter = 'B', .Begin = 5.5, .End = 5.5, .Total = 400, .Live = 250}),
            Is({.Kind = Point, .Letter = 'G', .Slot = 5, .Begin = 3, .End = 3, .Total = 500, .Live = 300}),
            Is({.Kind = Partial, .Letter = 'H', .Begin = 2, .End = 6, .Total = 80, .Live = 50}),
            Is({.Kind = Partial, .Letter = 'L', .Slot = 4, .Begin = 0, .End = 4, .Total = 30, .Live = 0})));
    EXPECT_EQ(picture.SpanCount, 1);
    EXPECT_EQ(picture.Length(), 12);
    EXPECT_EQ(picture.UnbalancedLine, "");
}

TEST(LoadPicture, MeasuresTheOverhangFromItsSupport)
{
    const LoadPicture picture = ReadLoadPicture(LoadedSession(SupportCondition::Overhanging));
    EXPECT_THAT(
        picture.Loads,
        ElementsAre(Is(PlainUniform),  // over the span alone
                    Is({.Kind = Point, .Letter = 'B', .Begin = 5.5, .End = 5.5, .Total = 400, .Live = 250}),
                    Is({.Kind = Point,
                        .Letter = 'G',
                        .Slot = 5,
                        .Begin = 15,
                        .End = 15,
                        .Total = 500,
                        .Live = 300,
                        .OnOverhang = true}),
                    Is({.Kind = Partial, .Letter = 'H', .Begin = 2, .End = 6, .Total = 80, .Live = 50}),
                    Is({.Kind = Partial,
                        .Letter = 'L',
                        .Slot = 4,
                        .Begin = 12,
                        .End = 16,
                        .Total = 30,
                        .Live = 0,
                        .OnOverhang = true})));
    EXPECT_EQ(picture.Overhang, 4);
    EXPECT_EQ(picture.Length(), 16);
}

TEST(LoadPicture, KeepsTheRowsBeforeTheOverhangsOnTheSpan)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    SetPoint(session.Problem, 3, "400", "5");
    SetPoint(session.Problem, 4, "500", "3");
    SetPartial(session.Problem, 2, "80", "2", "6");
    SetPartial(session.Problem, 3, "30", "1", "2");
    std::string places;
    for (const PictureLoad& load : ReadLoadPicture(session).Loads) {
        places += load.Letter;
        places += load.OnOverhang ? " beyond, " : " within, ";
    }
    EXPECT_EQ(places, "E within, F beyond, J within, K beyond, ");
}

struct SpansCase {
    std::string_view Name;
    SupportCondition Support;
    bool ThreeSpan;
    int SpanCount;
    double Length;  // ft
};

class UniformPictureTest : public testing::TestWithParam<SpansCase> {};

TEST_P(UniformPictureTest, LeavesOutTheTablesThatDoNotCount)
{
    Session session = LoadedSession(GetParam().Support);
    session.Problem.ThreeSpan = GetParam().ThreeSpan;
    const LoadPicture picture = ReadLoadPicture(session);
    PictureLoad uniform = PlainUniform;
    uniform.End = GetParam().Length;
    EXPECT_THAT(picture.Loads, ElementsAre(Is(uniform)));
    EXPECT_EQ(picture.Support, GetParam().Support);
    EXPECT_EQ(picture.SpanCount, GetParam().SpanCount);
    EXPECT_EQ(picture.Span, 12);
    EXPECT_EQ(picture.Length(), GetParam().Length);
}

INSTANTIATE_TEST_SUITE_P(Spans, UniformPictureTest,
                         testing::Values(SpansCase{"two", SupportCondition::MultipleSpans, false, 2, 24},
                                         SpansCase{"three", SupportCondition::MultipleSpans, true, 3, 36}),
                         CaseName);

TEST(LoadPicture, ShowsTheRoofOverAHipAsItIsTyped)
{
    Session session = LoadedSession(SupportCondition::HipValley);
    LoadSet& loads = session.Problem.Loads;
    loads.UNIF = loads.LUNIF = "";
    loads.IncTL = "40";
    loads.IncLL = "25";
    loads.IncUnifTL = "20";
    const PictureLoad beside{
        .Kind = PictureLoadKind::Beside, .Letter = 'A', .Begin = 0, .End = 12, .Total = 20};
    const PictureLoad roof{
        .Kind = PictureLoadKind::Rising, .Letter = 'A', .Begin = 0, .End = 12, .Total = 40, .Live = 25};
    EXPECT_THAT(ReadLoadPicture(session).Loads, ElementsAre(Is(beside), Is(roof)));
    loads.UNIF = "145.176803394625";
    EXPECT_EQ(
        DescribePicture(ReadLoadPicture(session)),
        "Hip or valley of 12.0 ft, the load rising from R1 to R2. Uniform load beside it: 20 plf, live 0 "
        "over the whole span. Roof load: 40 psf, live 25, rising from R1 to R2. Equivalent uniform load: "
        "145.1768 plf.");
}

TEST(LoadPicture, LeavesOutLoadsThatItCannotRead)
{
    Session session = LoadedSession(SupportCondition::SimpleSpan);
    LoadSet& loads = session.Problem.Loads;
    loads.UNIF = "x100";
    loads.LUNIF = "-";
    loads.PT[0] = loads.LPT[0] = ".";
    loads.PAR[0] = loads.LPAR[0] = "";
    loads.PAR[4] = "-30";
    EXPECT_THAT(
        ReadLoadPicture(session).Loads,
        ElementsAre(
            Is({.Kind = Point, .Letter = 'G', .Slot = 5, .Begin = 3, .End = 3, .Total = 500, .Live = 300})));
}

TEST(LoadPicture, ShowsALoadOfWhichOneBoxIsFilled)
{
    Session session = PlainSession();
    session.Problem.Loads.UNIF = "";
    SetPoint(session.Problem, 1, "400", "5", "?");
    SetPartial(session.Problem, 1, "", "0", "6", "50");
    EXPECT_THAT(
        ReadLoadPicture(session).Loads,
        ElementsAre(
            Is({.Kind = UniformKind, .Letter = 'A', .End = 12, .Total = 60, .Live = 60}),
            Is({.Kind = Point, .Letter = 'C', .Slot = 1, .Begin = 5, .End = 5, .Total = 400, .Live = 0}),
            Is({.Kind = Partial, .Letter = 'I', .Slot = 1, .Begin = 0, .End = 6, .Total = 50, .Live = 50})));
}

struct PlaceCase {
    std::string_view Name;
    std::string_view Begin;  // not of a point load
    std::string_view End;
    bool OnSpan;      // has a place on a span of 12 ft
    bool OnOverhang;  // has a place on an overhang
};

/// The HasPlace flags of loads entered with these distances on span and overhang, in this order.
template <typename SetLoads>
std::vector<bool> PlacesOf(const SetLoads& setLoads)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    setLoads(session.Problem);
    std::vector<bool> places;
    for (const PictureLoad& load : ReadLoadPicture(session).Loads) {
        places.push_back(load.HasPlace);
    }
    return places;
}

class PointPlaceTest : public testing::TestWithParam<PlaceCase> {};

TEST_P(PointPlaceTest, IsKnownOnceTheDistanceSaysIt)
{
    const PlaceCase& c = GetParam();
    EXPECT_THAT(PlacesOf([&](BeamProblem& problem) {
                    SetPoint(problem, 0, "400", c.End);
                    SetPoint(problem, 5, "500", c.End);
                }),
                ElementsAre(c.OnSpan, c.OnOverhang));
}

INSTANTIATE_TEST_SUITE_P(Distances, PointPlaceTest,
                         testing::Values(PlaceCase{"blank", "", "", false, false},
                                         PlaceCase{"zero", "", "0", false, false},
                                         PlaceCase{"point", "", ".", false, false},
                                         PlaceCase{"within", "", ".5", true, true},
                                         PlaceCase{"at the end", "", "12", true, true},
                                         PlaceCase{"beyond the span", "", "12.01", false, true}),
                         CaseName);

class PartialPlaceTest : public testing::TestWithParam<PlaceCase> {};

TEST_P(PartialPlaceTest, IsKnownOnceTheEndsSayIt)
{
    const PlaceCase& c = GetParam();
    EXPECT_THAT(PlacesOf([&](BeamProblem& problem) {
                    SetPartial(problem, 0, "80", c.Begin, c.End);
                    SetPartial(problem, 4, "30", c.Begin, c.End);
                }),
                ElementsAre(c.OnSpan, c.OnOverhang));
}

INSTANTIATE_TEST_SUITE_P(Ends, PartialPlaceTest,
                         testing::Values(PlaceCase{"blank", "", "", false, false},
                                         PlaceCase{"no end yet", "2", "", false, false},
                                         PlaceCase{"ends where it begins", "6", "6", false, false},
                                         PlaceCase{"ends before it begins", "6", "2", false, false},
                                         PlaceCase{"from the support", "0", "6", true, true},
                                         PlaceCase{"to the end", "2", "12", true, true},
                                         PlaceCase{"beyond the span", "2", "12.01", false, true}),
                         CaseName);

TEST(LoadPicture, HasNoPlacesWithoutASpan)
{
    Session session = LoadedSession(SupportCondition::SimpleSpan);
    session.Problem.Span = "";
    const LoadPicture picture = ReadLoadPicture(session);
    EXPECT_THAT(picture.Loads, SizeIs(5));
    for (std::size_t at = 1; at < picture.Loads.size(); ++at) {
        EXPECT_FALSE(picture.Loads[at].HasPlace) << picture.Loads[at].Letter;
    }
    EXPECT_EQ(picture.Length(), 0);
    session.Problem.Loads = {};
    EXPECT_EQ(DescribePicture(ReadLoadPicture(session)), "No span yet.");
}

TEST(LoadPicture, LeavesOutLiveLoadsThatAreOut)
{
    Session session = LoadedSession(SupportCondition::Overhanging);
    session.Problem.Loads.PT[5] = "300";  // live altogether
    ScriptedUser user;
    ToggleOverhangLiveLoads(session, user);
    const LoadPicture overhang = ReadLoadPicture(session);
    EXPECT_THAT(overhang.Loads, SizeIs(4));
    EXPECT_EQ(overhang.Overhang, 4);
    EXPECT_EQ(overhang.UnbalancedLine, "Live loads of the overhang are out");
    ToggleOverhangLiveLoads(session, user);
    ToggleSpanLiveLoads(session, user);
    const LoadPicture span = ReadLoadPicture(session);
    EXPECT_THAT(span.Loads, SizeIs(5));
    EXPECT_EQ(span.Loads[0].Total, 40);  // 100 less 60
    EXPECT_EQ(span.Loads[0].Live, 0);
    EXPECT_EQ(span.UnbalancedLine, "Live loads of the backspan are out");
}

TEST(PictureText, TellsEveryLoadWithItsPlace)
{
    Session session = PlainSession();
    SetPoint(session.Problem, 0, "400", "5.5", "250");
    SetPartial(session.Problem, 4, "80.5", "2", "6.25", "50");
    SetPoint(session.Problem, 2, "500", "");
    EXPECT_EQ(DescribePicture(ReadLoadPicture(session)),
              "Simple span of 12.0 ft. Load A: 100 plf, live 60 over the whole span. "
              "Load B: 400 lb, live 250 at 5.5 ft. Load D: 500 lb, live 0, its place is not entered. "
              "Load L: 80.5 plf, live 50 from 2.0 ft to 6.25 ft.");
}

TEST(PictureText, TellsTheOverhangAndWhatIsOut)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    SetPoint(session.Problem, 4, "500", "3", "300");
    ScriptedUser user;
    ToggleOverhangLiveLoads(session, user);
    EXPECT_EQ(DescribePicture(ReadLoadPicture(session)),
              "Span of 12.0 ft with an overhang of 3.0 ft. "
              "Load F: 200 lb, live 0 at 15.0 ft, on the overhang. Live loads of the overhang are out.");
}

TEST(PictureText, TellsTheOtherConditions)
{
    Session session = PlainSession();
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    session.Problem.Support = SupportCondition::HipValley;
    EXPECT_EQ(DescribePicture(ReadLoadPicture(session)),
              "Hip or valley of 12.0 ft, the load rising from R1 to R2.");
    session.Problem.Support = SupportCondition::MultipleSpans;
    EXPECT_EQ(DescribePicture(ReadLoadPicture(session)), "Two equal spans of 12.0 ft.");
    session.Problem.ThreeSpan = true;
    EXPECT_EQ(DescribePicture(ReadLoadPicture(session)), "Three equal spans of 12.0 ft.");
}

}  // namespace
}  // namespace kordavan
