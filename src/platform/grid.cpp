#include "platform/grid.hpp"

#include <algorithm>
#include <stdexcept>

namespace kov {

void Grid::requireRow(int row) const {
    if (row < 0 || row >= rows()) {
        throw std::out_of_range("Invalid row value");
    }
}

void Grid::requireCol(int col) const {
    if (col < 0 || col >= cols()) {
        throw std::out_of_range("Invalid column value");
    }
}

void Grid::setRows(int count) {
    cells_.resize(static_cast<std::size_t>(std::max(count, 1)));
    row_ = std::min(row_, rows() - 1);
    topRow_ = std::min(topRow_, rows() - 1);
    ++revision_;
}

void Grid::setCols(int count) {
    widths_.resize(static_cast<std::size_t>(std::max(count, 1)), Twips{960});
    col_ = std::min(col_, cols() - 1);
    ++revision_;
}

void Grid::setRow(int row) {
    requireRow(row);
    row_ = row;
}

void Grid::setCol(int col) {
    requireCol(col);
    col_ = col;
}

void Grid::setTopRow(int row) {
    requireRow(row);
    topRow_ = row;
}

const std::string& Grid::text(int row, int col) const {
    static const std::string never;
    requireRow(row);
    requireCol(col);
    const auto& cells = cells_[static_cast<std::size_t>(row)];
    const auto index = static_cast<std::size_t>(col);
    return index < cells.size() ? cells[index] : never;
}

void Grid::setText(int row, int col, std::string_view text) {
    requireRow(row);
    requireCol(col);
    auto& cells = cells_[static_cast<std::size_t>(row)];
    const auto index = static_cast<std::size_t>(col);
    if (index >= cells.size()) {
        cells.resize(index + 1);
    }
    cells[index] = text;
    ++revision_;
}

std::string Grid::line(int row) const {
    requireRow(row);
    std::string joined;
    bool first = true;
    for (const auto& cell : cells_[static_cast<std::size_t>(row)]) {
        joined += first ? "" : "\t";
        joined += cell;
        first = false;
    }
    return joined;
}

void Grid::addItem(std::string_view text, std::optional<int> before) {
    std::vector<std::string> cells;
    cells.reserve(std::min(widths_.size(), static_cast<std::size_t>(std::count(text.begin(), text.end(), '\t')) + 1));
    for (std::size_t start = 0; start <= text.size() && cells.size() < widths_.size();) {
        const auto tab = std::min(text.find('\t', start), text.size());
        cells.emplace_back(text.substr(start, tab - start));
        start = tab + 1;
    }
    if (before) {
        if (*before < 0 || *before > rows()) {
            throw std::out_of_range("Invalid row value");
        }
        cells_.insert(cells_.begin() + *before, std::move(cells));
    } else {
        cells_.push_back(std::move(cells));
    }
    ++revision_;
}

void Grid::removeItem(int row) {
    requireRow(row);
    ++revision_;
    if (rows() == 1) {
        cells_[0].clear();
        return;
    }
    cells_.erase(cells_.begin() + row);
    row_ = std::min(row_, rows() - 1);
    topRow_ = std::min(topRow_, rows() - 1);
}

void Grid::setFixed(int rows, int cols) {
    fixedRows_ = rows;
    fixedCols_ = cols;
    ++revision_;
}

Twips Grid::colWidth(int col) const {
    requireCol(col);
    return widths_[static_cast<std::size_t>(col)];
}

void Grid::setColWidth(int col, Twips width) {
    requireCol(col);
    widths_[static_cast<std::size_t>(col)] = width;
    ++revision_;
}

Twips Grid::colPos(int col) const {
    requireCol(col);
    Twips place;
    for (int c = 0; c < col; ++c) {
        place = place + colWidth(c);
    }
    return place;
}

Twips Grid::rowPos(int row) const {
    requireRow(row);
    return rowHeight_ * (row - topRow_);
}

} // namespace kov
