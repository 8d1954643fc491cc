#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/grid_overlay.hpp"
#include "shell/entry/row_commands.hpp"
#include "vent/model/vents.hpp"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace kov {

/// "Vent Sections" (`frmVSect`): the branches of the network that are shafts or stairways, Form 2B, one grid row a section; row
/// n (from 0) is section n+1. Every accepted cell is in the data set at once: there is no Cancel.
class VentSections {
public:
    VentSections(Application& app, Window& window);
    VentSections(const VentSections&) = delete;
    VentSections& operator=(const VentSections&) = delete;

    [[nodiscard]] static std::span<const Column> columns();

private:
    [[nodiscard]] static Control& buildGrid(Window& window);
    void wire();
    [[nodiscard]] OverlayRules overlayRules();
    [[nodiscard]] Grid& grid() const { return grid_.grid(); }

    void onInsert();
    void onDelete();
    void onPaste(const std::string& text);
    void onShafts();
    void onClosing();
    void store(int row, int col, const std::string& text);

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    cVents& vents_;
    EntryWindow entry_;
    Control& grid_;
    RowCommands rows_;
    std::optional<GridOverlay> overlay_;
};

} // namespace kov
