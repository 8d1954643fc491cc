#include "shell/entry/scale_form.hpp"

namespace kov {
namespace {

// The margin at the top that stays as it is.
constexpr double TopMargin = 45;
// Controls of hidden tab pages are parked that far to the left.
constexpr double ParkedBelow = -50000;
constexpr double ParkedBy = 76005;

struct Ratio {
    double width;
    double height;
};

Twips scaledTop(Twips top, double ratio) { return Twips{(top.value - TopMargin) * ratio + TopMargin}; }

Twips scaledLeft(Twips left, double ratio) {
    return left.value < ParkedBelow ? Twips{(left.value + ParkedBy) * ratio - ParkedBy} : left * ratio;
}

void scaleBounds(Control& control, Ratio ratio) {
    auto& bounds = control.bounds;
    bounds.left = scaledLeft(bounds.left, ratio.width);
    bounds.top = scaledTop(bounds.top, ratio.height);
    bounds.width = bounds.width * ratio.width;
    const auto* combo = std::get_if<ComboPart>(&control.part);
    // The platform owns the height of a drop-down list.
    if (combo == nullptr || !combo->dropDownList) {
        bounds.height = bounds.height * ratio.height;
    }
}

void scaleColumns(Grid& grid, double ratio) {
    for (int col = 0; col < grid.cols(); ++col) {
        grid.setColWidth(col, grid.colWidth(col) * ratio);
    }
}

/// A line's ends are its bounds: both of them move like a top edge.
void scaleLine(Bounds& bounds, Ratio ratio) {
    const Twips end = scaledTop(bounds.top + bounds.height, ratio.height);
    bounds.left = bounds.left * ratio.width;
    bounds.width = bounds.width * ratio.width;
    bounds.top = scaledTop(bounds.top, ratio.height);
    bounds.height = end - bounds.top;
}

bool takesFont(ControlKind kind) {
    switch (kind) {
    case ControlKind::Line:
    case ControlKind::Panel:
    case ControlKind::Image:
    case ControlKind::Drawing: // its texts have the room that the drawing left them
    case ControlKind::Progress:
    case ControlKind::Menu:
    case ControlKind::Timer:
        return false;
    default:
        return true;
    }
}

} // namespace

void ScaleForm(const Application& app, Window& window) {
    const auto isEmpty = [](Twips width, Twips height) { return width.value <= 0 || height.value <= 0; };
    // From nothing there is no way back to a size, so the tags keep the last one that can be scaled from.
    if (window.minimized || isEmpty(window.oldW, window.oldH) || isEmpty(window.bounds.width, window.bounds.height)) {
        return;
    }
    const Ratio ratio{window.bounds.width.value / window.oldW.value, window.bounds.height.value / window.oldH.value};
    window.oldW = window.bounds.width;
    window.oldH = window.bounds.height;
    for (const auto& control : window.controls()) {
        if (control->kind == ControlKind::Menu || control->kind == ControlKind::Timer) {
            continue;
        }
        if (control->kind == ControlKind::Line) {
            scaleLine(control->bounds, ratio);
        } else {
            scaleBounds(*control, ratio);
        }
        if (control->kind == ControlKind::Grid) {
            scaleColumns(control->grid(), ratio.width);
        }
        if (takesFont(control->kind)) {
            // Without a chosen size it is the design font, also where another one was chosen before.
            const bool chosen = app.UserFontSize >= 1;
            control->fontName = chosen ? app.UserFontName : std::string{};
            control->fontSize = chosen ? app.UserFontSize : 0;
        }
    }
}

} // namespace kov
