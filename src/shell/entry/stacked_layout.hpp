#pragma once

#include "platform/window.hpp"
#include "shell/entry/layout.hpp"

#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace kov {

/// One control of a row that stands in no panel, with its width in twips.
struct RowItem {
    Control& control;
    double width;
};

/// Builds a window from parts that stand one below the other: rows of single controls, layouts of panels, a tab strip whose
/// pages are layouts of their own, and the row of buttons at the bottom. Controls are made on the way, so the order of the
/// calls is the tab order.
class StackedLayout {
public:
    using Build = std::function<void(Layout&)>;

    explicit StackedLayout(Window& window) : window_(window) {}
    StackedLayout(const StackedLayout&) = delete;
    StackedLayout& operator=(const StackedLayout&) = delete;

    /// Controls side by side, one line high.
    void row(std::span<const RowItem> items);
    /// Panels across the window.
    void panels(const Build& build);
    /// A tab strip and its pages; what has no parent in a page stands on that page of the strip.
    void pages(Control& strip, std::span<const Build> pages);
    /// Leaves room for what the window places itself.
    void skip(double height) { top_ += height; }
    [[nodiscard]] double top() const { return top_; }
    [[nodiscard]] double width() const { return width_; }
    /// The bottom row; it is made here and placed in the middle by `finish`.
    void button(std::string_view name, std::string_view caption);
    /// Gives the window its design size.
    void finish();

private:
    struct Size {
        double width = 0;
        double height = 0;
    };
    Size build(const Build& build);
    void shift(std::size_t first, double down);

    Window& window_;
    std::vector<Control*> buttons_;
    double top_ = 0;
    double width_ = 0;
};

} // namespace kov
