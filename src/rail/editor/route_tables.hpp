#pragma once

#include "shell/entry/field.hpp"

#include <array>
#include <span>
#include <string_view>

namespace kov {

/// The pages of the route window, in the order of its tabs.
enum class RoutePage : std::uint8_t { General, Groups, Alignment, Stops, Performance, Sections };

/// An entry box of the route window, with the page that comes to the front when the box gets the focus (-1: none does).
struct RouteField {
    Field field;
    int brings = -1;
};

/// One of the four grids of the route window.
struct RouteGrid {
    std::string_view form; ///< for panel 1 of the status bar
    int page = 0;
    std::span<const Column> columns;
};

/// All entry boxes, Forms 8A to 8F and `PatWht` of Form 1G.
[[nodiscard]] std::span<const RouteField> routeFields();
[[nodiscard]] const Field& routeField(std::string_view control);
/// The grids by the index of `Grid1`: train groups, alignment, stops, performance.
[[nodiscard]] std::span<const RouteGrid> routeGrids();

inline constexpr int GroupGrid = 0, TrackGrid = 1, StopGrid = 2, PerformanceGrid = 3;

} // namespace kov
