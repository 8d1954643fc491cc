#pragma once

#include "platform/window.hpp"
#include "shell/entry/field.hpp"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kov {

/// Where controls are being placed: in a window, or on a panel or a tab page of it. Lengths are in twips.
struct Placer {
    static constexpr double Margin = 90, Gap = 60, Line = 315, Title = 330;

    Window& window;
    Control* parent = nullptr;
    Control* strip = nullptr;
    int page = 0;

    Control& add(ControlKind kind, std::string_view name, std::string_view caption, const Bounds& place,
                 std::optional<int> index = std::nullopt) const;
    Control& label(std::string_view name, std::string_view caption, double left, double top, double width,
                   std::optional<int> index = std::nullopt) const;
    /// Caption (to the right, against its box), box and unit of a field, from left to right.
    Control& field(const Field& field, double left, double top, double captionWidth, double boxWidth) const;
    /// A frame with its caption on the upper edge, and a placer for what stands in it.
    [[nodiscard]] Placer frame(std::string_view name, std::string_view caption, const Bounds& place) const;
    /// A grid with captions and units above its columns, the overlay, and the box behind it in the tab order.
    Control& grid(std::string_view name, std::string_view overlay, std::optional<int> dummy, std::span<const Column> columns,
                  std::span<const double> widths, const Bounds& place) const;
    /// The same without captions.
    Control& plainGrid(std::string_view name, std::string_view overlay, std::optional<int> dummy,
                       std::span<const double> widths, const Bounds& place) const;
    void menu(std::string_view name, std::string_view caption, std::string_view parentMenu) const;
};

[[nodiscard]] constexpr Bounds boundsOf(double left, double top, double width, double height) {
    return {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

} // namespace kov
