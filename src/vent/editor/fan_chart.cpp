#include "vent/editor/fan_chart.hpp"

#include "core/cards/numbers.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <string_view>

namespace kov {
namespace {

using Tone = DrawingPart::Tone;
using Anchor = DrawingPart::Anchor;

constexpr std::size_t PointsOfCurve = 4;
// Numbers beyond this are slips of the pen; a curve through them would show nothing.
constexpr double Largest = 1e9;
constexpr double MostSteps = 5;

double drawable(const Fixed<10>& text) { return std::clamp(fieldValue(text.view()), -Largest, Largest); }

std::vector<FanChart::Point> curveFrom(const cFan::Values& fan, std::size_t first) {
    std::vector<FanChart::Point> points;
    for (std::size_t i = first; i < first + PointsOfCurve; ++i) {
        points.push_back({drawable(fan.FanQ.at(i)), drawable(fan.FanP.at(i))});
    }
    const bool empty = std::all_of(points.begin(), points.end(), [](const auto& point) { return point == FanChart::Point{}; });
    return empty ? std::vector<FanChart::Point>{} : points;
}

std::optional<double> limitOf(const Fixed<10>& text) {
    const double value = drawable(text);
    return value == 0 ? std::nullopt : std::optional(value);
}

/// The least of 1, 2 and 5 times a power of ten that isn't below the value.
double roundStep(double value) {
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= value * (1 - 1e-9)) {
            return factor * power;
        }
    }
    return 10 * power;
}

/// Where things stand on the drawing.
class Plot {
public:
    Plot(const FanChart& chart, Twips width, Twips height) : chart_(chart), width_(width.value), height_(height.value) {}

    [[nodiscard]] DrawingPart draw() {
        drawAxes();
        drawLimit(chart_.lowerLimit);
        drawLimit(chart_.upperLimit);
        drawCurve(chart_.exhaust, Tone::First, "Exhaust", Left + LegendLine);
        drawCurve(chart_.supply, Tone::Second, "Supply", Left + LegendLine + LegendStep);
        return std::move(part_);
    }

private:
    static constexpr double Left = 700, Right = 260, Top = 330, Bottom = 620, TickLength = 60, TextHeight = 220,
                            LegendStep = 1200, LegendLine = 240;

    [[nodiscard]] double x(double flow) const {
        return Left + (flow - chart_.flow.low) / (chart_.flow.high - chart_.flow.low) * (width_ - Left - Right);
    }
    [[nodiscard]] double y(double pressure) const {
        return height_ - Bottom -
               (pressure - chart_.pressure.low) / (chart_.pressure.high - chart_.pressure.low) * (height_ - Top - Bottom);
    }
    void line(double x1, double y1, double x2, double y2, Tone tone, bool dashed = false) {
        part_.lines.push_back({{{Twips{x1}, Twips{y1}}, {Twips{x2}, Twips{y2}}}, tone, dashed});
    }
    void label(double left, double top, std::string_view text, Anchor anchor, Tone tone = Tone::Text) {
        part_.labels.push_back({{Twips{left}, Twips{top}}, std::string(text), anchor, tone});
    }

    void drawAxes() {
        const double bottom = height_ - Bottom;
        for (const double flow : chart_.flow.ticks()) {
            line(x(flow), Top, x(flow), bottom, Tone::Faint);
            line(x(flow), bottom, x(flow), bottom + TickLength, Tone::Axis);
            label(x(flow), bottom + TickLength + TextHeight / 2, trimLeft(plainNumber(flow)), Anchor::Center);
        }
        for (const double pressure : chart_.pressure.ticks()) {
            line(Left, y(pressure), width_ - Right, y(pressure), Tone::Faint);
            line(Left - TickLength, y(pressure), Left, y(pressure), Tone::Axis);
            label(Left - 2 * TickLength, y(pressure), trimLeft(plainNumber(pressure)), Anchor::Right);
        }
        line(Left, Top, Left, bottom, Tone::Axis);
        line(Left, y(0), width_ - Right, y(0), Tone::Axis);
        label((Left + width_ - Right) / 2, height_ - TextHeight / 2, "cfm", Anchor::Center);
        label(2 * TickLength, Top / 2, "in. wg", Anchor::Left);
    }

    void drawLimit(const std::optional<double>& limit) {
        if (limit) {
            line(x(*limit), Top, x(*limit), height_ - Bottom, Tone::Limit, true);
        }
    }

    void drawCurve(std::span<const FanChart::Point> points, Tone tone, std::string_view name, double legend) {
        if (points.empty()) {
            return;
        }
        DrawingPart::Polyline curve{{}, tone, false};
        for (const auto& point : points) {
            const DrawingPart::Point place{Twips{x(point.flow)}, Twips{y(point.pressure)}};
            curve.points.push_back(place);
            part_.marks.push_back({place, tone});
        }
        part_.lines.push_back(std::move(curve));
        line(legend, Top / 2, legend + LegendLine, Top / 2, tone);
        label(legend + LegendLine + TickLength, Top / 2, name, Anchor::Left);
    }

    const FanChart& chart_;
    double width_;
    double height_;
    DrawingPart part_;
};

} // namespace

std::vector<double> FanChart::Axis::ticks() const {
    std::vector<double> all;
    const auto count = std::lround((high - low) / step);
    for (long i = 0; i <= count; ++i) {
        // Through whole steps, so that 0 is 0 and .3 is no .30000000000000004.
        const double steps = std::round(low / step) + static_cast<double>(i);
        const double inverse = std::round(1 / step);
        all.push_back(step < 1 ? steps / inverse : steps * step);
    }
    return all;
}

FanChart::Axis roundAxis(double low, double high) {
    low = std::min(low, 0.0);
    high = std::max(high, 0.0);
    if (high - low <= 0) {
        return {};
    }
    const double step = roundStep((high - low) / MostSteps);
    return {std::floor(low / step + 1e-9) * step, std::ceil(high / step - 1e-9) * step, step};
}

FanChart fanChartOf(const cFan::Values& fan) {
    FanChart chart;
    chart.exhaust = curveFrom(fan, 0);
    chart.supply = curveFrom(fan, PointsOfCurve);
    chart.lowerLimit = limitOf(fan.QLow);
    chart.upperLimit = limitOf(fan.QHi);
    FanChart::Point least;
    FanChart::Point most;
    for (const auto* curve : {&chart.exhaust, &chart.supply}) {
        for (const auto& point : *curve) {
            least = {std::min(least.flow, point.flow), std::min(least.pressure, point.pressure)};
            most = {std::max(most.flow, point.flow), std::max(most.pressure, point.pressure)};
        }
    }
    for (const auto& limit : {chart.lowerLimit, chart.upperLimit}) {
        least.flow = std::min(least.flow, limit.value_or(0));
        most.flow = std::max(most.flow, limit.value_or(0));
    }
    chart.flow = roundAxis(least.flow, most.flow);
    chart.pressure = roundAxis(least.pressure, most.pressure);
    return chart;
}

DrawingPart drawFanChart(const FanChart& chart, Twips width, Twips height) { return Plot(chart, width, height).draw(); }

} // namespace kov
