#pragma once

#include "shell/entry/grid_overlay.hpp"
#include "unit/support/fakes.hpp"

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace kov::test {

inline constexpr std::array OverlayColumns{
    Column{"Name", "", text(), "name hint", ""},
    Column{"Length", "ft", real(0, 100), "length hint", ""},
    Column{"Count", "", integer(1, 9), "count hint", ""},
};

/// A window of a grid with three columns, its overlay, the stop behind it, and a button to go to. The grid holds two rows.
class OverlayWindow : public Workplace {
public:
    explicit OverlayWindow(OverlayRules rules = {}) {
        window = &open("form", [&](Window& filled) {
            button = &filled.add(ControlKind::Button, "button");
            grid = &filled.add(ControlKind::Grid, "grd");
            box = &filled.add(ControlKind::TextBox, "gtext");
            dummy = &filled.add(ControlKind::TextBox, "Dummy");
            grid->grid().setCols(3);
            grid->grid().setRows(2);
            fillRow(0, "first", "10.", "1");
            fillRow(1, "second", "20.", "2");
            overlay.emplace(app, flags, *grid, *box, OverlayColumns, std::move(rules));
            overlay->bindDummy(*dummy);
        });
    }
    void fillRow(int row, const std::string& name, const std::string& length, const std::string& count) {
        cells().setText(row, 0, name);
        cells().setText(row, 1, length);
        cells().setText(row, 2, count);
    }
    [[nodiscard]] Grid& cells() const { return grid->grid(); }
    /// "row,col" of the current cell.
    [[nodiscard]] std::string at() const { return std::to_string(cells().row()) + "," + std::to_string(cells().col()); }
    /// The cell under the overlay.
    [[nodiscard]] std::string under() const { return std::to_string(app.GridRow) + "," + std::to_string(app.GridCol); }
    [[nodiscard]] const std::string& typed() const { return box->text().text; }
    void replace(const std::string& typedText) {
        box->selectText(0, static_cast<int>(typed().size()));
        desk.type(typedText);
    }

    Application app{desk};
    EntryFlags flags;
    Window* window = nullptr;
    Control* button = nullptr;
    Control* grid = nullptr;
    Control* box = nullptr;
    Control* dummy = nullptr;
    std::optional<GridOverlay> overlay;
};

} // namespace kov::test
