#pragma once

#include "platform/window.hpp"
#include "shell/entry/field.hpp"

#include <span>
#include <string>
#include <string_view>

namespace kov {

/// An entry of a window's menus; one without `menu` stands in the bar.
struct MenuEntry {
    std::string_view name;
    std::string_view caption;
    std::string_view menu;
};
void addMenus(Window& window, std::span<const MenuEntry> entries);

/// Numbers all controls of that name, from 0 in their order.
void numberControls(Window& window, std::string_view name);
/// Renames the control called `from`.
void renameControl(Window& window, std::string_view from, std::string_view to);

/// Chooses an entry of a list from the program; -1 for none. Where the list can be typed into, its text follows.
void chooseEntry(Control& list, int entry);
/// Checks the option button of that index and no other of that name; an index without a button checks none.
void chooseOption(Window& window, std::string_view name, int index);

/// The grid stands on that row and column, and only that cell is selected. Nothing is raised.
void putGridOn(Grid& grid, int row, int col);
/// Gives the columns these widths, in twips; the captions above, a control array of that name, move along.
void setColumnWidths(Window& window, Control& grid, std::string_view captions, std::span<const double> widths);

} // namespace kov
