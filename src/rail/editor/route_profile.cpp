#include "rail/editor/route_profile.hpp"

#include "core/cards/fixed.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace kov {
namespace {

constexpr int EndColumn = 0, GradeColumn = 2, ElevationColumn = 3, SpeedColumn = 4, StopColumn = 0;
// Beyond this many sections dots would hide the line.
constexpr std::size_t MostDots = 40;

std::optional<double> cellOf(const Grid& grid, int row, int col) {
    const auto& text = grid.text(row, col);
    return trim(text).empty() ? std::nullopt : std::optional(chartValue(text));
}

/// The location that a row is kept for when the grid is saved.
std::optional<double> placeOf(const Grid& grid, int row, int col) {
    const auto place = cellOf(grid, row, col);
    return place && *place > 0 ? place : std::nullopt;
}

struct Range {
    double low = 0;
    double high = 0;
    bool none = true;
    void hold(double value) {
        low = none ? value : std::min(low, value);
        high = none ? value : std::max(high, value);
        none = false;
    }
};

void addSpeed(RouteProfile& profile, std::optional<double> speed, double from, double to, bool joined) {
    if (!speed) {
        return;
    }
    if (!joined) {
        profile.speed.emplace_back();
    }
    profile.speed.back().push_back({from, *speed});
    profile.speed.back().push_back({to, *speed});
}

} // namespace

RouteProfile routeProfileOf(const Grid& tracks, const Grid& stops, double origin) {
    RouteProfile profile;
    std::optional<double> begin;
    bool joined = false;
    for (int row = 0; row < tracks.rows(); ++row) {
        const auto end = placeOf(tracks, row, EndColumn);
        if (!end) {
            continue;
        }
        const auto height = cellOf(tracks, row, ElevationColumn);
        if (!begin) {
            begin = origin < *end ? origin : 0;
            if (const auto grade = cellOf(tracks, row, GradeColumn); height && grade) {
                profile.elevation.push_back({*begin, *height - *grade / 100 * (*end - *begin)});
            }
        }
        if (height) {
            profile.elevation.push_back({*end, *height});
        }
        const auto speed = cellOf(tracks, row, SpeedColumn);
        addSpeed(profile, speed, *begin, *end, joined);
        joined = speed.has_value();
        begin = end;
    }
    for (int row = 0; row < stops.rows(); ++row) {
        if (const auto place = placeOf(stops, row, StopColumn)) {
            profile.stops.push_back(*place);
        }
    }
    return profile;
}

DrawingPart drawRouteProfile(const RouteProfile& profile, Twips width, Twips height) {
    using Tone = DrawingPart::Tone;
    if (profile.empty()) {
        return ChartDrawing::message("No alignment with elevations or speeds yet", width, height);
    }
    Range distance;
    Range elevation;
    double fastest = 0;
    for (const auto& point : profile.elevation) {
        distance.hold(point.x);
        elevation.hold(point.y);
    }
    for (const auto& run : profile.speed) {
        for (const auto& point : run) {
            distance.hold(point.x);
            fastest = std::max(fastest, point.y);
        }
    }
    for (const double stop : profile.stops) {
        distance.hold(stop);
    }
    ChartDrawing drawing({.across = roundAxis(distance.low, distance.high),
                          .acrossUnit = "ft",
                          .left = closeAxis(elevation.low, elevation.high),
                          .leftUnit = "ft",
                          .right = roundAxis(0, fastest),
                          .rightUnit = "MPH"},
                         width, height);
    for (const double stop : profile.stops) {
        drawing.limit(stop);
    }
    for (const auto& run : profile.speed) {
        drawing.curve(run, Tone::Second, ChartDrawing::Side::Right, false);
    }
    drawing.curve(profile.elevation, Tone::First, ChartDrawing::Side::Left, profile.elevation.size() <= MostDots);
    drawing.legend("Elevation", Tone::First);
    drawing.legend("Max Speed", Tone::Second);
    if (!profile.stops.empty()) {
        drawing.legend("Stops", Tone::Limit, true);
    }
    return drawing.take();
}

} // namespace kov
