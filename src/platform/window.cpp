#include "platform/window.hpp"

#include <stdexcept>

namespace kov {
namespace {

Control::Part partOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::TextBox:
        return TextPart{};
    case ControlKind::List:
        return ListPart{};
    case ControlKind::Combo:
        return ComboPart{};
    case ControlKind::Grid:
        return Grid{};
    case ControlKind::TabStrip:
        return TabPart{};
    case ControlKind::Progress:
        return ProgressPart{};
    case ControlKind::Image:
        return ImagePart{};
    case ControlKind::Drawing:
        return DrawingPart{};
    case ControlKind::Menu:
        return MenuPart{};
    case ControlKind::Timer:
        return TimerPart{};
    default:
        return std::monostate{};
    }
}

} // namespace

Control& Window::add(ControlKind kind, std::string controlName, std::string controlCaption, std::optional<int> index) {
    auto& control = *controls_.emplace_back(std::make_unique<Control>());
    control.kind = kind;
    control.name = std::move(controlName);
    control.caption = std::move(controlCaption);
    control.index = index;
    control.window = this;
    control.part = partOf(kind);
    return control;
}

Control* Window::find(std::string_view controlName, std::optional<int> index) const {
    for (const auto& control : controls_) {
        if (control->name == controlName && (!index || control->index == index)) {
            return control.get();
        }
    }
    return nullptr;
}

Control& Window::control(std::string_view controlName, std::optional<int> index) const {
    auto* found = find(controlName, index);
    if (found == nullptr) {
        throw std::out_of_range("no control " + std::string(controlName) + " in " + name_);
    }
    return *found;
}

void Window::moveTo(const Bounds& place) {
    const bool resized = place.width != bounds.width || place.height != bounds.height;
    bounds = place;
    if (resized && on.resize) {
        on.resize();
    }
}

Control* Window::nextInTabOrder(const Control* from, bool backwards) const {
    const int count = static_cast<int>(controls_.size());
    int start = backwards ? 0 : count - 1;
    for (int i = 0; i < count; ++i) {
        if (controls_[static_cast<std::size_t>(i)].get() == from) {
            start = i;
        }
    }
    for (int step = 1; step <= count; ++step) {
        const int place = (((backwards ? start - step : start + step) % count) + count) % count;
        auto* candidate = controls_[static_cast<std::size_t>(place)].get();
        // From the tabs Tab goes into their current page: another page's control would turn the page away again.
        const bool turnsAway = from != nullptr && from->kind == ControlKind::TabStrip && !candidate->onCurrentPage();
        if (candidate->tabStop && candidate->focusable() && !turnsAway) {
            return candidate;
        }
    }
    return nullptr;
}

} // namespace kov
