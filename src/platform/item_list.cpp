#include "platform/item_list.hpp"

#include <stdexcept>

namespace kov {

void ItemList::clear() {
    items_.clear();
    index_ = -1;
    ++revision_;
}

void ItemList::addItem(std::string_view text, std::optional<int> before) {
    const int place = before.value_or(count());
    if (place < 0 || place > count()) {
        throw std::out_of_range("Invalid property array index");
    }
    items_.insert(items_.begin() + place, {std::string(text), false});
    index_ += index_ >= place ? 1 : 0;
    ++revision_;
}

void ItemList::removeItem(int index) {
    static_cast<void>(item(index));
    items_.erase(items_.begin() + index);
    if (index_ == index) {
        index_ = -1;
    } else if (index_ > index) {
        --index_;
    }
    ++revision_;
}

const std::string& ItemList::item(int index) const { return items_.at(static_cast<std::size_t>(index)).text; }

void ItemList::setItem(int index, std::string_view text) {
    items_.at(static_cast<std::size_t>(index)).text = text;
    ++revision_;
}

void ItemList::setIndex(int index) {
    if (index < -1 || index >= count()) {
        throw std::out_of_range("Invalid property array index");
    }
    index_ = index;
    ++revision_;
}

bool ItemList::selected(int index) const { return items_.at(static_cast<std::size_t>(index)).selected; }

void ItemList::setSelected(int index, bool selected) {
    items_.at(static_cast<std::size_t>(index)).selected = selected;
    ++revision_;
}

} // namespace kov
