#include "columns/StudDiagram.h"

#include <gmock/gmock.h>

#include <cmath>

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::Field;

/// A stud of 10 ft whose moment rises in straight lines through the places given, ft and ft-lb.
StudTest StudWithPeaks(double first, double second, float checkedFor, float checkedAt)
{
    StudTest test;
    test.Problem.StudHeight = 10;
    for (std::size_t k = 0; k < StudStationCount; ++k) {
        const double x = 0.05 * static_cast<double>(k);
        const double peak = x < 5 ? first : second;
        const double from = x < 5 ? 0 : 5;
        test.Stations[k].At = static_cast<float>(x);
        test.Stations[k].Moment = static_cast<float>(peak * (1 - std::abs(x - from - 2.5) / 2.5));
    }
    test.Result.MaxMoment = checkedFor;
    test.Result.MaxMomentAtFt = checkedAt;
    return test;
}

std::vector<std::string> MarksOf(const StudTest& test)
{
    const LoadDiagram diagram = ReadStudDiagram(test);
    std::vector<std::string> marks;
    for (const CurveMark& mark : diagram.Plots[1].Marks) {
        marks.push_back(mark.Text);
    }
    return marks;
}

TEST(StudDiagram, MarksTheMomentThatTheStudIsCheckedFor)
{
    const LoadDiagram diagram = ReadStudDiagram(StudWithPeaks(1500, 1200, 1500, 2.5));
    EXPECT_EQ(diagram.Curves.Length, 10);
    ASSERT_EQ(diagram.Curves.Points.size(), StudStationCount);
    EXPECT_FLOAT_EQ(static_cast<float>(diagram.Curves.Points[50].Moment), 1500);
    EXPECT_EQ(diagram.Plots[1].Remark, "worked with 1,500 ft-lb");
    EXPECT_THAT(diagram.Plots[1].Marks, ElementsAre(Field(&CurveMark::Text, "1,500 ft-lb at 2.50 ft")));
}

TEST(StudDiagram, MarksAGreaterMomentThanTheOneCheckedFor)
{
    EXPECT_THAT(MarksOf(StudWithPeaks(1500, 1200, 1200, 7.5)),
                ElementsAre("1,200 ft-lb at 7.50 ft, worked with", "1,500 ft-lb at 2.50 ft, the greatest"));
    EXPECT_THAT(MarksOf(StudWithPeaks(-1500, 1200, 1200, 7.5)),
                ElementsAre("1,200 ft-lb at 7.50 ft, worked with", "-1,500 ft-lb at 2.50 ft, the greatest"));
}

TEST(StudDiagram, AMomentOfNothingHasNoMark)
{
    EXPECT_THAT(MarksOf(StudWithPeaks(0, 0, 0, 0)), ElementsAre());
    EXPECT_THAT(MarksOf(StudWithPeaks(-800, -500, 0, 0)), ElementsAre("-800 ft-lb at 2.50 ft, the greatest"));
}

}  // namespace
}  // namespace kordavan
