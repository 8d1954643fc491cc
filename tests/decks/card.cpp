#include "decks/card.hpp"

#include <algorithm>
#include <cstdlib>

namespace kov::decks {
namespace {

constexpr std::size_t FieldWidth = 10;

std::string rightJustified(const std::string& text) {
    return text.size() < FieldWidth ? std::string(FieldWidth - text.size(), ' ') + text : text;
}

/// "12.5", "12.", ".05", "-3.25": as an engineer writes a real that is given in thousandths.
std::string decimal(int thousandths) {
    const int size = std::abs(thousandths);
    std::string fraction = std::to_string(1000 + size % 1000).substr(1);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    const std::string whole = size >= 1000 || fraction.empty() ? std::to_string(size / 1000) : "";
    return (thousandths < 0 ? "-" : "") + whole + "." + fraction;
}

} // namespace

std::string Card::integerText(int value) {
    const std::string digits = std::to_string(value);
    if (hand_ == Hand::Tidy) {
        return value < 0 ? digits : " " + digits;
    }
    switch (dice_.between(0, 7)) {
    case 0:
        return digits;
    case 1:
        return " " + digits + ".";
    case 2:
        return rightJustified(digits + ".0");
    case 3:
        return value >= 0 ? digits + ".4" : digits;
    case 4:
        return value >= 0 && value % 2 == 0 ? digits + ".5" : " " + digits;
    case 5:
        return value > 0 && value % 10 == 0 ? std::to_string(value / 10) + "D1" : digits;
    case 6:
        return value == 0 ? "" : "  " + digits;
    default:
        return rightJustified(digits);
    }
}

std::string Card::realText(int thousandths) {
    const std::string tidy = decimal(thousandths);
    if (hand_ == Hand::Tidy) {
        return tidy;
    }
    switch (dice_.between(0, 6)) {
    case 0:
        return std::to_string(thousandths) + "E-3";
    case 1:
        return std::to_string(thousandths / 1000) + "D+01";
    case 2:
        return std::to_string(thousandths / 1000);
    case 3:
        return "  " + tidy;
    case 4:
        return dice_.once(4) ? "" : tidy + "0";
    default:
        return rightJustified(tidy);
    }
}

Card& Card::integer(int value) {
    line_.integers.push_back(line_.text.size());
    return looseInteger(value);
}

Card& Card::looseInteger(int value) { return fixed(integerText(value), FieldWidth); }

Card& Card::wholeReal(int value) { return fixed((value < 0 ? "" : " ") + std::to_string(value) + ".", FieldWidth); }

Card& Card::real(int low, int high) { return fixed(realText(dice_.between(low, high)), FieldWidth); }

Card& Card::fixed(std::string_view text, std::size_t width) {
    const auto kept = text.substr(0, width);
    line_.text.append(kept);
    line_.text.append(width - kept.size(), ' ');
    return *this;
}

Card& Card::plain(std::string_view text) {
    line_.text.append(text);
    return *this;
}

Line Card::line(bool mayBearRemark) {
    if (hand_ == Hand::Ragged) {
        static const std::vector<std::string> remarks{" (see sheet 4)", "  SHAFT no. 2", " *** checked", "    "};
        if (mayBearRemark && dice_.once(6)) {
            line_.text += dice_.oneOf(remarks);
        } else if (dice_.once(2)) {
            line_.text.erase(line_.text.find_last_not_of(' ') + 1);
        }
    }
    return std::move(line_);
}

} // namespace kov::decks
