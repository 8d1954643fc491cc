#pragma once

#include "core/cards/collection.hpp"
#include "line/editor/segment_editing.hpp"
#include "line/model/segment.hpp"
#include "platform/window.hpp"

#include <span>

namespace kov {

/// The environmental tab of the segment window: wall and soil of the segment, which only matter while the environmental control
/// load is on.
class SegmentEnvironment {
public:
    SegmentEnvironment(Window& window, SegmentEditing& editing);

    [[nodiscard]] static std::span<const Field> fields();

    /// Whether a person can get at the tab.
    void setAvailable(bool available);
    void show(const cSegment& segment);
    void save(cSegment& segment) const;
    /// Gives what the window shows to every segment that has a zero there. A text that is no number is a Failure.
    void fillZeros(const Collection<cSegment>& segments) const;

private:
    [[nodiscard]] Control& box(std::string_view name) const { return window_.control(name); }

    Window& window_;
    SegmentEditing& editing_;
};

} // namespace kov
