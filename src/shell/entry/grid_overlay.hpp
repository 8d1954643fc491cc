#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/field.hpp"
#include "shell/entry/field_cycle.hpp"

#include <functional>
#include <span>
#include <string>

namespace kov {

/// The current row of a grid as text: all its cells, parted by tabs.
[[nodiscard]] std::string GridRowText(const Grid& grid);

/// Lays a box over the current cell of a grid, with the cell's text selected, and records the cell in `GridRow`, `GridCol`.
void OpenCell(Application& app, Control& grid, Control& box);

/// Lays any control over the current cell of a grid, as `OpenCell` does, and makes it visible; the cell is scrolled into sight.
/// A drop-down list keeps its height.
void LayOverCell(Application& app, Control& grid, Control& control);

/// How a window's grid differs from the common way.
struct OverlayRules {
    bool opensOnSelect = true;   ///< a click, or another current cell, opens the overlay at once
    bool rightWhenStill = false; ///< leaving the overlay without having moved the grid moves it one column to the right
    bool growsByEnter = true;    ///< Enter in the last cell of the last row adds a row
    bool blankRowBelow = true;   ///< a text typed into the last row adds an empty row
    bool editedOnly = false;     ///< an overlay that nobody typed into just closes: no check, nothing taken
    std::string blankRow;        ///< what that empty row holds
    std::string newRow;          ///< the row that the key Insert adds, its cells parted by tabs
    /// Another rule than the column's for a cell.
    std::function<Rule(int row, int col)> ruleOf;
    /// A cell passed its check and is about to take the text; may change the text. Runs with the grid on that cell.
    std::function<void(int row, int col, std::string& text)> accepted;
    /// The overlay was left, the cell taken or not changed; the grid is back on its cell.
    std::function<void()> closed;
    std::function<void(int row, int col)> refused;
    /// Another cell is current, by the person's move.
    std::function<void()> moved;
    /// Opens something else over the current cell, or nothing; true when the text box stays closed.
    std::function<bool(int row, int col)> openInstead;
    std::function<void()> insertRow; ///< instead of adding `newRow`
    std::function<void()> deleteRow; ///< instead of removing the current row
};

/// The one way to change a grid's cells: a text box laid over the current cell. Enter walks along the row, the arrows up and
/// down the column; leaving the box checks the cell, and a refused one takes the focus back.
class GridOverlay {
public:
    GridOverlay(Application& app, EntryFlags& flags, Control& grid, Control& box, std::span<const Column> columns,
                OverlayRules rules = {});
    GridOverlay(const GridOverlay&) = delete;
    GridOverlay& operator=(const GridOverlay&) = delete;

    /// The tiny box behind the overlay in the tab order: on focus the grid has it back, one cell to the right.
    void bindDummy(Control& dummy);
    /// Opens the overlay on the current cell and gives it the focus.
    void open();
    [[nodiscard]] bool isOpen() const { return box_.visible; }
    /// While it is raised, the program's own moves of the grid open nothing.
    void setGuard(bool raised) { guard_ = raised; }
    void insertRow();
    void deleteRow();
    /// The hint of the current column into panel 2.
    void showHint();

private:
    void onGridKeyDown(int code);
    void onGridKeyPress(int character);
    void onCellChange();
    void cellArrow(int code);
    void cellEnter(int& character);
    void moveOn(int row, int col);
    void commit();
    [[nodiscard]] bool cellIsGone() const;
    void refuse();
    void goRight(int row, int col);
    void arrived();
    void take(std::string text);
    [[nodiscard]] Rule ruleOf(int row, int col) const;
    [[nodiscard]] Grid& grid() const { return grid_.grid(); }

    Application& app_;
    EntryFlags& flags_;
    Control& grid_;
    Control& box_;
    std::span<const Column> columns_;
    OverlayRules rules_;
    bool guard_ = false;
    Control* dummy_ = nullptr;
    bool wentRight_ = false; // on the way to the dummy: the move to the right is done
};

} // namespace kov
