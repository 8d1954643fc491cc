#include "shell/entry/grid_overlay.hpp"

#include <utility>

namespace kov {
namespace {

constexpr int EnterCharacter = 13, HintPanel = 2;
// The overlay leaves the grid's lines free.
constexpr double LineWidth = 2 * Twips::PerPixel;

} // namespace

std::string GridRowText(const Grid& grid) {
    std::string text = grid.text(grid.row(), 0);
    for (int col = 1; col < grid.cols(); ++col) {
        text += '\t';
        text += grid.text(grid.row(), col);
    }
    return text;
}

void LayOverCell(Application& app, Control& gridControl, Control& control) {
    revealCurrentRow(gridControl);
    const auto& grid = gridControl.grid();
    app.GridRow = grid.row();
    app.GridCol = grid.col();
    const Twips line{LineWidth};
    control.bounds.left = gridControl.bounds.left + grid.colPos(grid.col()) + line;
    control.bounds.top = gridControl.bounds.top + grid.rowPos(grid.row()) + line;
    control.bounds.width = grid.colWidth(grid.col()) - line;
    if (control.kind != ControlKind::Combo) {
        control.bounds.height = grid.rowHeight() - line;
    }
    control.visible = true;
}

void OpenCell(Application& app, Control& gridControl, Control& box) {
    LayOverCell(app, gridControl, box);
    box.setText(trimRight(gridControl.grid().currentText()));
    box.selectText(0, static_cast<int>(box.text().text.size()));
}

GridOverlay::GridOverlay(Application& app, EntryFlags& flags, Control& grid, Control& box, std::span<const Column> columns,
                         OverlayRules rules)
    : app_(app), flags_(flags), grid_(grid), box_(box), columns_(columns), rules_(std::move(rules)) {
    box_.visible = false;
    box_.parent = grid_.parent;
    box_.strip = grid_.strip;
    box_.page = grid_.page;
    grid_.on.click = [this] {
        showHint();
        if (rules_.opensOnSelect && !box_.visible) {
            open();
        }
    };
    grid_.on.cellChange = [this] { onCellChange(); };
    grid_.on.dblClick = [this] { open(); };
    grid_.on.keyDown = [this](int& code, int) { onGridKeyDown(code); };
    grid_.on.keyPress = [this](int& character) { onGridKeyPress(character); };
    box_.on.change = [this] { flags_.FieldChanged = true; };
    box_.on.keyDown = [this](int& code, int) {
        if (code == keys::Up || code == keys::Down) {
            cellArrow(std::exchange(code, 0));
        }
    };
    box_.on.keyPress = [this](int& character) { cellEnter(character); };
    box_.on.lostFocus = [this] { commit(); };
}

void GridOverlay::bindDummy(Control& dummy) {
    dummy_ = &dummy;
    dummy.on.gotFocus = [this] {
        const bool already = std::exchange(wentRight_, false);
        if (!app_.desk.setFocus(grid_)) {
            return;
        }
        if (already) {
            arrived();
        } else {
            app_.desk.sendKeys("{right}");
        }
    };
}

void GridOverlay::open() {
    if (rules_.openInstead && rules_.openInstead(grid().row(), grid().col())) {
        return;
    }
    OpenCell(app_, grid_, box_);
    app_.desk.setFocus(box_);
}

void GridOverlay::showHint() {
    const auto col = static_cast<std::size_t>(grid().col());
    app_.desk.setPanel(HintPanel, col < columns_.size() ? columns_[col].hint : std::string_view{});
}

Rule GridOverlay::ruleOf(int row, int col) const {
    if (rules_.ruleOf) {
        return rules_.ruleOf(row, col);
    }
    const auto index = static_cast<std::size_t>(col);
    return index < columns_.size() ? columns_[index].rule : Rule{};
}

// What a person does on the grid.

void GridOverlay::onCellChange() {
    if (guard_) {
        return;
    }
    showHint();
    if (rules_.opensOnSelect) {
        open();
    }
    if (rules_.moved) {
        rules_.moved();
    }
}

void GridOverlay::onGridKeyDown(int code) {
    if (code == keys::Insert) {
        insertRow();
    } else if (code == keys::Delete) {
        deleteRow();
    } else if (code == keys::F2) {
        open();
    }
}

void GridOverlay::onGridKeyPress(int character) {
    open();
    if (character != EnterCharacter && app_.desk.focus() == &box_) {
        app_.desk.sendKeys(std::string(1, static_cast<char>(character)));
    }
}

void GridOverlay::insertRow() {
    if (rules_.insertRow) {
        rules_.insertRow();
    } else {
        grid().addItem(rules_.newRow, grid().row());
    }
}

void GridOverlay::deleteRow() {
    if (rules_.deleteRow) {
        rules_.deleteRow();
    } else if (grid().rows() > 1) {
        grid().removeItem(grid().row());
    }
}

// Keys in the overlay.

void GridOverlay::moveOn(int row, int col) {
    // The grid stands on the next cell already when the box is left; it hears of the move when the old cell is in order.
    grid().setRow(row);
    grid().setCol(col);
    grid().select({row, row, col, col});
    const bool another = grid().row() != app_.GridRow || grid().col() != app_.GridCol;
    if (!app_.desk.setFocus(grid_)) {
        return;
    }
    revealCurrentRow(grid_);
    if (another && grid_.on.cellChange) {
        const auto changed = grid_.on.cellChange;
        changed();
    }
}

void GridOverlay::arrived() {
    if (rules_.opensOnSelect) {
        onCellChange();
    }
}

void GridOverlay::cellArrow(int code) {
    const int row = grid().row();
    if (code == keys::Up && row > grid().fixedRows()) {
        moveOn(row - 1, grid().col());
    } else if (code == keys::Down && row < grid().rows() - 1) {
        moveOn(row + 1, grid().col());
    } else if (const int col = grid().col(); app_.desk.setFocus(grid_) && grid().col() != col) {
        arrived();
    }
}

void GridOverlay::cellEnter(int& character) {
    if (character != EnterCharacter) {
        return;
    }
    character = 0;
    const int row = grid().row();
    if (grid().col() < grid().cols() - 1) {
        moveOn(row, grid().col() + 1);
        return;
    }
    if (row >= grid().rows() - 1) {
        if (!rules_.growsByEnter) {
            app_.desk.setFocus(grid_);
            return;
        }
        grid().addItem(" ");
    }
    moveOn(row + 1, grid().fixedCols());
}

// Leaving the overlay.

bool GridOverlay::cellIsGone() const { return app_.GridRow >= grid().rows() || app_.GridCol >= grid().cols(); }

void GridOverlay::commit() {
    if (cellIsGone()) { // a menu command took the row away under the open box
        flags_.FieldChanged = false;
        box_.visible = false;
        if (rules_.closed) {
            rules_.closed();
        }
        return;
    }
    const int row = grid().row();
    const int col = grid().col();
    guard_ = true;
    grid().setRow(app_.GridRow);
    grid().setCol(app_.GridCol);
    const bool edited = std::exchange(flags_.FieldChanged, false);
    if (edited) {
        flags_.FormChanged = true;
    }
    const bool taking = edited || !rules_.editedOnly;
    flags_.FieldText = box_.text().text;
    if (taking && checkEntry(flags_.FieldText, ruleOf(app_.GridRow, app_.GridCol), app_.messages())) {
        refuse();
        return;
    }
    if (taking) {
        take(flags_.FieldText);
    }
    box_.visible = false;
    const bool still = row == app_.GridRow && col == app_.GridCol;
    grid().setRow(row < grid().rows() ? row : grid().rows() - 1);
    grid().setCol(col);
    guard_ = false;
    if (taking && still && rules_.rightWhenStill) {
        goRight(row, col);
    }
    if (rules_.closed) {
        rules_.closed();
    }
}

void GridOverlay::goRight(int row, int col) {
    if (col >= grid().cols() - 1) {
        return;
    }
    wentRight_ = dummy_ != nullptr && app_.desk.focus() == dummy_;
    if (!rules_.opensOnSelect) {
        app_.desk.moveCell(grid_, row, col + 1);
        return;
    }
    // The next cell opens when the focus has come to the grid; on the way to another control nothing is to open.
    grid().setCol(col + 1);
    grid().select({row, row, col + 1, col + 1});
}

void GridOverlay::refuse() {
    guard_ = false;
    grid().select({app_.GridRow, app_.GridRow, app_.GridCol, app_.GridCol});
    box_.setText(flags_.FieldText);
    box_.selectText(0, static_cast<int>(box_.text().text.size()));
    if (rules_.refused) {
        rules_.refused(app_.GridRow, app_.GridCol);
    }
    app_.desk.setFocus(box_);
}

void GridOverlay::take(std::string text) {
    if (rules_.accepted) {
        rules_.accepted(app_.GridRow, app_.GridCol, text);
    }
    grid().setText(app_.GridRow, app_.GridCol, text);
    if (rules_.blankRowBelow && app_.GridRow == grid().rows() - 1 && !text.empty()) {
        grid().addItem(rules_.blankRow);
    }
}

} // namespace kov
