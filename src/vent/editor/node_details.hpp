#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/grid_overlay.hpp"
#include "shell/entry/row_commands.hpp"
#include "vent/model/nodes.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kov {

/// "Node Details" (`NodeDtl`): the nodes of Form 6, one at a time: the list of their numbers, the two types, a diagram, and the
/// data that the types call for. Entries reach the node when another one is chosen or the window closes; there is no Cancel.
class NodeDetails {
public:
    NodeDetails(Application& app, Window& window);
    NodeDetails(const NodeDetails&) = delete;
    NodeDetails& operator=(const NodeDetails&) = delete;

    [[nodiscard]] static std::span<const Field> fields();
    [[nodiscard]] static std::span<const Column> columns();

private:
    void wireGrid();
    void wireFields();
    void wireTypes();
    void wireCommands();

    // Node to controls and back (node_data.cpp).
    void ShowData();
    void showTypes();
    void showPanels();
    void showBranches();
    void showTemperatures();
    void SaveData();
    void saveBranches();
    void saveCells();
    void onAeroType();
    void onThermoType();
    void leaveAngle(Control& box);
    [[nodiscard]] std::string thermoHint() const;
    [[nodiscard]] const std::string& boxText(std::string_view control) const;

    // What a person does with whole nodes.
    void onMoved();
    void onNumber(int row, const std::string& text);
    void onInsert();
    void onDelete();
    void onPaste();
    void onUpdate();
    void onClosing();

    [[nodiscard]] Grid& grid() const { return grid_.grid(); }

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    cNodes& nodes_;
    EntryWindow entry_;
    Control& grid_;
    RowCommands rows_;
    std::optional<GridOverlay> overlay_;
    std::int32_t CurNode_ = 1; ///< place of the shown node, from 1
    std::shared_ptr<cNode> ThisNode_;
    bool Showing_ = false; ///< the type lists don't redraw while the program fills them
};

} // namespace kov
