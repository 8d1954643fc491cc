#pragma once

#include "platform/grid.hpp"
#include "shell/entry/chart.hpp"

#include <vector>

namespace kov {

/// A route from the side, over the distance along the track (ft): the height of the track (ft) at the forward ends of its
/// sections, the speed limit (MPH) of each section, and where trains stop. From the rows of the alignment grid (Form 8D) and of
/// the stops (Form 8C), as they stand there; rows that saving drops are not shown, nor is a cell that is still blank.
struct RouteProfile {
    std::vector<ChartPoint> elevation;
    /// Runs of the speed limit, a step for each section; a section without a speed parts two runs.
    std::vector<std::vector<ChartPoint>> speed;
    std::vector<double> stops;

    [[nodiscard]] bool empty() const { return elevation.empty() && speed.empty(); }
};

/// The first section begins at the scheduling origin of the route, or at 0 where that lies behind its forward end; the height
/// there follows from its grade.
[[nodiscard]] RouteProfile routeProfileOf(const Grid& tracks, const Grid& stops, double origin);

/// The profile as lines and texts of a drawing of that size.
[[nodiscard]] DrawingPart drawRouteProfile(const RouteProfile& profile, Twips width, Twips height);

} // namespace kov
