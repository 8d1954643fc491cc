#pragma once

#include "platform/window.hpp"
#include "shell/entry/field.hpp"

#include <span>

namespace kov {

/// The tables that the controls of the segment window are made from.
struct SegmentTables {
    std::span<const Field> general;
    std::span<const Field> environment;
    std::span<const Column> subsegments;
    std::span<const Column> heatSources;
};

inline constexpr Twips SegmentWindowWidth{9180};
inline constexpr Twips SegmentWindowHeight{6150};

/// Makes and places all controls of the segment window, in tab order.
void buildSegmentControls(Window& window, const SegmentTables& tables);

} // namespace kov
