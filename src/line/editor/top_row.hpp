#pragma once

#include "platform/grid.hpp"

namespace kov {

/// After a row was removed: the top row is again what it was, or the one above when that is gone; no row stays selected but
/// the first.
inline void restoreTopRow(Grid& grid, int top) {
    grid.setTopRow(top < grid.rows() ? top : top - 1);
    auto selection = grid.selection();
    selection.startRow = 0;
    selection.endRow = 0;
    grid.select(selection);
}

} // namespace kov
