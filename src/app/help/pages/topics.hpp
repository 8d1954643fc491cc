#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kov::help {

/// One line of a page's table: a field, a check box or a column of a grid.
struct HelpRow {
    /// The control as the desk names it ("tbDBAmb", "tbRate(2)"), several for boxes that are alike; "GRID.NUMBER" for a column,
    /// counted from 0.
    std::vector<std::string> anchors;
    std::string caption; ///< as on the window, without its "&"
    std::string unit;
    std::string range; ///< what the check takes
    std::string hint;
    std::string place; ///< Form and columns
};

/// One table of a page.
struct HelpTable {
    std::string title;  ///< "Fields", or what the grid is called
    std::string anchor; ///< the grid; empty for a table of fields
    std::vector<HelpRow> rows;
};

/// The help page of one window: its written introduction lies in help/WINDOW.html, its tables come from the window itself.
struct HelpTopic {
    std::string window; ///< the window's name, which is the page's name too
    std::string title;
    std::vector<int> contexts; ///< the numbers that lead here; none for a window without a number
    std::vector<HelpTable> tables;
};

/// A page about the program as a whole, written by hand from its first line to its last.
struct GuidePage {
    std::string_view name;
    std::string_view title;
};

/// In the order of the contents.
[[nodiscard]] const std::vector<HelpTopic>& topics();
[[nodiscard]] std::span<const GuidePage> guide();

} // namespace kov::help
