#pragma once

#include "platform/qt/renderer.hpp"

#include <string>
#include <vector>

namespace kov::screen {

/// Where the real widgets show something else than the desk says.
[[nodiscard]] std::vector<std::string> mirrorFaults(const Desk& desk, const qt::Renderer& renderer);

} // namespace kov::screen
