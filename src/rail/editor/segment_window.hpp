#pragma once

#include "platform/desk.hpp"

namespace kov {

/// Whether the line segment window is open with one of its grids active: the Cut entries of the route windows ask that window,
/// and not their own.
[[nodiscard]] inline bool segmentGridActive(const Desk& desk) {
    const auto* segments = desk.find("lseg");
    return segments != nullptr && segments->activeControl != nullptr && segments->activeControl->kind == ControlKind::Grid;
}

} // namespace kov
