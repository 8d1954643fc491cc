#include "shell/entry/row_commands.hpp"

#include "shell/entry/grid_overlay.hpp"

namespace kov {

void restoreTopRow(Grid& grid, int top) {
    grid.setTopRow(top < grid.rows() ? top : top - 1);
    auto selection = grid.selection();
    selection.startRow = 0;
    selection.endRow = 0;
    grid.select(selection);
}

bool RowCommands::meantText(const char* keys) {
    flags_.FormChanged = true;
    if (gridIsActive()) {
        return false;
    }
    app_.desk.sendKeys(keys);
    return true;
}

void RowCommands::remove(const OnElement& fromModel) {
    auto& grid = grid_.grid();
    const auto position = current();
    const int top = grid.topRow();
    grid.removeItem(grid.row());
    flags_.FormChanged = true;
    fromModel(position);
    restoreTopRow(grid, top);
}

void RowCommands::cut(const OnElement& fromModel) {
    if (!meantText("^X")) {
        app_.desk.services().clipboard.setText(GridRowText(grid_.grid()));
        remove(fromModel);
    }
}

void RowCommands::copy(const OnElement& inModel) {
    if (!meantText("^C")) {
        app_.desk.services().clipboard.setText(GridRowText(grid_.grid()));
        inModel(current());
    }
}

void RowCommands::paste(const OnText& intoBoth) {
    const auto text = app_.desk.services().clipboard.text();
    if (text && !meantText("^V")) {
        intoBoth(*text);
    }
}

} // namespace kov
