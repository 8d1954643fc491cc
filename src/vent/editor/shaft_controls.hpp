#pragma once

#include "platform/window.hpp"
#include "shell/entry/field.hpp"

#include <span>

namespace kov {

/// The tables of the window `vshaft`, and its controls made from them.
[[nodiscard]] std::span<const Field> shaftFields();
[[nodiscard]] std::span<const Column> shaftGridColumns();
[[nodiscard]] std::span<const Column> segmentGridColumns();
void buildShaftControls(Window& window);

} // namespace kov
