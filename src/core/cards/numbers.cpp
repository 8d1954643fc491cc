#include "core/cards/numbers.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/fixed.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace kov {
namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The characters of a number, in the form that `std::from_chars` reads.
class NumberText {
public:
    void add(char c) { text_ += c; }
    [[nodiscard]] double value() const {
        double result = 0;
        const auto* first = text_.data();
        const auto* last = first + text_.size();
        const auto [end, error] = std::from_chars(first, last, result);
        if (error == std::errc::result_out_of_range) {
            return outOfRange();
        }
        return error == std::errc{} ? result : 0;
    }

private:
    // from_chars leaves the value alone when it can't hold it: too small is zero, too large is infinite.
    [[nodiscard]] double outOfRange() const {
        const double size = placeOfFirstDigit() < 0 ? 0.0 : std::numeric_limits<double>::infinity();
        return text_.front() == '-' ? -size : size;
    }
    /// How many places the first digit that isn't 0 stands ahead of the point, once the exponent has moved it.
    [[nodiscard]] std::int64_t placeOfFirstDigit() const {
        const auto mark = std::min(text_.find('e'), text_.size());
        const auto point = std::min(text_.find('.'), mark);
        const auto digit = std::min(text_.find_first_of("123456789"), mark);
        return static_cast<std::int64_t>(point) - static_cast<std::int64_t>(digit) + exponentFrom(mark);
    }
    [[nodiscard]] std::int64_t exponentFrom(std::size_t mark) const {
        if (mark == text_.size()) {
            return 0;
        }
        constexpr std::int64_t tooLong = std::int64_t{1} << 60; // from_chars leaves it so when it can't hold the exponent
        std::int64_t exponent = text_[mark + 1] == '-' ? -tooLong : tooLong;
        std::from_chars(text_.data() + mark + 1, text_.data() + text_.size(), exponent);
        return exponent;
    }
    std::string text_;
};

/// Walks through a number text, optionally over blanks, and collects sign, digits, point and exponent.
class Scanner {
public:
    Scanner(std::string_view text, bool skipBlanks, bool groups) : text_(text), skipBlanks_(skipBlanks), groups_(groups) {}

    /// True when a number stood at the start.
    bool scan() {
        if (peek() == '-') {
            number_.add('-');
        }
        if (peek() == '-' || peek() == '+') {
            ++at_;
        }
        const bool whole = digits(groups_);
        bool fraction = false;
        if (peek() == '.') {
            ++at_;
            number_.add('.');
            fraction = digits(false);
        }
        if (!whole && !fraction) {
            return false;
        }
        exponent();
        return true;
    }
    [[nodiscard]] double value() const { return number_.value(); }
    [[nodiscard]] bool atEnd() { return peek() == '\0' && at_ >= text_.size(); }

private:
    char peek() {
        while (skipBlanks_ && at_ < text_.size() && text_[at_] == ' ') {
            ++at_;
        }
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    bool digits(bool groups) {
        bool any = false;
        for (char c = peek(); isDigit(c) || (groups && any && c == ','); c = peek()) {
            if (isDigit(c)) {
                number_.add(c);
                any = true;
            }
            ++at_;
        }
        return any;
    }
    void exponent() {
        const char letter = peek();
        if (letter != 'E' && letter != 'e' && letter != 'D' && letter != 'd') {
            return;
        }
        const auto before = at_;
        ++at_;
        const char sign = peek();
        if (sign == '-' || sign == '+') {
            ++at_;
        }
        if (!isDigit(peek())) {
            at_ = before;
            return;
        }
        number_.add('e');
        if (sign == '-') {
            number_.add('-');
        }
        digits(false);
    }

    std::string_view text_;
    bool skipBlanks_;
    bool groups_;
    std::size_t at_ = 0;
    NumberText number_;
};

template <typename Integer> Integer rounded(double value) {
    constexpr double lowest = std::numeric_limits<Integer>::min();
    constexpr double highest = std::numeric_limits<Integer>::max();
    if (value >= lowest && value <= highest) {
        const auto cut = static_cast<Integer>(value);
        if (cut == value) {
            return cut; // whole as nearly all are: nothing to round
        }
    }
    const double whole = std::nearbyint(value); // the default rounding mode is half to even
    if (!(whole >= lowest && whole <= highest)) {
        throw Failure("Overflow");
    }
    return static_cast<Integer>(whole);
}

/// The most common field by far: blanks, an optional minus sign and a few digits. False when the text is anything else.
bool plainInteger(std::string_view text, double& value) {
    text = trim(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) {
        text.remove_prefix(1);
    }
    if (text.empty() || text.size() > 9) {
        return false;
    }
    std::int32_t whole = 0;
    for (const char c : text) {
        if (!isDigit(c)) {
            return false;
        }
        whole = whole * 10 + (c - '0');
    }
    value = negative ? -whole : whole;
    return true;
}

} // namespace

std::string plainNumber(std::int64_t value) {
    std::array<char, 24> buffer{};
    buffer[0] = ' ';
    auto* first = value < 0 ? buffer.data() : buffer.data() + 1;
    const auto end = std::to_chars(first, buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

std::string bareNumber(std::int64_t value) { return std::to_string(value); }

std::string plainNumber(double value) {
    // Fifteen digits are what a double holds for certain; the text is the shortest one within them.
    std::array<char, 48> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15).ptr;
    std::string text(buffer.data(), end);
    const bool negative = text.front() == '-';
    if (negative) {
        text.erase(0, 1);
    }
    if (text.starts_with("0.")) {
        text.erase(0, 1);
    }
    if (const auto exponent = text.find('e'); exponent != std::string::npos) {
        text[exponent] = 'E';
    }
    if (value == 0) {
        return " 0";
    }
    return (negative ? "-" : " ") + text;
}

bool isNumeric(std::string_view text) {
    text = trim(text);
    Scanner scanner(text, false, true);
    return !text.empty() && scanner.scan() && scanner.atEnd();
}

double fieldValue(std::string_view text) {
    double value = 0;
    if (plainInteger(text, value)) {
        return value;
    }
    Scanner scanner(text, true, false);
    return scanner.scan() ? scanner.value() : 0;
}

double strictValue(std::string_view text) {
    text = trim(text);
    Scanner scanner(text, false, true);
    if (text.empty() || !scanner.scan() || !scanner.atEnd()) {
        throw Failure("Type mismatch");
    }
    const double value = scanner.value();
    if (!std::isfinite(value)) {
        throw Failure("Overflow");
    }
    return value;
}

std::int16_t toInt16(double value) { return rounded<std::int16_t>(value); }
std::int32_t toInt32(double value) { return rounded<std::int32_t>(value); }

} // namespace kov
