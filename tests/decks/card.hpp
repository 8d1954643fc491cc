#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kov::decks {

/// How the cards of a deck look: as the program prints them, or as an engineer types them.
enum class Hand : std::uint8_t { Tidy, Ragged };

/// Chance, the same on every machine for a seed.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}
    /// A whole number from `low` to `high`.
    int between(int low, int high) { return low + static_cast<int>(engine_() % static_cast<std::uint32_t>(high - low + 1)); }
    /// True once in `times`.
    bool once(int times) { return between(1, times) == 1; }
    template <typename T> const T& oneOf(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(between(0, static_cast<int>(choices.size()) - 1))];
    }

private:
    std::mt19937 engine_;
};

/// One line of a deck, with what a test wants to know of it.
struct Line {
    std::string text;
    std::string form;                  ///< the Form that a reader names when this line is missing or bad
    std::vector<std::size_t> integers; ///< where its 16-bit integer fields begin, counted from 0
};

/// A line that is put together field by field.
class Card {
public:
    Card(Dice& dice, Hand hand, std::string form) : dice_(dice), hand_(hand) { line_.form = std::move(form); }

    /// A 16-bit integer in ten columns.
    Card& integer(int value);
    /// An integer that a reader doesn't check for 16 bits.
    Card& looseInteger(int value);
    /// A whole number printed with a point.
    Card& wholeReal(int value);
    /// A real in ten columns, of thousandths from `low` to `high`.
    Card& real(int low = 0, int high = 5000000);
    /// A real given in the form in which it is printed.
    Card& realText(std::string_view text) { return fixed(text, 10); }
    /// Text cut or padded to a width.
    Card& fixed(std::string_view text, std::size_t width);
    /// Text as it stands.
    Card& plain(std::string_view text);
    Card& blanks(std::size_t width) { return fixed("", width); }
    /// The finished line. A typed one may be short of its trailing blanks, or bear a remark behind its fields.
    Line line(bool mayBearRemark = true);

private:
    std::string integerText(int value);
    std::string realText(int thousandths);
    Dice& dice_;
    Hand hand_;
    Line line_;
};

} // namespace kov::decks
