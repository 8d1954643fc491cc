#pragma once

#include "platform/services.hpp"

#include <string>
#include <string_view>

namespace kov {

/// A card file as it goes to the printer: its content line by line, under a header and over a footer on every page.
struct PrintedFile {
    std::string_view content; ///< as it stands on disc
    std::string shortName;    ///< for the header
    std::string date;         ///< for the footer
};

/// The header line, 84 columns: what it is at the left, the file's name at the right. A long name moves left, over the title if
/// need be, until there is no column left for it; then it isn't shown.
[[nodiscard]] std::string pageHeader(std::string_view shortName);

/// Today, month, day and year: "11/21/2026".
[[nodiscard]] std::string printDate();

/// Prints the file as one document. What goes wrong at the printer ends the printing, and nothing is said of it.
void PrintFile(Printer& printer, const PrintedFile& file);

} // namespace kov
