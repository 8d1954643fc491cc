#pragma once

#include "shell/entry/entry_window.hpp"
#include "shell/entry/field.hpp"
#include "shell/entry/grid_overlay.hpp"

#include <optional>
#include <span>

namespace kov {

/// "Simulation Control": program control data, the print control groups of Form 12 and the simulation time of Form 13.
class SimCtrl {
public:
    SimCtrl(Application& app, Window& window);
    SimCtrl(const SimCtrl&) = delete;
    SimCtrl& operator=(const SimCtrl&) = delete;

    [[nodiscard]] static std::span<const Field> fields();
    /// The columns of `grdPGroup`; one row for each print group, and a blank one.
    [[nodiscard]] static std::span<const Column> columns();

private:
    void build();
    void bindGroups();
    void load();
    void loadGroups();
    void assign();
    void assignGroups();
    void onInsertRow();
    void onDeleteRow();
    [[nodiscard]] Grid& groups() const { return window_.control("grdPGroup").grid(); }

    Application& app_;
    Window& window_;
    EntryWindow entry_;
    std::optional<GridOverlay> overlay_;
};

} // namespace kov
