#include "vent/editor/fan_chart.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kov {
namespace {

using Points = std::vector<ChartPoint>;
using Ticks = std::vector<double>;
using Tone = DrawingPart::Tone;

constexpr Twips Width{3300}, Height{2010};

/// A fan of 150 hp, its supply curve a little below its exhaust curve.
cFan::Values fan() {
    cFan::Values values;
    values.id = "Exhaust fan 150 hp";
    values.QLow = "-20000.";
    values.QHi = "200000.";
    values.FanP = {"6.", "5.", "3.5", "0.", "5.", "4.", "2.5", "-1."};
    values.FanQ = {"0.", "60000.", "110000.", "160000.", "0.", "50000.", "90000.", "130000."};
    return values;
}

bool hasLabel(const DrawingPart& drawing, const std::string& text) {
    return std::any_of(drawing.labels.begin(), drawing.labels.end(), [&](const auto& label) { return label.text == text; });
}

std::vector<DrawingPart::Polyline> linesOf(const DrawingPart& drawing, Tone tone, std::size_t points) {
    std::vector<DrawingPart::Polyline> found;
    std::copy_if(drawing.lines.begin(), drawing.lines.end(), std::back_inserter(found),
                 [&](const auto& line) { return line.tone == tone && line.points.size() == points; });
    return found;
}

TEST(FanChart, ShowsPressureOverFlowOfBothCurves) {
    const auto chart = fanChartOf(fan());
    EXPECT_EQ(chart.exhaust, (Points{{0, 6}, {60000, 5}, {110000, 3.5}, {160000, 0}}));
    EXPECT_EQ(chart.supply, (Points{{0, 5}, {50000, 4}, {90000, 2.5}, {130000, -1}}));
}

TEST(FanChart, ShowsTheLimitsOfFlow) {
    const auto chart = fanChartOf(fan());
    EXPECT_EQ(chart.lowerLimit, -20000);
    EXPECT_EQ(chart.upperLimit, 200000);
}

TEST(FanChart, HasAxesThatHoldTheCurvesAndTheLimitsAndEndAtRoundNumbers) {
    const auto chart = fanChartOf(fan());
    EXPECT_EQ(chart.flow.ticks(), (Ticks{-50000, 0, 50000, 100000, 150000, 200000}));
    EXPECT_EQ(chart.pressure.ticks(), (Ticks{-2, 0, 2, 4, 6}));
}

TEST(FanChart, OfABareFanHasNoCurvesAndNoLimits) {
    const auto chart = fanChartOf(cFan::Values{});
    EXPECT_TRUE(chart.exhaust.empty());
    EXPECT_TRUE(chart.supply.empty());
    EXPECT_FALSE(chart.lowerLimit.has_value());
    EXPECT_FALSE(chart.upperLimit.has_value());
    EXPECT_EQ(chart.flow.low, 0);
    EXPECT_EQ(chart.pressure.high, 1);
}

TEST(FanChart, ShowsOneCurveWhereTheOtherIsAllZero) {
    auto values = fan();
    for (std::size_t i = 4; i < 8; ++i) {
        values.FanP.at(i) = "0.";
        values.FanQ.at(i) = "0.";
    }
    const auto chart = fanChartOf(values);
    EXPECT_EQ(chart.exhaust.size(), 4U);
    EXPECT_TRUE(chart.supply.empty());
}

TEST(FanChart, TakesWhatIsNoNumberAsTheFieldValueRuleTakesIt) {
    auto values = fan();
    values.FanP.at(0) = "six";
    values.FanQ.at(0) = "12 cfm";
    EXPECT_EQ(fanChartOf(values).exhaust.front(), (ChartPoint{12, 0}));
}

TEST(FanDrawing, HasALineADotAtEachPointAndANameForEachCurve) {
    const auto drawing = drawFanChart(fanChartOf(fan()), Width, Height);
    EXPECT_EQ(linesOf(drawing, Tone::First, 4).size(), 1U);
    EXPECT_EQ(linesOf(drawing, Tone::Second, 4).size(), 1U);
    EXPECT_EQ(drawing.marks.size(), 8U);
    EXPECT_TRUE(hasLabel(drawing, "Exhaust"));
    EXPECT_TRUE(hasLabel(drawing, "Supply"));
}

TEST(FanDrawing, HasADashedLineFromTopToBottomForEachLimit) {
    const auto drawing = drawFanChart(fanChartOf(fan()), Width, Height);
    const auto limits = linesOf(drawing, Tone::Limit, 2);
    ASSERT_EQ(limits.size(), 2U);
    for (const auto& limit : limits) {
        EXPECT_TRUE(limit.dashed);
        EXPECT_EQ(limit.points[0].x, limit.points[1].x);
    }
    EXPECT_LT(limits[0].points[0].x, limits[1].points[0].x) << "the lower one stands to the left";
}

TEST(FanDrawing, TellsTheUnitsAndTheNumbersAtTheAxesWhereThereIsRoom) {
    const auto drawing = drawFanChart(fanChartOf(fan()), Width * 2, Height * 2);
    for (const auto* text : {"cfm", "in. wg", "200000", "0", "6", "-2"}) {
        EXPECT_TRUE(hasLabel(drawing, text)) << text;
    }
}

TEST(FanDrawing, FallsFromTheUpperLeftToTheLowerRightWhenThePressureFalls) {
    const auto drawing = drawFanChart(fanChartOf(fan()), Width, Height);
    const auto curve = linesOf(drawing, Tone::First, 4).at(0);
    for (std::size_t i = 1; i < curve.points.size(); ++i) {
        EXPECT_GT(curve.points[i].x, curve.points[i - 1].x);
        EXPECT_GT(curve.points[i].y, curve.points[i - 1].y) << "y counts from the top";
    }
}

TEST(FanDrawing, StaysInsideOfItsPlace) {
    const auto drawing = drawFanChart(fanChartOf(fan()), Width, Height);
    for (const auto& line : drawing.lines) {
        for (const auto& point : line.points) {
            EXPECT_TRUE(point.x >= Twips{0} && point.x <= Width && point.y >= Twips{0} && point.y <= Height);
        }
    }
}

} // namespace
} // namespace kov
