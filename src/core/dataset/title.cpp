#include "core/dataset/title.hpp"

#include "core/cards/failure.hpp"

namespace kov {
namespace {

constexpr std::size_t LineWidth = 80;
constexpr std::string_view LineBreak = "\r\n";

/// Where the blank stands that parts an overlong line that starts at `start`.
std::size_t wrapPoint(std::string_view text, std::size_t start) {
    const auto blank = text.substr(start, LineWidth + 1).rfind(' ');
    if (blank == std::string_view::npos) {
        throw Failure("Invalid procedure call or argument");
    }
    return start + blank;
}

} // namespace

TitleLines splitTitle(std::string_view text) {
    if (text.empty()) {
        text = " ";
    }
    TitleLines lines;
    std::size_t start = 0;
    for (auto& line : lines) {
        const auto lineBreak = text.find(LineBreak, start);
        auto end = lineBreak == std::string_view::npos ? text.size() : lineBreak;
        auto next = end + LineBreak.size();
        if (end - start > LineWidth) {
            end = wrapPoint(text, start);
            next = end + 1;
        }
        line.assign(text.substr(start, end - start));
        // Positions count from 1 in this comparison, so that a single last character counts as the end of the text.
        if (next + 1 >= text.size()) {
            break;
        }
        start = next;
    }
    return lines;
}

std::string joinTitle(const TitleLines& lines) {
    std::string text(lines.front().trimmed());
    for (std::size_t i = 1; i < lines.size() && !lines[i].blank(); ++i) {
        text += LineBreak;
        text += lines[i].trimmed();
    }
    return text;
}

} // namespace kov
