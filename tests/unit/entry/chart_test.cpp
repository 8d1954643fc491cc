#include "shell/entry/chart.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace kov {
namespace {

using Ticks = std::vector<double>;
using Tone = DrawingPart::Tone;

constexpr Twips Width{6000}, Height{3000};

ChartFrame plainFrame() {
    return {.across = roundAxis(0, 100), .acrossUnit = "ft", .left = roundAxis(0, 50), .leftUnit = "MPH"};
}

const DrawingPart::Label* labelOf(const DrawingPart& drawing, const std::string& text) {
    const auto found =
        std::find_if(drawing.labels.begin(), drawing.labels.end(), [&](const auto& label) { return label.text == text; });
    return found == drawing.labels.end() ? nullptr : &*found;
}

std::vector<DrawingPart::Polyline> linesOf(const DrawingPart& drawing, Tone tone) {
    std::vector<DrawingPart::Polyline> lines;
    std::copy_if(drawing.lines.begin(), drawing.lines.end(), std::back_inserter(lines),
                 [&](const auto& line) { return line.tone == tone; });
    return lines;
}

TEST(ChartAxis, EndsAtRoundNumbersAroundTheValuesAndZero) {
    EXPECT_EQ(roundAxis(3, 47).ticks(), (Ticks{0, 10, 20, 30, 40, 50}));
    EXPECT_EQ(roundAxis(-7, 12).ticks(), (Ticks{-10, -5, 0, 5, 10, 15}));
    EXPECT_EQ(roundAxis(-30, -3).ticks(), (Ticks{-30, -20, -10, 0}));
}

TEST(ChartAxis, HasNumbersWithoutRoundingErrors) { EXPECT_EQ(roundAxis(0, 0.9).ticks(), (Ticks{0, 0.2, 0.4, 0.6, 0.8, 1})); }

TEST(ChartAxis, WithNothingToShowGoesFromZeroToOne) { EXPECT_EQ(roundAxis(0, 0).ticks(), (Ticks{0, 0.2, 0.4, 0.6, 0.8, 1})); }

TEST(ChartAxis, HasThreeToTenStepsForAnyRange) {
    for (double range = 0.001; range < 1e9; range *= 1.37) {
        for (const auto& axis : {roundAxis(0, range), roundAxis(-range / 3, range), closeAxis(1000, 1000 + range)}) {
            const auto steps = axis.ticks().size() - 1;
            EXPECT_GE(steps, 3U) << range;
            EXPECT_LE(steps, 10U) << range;
        }
    }
}

TEST(ChartAxis, OfHeightsNeedNotShowZero) { EXPECT_EQ(closeAxis(64.8, 120).ticks(), (Ticks{60, 80, 100, 120})); }

TEST(ChartAxis, OfALevelTrackHasTheLevelInItsMiddle) {
    const auto axis = closeAxis(100, 100);
    EXPECT_DOUBLE_EQ(axis.part(100), 0.5);
    EXPECT_GT(axis.high, axis.low);
}

TEST(ChartValue, KeepsSlipsOfThePenInBounds) {
    EXPECT_DOUBLE_EQ(chartValue("12.5"), 12.5);
    EXPECT_DOUBLE_EQ(chartValue("1E300"), 1e9);
    EXPECT_DOUBLE_EQ(chartValue("-1E300"), -1e9);
    EXPECT_DOUBLE_EQ(chartValue(" "), 0);
}

TEST(ChartDrawing, PutsTheCornersOfACurveIntoTheCornersOfThePlot) {
    ChartDrawing chart(plainFrame(), Width, Height);
    const std::vector<ChartPoint> diagonal{{0, 0}, {100, 50}};
    chart.curve(diagonal, Tone::First);
    const auto drawing = chart.take();

    const auto curves = linesOf(drawing, Tone::First);
    ASSERT_EQ(curves.size(), 1U);
    const auto& start = curves[0].points.front();
    const auto& end = curves[0].points.back();
    EXPECT_LT(start.x, end.x);
    EXPECT_GT(start.y, end.y) << "up is towards smaller numbers";
    EXPECT_EQ(labelOf(drawing, "0")->anchor, DrawingPart::Anchor::Center);
    EXPECT_EQ(labelOf(drawing, "100")->at.x, end.x);
    EXPECT_EQ(labelOf(drawing, "50")->at.y, end.y);
    ASSERT_EQ(drawing.marks.size(), 2U);
    EXPECT_EQ(drawing.marks[1].at.x, end.x);
}

TEST(ChartDrawing, MeasuresACurveOfTheRightAxisThere) {
    auto frame = plainFrame();
    frame.right = roundAxis(0, 1000);
    frame.rightUnit = "amps";
    ChartDrawing chart(frame, Width, Height);
    const std::vector<ChartPoint> top{{0, 1000}, {100, 1000}};
    chart.curve(top, Tone::Second, ChartDrawing::Side::Right, false);
    const auto drawing = chart.take();

    EXPECT_EQ(linesOf(drawing, Tone::Second)[0].points[0].y, labelOf(drawing, "50")->at.y);
    EXPECT_EQ(labelOf(drawing, "1000")->anchor, DrawingPart::Anchor::Left);
    EXPECT_NE(labelOf(drawing, "amps"), nullptr);
    EXPECT_TRUE(drawing.marks.empty());
}

TEST(ChartDrawing, StaysInsideItsBounds) {
    auto frame = plainFrame();
    frame.right = roundAxis(-10, 1000);
    ChartDrawing chart(frame, Width, Height);
    chart.limit(100);
    const std::vector<ChartPoint> curve{{0, 50}, {100, 0}};
    chart.curve(curve, Tone::First);
    chart.legend("Speed", Tone::First);
    const auto drawing = chart.take();

    const auto inside = [](const DrawingPart::Point& point) {
        return point.x.value >= 0 && point.x <= Width && point.y.value >= 0 && point.y <= Height;
    };
    for (const auto& line : drawing.lines) {
        EXPECT_TRUE(std::all_of(line.points.begin(), line.points.end(), inside));
    }
    for (const auto& label : drawing.labels) {
        EXPECT_TRUE(inside(label.at)) << label.text;
    }
}

TEST(ChartDrawing, LeavesOutNumbersThatHaveNoRoom) {
    const ChartFrame frame{.across = roundAxis(0, 1e8), .acrossUnit = "ft", .left = roundAxis(0, 50), .leftUnit = "ft"};
    const auto labelsAt = [&](Twips width, Twips height) { return ChartDrawing(frame, width, height).take().labels.size(); };
    EXPECT_LT(labelsAt(Twips{2500}, Height), labelsAt(Twips{12000}, Height));
    EXPECT_LT(labelsAt(Width, Twips{1200}), labelsAt(Width, Height));
}

TEST(ChartDrawing, SetsLegendsSideBySide) {
    ChartDrawing chart(plainFrame(), Width, Height);
    chart.legend("Elevation", Tone::First);
    chart.legend("Max Speed", Tone::Second);
    const auto drawing = chart.take();
    const auto* first = labelOf(drawing, "Elevation");
    const auto* second = labelOf(drawing, "Max Speed");
    EXPECT_EQ(first->at.y, second->at.y);
    EXPECT_GT(second->at.x.value - first->at.x.value, 9 * 92.0) << "nine characters stand between";
}

TEST(ChartDrawing, ShownInAControlMakesItsRevisionGrow) {
    Control control;
    control.kind = ControlKind::Drawing;
    control.part = DrawingPart{};
    showDrawing(control, ChartDrawing::message("Nothing yet", Width, Height));
    showDrawing(control, ChartDrawing::message("Nothing yet", Width, Height));
    EXPECT_EQ(control.drawing().revision, 2U);
    EXPECT_EQ(control.drawing().labels.at(0).text, "Nothing yet");
}

} // namespace
} // namespace kov
