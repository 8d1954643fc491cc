#pragma once

#include "shell/entry/entry_window.hpp"
#include "shell/entry/field.hpp"
#include "shell/entry/grid_overlay.hpp"

#include <memory>
#include <span>

namespace kov {

/// "Fire Data", `frmFires`: all unsteady heat sources of Form 4 in one grid, and the effective emissivity of Form 1G.
class FireEditor {
public:
    FireEditor(Application& app, Window& window);
    FireEditor(const FireEditor&) = delete;
    FireEditor& operator=(const FireEditor&) = delete;

    [[nodiscard]] static std::span<const Field> fields();
    [[nodiscard]] static std::span<const Column> columns();

private:
    void build();
    void bindGrid();
    void onDeleteRow();
    void onCut();
    /// Rebuilds the model's list from the rows; rows that nobody named are left out.
    void rebuild();
    void closing();
    [[nodiscard]] Grid& grid() { return window_.control("grdFire").grid(); }

    Application& app_;
    Window& window_;
    EntryWindow entry_;
    std::unique_ptr<GridOverlay> overlay_;
};

} // namespace kov
