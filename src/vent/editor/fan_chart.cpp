#include "vent/editor/fan_chart.hpp"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace kov {
namespace {

constexpr std::size_t PointsOfCurve = 4;

std::vector<ChartPoint> curveFrom(const cFan::Values& fan, std::size_t first) {
    std::vector<ChartPoint> points;
    for (std::size_t i = first; i < first + PointsOfCurve; ++i) {
        points.push_back({chartValue(fan.FanQ.at(i).view()), chartValue(fan.FanP.at(i).view())});
    }
    const bool empty = std::all_of(points.begin(), points.end(), [](const auto& point) { return point == ChartPoint{}; });
    return empty ? std::vector<ChartPoint>{} : points;
}

std::optional<double> limitOf(const Fixed<10>& text) {
    const double value = chartValue(text.view());
    return value == 0 ? std::nullopt : std::optional(value);
}

void drawCurve(ChartDrawing& drawing, std::span<const ChartPoint> points, DrawingPart::Tone tone, std::string_view name) {
    if (!points.empty()) {
        drawing.curve(points, tone);
        drawing.legend(name, tone);
    }
}

} // namespace

FanChart fanChartOf(const cFan::Values& fan) {
    FanChart chart;
    chart.exhaust = curveFrom(fan, 0);
    chart.supply = curveFrom(fan, PointsOfCurve);
    chart.lowerLimit = limitOf(fan.QLow);
    chart.upperLimit = limitOf(fan.QHi);
    ChartPoint least;
    ChartPoint most;
    for (const auto* curve : {&chart.exhaust, &chart.supply}) {
        for (const auto& point : *curve) {
            least = {std::min(least.x, point.x), std::min(least.y, point.y)};
            most = {std::max(most.x, point.x), std::max(most.y, point.y)};
        }
    }
    for (const auto& limit : {chart.lowerLimit, chart.upperLimit}) {
        least.x = std::min(least.x, limit.value_or(0));
        most.x = std::max(most.x, limit.value_or(0));
    }
    chart.flow = roundAxis(least.x, most.x);
    chart.pressure = roundAxis(least.y, most.y);
    return chart;
}

DrawingPart drawFanChart(const FanChart& chart, Twips width, Twips height) {
    ChartFrame frame{.across = chart.flow, .acrossUnit = "cfm", .left = chart.pressure, .leftUnit = "in. wg"};
    frame.unitBelow = true;
    ChartDrawing drawing(frame, width, height);
    for (const auto& limit : {chart.lowerLimit, chart.upperLimit}) {
        if (limit) {
            drawing.limit(*limit);
        }
    }
    drawCurve(drawing, chart.exhaust, DrawingPart::Tone::First, "Exhaust");
    drawCurve(drawing, chart.supply, DrawingPart::Tone::Second, "Supply");
    return drawing.take();
}

} // namespace kov
