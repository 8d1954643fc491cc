#pragma once

#include "core/cards/failure.hpp"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kov {

/// A place in a `Collection`, counted from 1. A type of its own, so that a grid row (counted from 0) can't stand in for it.
struct Position {
    std::int32_t value = 0;
    constexpr explicit Position(std::int32_t place) : value(place) {}
    friend constexpr auto operator<=>(const Position&, const Position&) = default;
};

/// An ordered list numbered from 1 whose elements may be shared with a window that shows them or with another list.
/// A position outside 1 to `count()` is a Failure.
template <typename T> class Collection {
public:
    using Pointer = std::shared_ptr<T>;

    [[nodiscard]] std::int16_t count() const { return static_cast<std::int16_t>(items_.size()); }
    [[nodiscard]] std::size_t size() const { return items_.size(); }
    [[nodiscard]] bool empty() const { return items_.empty(); }

    [[nodiscard]] const Pointer& at(Position position) const { return items_[checked(position)]; }

    void append(Pointer item) { items_.push_back(std::move(item)); }
    void insertBefore(Position position, Pointer item) {
        items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(checked(position)), std::move(item));
    }
    void insertAfter(Position position, Pointer item) {
        items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(checked(position)) + 1, std::move(item));
    }
    void remove(Position position) { items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(checked(position))); }
    void clear() { items_.clear(); }
    void reserve(std::size_t count) { items_.reserve(count); }

    /// The place of that very object, or 0 when it isn't here.
    [[nodiscard]] std::int32_t find(const T& item) const {
        for (std::size_t i = 0; i < items_.size(); ++i) {
            if (items_[i].get() == &item) {
                return static_cast<std::int32_t>(i) + 1;
            }
        }
        return 0;
    }

    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }

private:
    [[nodiscard]] std::size_t checked(Position position) const {
        if (position.value < 1 || static_cast<std::size_t>(position.value) > items_.size()) {
            throw Failure("Subscript out of range");
        }
        return static_cast<std::size_t>(position.value) - 1;
    }

    std::vector<Pointer> items_;
};

} // namespace kov
