#pragma once

#include "line/editor/segment_editing.hpp"
#include "line/editor/segment_environment.hpp"
#include "line/editor/segment_general.hpp"
#include "line/editor/segment_grids.hpp"
#include "line/model/sections.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/grid_overlay.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace kov {

/// "Line Segment Data" (`lseg`): a list of all segments of all sections in file order, row n (from 0) being segment n+1, and
/// four tabs that show the segment of the current row. What is on the screen goes into the model when another row is chosen or
/// the window is left by OK.
class LineSegments {
public:
    LineSegments(Application& app, Window& window);
    LineSegments(const LineSegments&) = delete;
    LineSegments& operator=(const LineSegments&) = delete;

    /// The one column of the list that can be changed.
    [[nodiscard]] static std::span<const Column> columns();

    /// Model to controls.
    void ShowData();
    /// Controls to model; nothing when no segment is shown.
    void SaveData();
    /// Positions are counted from 1 over all segments.
    void CopySeg(std::int16_t position);
    void CutSeg(std::int16_t position);
    /// The data of the copied segment go into that one, which keeps its number.
    void PasteSeg(std::int16_t position);
    /// The first segment of a section, 0 when there is none.
    [[nodiscard]] std::int16_t FindSec(std::int16_t section) const;

private:
    void wire();
    void wireTabs();
    void wireList();
    void wireMenus();
    [[nodiscard]] OverlayRules listRules();
    void load();
    void selectRow(int row);

    void onRowChange();
    void onOverlayLeft();
    void onOverlayRefused();
    void onListFocus();
    void renumber(int row, const std::string& text);

    void onInsertBefore();
    void onInsertAfter();
    void onDelete();
    void onCut();
    void onCopy();
    void onPaste();
    void onDefault();
    void onTemperatures();
    void cutListRow();
    [[nodiscard]] std::shared_ptr<cSegment> newSegmentBeside(int row, bool before);
    [[nodiscard]] bool onlySegment(int row);
    void removeListRow(int row);

    [[nodiscard]] Grid& list() const { return list_.grid(); }
    [[nodiscard]] bool gridIsActive() const;

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_;              ///< what the window shows stays alive as long as it shows it
    std::vector<std::shared_ptr<cSection>> owners_; ///< so do the sections, also when their window deletes them
    std::optional<EntryWindow> entry_;
    SegmentEditing editing_;
    Control& list_;
    SegmentGeneral general_;
    SegmentGrids grids_;
    SegmentEnvironment environment_;
    std::optional<GridOverlay> listOverlay_;

    int CurIndex_ = 0; ///< position of the current segment in `SegColl_`, from 1
    Collection<cSegment> SegColl_;
    std::shared_ptr<cSegment> CurSeg_;
    std::shared_ptr<cSegment> ClipSeg_;
    bool rowChangeDeferred_ = false;
};

} // namespace kov
