#include "rail/editor/motor_chart.hpp"

#include <algorithm>
#include <cstddef>
#include <span>

namespace kov {
namespace {

constexpr std::size_t TextsOfPoint = 4;

enum class Coordinate { X, Y };

ChartAxis axisOf(std::span<const ChartPoint> points, Coordinate coordinate) {
    double low = 0;
    double high = 0;
    for (const auto& point : points) {
        const double value = coordinate == Coordinate::X ? point.x : point.y;
        low = std::min(low, value);
        high = std::max(high, value);
    }
    return roundAxis(low, high);
}

} // namespace

MotorChart motorChartOf(const cMotor::CurveTexts& curve) {
    MotorChart chart;
    for (std::size_t first = 0; first + 2 < curve.size(); first += TextsOfPoint) {
        const double speed = chartValue(curve.at(first));
        const double effort = chartValue(curve.at(first + 1));
        const double current = chartValue(curve.at(first + 2));
        if (speed != 0 || effort != 0 || current != 0) {
            chart.effort.push_back({speed, effort});
            chart.current.push_back({speed, current});
        }
    }
    return chart;
}

DrawingPart drawMotorChart(const MotorChart& chart, Twips width, Twips height) {
    using Tone = DrawingPart::Tone;
    if (chart.empty()) {
        return ChartDrawing::message("No points yet", width, height);
    }
    ChartDrawing drawing({.across = axisOf(chart.effort, Coordinate::X),
                          .acrossUnit = "MPH",
                          .left = axisOf(chart.effort, Coordinate::Y),
                          .leftUnit = "lb",
                          .right = axisOf(chart.current, Coordinate::Y),
                          .rightUnit = "amps"},
                         width, height);
    drawing.curve(chart.effort, Tone::First);
    drawing.curve(chart.current, Tone::Second, ChartDrawing::Side::Right);
    drawing.legend("Effort", Tone::First);
    drawing.legend("Current", Tone::Second);
    return drawing.take();
}

} // namespace kov
