#pragma once

#include <string>
#include <string_view>

namespace kov {

/// A path in its two parts: the folder up to and including the last separator, and the name behind it.
struct PathParts {
    std::string folder;
    std::string name;
};

/// Splits at the last backslash, or at the last '/' too where the host parts folders with it. A path without a separator has
/// an empty folder.
[[nodiscard]] PathParts SplitPath(std::string_view path);

} // namespace kov
