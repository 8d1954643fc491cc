#pragma once

#include <cstdint>

namespace kov {

/// What the window of the line sections tells the window of the line segments: which of them to show first.
struct LineSelection {
    std::int16_t SelSect = 0; ///< section number; 0 when none
    std::int16_t SelSeg = 0;  ///< segment within it, from 1
};

} // namespace kov
