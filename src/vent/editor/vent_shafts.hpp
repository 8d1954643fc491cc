#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/grid_overlay.hpp"
#include "vent/model/vents.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace kov {

/// "Vent Shaft Data" (`vshaft`): the shafts of the vent sections, Form 5, one at a time: the list of them, the fields, the fan
/// and the segments of the shown one. Shafts are stored when the person moves to another one and when the window closes, but
/// not by Cancel. They live and die with their section.
class VentShafts {
public:
    VentShafts(Application& app, Window& window);
    VentShafts(const VentShafts&) = delete;
    VentShafts& operator=(const VentShafts&) = delete;

    [[nodiscard]] static std::span<const Field> fields();
    [[nodiscard]] static std::span<const Column> shaftColumns();
    [[nodiscard]] static std::span<const Column> segmentColumns();

private:
    void wireFields();
    void wireGrids();
    void wireMenus();
    void load();

    void ShowShaft();
    void showFanType(std::int16_t type);
    void SaveShaft();
    [[nodiscard]] std::int16_t chosenFanType() const;
    [[nodiscard]] std::int16_t chosenDirection() const;
    void storeSegments(cVShaft& shaft) const;

    void onShaftRow();
    void onShaftNumber(int row, const std::string& text);
    void onInsertSegment();
    void onDeleteSegment();
    void onCopy();
    void onCut();
    void onPaste();
    void onTemps();
    void onFans();
    void onBack();
    void copyShaft();

    [[nodiscard]] Grid& shaftGrid() const { return window_.control("GrdShaft").grid(); }
    [[nodiscard]] Grid& segmentGrid() const { return window_.control("grdVSeg").grid(); }
    [[nodiscard]] bool active(std::string_view control) const;
    [[nodiscard]] const std::string& boxText(std::string_view control) const;
    [[nodiscard]] cVShaft& shaftOfRow() const;

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    EntryWindow entry_;
    std::optional<GridOverlay> shaftOverlay_;
    std::optional<GridOverlay> segmentOverlay_;
    Collection<cVShaft> shafts_; ///< the shaft of each row; a section that is deleted meanwhile doesn't take it along
    std::int16_t CurShaft_ = 0;  ///< place of the shown shaft, from 1
    std::shared_ptr<cVShaft> ClipShaft_;
    std::optional<int> fanBeforeFans_; ///< position of the fan list while the fans are being edited
};

} // namespace kov
