#pragma once

#include "platform/controls.hpp"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kov {

/// One axis of a chart, in the unit of what it shows; its ends and steps are round numbers.
struct ChartAxis {
    double low = 0;
    double high = 1;
    double step = 0.2;
    /// From `low` to `high`, one a step.
    [[nodiscard]] std::vector<double> ticks() const;
    /// Where a value stands on the way from `low` (0) to `high` (1).
    [[nodiscard]] double part(double value) const { return (value - low) / (high - low); }
};

/// An axis from `low` to `high` and 0, whose ends and steps are 1, 2 or 5 times a power of ten; 3 to 10 steps.
[[nodiscard]] ChartAxis roundAxis(double low, double high);
/// The same, but 0 need not be on it: for heights, whose changes count.
[[nodiscard]] ChartAxis closeAxis(double low, double high);

/// The field value of an entry as far as a chart can show it: numbers beyond plus or minus 1e9 are slips of the pen, and a
/// curve through them would show nothing.
[[nodiscard]] double chartValue(std::string_view text);

/// A point of a curve, in the units of its two axes.
struct ChartPoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const ChartPoint&, const ChartPoint&) = default;
};

/// The axes of a chart with their units. With `unitBelow` the unit of the horizontal axis has a line of its own, else it stands
/// at the right end of the numbers.
struct ChartFrame {
    ChartAxis across;
    std::string_view acrossUnit;
    ChartAxis left;
    std::string_view leftUnit;
    std::optional<ChartAxis> right = std::nullopt;
    std::string_view rightUnit = {};
    bool unitBelow = false;
};

/// Turns curves on axes into the lines, marks and texts of a drawing of a given size. What the numbers at an axis have no room
/// for is left out, number by number.
class ChartDrawing {
public:
    enum class Side : std::uint8_t { Left, Right };
    using Tone = DrawingPart::Tone;

    ChartDrawing(const ChartFrame& frame, Twips width, Twips height);

    /// A curve against the axis of that side, with a dot on each point where `dots` says so.
    void curve(std::span<const ChartPoint> points, Tone tone, Side side = Side::Left, bool dots = true);
    /// A dashed line from top to bottom.
    void limit(double x);
    /// What a line of that tone stands for; the entries stand above the chart, one beside the other.
    void legend(std::string_view name, Tone tone, bool dashed = false);
    [[nodiscard]] DrawingPart take() { return std::move(part_); }

    /// A drawing that has nothing to show yet says so.
    [[nodiscard]] static DrawingPart message(std::string_view text, Twips width, Twips height);

private:
    void drawAcross();
    void drawLeft();
    void drawRight();
    void line(double x1, double y1, double x2, double y2, Tone tone, bool dashed = false);
    void label(double left, double top, std::string_view text, DrawingPart::Anchor anchor);
    [[nodiscard]] double x(double value) const;
    [[nodiscard]] double y(double value, Side side) const;
    [[nodiscard]] double plotHeight() const { return bottom_ - top_; }

    ChartFrame frame_;
    double width_;
    double height_;
    double left_;
    double right_; ///< where the plot ends, as `bottom_`
    double top_;
    double bottom_;
    double nextLegend_;
    DrawingPart part_;
};

/// Puts a new drawing into a control; a view sees by its revision that it is stale.
void showDrawing(Control& control, DrawingPart drawing);

} // namespace kov
