#pragma once

#include "core/cards/card_io.hpp"

#include <initializer_list>
#include <string>
#include <string_view>

namespace kov::test {

/// A card of ten-column fields.
inline std::string card(std::initializer_list<std::string_view> fields) {
    std::string line;
    for (const auto field : fields) {
        line += Fixed<10>(field).view();
    }
    return line;
}

/// A text in a field of blanks.
inline std::string padded(std::string_view text, std::size_t width) {
    std::string result(text);
    result.resize(width, ' ');
    return result;
}

/// Lines, each with its end.
inline std::string deck(std::initializer_list<std::string> lines) {
    std::string text;
    for (const auto& line : lines) {
        text += line;
        text += '\n';
    }
    return text;
}

/// What a writing routine puts into the file.
template <typename Write> std::string written(Write write) {
    CardWriter writer;
    write(writer);
    return writer.take();
}

} // namespace kov::test
