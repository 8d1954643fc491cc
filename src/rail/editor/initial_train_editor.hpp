#pragma once

#include "shell/entry/entry_window.hpp"
#include "shell/entry/field.hpp"
#include "shell/entry/grid_overlay.hpp"

#include <memory>
#include <span>

namespace kov {

/// "Train Initialization", `TrnInit`: the trains on the line at the start, Form 10, one grid row a train.
class InitialTrainEditor {
public:
    InitialTrainEditor(Application& app, Window& window);
    InitialTrainEditor(const InitialTrainEditor&) = delete;
    InitialTrainEditor& operator=(const InitialTrainEditor&) = delete;

    [[nodiscard]] static std::span<const Column> columns();

private:
    void build();
    void bindGrid();
    void onDeleteRow();
    void onCut();
    /// Rebuilds the model's list from the rows; rows without a location are left out.
    void save();
    [[nodiscard]] Grid& grid() { return window_.control("Grid1").grid(); }

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    EntryWindow entry_;
    std::unique_ptr<GridOverlay> overlay_;
};

} // namespace kov
