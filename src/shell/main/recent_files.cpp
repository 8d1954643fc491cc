#include "shell/main/recent_files.hpp"

#include "core/cards/fixed.hpp"

#include <stdexcept>
#include <utility>

namespace kov {

const std::string& RecentFiles::at(std::size_t number) const {
    if (number < 1) {
        throw std::out_of_range("recent file 0");
    }
    return paths_.at(number);
}

void RecentFiles::set(std::size_t number, std::string path) {
    static_cast<void>(at(number));
    paths_[number] = std::move(path);
}

bool RecentFiles::moveToFront(const std::string& path) {
    if (path == paths_[1]) {
        return false;
    }
    std::size_t place = 2;
    while (place < Most && paths_[place] != path && !trim(paths_[place]).empty()) {
        ++place;
    }
    for (auto i = place; i >= 2; --i) {
        paths_[i] = paths_[i - 1];
    }
    paths_[1] = path;
    return true;
}

} // namespace kov
