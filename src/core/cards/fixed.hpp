#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kov {

/// The text without its trailing blanks.
[[nodiscard]] constexpr std::string_view trimRight(std::string_view text) {
    const auto last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

/// The text without its leading blanks.
[[nodiscard]] constexpr std::string_view trimLeft(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

/// The text without its outer blanks.
[[nodiscard]] constexpr std::string_view trim(std::string_view text) { return trimLeft(trimRight(text)); }

/// A text of exactly N bytes: assigning left-justifies, pads with blanks and cuts what is too long. `Fixed<10>` is every real
/// number of the model: it stays the text that the card or the engineer wrote.
template <std::size_t N> class Fixed {
public:
    constexpr Fixed() { bytes_.fill(' '); }
    // Implicit on purpose: a text is assigned to a member as it is to any other text.
    constexpr Fixed(std::string_view text) { assign(text); } // NOLINT(google-explicit-constructor)
    constexpr Fixed(const char* text) { assign(text); }      // NOLINT(google-explicit-constructor)
    Fixed(const std::string& text) { assign(text); }         // NOLINT(google-explicit-constructor)

    constexpr void assign(std::string_view text) {
        const auto count = std::min(text.size(), N);
        std::copy_n(text.begin(), count, bytes_.begin());
        std::fill(bytes_.begin() + count, bytes_.end(), ' ');
    }

    /// All N bytes.
    [[nodiscard]] constexpr std::string_view view() const { return {bytes_.data(), N}; }
    /// Without the trailing blanks.
    [[nodiscard]] constexpr std::string_view trimmed() const { return trimRight(view()); }
    [[nodiscard]] std::string text() const { return std::string(view()); }
    [[nodiscard]] constexpr bool blank() const { return trimmed().empty(); }

    friend constexpr bool operator==(const Fixed& a, const Fixed& b) { return a.bytes_ == b.bytes_; }

private:
    std::array<char, N> bytes_;
};

} // namespace kov
