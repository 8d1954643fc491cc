#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kov::drive {

/// A script, or a line of it, that can't be understood.
class SyntaxError : public std::runtime_error {
public:
    explicit SyntaxError(const std::string& what) : std::runtime_error(what) {}
};

/// One word of a script's line, in the program's own text. Texts are quoted, names and numbers are not.
struct Word {
    std::string text;
    bool quoted = false;
};

/// What `${dir}` and `${app}` stand for in a quoted word; Windows-1252.
struct Places {
    std::string dir; ///< the folder that the tool was started in, without a separator at its end
    std::string app; ///< the program's folder, the same
};

/// The words of one line of UTF-8. A blank line and a comment have none. Throws SyntaxError.
[[nodiscard]] std::vector<Word> wordsOf(std::string_view line, const Places& places);

/// A text as a script would write it: in double quotes, with escapes, in UTF-8.
[[nodiscard]] std::string inQuotes(std::string_view text);

} // namespace kov::drive
