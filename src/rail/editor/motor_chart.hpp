#pragma once

#include "rail/model/motor.hpp"
#include "shell/entry/chart.hpp"

#include <vector>

namespace kov {

/// What the performance curve of a motor means: tractive effort (lb) and motor current (amps) over speed (MPH), from the four
/// points of Form 9G. A point whose three numbers are all 0 has not been entered and is left out.
struct MotorChart {
    std::vector<ChartPoint> effort;
    std::vector<ChartPoint> current;

    [[nodiscard]] bool empty() const { return effort.empty(); }
};

[[nodiscard]] MotorChart motorChartOf(const cMotor::CurveTexts& curve);

/// The chart as lines and texts of a drawing of that size.
[[nodiscard]] DrawingPart drawMotorChart(const MotorChart& chart, Twips width, Twips height);

} // namespace kov
