#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace kov {

/// The six files that were opened or saved last, 1 the newest. Blank entries stand behind the others.
class RecentFiles {
public:
    static constexpr std::size_t Most = 6;

    /// Entry 1 to 6; another number is a std::out_of_range.
    [[nodiscard]] const std::string& at(std::size_t number) const;
    void set(std::size_t number, std::string path);
    /// Puts a path in front; entries behind its old place don't move, and the oldest falls off when it is new. False when it
    /// stands in front already.
    [[nodiscard]] bool moveToFront(const std::string& path);

private:
    std::array<std::string, Most + 1> paths_; // index 0 is not used
};

} // namespace kov
