#pragma once

#include "shell/entry/field.hpp"

#include <cstdint>
#include <span>
#include <string_view>

namespace kov {

/// The pages of the train window, in the order of its tabs.
enum class TrainPage : std::uint8_t { General, HeatLoad, Resistors, Motor, Controller, Rates, FlyWheel };

/// An entry box of the train window: the field, its index in a control array (-1: it stands alone), the page that shows it, and
/// whether that page comes to the front when the box gets the focus.
struct TrainField {
    Field field;
    int index = -1;
    int page = 0; ///< -1: above the tabs
    bool turnsPage = false;
};

/// All entry boxes of the train window, Form 9.
[[nodiscard]] std::span<const TrainField> trainFields();
[[nodiscard]] const Field& trainField(std::string_view control, int index = -1);

} // namespace kov
