#include "platform/controls.hpp"

#include <algorithm>

namespace kov {

TextPart& Control::text() { return kind == ControlKind::Combo ? std::get<ComboPart>(part).edit : std::get<TextPart>(part); }
const TextPart& Control::text() const {
    return kind == ControlKind::Combo ? std::get<ComboPart>(part).edit : std::get<TextPart>(part);
}
ItemList& Control::items() {
    return kind == ControlKind::Combo ? std::get<ComboPart>(part).items : std::get<ListPart>(part).items;
}
const ItemList& Control::items() const {
    return kind == ControlKind::Combo ? std::get<ComboPart>(part).items : std::get<ListPart>(part).items;
}

bool Control::hasText() const {
    return kind == ControlKind::TextBox || (kind == ControlKind::Combo && !std::get<ComboPart>(part).dropDownList);
}

void Control::setText(std::string_view value) {
    auto& box = text();
    box.text = value;
    box.selStart = 0;
    box.selLength = 0;
}

std::string Control::shownText() const {
    if (hasText()) {
        return text().text;
    }
    if (kind == ControlKind::List || kind == ControlKind::Combo) {
        return items().index() < 0 ? std::string{} : items().item(items().index());
    }
    return kind == ControlKind::Grid ? grid().currentText() : caption;
}

void Control::selectText(int start, int length) {
    auto& box = text();
    const int size = static_cast<int>(box.text.size());
    box.selStart = std::clamp(start, 0, size);
    box.selLength = std::clamp(length, 0, size - box.selStart);
}

bool Control::shown() const { return visible && (parent == nullptr || parent->shown()); }
bool Control::usable() const { return enabled && (parent == nullptr || parent->usable()); }

bool Control::onCurrentPage() const {
    const bool here = strip == nullptr || std::get<TabPart>(strip->part).current == page;
    return here && (parent == nullptr || parent->onCurrentPage());
}

bool Control::reachable() const {
    if (!turnsPage) {
        return onCurrentPage();
    }
    const auto* standing = this;
    while (standing->strip == nullptr && standing->parent != nullptr) {
        standing = standing->parent;
    }
    if (standing->strip == nullptr) {
        return true;
    }
    const auto& tabs = standing->strip->tabs();
    const auto own = static_cast<std::size_t>(standing->page);
    return tabs.current == standing->page || (own < tabs.tabs.size() && tabs.tabs[own].enabled);
}

bool Control::focusable() const {
    switch (kind) {
    case ControlKind::TextBox:
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::List:
    case ControlKind::Combo:
    case ControlKind::Grid:
    case ControlKind::TabStrip:
    case ControlKind::Spin:
        return shown() && usable() && reachable();
    default:
        return false;
    }
}

std::string Control::label() const { return index ? name + "(" + std::to_string(*index) + ")" : name; }

void revealCurrentRow(Control& control) {
    auto& grid = control.grid();
    const int row = grid.row();
    if (control.bounds.height.value <= 0 || row < grid.fixedRows()) {
        return;
    }
    constexpr double Border = 2 * Twips::PerPixel, ScrollBar = 17 * Twips::PerPixel;
    const auto width = grid.colPos(grid.cols() - 1) + grid.colWidth(grid.cols() - 1);
    const double height = control.bounds.height.value - Border - (width > control.bounds.width ? ScrollBar : 0);
    const int rows = std::max(static_cast<int>(height / grid.rowHeight().value), grid.fixedRows() + 1);
    const int first = std::min(grid.topRow(), row - grid.fixedRows());
    grid.setTopRow(std::max(first, row - rows + 1));
}

std::string plainCaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && (i + 1 >= caption.size() || caption[i + 1] != '&')) {
            continue;
        }
        i += caption[i] == '&' ? 1 : 0;
        plain += caption[i];
    }
    return plain;
}

} // namespace kov
