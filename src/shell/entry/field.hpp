#pragma once

#include "core/dataset/dataset.hpp"

#include <cstdint>
#include <string_view>

namespace kov {

enum class FieldKind : std::uint8_t { Text, Real, Integer, LongInteger, Check };

/// How an entry is checked: its kind, and the limits, inclusive, of a number.
struct Rule {
    FieldKind kind = FieldKind::Text;
    double low = 0;
    double high = 0;
};

[[nodiscard]] constexpr Rule text() { return {}; }
[[nodiscard]] constexpr Rule checkBox() { return {FieldKind::Check, 0, 0}; }
[[nodiscard]] constexpr Rule real(double low, double high) { return {FieldKind::Real, low, high}; }
[[nodiscard]] constexpr Rule integer(double low, double high) { return {FieldKind::Integer, low, high}; }
/// An integer that may need more than 16 bits.
[[nodiscard]] constexpr Rule longInteger(double low, double high) { return {FieldKind::LongInteger, low, high}; }

/// One entry field of a window: what the engineer sees of it, how it is checked, and, for the ten-column reals of the data set,
/// where it is kept. Layout, hints, checks, load, store and the help pages all read this.
struct Field {
    std::string_view control;
    std::string_view caption;
    std::string_view unit;
    Rule rule;
    std::string_view hint;
    Fixed<10> KOVDataSet::*member = nullptr;
    std::string_view place; ///< Form and columns of the card
};

/// One column of a grid: what stands over it, how its cells are checked, and where they are kept.
struct Column {
    std::string_view caption;
    std::string_view unit;
    Rule rule;
    std::string_view hint;
    std::string_view place; ///< Form and columns of the card
};

} // namespace kov
