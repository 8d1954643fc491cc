#pragma once

#include "line/model/sections.hpp"
#include "shell/entry/application.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/grid_overlay.hpp"
#include "shell/entry/row_commands.hpp"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace kov {

/// "Line Sections" (`frmLSect`): the branches of the tunnel network, one grid row a section; row n (from 0) is section n+1.
/// Every accepted cell is in the data set at once: there is no Cancel.
class LineSections {
public:
    LineSections(Application& app, Window& window);
    LineSections(const LineSections&) = delete;
    LineSections& operator=(const LineSections&) = delete;

    [[nodiscard]] static std::span<const Column> columns();

private:
    void build();
    void wire();
    void wireMenus();
    [[nodiscard]] OverlayRules overlayRules();
    [[nodiscard]] Grid& grid() const { return grid_.grid(); }

    void onInsert();
    void onDelete();
    void onPaste(const std::string& text);
    void onSegments();
    void onActivate();
    void onClosing();
    void store(int row, int col, std::string& text);

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    cSections& sections_;
    EntryWindow entry_;
    Control& grid_;
    RowCommands rows_;
    std::optional<GridOverlay> overlay_;
    bool refreshWanted_ = false;
};

} // namespace kov
