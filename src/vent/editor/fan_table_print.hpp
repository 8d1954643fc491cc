#pragma once

#include "platform/grid.hpp"
#include "platform/services.hpp"

#include <string>
#include <string_view>

namespace kov {

/// A row of the fan table as it is printed: every cell padded and cut to its column's width, between bars.
[[nodiscard]] std::string fanTableLine(const Grid& grid, int row);

/// Prints the fan table: a heading with the file's name and the system identification, then one line a row.
void printFanTable(Printer& printer, const Grid& grid, const std::string& fileName, std::string_view systemId);

} // namespace kov
