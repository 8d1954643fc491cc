#pragma once

#include "core/cards/collection.hpp"
#include "shell/entry/application.hpp"
#include "shell/entry/field_cycle.hpp"

#include <functional>
#include <string>

namespace kov {

/// After a row was removed: the top row is again what it was, or the one above when that is gone; no row stays selected but
/// the first.
void restoreTopRow(Grid& grid, int top);

/// Commands on whole elements of the model, in a window whose grid shows one of them a row: row n (from 0) is element n+1. Cut,
/// Copy and Paste mean text while another control than the grid is active; each marks the window as changed.
class RowCommands {
public:
    using OnElement = std::function<void(Position)>;
    using OnText = std::function<void(const std::string& text)>;

    RowCommands(Application& app, const Window& window, EntryFlags& flags, Control& grid)
        : app_(app), window_(window), flags_(flags), grid_(grid) {}

    [[nodiscard]] Position current() const { return Position{grid_.grid().row() + 1}; }
    [[nodiscard]] bool gridIsActive() const { return window_.activeControl == &grid_; }
    /// Takes the current row off the grid, then its element off the model; what is in sight stays there.
    void remove(const OnElement& fromModel);
    /// The row's text to the clipboard, and the row and its element away.
    void cut(const OnElement& fromModel);
    void copy(const OnElement& inModel);
    /// Does nothing unless the clipboard holds text; the caller adds row and element.
    void paste(const OnText& intoBoth);

private:
    /// Sends the keys to the active control and tells true, unless that is the grid.
    [[nodiscard]] bool meantText(const char* keys);

    Application& app_;
    const Window& window_;
    EntryFlags& flags_;
    Control& grid_;
};

} // namespace kov
