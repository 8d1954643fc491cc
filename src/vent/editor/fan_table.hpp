#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/grid_overlay.hpp"
#include "vent/model/vents.hpp"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace kov {

/// "Fan Table": all shafts that have a fan, with what runs in them, when and in which direction. Every change goes into the
/// shaft at once, so Cancel undoes nothing. A shaft without a fan has no row and can't be given one here.
class FanTable {
public:
    FanTable(Application& app, Window& window);
    FanTable(const FanTable&) = delete;
    FanTable& operator=(const FanTable&) = delete;

    [[nodiscard]] static std::span<const Column> columns();

private:
    [[nodiscard]] static Control& buildGrid(Window& window);
    void wire();
    [[nodiscard]] bool openList(int row, int col);
    [[nodiscard]] std::shared_ptr<cVShaft> shaftOf(int row) const;
    void onTime(int row, int col, const std::string& text);
    void leaveFanType(Control& list);
    void leaveStatus(Control& list);
    void onPrint();

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    EntryWindow entry_;
    Control& grid_;
    std::optional<GridOverlay> overlay_;
    Collection<cVShaft> shafts_; ///< the shaft of each row
};

} // namespace kov
