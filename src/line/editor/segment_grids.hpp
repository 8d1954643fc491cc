#pragma once

#include "line/editor/segment_editing.hpp"
#include "line/model/segment.hpp"
#include "platform/window.hpp"
#include "shell/entry/grid_overlay.hpp"

#include <functional>
#include <optional>
#include <span>

namespace kov {

/// The two lists of a segment, subsegment temperatures and heat sources, each a grid on a tab of its own. The grids hold text;
/// the segment's lists are rebuilt from them when it is saved. Behind the last entry stands a row with a blank to type in.
class SegmentGrids {
public:
    SegmentGrids(Window& window, SegmentEditing& editing);
    SegmentGrids(const SegmentGrids&) = delete;
    SegmentGrids& operator=(const SegmentGrids&) = delete;

    [[nodiscard]] static std::span<const Column> subsegmentColumns();
    [[nodiscard]] static std::span<const Column> heatSourceColumns();

    /// An overlay was left in order, or sent the person back to its cell.
    std::function<void()> left;
    std::function<void()> refused;

    void show(const cSegment& segment);
    void save(cSegment& segment) const;
    [[nodiscard]] bool overlayOpen() const { return subsegmentOverlay_->isOpen() || heatSourceOverlay_->isOpen(); }

private:
    void wire(Control& grid, GridOverlay& overlay, std::string_view form);
    [[nodiscard]] OverlayRules rules(Control& grid);
    void deleteRow(Grid& grid);
    void saveSubsegments(cSegment& segment) const;
    void saveHeatSources(cSegment& segment) const;

    Window& window_;
    SegmentEditing& editing_;
    Control& subsegments_;
    Control& heatSources_;
    std::optional<GridOverlay> subsegmentOverlay_;
    std::optional<GridOverlay> heatSourceOverlay_;
};

} // namespace kov
