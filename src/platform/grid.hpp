#pragma once

#include "platform/units.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// The rows and cells of a grid, its current cell and its selection. Rows and columns are counted from 0. It holds text only
/// and raises no events: the desk does that when a person moves. There is always at least one row.
class Grid {
public:
    [[nodiscard]] int rows() const { return static_cast<int>(cells_.size()); }
    [[nodiscard]] int cols() const { return static_cast<int>(widths_.size()); }
    /// New rows are empty; the current row is kept inside. Below 1 counts as 1.
    void setRows(int count);
    void setCols(int count);

    [[nodiscard]] int row() const { return row_; }
    [[nodiscard]] int col() const { return col_; }
    [[nodiscard]] int topRow() const { return topRow_; }
    /// A row or column that doesn't exist is a std::out_of_range.
    void setRow(int row);
    void setCol(int col);
    void setTopRow(int row);

    /// The text of a cell; empty where it was never filled.
    [[nodiscard]] const std::string& text(int row, int col) const;
    void setText(int row, int col, std::string_view text);
    [[nodiscard]] const std::string& currentText() const { return text(row_, col_); }
    void setCurrentText(std::string_view text) { setText(row_, col_, text); }
    /// The filled cells of a row, joined by tabs; cells never filled at its end are left out.
    [[nodiscard]] std::string line(int row) const;

    /// Adds a row whose cells are parted by tabs, ahead of row `before`, else at the end. Cells beyond the last column are
    /// lost.
    void addItem(std::string_view text, std::optional<int> before = std::nullopt);
    /// Removes a row; the only row becomes empty instead.
    void removeItem(int row);

    /// The selected block, first and last row and column.
    struct Selection {
        int startRow = 0;
        int endRow = 0;
        int startCol = 0;
        int endCol = 0;
    };
    [[nodiscard]] const Selection& selection() const { return selection_; }
    void select(const Selection& selection) { selection_ = selection; }

    /// Leading columns and rows that a person can't enter.
    [[nodiscard]] int fixedCols() const { return fixedCols_; }
    [[nodiscard]] int fixedRows() const { return fixedRows_; }
    void setFixed(int rows, int cols);

    [[nodiscard]] Twips colWidth(int col) const;
    void setColWidth(int col, Twips width);
    [[nodiscard]] Twips rowHeight() const { return rowHeight_; }
    void setRowHeight(Twips height) { rowHeight_ = height; }
    /// Where a column or row begins, from the grid's inner corner; rows above the top row have negative places.
    [[nodiscard]] Twips colPos(int col) const;
    [[nodiscard]] Twips rowPos(int row) const;

    /// Grows with every change of cells, so that a view knows that it is stale.
    [[nodiscard]] std::size_t revision() const { return revision_; }

private:
    void requireRow(int row) const;
    void requireCol(int col) const;

    std::vector<std::vector<std::string>> cells_{1};
    std::vector<Twips> widths_{Twips{960}};
    Twips rowHeight_{300};
    int row_ = 0;
    int col_ = 0;
    int topRow_ = 0;
    int fixedRows_ = 0;
    int fixedCols_ = 0;
    Selection selection_;
    std::size_t revision_ = 0;
};

} // namespace kov
