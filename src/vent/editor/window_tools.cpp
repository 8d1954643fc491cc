#include "vent/editor/window_tools.hpp"

#include <algorithm>

namespace kov {

void addMenus(Window& window, std::span<const MenuEntry> entries) {
    for (const auto& entry : entries) {
        window.add(ControlKind::Menu, std::string(entry.name), std::string(entry.caption)).menu().menu = entry.menu;
    }
}

void numberControls(Window& window, std::string_view name) {
    int index = 0;
    for (const auto& control : window.controls()) {
        if (control->name == name) {
            control->index = index++;
        }
    }
}

void renameControl(Window& window, std::string_view from, std::string_view to) { window.control(from).name = to; }

void chooseEntry(Control& list, int entry) {
    list.items().setIndex(entry);
    if (list.hasText()) {
        list.setText(entry < 0 ? std::string_view{} : std::string_view(list.items().item(entry)));
    }
}

void chooseOption(Window& window, std::string_view name, int index) {
    for (const auto& control : window.controls()) {
        if (control->name == name) {
            control->checked = control->index == index;
        }
    }
}

void putGridOn(Grid& grid, int row, int col) {
    grid.setRow(row);
    grid.setCol(col);
    grid.select({row, row, col, col});
}

void setColumnWidths(Window& window, Control& grid, std::string_view captions, std::span<const double> widths) {
    Twips left = grid.bounds.left;
    for (int col = 0; col < static_cast<int>(widths.size()); ++col) {
        const Twips width{widths[static_cast<std::size_t>(col)]};
        grid.grid().setColWidth(col, width);
        auto& caption = window.control(captions, col);
        caption.bounds.left = left;
        caption.bounds.width = width;
        left = left + width;
    }
}

} // namespace kov
