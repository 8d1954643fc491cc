#include "rail/editor/motor_chart.hpp"
#include "rail/editor/route_profile.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

namespace kov {
namespace {

using Points = std::vector<ChartPoint>;

Grid gridOf(int columns, std::initializer_list<std::string> rows) {
    Grid grid;
    grid.setCols(columns);
    for (const auto& row : rows) {
        grid.addItem(row);
    }
    grid.removeItem(0);
    grid.addItem(" ");
    return grid;
}

Grid noStops() { return gridOf(3, {}); }

TEST(RouteProfile, ShowsElevationAndSpeedLimitOfEachTrackSection) {
    const auto tracks = gridOf(7, {"1000.\t0.\t-2.\t100.\t45.\t 1\t 0", "3200.\t0.\t-1.\t78.\t55.\t 1\t 0"});
    const auto profile = routeProfileOf(tracks, noStops(), 0);
    // 2 % up towards the origin, over 1000 ft
    EXPECT_EQ(profile.elevation, (Points{{0, 120}, {1000, 100}, {3200, 78}}));
    ASSERT_EQ(profile.speed.size(), 1U);
    EXPECT_EQ(profile.speed[0], (Points{{0, 45}, {1000, 45}, {1000, 55}, {3200, 55}}));
}

TEST(RouteProfile, BeginsAtTheSchedulingOrigin) {
    const auto tracks = gridOf(7, {"1000.\t0.\t-2.\t100.\t45."});
    EXPECT_EQ(routeProfileOf(tracks, noStops(), 500).elevation, (Points{{500, 110}, {1000, 100}}));
    // an origin behind the first section's end says nothing about its beginning
    EXPECT_EQ(routeProfileOf(tracks, noStops(), 1500).speed[0], (Points{{0, 45}, {1000, 45}}));
}

TEST(RouteProfile, LeavesOutRowsThatSavingDrops) {
    const auto tracks = gridOf(7, {"0.\t0.\t0.\t7.\t7.", " \t0.\t0.\t7.\t7.", "-5\t0.\t0.\t7.\t7.", "100.\t0.\t0.\t50.\t30."});
    const auto profile = routeProfileOf(tracks, noStops(), 0);
    EXPECT_EQ(profile.elevation, (Points{{0, 50}, {100, 50}}));
    EXPECT_EQ(profile.speed.size(), 1U);
}

TEST(RouteProfile, LeavesOutCellsThatAreStillBlank) {
    const auto tracks = gridOf(7, {"100.\t0.\t0.\t50.\t30.", "200.", "300.\t0.\t0.\t60.\t40."});
    const auto profile = routeProfileOf(tracks, noStops(), 0);
    EXPECT_EQ(profile.elevation, (Points{{0, 50}, {100, 50}, {300, 60}}));
    ASSERT_EQ(profile.speed.size(), 2U) << "the section without a speed parts two runs";
    EXPECT_EQ(profile.speed[1], (Points{{200, 40}, {300, 40}}));
}

TEST(RouteProfile, WithoutAGradeBeginsAtTheFirstForwardEnd) {
    const auto tracks = gridOf(7, {"100.\t0.\t \t50.\t30."});
    EXPECT_EQ(routeProfileOf(tracks, noStops(), 0).elevation, (Points{{100, 50}}));
}

TEST(RouteProfile, MarksTheStops) {
    const auto tracks = gridOf(7, {"1000.\t0.\t0.\t50.\t30."});
    const auto stops = gridOf(3, {"300.\t30.\t85.", "0.\t1.\t1.", "900.\t30.\t-60."});
    const auto profile = routeProfileOf(tracks, stops, 0);
    EXPECT_EQ(profile.stops, (std::vector<double>{300, 900}));
    const auto drawing = drawRouteProfile(profile, Twips{8000}, Twips{1500});
    const auto limits = std::count_if(drawing.lines.begin(), drawing.lines.end(),
                                      [](const auto& line) { return line.tone == DrawingPart::Tone::Limit && line.dashed; });
    EXPECT_EQ(limits, 3) << "two stops, and the legend";
}

TEST(RouteProfile, OfAnEmptyAlignmentSaysThatThereIsNothing) {
    const auto profile = routeProfileOf(noStops(), noStops(), 0);
    EXPECT_TRUE(profile.empty());
    const auto drawing = drawRouteProfile(profile, Twips{8000}, Twips{1500});
    EXPECT_TRUE(drawing.lines.empty());
    EXPECT_EQ(drawing.labels.size(), 1U);
}

TEST(RouteProfile, OfManySectionsHasNoDots) {
    Grid tracks;
    tracks.setCols(7);
    for (int i = 1; i <= 1000; ++i) {
        tracks.addItem(std::to_string(100 * i) + "\t0\t0\t50\t30");
    }
    const auto profile = routeProfileOf(tracks, noStops(), 0);
    EXPECT_EQ(profile.elevation.size(), 1001U);
    EXPECT_TRUE(drawRouteProfile(profile, Twips{8000}, Twips{1500}).marks.empty());
}

cMotor::CurveTexts curveOf(std::initializer_list<std::initializer_list<std::string>> points) {
    cMotor::CurveTexts texts;
    std::size_t next = 0;
    for (const auto& point : points) {
        std::copy(point.begin(), point.end(), texts.begin() + static_cast<std::ptrdiff_t>(next));
        next += 4;
    }
    return texts;
}

TEST(MotorChart, ShowsEffortAndCurrentOverSpeed) {
    const auto chart = motorChartOf(curveOf({{"17.", "4400.", "380."}, {"24.", "2350.", "250."}, {"36.", "1050.", "160."}}));
    EXPECT_EQ(chart.effort, (Points{{17, 4400}, {24, 2350}, {36, 1050}}));
    EXPECT_EQ(chart.current, (Points{{17, 380}, {24, 250}, {36, 160}}));
}

TEST(MotorChart, LeavesOutPointsThatHaveNotBeenEntered) {
    const auto chart = motorChartOf(curveOf({{"0.", "0.", "0."}, {"0.", "4400.", "0."}, {"", "", ""}, {"60.", "", ""}}));
    EXPECT_EQ(chart.effort, (Points{{0, 4400}, {60, 0}}));
}

TEST(MotorChart, MeasuresTheCurrentOnTheRight) {
    const auto chart = motorChartOf(curveOf({{"0.", "5000.", "500."}, {"60.", "1000.", "100."}}));
    const auto drawing = drawMotorChart(chart, Twips{4000}, Twips{2000});
    ASSERT_EQ(drawing.marks.size(), 4U);
    // each axis ends at its own highest point, so both curves begin at the same height
    EXPECT_EQ(drawing.marks[0].at.y, drawing.marks[2].at.y);
    EXPECT_NE(drawing.marks[0].tone, drawing.marks[2].tone);
}

TEST(MotorChart, WithoutPointsSaysThatThereIsNothing) {
    EXPECT_TRUE(motorChartOf(curveOf({})).empty());
    EXPECT_TRUE(drawMotorChart(MotorChart{}, Twips{4000}, Twips{2000}).lines.empty());
}

} // namespace
} // namespace kov
