#pragma once

#include "core/cards/collection.hpp"
#include "core/cards/fixed.hpp"
#include "core/cards/numbers.hpp"
#include "platform/grid.hpp"

#include <cstdint>
#include <string>

namespace kov {

/// The cells of one grid row, put together from left to right: texts with all their blanks, integers as plain number text.
class RowText {
public:
    template <std::size_t N> RowText& cell(const Fixed<N>& text) { return add(text.view()); }
    RowText& cell(std::int16_t value) { return add(plainNumber(value)); }
    RowText& cell(std::int32_t value) { return add(plainNumber(value)); }
    [[nodiscard]] const std::string& text() const { return text_; }

private:
    RowText& add(std::string_view cell) {
        if (!first_) {
            text_ += '\t';
        }
        first_ = false;
        text_ += cell;
        return *this;
    }
    std::string text_;
    bool first_ = true;
};

/// Fills a grid with one row for each element and one blank row behind them.
template <typename Element, typename FillRow> void fillGrid(Grid& grid, const Collection<Element>& list, FillRow&& fillRow) {
    grid.addItem(" ", 0);
    grid.setRows(1);
    for (const auto& element : list) {
        RowText row;
        fillRow(row, *element);
        grid.addItem(row.text());
    }
    if (grid.rows() >= 2) {
        grid.removeItem(0);
        grid.addItem(" ");
    }
}

} // namespace kov
