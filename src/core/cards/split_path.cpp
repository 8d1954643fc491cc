#include "core/cards/split_path.hpp"

#include <filesystem>

namespace kov {

PathParts SplitPath(std::string_view path) {
    constexpr bool slashParts = std::filesystem::path::preferred_separator == '/';
    const auto last = path.find_last_of(slashParts ? "\\/" : "\\");
    const auto behind = last == std::string_view::npos ? 0 : last + 1;
    return {std::string(path.substr(0, behind)), std::string(path.substr(behind))};
}

} // namespace kov
