#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/field.hpp"
#include "shell/entry/field_cycle.hpp"

namespace kov {

/// What the parts of the segment window share while a segment is edited. Nothing here touches the model: entries take effect
/// when the window saves the segment as a whole.
struct SegmentEditing {
    explicit SegmentEditing(Application& application) : app(application) {}

    Application& app;
    EntryFlags flags;
    bool dataChanged = false;      ///< an entry was accepted or a list changed since the last saving
    Control* ActiveGrid = nullptr; ///< the grid that has the focus, or none

    /// Hint, selection and changed mark of a box, and its check on leaving.
    void bind(Control& box, const Field& field);
    /// The end of the cycle. A refused text stands until it is corrected, with the focus on it.
    void leave(Control& box, const Rule& rule, bool showsNormalised = true);
};

} // namespace kov
