#pragma once

#include "line/editor/segment_editing.hpp"
#include "line/model/segment.hpp"
#include "platform/window.hpp"

#include <span>

namespace kov {

/// Title and general tab of the segment window: type, fire flag, geometry, wall types and head losses.
class SegmentGeneral {
public:
    SegmentGeneral(Window& window, SegmentEditing& editing);

    [[nodiscard]] static std::span<const Field> fields();

    void show(const cSegment& segment);
    /// Stores the fields; a type that is none is put to the person, and the segment keeps the one it had.
    void save(cSegment& segment);

private:
    void wireType(const Field& field);
    void wireFire(const Field& field);
    void wirePerimeters(const Field& field);
    void showType(int type);
    void rememberType();
    [[nodiscard]] Control& box(std::string_view name) const { return window_.control(name); }

    Window& window_;
    SegmentEditing& editing_;
    Control& type_;
};

} // namespace kov
