#pragma once

#include "platform/window.hpp"
#include "shell/entry/grid_overlay.hpp"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace kov {

/// An entry that a window's Edit menu has beyond Cut, Copy and Paste.
struct EditEntry {
    std::string_view name;
    std::string_view caption;
};

/// Adds `M_Edit` with `ME_Cut`, `ME_Copy` and `ME_Paste` and the further entries.
void addEditMenu(Window& window, std::initializer_list<EditEntry> further = {});
/// Adds `M_Help` with `MH_Contents` and `MH_Search`.
void addHelpMenu(Window& window);

/// A grid that the Edit menu works on.
struct EditedGrid {
    Control& grid;
    Control& box; ///< its overlay's
    GridOverlay& overlay;
};

/// Wires the Edit menu of a window with grids. On a grid, Cut, Copy and Paste move whole rows over the clipboard; in an overlay
/// or another field they are the keystrokes. `ME_Delete` and `ME_Insert`, where the menu has them, are the keys of that name on
/// the grid that is being edited, else on the first one. A pasted row marks the window as changed.
void bindGridCommands(Application& app, Window& window, EntryFlags& flags, std::vector<EditedGrid> grids);

} // namespace kov
