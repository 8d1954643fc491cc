#include "drive/lexer.hpp"

#include "platform/windows1252.hpp"

#include <optional>
#include <utility>

namespace kov::drive {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

char escaped(char c) {
    switch (c) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case '"':
    case '\\':
        return c;
    default:
        throw SyntaxError(std::string("unknown escape \\") + c);
    }
}

/// Takes `${dir}` or `${app}` off the front; none when neither stands there.
std::optional<std::string> takePlace(std::string_view& rest, const Places& places) {
    for (const auto& [name, place] : {std::pair<std::string_view, const std::string&>{"${dir}", places.dir},
                                      std::pair<std::string_view, const std::string&>{"${app}", places.app}}) {
        if (rest.starts_with(name)) {
            rest.remove_prefix(name.size());
            return place;
        }
    }
    return std::nullopt;
}

/// The word behind an opening quote; `rest` goes on behind the closing one.
std::string takeQuoted(std::string_view& rest, const Places& places) {
    std::string text;
    while (!rest.empty() && rest.front() != '"') {
        if (const auto place = takePlace(rest, places)) {
            text += *place;
            continue;
        }
        char c = rest.front();
        rest.remove_prefix(1);
        if (c == '\\') {
            if (rest.empty()) {
                break;
            }
            c = escaped(rest.front());
            rest.remove_prefix(1);
        }
        text += c;
    }
    if (rest.empty()) {
        throw SyntaxError("a quote is not closed");
    }
    rest.remove_prefix(1);
    if (!rest.empty() && !isBlank(rest.front())) {
        throw SyntaxError("a blank is missing behind a closing quote");
    }
    return text;
}

std::string takePlain(std::string_view& rest) {
    std::size_t length = 0;
    while (length < rest.size() && !isBlank(rest[length])) {
        if (rest[length] == '"') {
            throw SyntaxError("a blank is missing before an opening quote");
        }
        ++length;
    }
    std::string text(rest.substr(0, length));
    rest.remove_prefix(length);
    return text;
}

} // namespace

std::vector<Word> wordsOf(std::string_view line, const Places& places) {
    std::vector<Word> words;
    if (line.starts_with('#')) {
        return words;
    }
    const auto text = textOfUtf8(line);
    if (!text) {
        throw SyntaxError("a character that is not in Windows-1252, or no UTF-8");
    }
    std::string_view rest = *text;
    while (true) {
        while (!rest.empty() && isBlank(rest.front())) {
            rest.remove_prefix(1);
        }
        if (rest.empty()) {
            return words;
        }
        if (rest.front() == '"') {
            rest.remove_prefix(1);
            words.push_back({takeQuoted(rest, places), true});
        } else {
            words.push_back({takePlain(rest), false});
        }
    }
}

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    for (const char c : utf8OfText(text)) {
        switch (c) {
        case '\n':
            result += "\\n";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\t':
            result += "\\t";
            break;
        case '"':
        case '\\':
            result += '\\';
            [[fallthrough]];
        default:
            result += c;
        }
    }
    return result + "\"";
}

} // namespace kov::drive
