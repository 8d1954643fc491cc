#include "platform/windows1252.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kov {
namespace {

constexpr char32_t FirstOwn = 0x80, LastOwn = 0x9F;

// The characters of the bytes 80 to 9F; all others are their own number.
constexpr std::array<char32_t, 32> Own{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                       0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                       0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t characterOf(unsigned char byte) { return byte >= FirstOwn && byte <= LastOwn ? Own.at(byte - FirstOwn) : byte; }

std::optional<char> byteOf(char32_t character) {
    if (character < FirstOwn || (character > LastOwn && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* const found = std::find(Own.begin(), Own.end(), character);
    if (found == Own.end()) {
        return std::nullopt;
    }
    return static_cast<char>(FirstOwn + static_cast<char32_t>(found - Own.begin()));
}

void append(std::string& utf8, char32_t character) {
    if (character < 0x80) {
        utf8 += static_cast<char>(character);
    } else if (character < 0x800) {
        utf8 += static_cast<char>(0xC0 | (character >> 6));
        utf8 += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        utf8 += static_cast<char>(0xE0 | (character >> 12));
        utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        utf8 += static_cast<char>(0x80 | (character & 0x3F));
    }
}

/// Takes one character off the front; none when the bytes are no UTF-8. Characters of four bytes are none of ours anyway.
std::optional<char32_t> takeCharacter(std::string_view& utf8) {
    const auto first = static_cast<unsigned char>(utf8.front());
    const std::size_t length = first < 0x80 ? 1 : (first & 0xE0) == 0xC0 ? 2 : (first & 0xF0) == 0xE0 ? 3 : 0;
    if (length == 0 || utf8.size() < length) {
        return std::nullopt;
    }
    char32_t character = length == 1 ? first : first & (length == 2 ? 0x1F : 0x0F);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[i]);
        if ((next & 0xC0) != 0x80) {
            return std::nullopt;
        }
        character = (character << 6) | (next & 0x3F);
    }
    if ((length == 2 && character < 0x80) || (length == 3 && character < 0x800)) {
        return std::nullopt; // written longer than need be
    }
    utf8.remove_prefix(length);
    return character;
}

} // namespace

std::string utf8OfText(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        append(utf8, characterOf(static_cast<unsigned char>(c)));
    }
    return utf8;
}

std::optional<std::string> textOfUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto character = takeCharacter(utf8);
        const auto byte = character ? byteOf(*character) : std::nullopt;
        if (!byte) {
            return std::nullopt;
        }
        text += *byte;
    }
    return text;
}

} // namespace kov
