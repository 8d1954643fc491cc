#include "drive/arguments.hpp"

#include <charconv>
#include <utility>

namespace kov::drive {
namespace {

template <typename Number> std::optional<Number> numberOf(std::string_view text) {
    Number value{};
    const auto* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc{} && result.ptr == end && !text.empty() ? std::optional(value) : std::nullopt;
}

[[noreturn]] void expected(std::string_view what, std::string_view instead) {
    throw SyntaxError("expected " + std::string(what) + ", was " + std::string(instead));
}

std::string shown(const Word& word) { return word.quoted ? inQuotes(word.text) : word.text; }

/// "NAME" or "NAME(i)".
void splitIndex(Target& target, const std::string& word) {
    const auto open = target.control.find('(');
    if (open == std::string::npos) {
        return;
    }
    const std::string_view inside = std::string_view(target.control).substr(open + 1);
    target.index = inside.ends_with(')') ? numberOf<int>(inside.substr(0, inside.size() - 1)) : std::nullopt;
    if (!target.index) {
        expected("WINDOW.CONTROL(i)", word);
    }
    target.control.resize(open);
}

} // namespace

std::string Target::text() const {
    return window + (control.empty() ? "" : "." + control) + (index ? "(" + std::to_string(*index) + ")" : "");
}

const Word& Arguments::next(const std::string& what) const {
    if (words_.empty()) {
        expected(what, "the line's end");
    }
    return words_.front();
}

Word Arguments::take(const std::string& what) {
    const auto& word = next(what);
    words_ = words_.subspan(1);
    return word;
}

bool Arguments::nextIs(std::string_view word) const {
    return !words_.empty() && !words_.front().quoted && words_.front().text == word;
}

bool Arguments::takeIf(std::string_view word) {
    const bool isNext = nextIs(word);
    if (isNext) {
        words_ = words_.subspan(1);
    }
    return isNext;
}

std::string Arguments::name(std::string_view what) {
    auto word = take(std::string(what));
    if (word.quoted) {
        expected(what, shown(word));
    }
    return std::move(word.text);
}

std::string Arguments::text(std::string_view what) {
    const auto kind = std::string(what) + " in double quotes";
    auto word = take(kind);
    if (!word.quoted) {
        expected(kind, shown(word));
    }
    return std::move(word.text);
}

std::string Arguments::key(std::string_view what) { return take(std::string(what)).text; }

int Arguments::number(std::string_view what) {
    const auto kind = "a whole number (" + std::string(what) + ")";
    const auto word = take(kind);
    const auto value = word.quoted ? std::nullopt : numberOf<int>(word.text);
    if (!value) {
        expected(kind, shown(word));
    }
    return *value;
}

int Arguments::count(std::string_view what) {
    const auto value = number(what);
    if (value < 0) {
        expected("0 or more (" + std::string(what) + ")", std::to_string(value));
    }
    return value;
}

int Arguments::ordinal(std::string_view what) {
    const auto value = number(what);
    if (value < 1) {
        expected("1 or more (" + std::string(what) + ")", std::to_string(value));
    }
    return value;
}

double Arguments::length(std::string_view what) {
    const auto kind = "a number (" + std::string(what) + ")";
    const auto word = take(kind);
    const auto value = word.quoted ? std::nullopt : numberOf<double>(word.text);
    constexpr double Most = 1e9; // also keeps out what is no number
    if (!value || !(*value > -Most && *value < Most)) {
        expected(kind, shown(word));
    }
    return *value;
}

bool Arguments::either(std::string_view first, std::string_view second) {
    const bool isFirst = takeIf(first);
    if (!isFirst && !takeIf(second)) {
        const auto both = std::string(first) + " or " + std::string(second);
        expected(both, shown(next(both)));
    }
    return isFirst;
}

bool Arguments::yesNo() { return either("yes", "no"); }

Target Arguments::controlOrWindow() {
    const auto word = name("a control or window");
    Target target;
    const auto point = word.find('.');
    target.window = word.substr(0, point);
    if (point != std::string::npos) {
        target.control = word.substr(point + 1);
        splitIndex(target, word);
        if (target.control.empty()) {
            expected("WINDOW.CONTROL", word);
        }
    }
    if (target.window.empty() || target.window.find('(') != std::string::npos) {
        expected("WINDOW or WINDOW.CONTROL", word);
    }
    return target;
}

Target Arguments::window() {
    auto target = controlOrWindow();
    if (!target.control.empty()) {
        expected("a window", target.text());
    }
    return target;
}

Target Arguments::control() {
    auto target = controlOrWindow();
    if (target.control.empty()) {
        expected("WINDOW.CONTROL", target.window);
    }
    return target;
}

void Arguments::end() const {
    if (!words_.empty()) {
        expected("the line's end", shown(words_.front()));
    }
}

} // namespace kov::drive
