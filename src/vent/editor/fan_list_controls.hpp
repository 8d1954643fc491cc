#pragma once

#include "platform/window.hpp"
#include "shell/entry/layout.hpp"

#include <functional>

namespace kov {

/// What both windows that go through a list of fans have in common: the number with its spin button, the five commands of the
/// list, and the menus.
struct FanCommands {
    std::function<void(bool up)> spin;
    std::function<void()> insert;
    std::function<void()> cut;
    std::function<void()> copy;
    std::function<void()> paste;
    std::function<void()> remove;
};

void addFanMenus(Window& window);
/// The number's box, and behind it in tab order the spin button `Spin1`, which `placeFanSpin` puts beside it when the layout is
/// finished.
[[nodiscard]] Control& addFanNumber(Window& window, LayoutPanel& panel, const Field& number);
void placeFanSpin(Window& window, Control& spin);
void addFanCommands(LayoutPanel& panel);
/// Wires the commands; the arrow keys in the number's box spin too. Paste is not to be had before a Copy or Cut.
void bindFanCommands(Window& window, const FanCommands& commands);

} // namespace kov
