#pragma once

#include "platform/window.hpp"
#include "shell/entry/application.hpp"

namespace kov {

/// Scales the controls of a window to its new size, against the size that its tags `oldW` and `oldH` hold, and gives them the
/// font that the engineer chose. A minimised window is left alone.
void ScaleForm(const Application& app, Window& window);

} // namespace kov
