#pragma once

#include "core/cards/card_io.hpp"

#include <initializer_list>
#include <string>
#include <string_view>

namespace kov::rail_test {

/// A line of fields of ten columns each.
inline std::string card(std::initializer_list<std::string_view> fields) {
    std::string line;
    for (const auto field : fields) {
        line += Fixed<10>(field).view();
    }
    return line;
}

/// Lines to the text of a file.
inline std::string file(std::initializer_list<std::string> lines) {
    std::string text;
    for (const auto& line : lines) {
        text += line + "\n";
    }
    return text;
}

/// Pieces of a file put together.
inline std::string joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const auto part : parts) {
        text += part;
    }
    return text;
}

/// A text and blanks up to that many columns.
inline std::string padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

/// What a writing routine puts into a file.
template <typename Write> std::string written(Write&& write) {
    CardWriter writer;
    write(writer);
    return writer.take();
}

/// True when nothing but the end of the file is left.
inline bool allRead(CardReader& reader) {
    Card8 next;
    return !ReadCard8(reader, next);
}

} // namespace kov::rail_test
