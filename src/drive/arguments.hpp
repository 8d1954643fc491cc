#pragma once

#include "drive/lexer.hpp"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kov::drive {

/// A window, or a control of one, as a script names it: `lseg`, `frmMain.tbDgnHr`, `frmMain.Command1(4)`.
struct Target {
    std::string window;
    std::string control; ///< empty: the window itself
    std::optional<int> index;

    [[nodiscard]] std::string text() const;
};

/// The words behind a command, taken one after the other. Each taker throws SyntaxError when its kind of word is not next.
class Arguments {
public:
    explicit Arguments(std::span<const Word> words) : words_(words) {}

    [[nodiscard]] bool empty() const { return words_.empty(); }
    /// The next word is exactly that one, unquoted.
    [[nodiscard]] bool nextIs(std::string_view word) const;
    /// The same, and then it is taken.
    [[nodiscard]] bool takeIf(std::string_view word);
    [[nodiscard]] bool nextIsText() const { return !words_.empty() && words_.front().quoted; }

    std::string name(std::string_view what);
    std::string text(std::string_view what);
    /// A name that may stand in quotes too.
    std::string key(std::string_view what);
    int number(std::string_view what);
    /// A whole number that is 0 or more.
    int count(std::string_view what);
    /// A whole number counted from 1.
    int ordinal(std::string_view what);
    /// A number that may have a fraction.
    double length(std::string_view what);
    bool yesNo();
    /// One of two words; true for the first.
    bool either(std::string_view first, std::string_view second);
    Target window();
    Target control();
    Target controlOrWindow();
    void end() const;

private:
    [[nodiscard]] const Word& next(const std::string& what) const;
    Word take(const std::string& what);

    std::span<const Word> words_;
};

} // namespace kov::drive
