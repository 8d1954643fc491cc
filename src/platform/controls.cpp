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
        return shown() && usable() && (turnsPage || onCurrentPage());
    default:
        return false;
    }
}

std::string Control::label() const { return index ? name + "(" + std::to_string(*index) + ")" : name; }

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
