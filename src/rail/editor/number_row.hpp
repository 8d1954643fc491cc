#pragma once

#include "shell/entry/stacked_layout.hpp"

#include <string_view>

namespace kov {

/// The row by which a window goes through a list, one route or train at a time: the number under its caption, the spin button
/// `Spin1`, and the commands on the list.
void addNumberRow(Window& window, StackedLayout& stack, std::string_view label, std::string_view caption, std::string_view box);

} // namespace kov
