#pragma once

#include "shell/entry/chart.hpp"
#include "vent/model/fan.hpp"

#include <optional>
#include <vector>

namespace kov {

/// What the numbers of a fan type mean: its exhaust and its supply curve, pressure over flow, in the units of Form 7 (CFM,
/// inches of water gauge), with the flow limits, on axes that end at round numbers.
struct FanChart {
    ChartAxis flow;
    ChartAxis pressure;
    // Flow across, pressure up.
    std::vector<ChartPoint> exhaust;  ///< curve points 1 to 4; empty while all of them are 0
    std::vector<ChartPoint> supply;   ///< curve points 5 to 8; empty while all of them are 0
    std::optional<double> lowerLimit; ///< lower flow limit; none while it is 0
    std::optional<double> upperLimit; ///< upper flow limit; none while it is 0
};

[[nodiscard]] FanChart fanChartOf(const cFan::Values& fan);

/// The chart as lines and texts of a drawing of that size.
[[nodiscard]] DrawingPart drawFanChart(const FanChart& chart, Twips width, Twips height);

} // namespace kov
