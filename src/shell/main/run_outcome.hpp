#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kov {

/// What an exit code of the simulation tells the engineer.
struct RunOutcome {
    std::string message; ///< lines joined by CR LF
    int icon = 64;       ///< message box icon: information, or stop for a code that is not in the table
};

/// The message of an exit code; `inputPath` is named when the simulation couldn't open it.
[[nodiscard]] RunOutcome runOutcome(std::int32_t exitCode, std::string_view inputPath);

/// The two output files of a run.
struct ListingFiles {
    std::string temporary; ///< ".tmp": there until the listing is formatted
    std::string listing;   ///< ".prn"
};

/// A three-letter extension is replaced; to any other name the new extension is added.
[[nodiscard]] ListingFiles listingFiles(std::string_view inputPath);

} // namespace kov
