#pragma once

#include <string>

namespace kov {

/// The file that is being edited.
struct CurrentFile {
    std::string KOVName;      ///< full path; empty when there is none
    std::string KOVShortName; ///< its name without the folder; the full path when it came through the recent list
};

} // namespace kov
