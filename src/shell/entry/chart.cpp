#include "shell/entry/chart.hpp"

#include "core/cards/fixed.hpp"
#include "core/cards/numbers.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace kov {
namespace {

using Anchor = DrawingPart::Anchor;

constexpr double Largest = 1e9, MostSteps = 5, Slack = 1e-9;
// All in twips.
constexpr double LeftMargin = 700, PlainRight = 400, RightMargin = 700, TopMargin = 330, NumbersBelow = 340, UnitBelow = 280,
                 TickLength = 60, TextHeight = 220, Character = 92, LegendLine = 240;

/// The least of 1, 2 and 5 times a power of ten that isn't below the value.
double roundStep(double value) {
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= value * (1 - Slack)) {
            return factor * power;
        }
    }
    return 10 * power;
}

ChartAxis axisOver(double low, double high) {
    const double step = roundStep((high - low) / MostSteps);
    return {std::floor(low / step + Slack) * step, std::ceil(high / step - Slack) * step, step};
}

std::string tickText(double value) { return std::string(trimLeft(plainNumber(value))); }
double textWidth(std::string_view text) { return static_cast<double>(text.size()) * Character; }

/// Every which number of an axis is shown, so that they don't run into each other.
std::size_t stride(const std::vector<double>& ticks, double length, double room) {
    const double apart = length / static_cast<double>(std::max<std::size_t>(ticks.size(), 2) - 1);
    return static_cast<std::size_t>(std::max(1.0, std::ceil(room / apart)));
}

} // namespace

std::vector<double> ChartAxis::ticks() const {
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

ChartAxis roundAxis(double low, double high) {
    low = std::min(low, 0.0);
    high = std::max(high, 0.0);
    return high - low <= 0 ? ChartAxis{} : axisOver(low, high);
}

ChartAxis closeAxis(double low, double high) { return high - low <= 0 ? axisOver(low - 1, low + 1) : axisOver(low, high); }

double chartValue(std::string_view text) { return std::clamp(fieldValue(text), -Largest, Largest); }

ChartDrawing::ChartDrawing(const ChartFrame& frame, Twips width, Twips height)
    : frame_(frame), width_(width.value), height_(height.value), left_(LeftMargin),
      right_(width_ - (frame.right || !frame.unitBelow ? RightMargin : PlainRight)), top_(TopMargin),
      bottom_(height_ - NumbersBelow - (frame.unitBelow ? UnitBelow : 0)), nextLegend_(LeftMargin + LegendLine) {
    drawAcross();
    drawLeft();
    if (frame_.right) {
        drawRight();
    }
}

double ChartDrawing::x(double value) const { return left_ + frame_.across.part(value) * (right_ - left_); }

double ChartDrawing::y(double value, Side side) const {
    const auto& axis = side == Side::Right && frame_.right ? *frame_.right : frame_.left;
    return bottom_ - axis.part(value) * plotHeight();
}

void ChartDrawing::line(double x1, double y1, double x2, double y2, Tone tone, bool dashed) {
    part_.lines.push_back({{{Twips{x1}, Twips{y1}}, {Twips{x2}, Twips{y2}}}, tone, dashed});
}

void ChartDrawing::label(double left, double top, std::string_view text, Anchor anchor) {
    part_.labels.push_back({{Twips{left}, Twips{top}}, std::string(text), anchor, Tone::Text});
}

void ChartDrawing::drawAcross() {
    const auto ticks = frame_.across.ticks();
    double widest = 0;
    for (const double tick : ticks) {
        widest = std::max(widest, textWidth(tickText(tick)) + Character);
    }
    const double numbers = bottom_ + TickLength + TextHeight / 2;
    const auto every = stride(ticks, right_ - left_, widest);
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const double place = x(ticks[i]);
        line(place, top_, place, bottom_, Tone::Faint);
        line(place, bottom_, place, bottom_ + TickLength, Tone::Axis);
        if (i % every == 0) {
            label(place, numbers, tickText(ticks[i]), Anchor::Center);
        }
    }
    if (frame_.unitBelow) {
        label((left_ + right_) / 2, height_ - TextHeight / 2, frame_.acrossUnit, Anchor::Center);
    } else {
        label(width_ - TickLength, numbers, frame_.acrossUnit, Anchor::Right);
    }
}

void ChartDrawing::drawLeft() {
    const auto ticks = frame_.left.ticks();
    const auto every = stride(ticks, plotHeight(), TextHeight);
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const double place = y(ticks[i], Side::Left);
        line(left_, place, right_, place, Tone::Faint);
        line(left_ - TickLength, place, left_, place, Tone::Axis);
        if (i % every == 0) {
            label(left_ - 2 * TickLength, place, tickText(ticks[i]), Anchor::Right);
        }
    }
    line(left_, top_, left_, bottom_, Tone::Axis);
    const double foot = y(std::clamp(0.0, frame_.left.low, frame_.left.high), Side::Left);
    line(left_, foot, right_, foot, Tone::Axis);
    label(2 * TickLength, top_ / 2, frame_.leftUnit, Anchor::Left);
}

void ChartDrawing::drawRight() {
    const auto ticks = frame_.right->ticks();
    const auto every = stride(ticks, plotHeight(), TextHeight);
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const double place = y(ticks[i], Side::Right);
        line(right_, place, right_ + TickLength, place, Tone::Axis);
        if (i % every == 0) {
            label(right_ + 2 * TickLength, place, tickText(ticks[i]), Anchor::Left);
        }
    }
    line(right_, top_, right_, bottom_, Tone::Axis);
    label(width_ - 2 * TickLength, top_ / 2, frame_.rightUnit, Anchor::Right);
}

void ChartDrawing::curve(std::span<const ChartPoint> points, Tone tone, Side side, bool dots) {
    DrawingPart::Polyline path{{}, tone, false};
    for (const auto& point : points) {
        const DrawingPart::Point place{Twips{x(point.x)}, Twips{y(point.y, side)}};
        path.points.push_back(place);
        if (dots) {
            part_.marks.push_back({place, tone});
        }
    }
    if (!path.points.empty()) {
        part_.lines.push_back(std::move(path));
    }
}

void ChartDrawing::limit(double at) { line(x(at), top_, x(at), bottom_, Tone::Limit, true); }

void ChartDrawing::legend(std::string_view name, Tone tone, bool dashed) {
    line(nextLegend_, top_ / 2, nextLegend_ + LegendLine, top_ / 2, tone, dashed);
    label(nextLegend_ + LegendLine + TickLength, top_ / 2, name, Anchor::Left);
    nextLegend_ += 2 * LegendLine + TickLength + textWidth(name);
}

DrawingPart ChartDrawing::message(std::string_view text, Twips width, Twips height) {
    DrawingPart part;
    part.labels.push_back({{width * 0.5, height * 0.5}, std::string(text), Anchor::Center, Tone::Text});
    return part;
}

void showDrawing(Control& control, DrawingPart drawing) {
    drawing.revision = control.drawing().revision + 1;
    control.drawing() = std::move(drawing);
}

} // namespace kov
