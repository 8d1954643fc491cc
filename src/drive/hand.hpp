#pragma once

#include "platform/desk.hpp"

#include <functional>
#include <span>
#include <string_view>

namespace kov::drive {

/// What carries out a person's acts: the desk itself, or a test that sends key and mouse events to real widgets. The script has
/// made sure that a control is of the right kind and that positions exist. An act that can't be carried out gives false and
/// does nothing.
struct Hand {
    std::function<bool(Control& control)> click;
    std::function<bool(Control& control)> doubleClick;
    std::function<bool(Control& grid, int row)> rightClick;
    std::function<bool(Control& grid, int row, int col)> cell;
    std::function<bool(Control& list, std::span<const int> entries)> select;
    std::function<bool(Control& strip, int tab)> tab;
    std::function<bool(Control& button, bool up)> spin;
    std::function<bool(Control& entry)> menu;
    std::function<bool(Control& control)> focus;
    /// Characters only: Enter and Tab come by `key`.
    std::function<bool(std::string_view text)> type;
    std::function<bool(Key key)> key;
    std::function<bool(Window& window)> close;
    std::function<bool(Window& window, Twips width, Twips height)> resize;
    std::function<bool(Window& window)> minimize;
    std::function<void(int milliseconds)> pass;
};

/// The acts go straight to the desk, which must outlive the hand.
[[nodiscard]] Hand handOf(Desk& desk);

} // namespace kov::drive
