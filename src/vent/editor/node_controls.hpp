#pragma once

#include "platform/window.hpp"
#include "shell/entry/field.hpp"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace kov {

/// The tables of the window `NodeDtl`, and its controls made from them.
[[nodiscard]] std::span<const Field> nodeFields();
[[nodiscard]] std::span<const Column> nodeColumns();
void buildNodeControls(Window& window);

/// The aerodynamic types in the order of their list: the number that an entry stands for.
inline constexpr std::array<std::int16_t, 7> AeroTypes{0, 1, 2, 3, 4, 5, 7};

/// The boxes whose meaning goes by the aerodynamic type: what stands in them, or none where they are hidden.
[[nodiscard]] const Field* fourthField(std::int16_t aeroType);
[[nodiscard]] const Field* fifthField(std::int16_t aeroType);

/// The picture of a node's kind, as the name of a file in the program's folder; none for a kind that doesn't exist.
[[nodiscard]] std::string_view diagramOf(std::int16_t aeroType, std::int16_t thermoType);

/// Boxes in the order of the node's cells: subnodes A, B and C, and the boundary temperatures.
struct BoxName {
    std::string_view control;
    int index = -1; ///< place in a control array; below 0 none
};
inline constexpr std::array<BoxName, 7> SubnodeBoxes{{{"tbA1"}, {"tbA2"}, {"tbA3"}, {"tbB1"}, {"tbC1"}, {"tbC2"}, {"tbC3"}}};
inline constexpr std::array<BoxName, 6> TemperatureBoxes{
    {{"ttb1"}, {"ttb2"}, {"ttb3", 0}, {"ttb3", 1}, {"ttb3", 2}, {"ttb3", 3}}};
[[nodiscard]] Control& boxOf(const Window& window, const BoxName& name);

} // namespace kov
