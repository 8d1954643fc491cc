#include "shell/entry/stacked_layout.hpp"

#include <algorithm>
#include <string>

namespace kov {
namespace {

constexpr double Margin = 90, RowHeight = 315, TabHeight = 375, ButtonWidth = 1200, ButtonHeight = 405;

} // namespace

void StackedLayout::row(std::span<const RowItem> items) {
    double left = Margin;
    top_ += Margin;
    for (const auto& [control, width] : items) {
        control.bounds = {Twips{left}, Twips{top_}, Twips{width}, Twips{RowHeight}};
        left += width + Margin;
    }
    top_ += RowHeight;
    width_ = std::max(width_, left);
}

StackedLayout::Size StackedLayout::build(const Build& build) {
    Layout layout(window_);
    build(layout);
    layout.finish();
    return {window_.bounds.width.value, window_.bounds.height.value};
}

void StackedLayout::shift(std::size_t first, double down) {
    for (auto i = first; i < window_.controls().size(); ++i) {
        auto& control = *window_.controls()[i];
        if (control.parent == nullptr) {
            control.bounds.top = control.bounds.top + Twips{down};
        }
    }
}

void StackedLayout::panels(const Build& build) {
    const auto first = window_.controls().size();
    const auto size = this->build(build);
    shift(first, top_);
    top_ += size.height - Margin;
    width_ = std::max(width_, size.width);
}

void StackedLayout::pages(Control& strip, std::span<const Build> pages) {
    top_ += Margin;
    double height = 0;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const auto first = window_.controls().size();
        const auto size = build(pages[page]);
        shift(first, top_ + TabHeight);
        for (auto i = first; i < window_.controls().size(); ++i) {
            auto& control = *window_.controls()[i];
            if (control.parent == nullptr) {
                control.bounds.left = control.bounds.left + Twips{Margin};
                control.strip = &strip;
                control.page = static_cast<int>(page);
            }
        }
        height = std::max(height, size.height);
        width_ = std::max(width_, size.width + 2 * Margin);
    }
    strip.bounds = {Twips{Margin}, Twips{top_}, Twips{width_ - 2 * Margin}, Twips{TabHeight + height}};
    top_ += TabHeight + height;
}

void StackedLayout::button(std::string_view name, std::string_view caption) {
    buttons_.push_back(&window_.add(ControlKind::Button, std::string(name), std::string(caption)));
}

void StackedLayout::finish() {
    top_ += 2 * Margin;
    const auto count = static_cast<double>(buttons_.size());
    double left = (width_ - count * ButtonWidth - (count - 1) * Margin) / 2;
    for (auto* button : buttons_) {
        button->bounds = {Twips{left}, Twips{top_}, Twips{ButtonWidth}, Twips{ButtonHeight}};
        left += ButtonWidth + Margin;
    }
    window_.bounds.width = Twips{width_};
    window_.bounds.height = Twips{top_ + ButtonHeight + 2 * Margin};
}

} // namespace kov
