#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// The entries of a list box or drop-down list, the current one and, where several can be chosen, the chosen ones.
/// Entries are counted from 0; -1 is none.
class ItemList {
public:
    void clear();
    /// At the end, or ahead of the entry `before`; the current entry stays the same one.
    void addItem(std::string_view text, std::optional<int> before = std::nullopt);
    /// An entry that doesn't exist is a std::out_of_range, here and below.
    void removeItem(int index);
    [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
    [[nodiscard]] const std::string& item(int index) const;
    void setItem(int index, std::string_view text);

    [[nodiscard]] int index() const { return index_; }
    void setIndex(int index);
    [[nodiscard]] bool selected(int index) const;
    void setSelected(int index, bool selected);

    [[nodiscard]] std::size_t revision() const { return revision_; }

private:
    struct Item {
        std::string text;
        bool selected = false;
    };
    std::vector<Item> items_;
    int index_ = -1;
    std::size_t revision_ = 0;
};

} // namespace kov
