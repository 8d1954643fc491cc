#include "vent/editor/fan_table_print.hpp"

#include "core/cards/fixed.hpp"

#include <array>
#include <cstddef>

namespace kov {
namespace {

constexpr std::array<std::size_t, 6> PrintWidths{10, 20, 20, 6, 6, 12};
// Two characters stand free before a line, which begins at the third column.
constexpr double LineColumn = 3;

/// Lines of text down the page, and on to the next.
class Paper {
public:
    explicit Paper(Printer& printer) : printer_(printer), height_(printer.textHeight("X")) {}

    void print(const std::string& text, double column = 1) {
        if ((y_ + height_).value > printer_.pageHeight().value) {
            printer_.newPage();
            y_ = Twips{};
        }
        if (!text.empty()) {
            printer_.print(printer_.textWidth("X") * (column - 1), y_, text);
        }
        y_ = y_ + height_;
    }

private:
    Printer& printer_;
    Twips height_;
    Twips y_;
};

} // namespace

std::string fanTableLine(const Grid& grid, int row) {
    std::string line;
    for (std::size_t col = 0; col < PrintWidths.size(); ++col) {
        std::string cell = grid.text(row, static_cast<int>(col));
        cell.resize(PrintWidths.at(col), ' ');
        line.append("| ").append(cell);
    }
    return line + " |";
}

void printFanTable(Printer& printer, const Grid& grid, const std::string& fileName, std::string_view systemId) {
    printer.begin("Fan Table");
    printer.setFont("Courier New", 10, false);
    Paper paper(printer);
    paper.print("");
    paper.print("Fan Table for " + fileName);
    paper.print(std::string(trimRight(systemId)));
    paper.print("");
    paper.print("");
    for (int row = 0; row < grid.rows(); ++row) {
        paper.print(fanTableLine(grid, row), LineColumn);
    }
    printer.end();
}

} // namespace kov
