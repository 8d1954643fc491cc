#pragma once

#include "platform/controls.hpp"
#include "vent/model/fan.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kov {

/// What the numbers of a fan type mean: its exhaust and its supply curve, pressure over flow, in the units of Form 7 (CFM,
/// inches of water gauge), with the flow limits, on axes that end at round numbers.
struct FanChart {
    struct Axis {
        double low = 0;
        double high = 1;
        double step = 0.2;
        /// From `low` to `high`, one a step.
        [[nodiscard]] std::vector<double> ticks() const;
    };
    struct Point {
        double flow = 0;
        double pressure = 0;
        friend bool operator==(const Point&, const Point&) = default;
    };

    Axis flow;
    Axis pressure;
    std::vector<Point> exhaust;       ///< curve points 1 to 4; empty while all of them are 0
    std::vector<Point> supply;        ///< curve points 5 to 8; empty while all of them are 0
    std::optional<double> lowerLimit; ///< lower flow limit; none while it is 0
    std::optional<double> upperLimit; ///< upper flow limit; none while it is 0
};

/// An axis from `low` to `high` and 0, whose ends and steps are 1, 2 or 5 times a power of ten; 3 to 10 steps.
[[nodiscard]] FanChart::Axis roundAxis(double low, double high);

[[nodiscard]] FanChart fanChartOf(const cFan::Values& fan);

/// The chart as lines and texts of a drawing of that size.
[[nodiscard]] DrawingPart drawFanChart(const FanChart& chart, Twips width, Twips height);

} // namespace kov
