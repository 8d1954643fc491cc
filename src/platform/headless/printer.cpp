#include "platform/headless/printer.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kov {
namespace {

/// What lies far off the paper is not kept.
constexpr double Furthest = 2000;

std::size_t nearest(Twips place, double step) {
    return static_cast<std::size_t>(std::clamp(std::round(place.value / step), 0.0, Furthest));
}

} // namespace

void HeadlessPrinter::begin(const std::string& documentName) { current_ = {documentName, {}}; }

void HeadlessPrinter::setFont(const std::string& name, double points, bool /*bold*/) {
    fontName_ = name;
    fontPoints_ = points;
}

Twips HeadlessPrinter::textWidth(const std::string& text) const {
    return Twips{CharacterWidth * static_cast<double>(text.size())};
}

Twips HeadlessPrinter::textHeight(const std::string& text) const {
    return Twips{LineHeight * static_cast<double>(1 + std::count(text.begin(), text.end(), '\n'))};
}

HeadlessPrinter::Page& HeadlessPrinter::page() {
    if (current_.pages.empty()) {
        current_.pages.emplace_back();
    }
    return current_.pages.back();
}

void HeadlessPrinter::print(Twips x, Twips y, const std::string& text) {
    auto& lines = page().lines;
    const auto row = nearest(y, LineHeight);
    const auto column = nearest(x, CharacterWidth);
    lines.resize(std::max(lines.size(), row + 1));
    auto& line = lines[row];
    line.resize(std::max(line.size(), column + text.size()), ' ');
    line.replace(column, text.size(), text);
    line.erase(line.find_last_not_of(' ') + 1);
}

void HeadlessPrinter::line(Twips x1, Twips y1, Twips x2, Twips y2) { page().rules.push_back({x1, y1, x2, y2}); }

void HeadlessPrinter::newPage() {
    static_cast<void>(page()); // a page without text is a page too
    current_.pages.emplace_back();
}

void HeadlessPrinter::end() {
    static_cast<void>(page()); // a page without text is a page too
    documents_.push_back(std::exchange(current_, {}));
}

} // namespace kov
