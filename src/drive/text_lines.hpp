#pragma once

#include <string_view>
#include <vector>

namespace kov::drive {

/// The lines of a file, which end with LF or CR LF; the last one's end may be missing.
[[nodiscard]] inline std::vector<std::string_view> linesOf(std::string_view content) {
    std::vector<std::string_view> lines;
    while (!content.empty()) {
        const auto end = content.find('\n');
        auto line = content.substr(0, end);
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
    }
    return lines;
}

[[nodiscard]] inline std::string_view withoutTrailingBlanks(std::string_view line) {
    const auto last = line.find_last_not_of(' ');
    return line.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

} // namespace kov::drive
