#include "line/editor/placing.hpp"

namespace kov {
namespace {

constexpr double UnitWidth = 1500;
// A person never sees the box behind an overlay.
constexpr double DummySize = 15;

} // namespace

Control& Placer::add(ControlKind kind, std::string_view name, std::string_view caption, const Bounds& place,
                     std::optional<int> index) const {
    auto& control = window.add(kind, std::string(name), std::string(caption), index);
    control.parent = parent;
    control.strip = strip;
    control.page = page;
    control.bounds = place;
    return control;
}

Control& Placer::label(std::string_view name, std::string_view caption, double left, double top, double width,
                       std::optional<int> index) const {
    return add(ControlKind::Label, name, caption, boundsOf(left, top, width, Line), index);
}

Control& Placer::field(const Field& field, double left, double top, double captionWidth, double boxWidth) const {
    const std::string suffix(field.control.substr(2));
    label("lbl" + suffix, field.caption, left, top, captionWidth).alignRight = true;
    const double boxLeft = left + captionWidth + Gap;
    auto& box = add(ControlKind::TextBox, field.control, {}, boundsOf(boxLeft, top, boxWidth, Line));
    if (!field.unit.empty()) {
        label("unit" + suffix, field.unit, boxLeft + boxWidth + Gap, top, UnitWidth);
    }
    return box;
}

Placer Placer::panel(std::string_view name, std::string_view caption, const Bounds& place) const {
    auto& made = add(ControlKind::Panel, name, caption, place);
    return {window, &made, strip, page};
}

Control& Placer::grid(std::string_view name, std::string_view overlay, std::optional<int> dummy,
                      std::span<const Column> columns, std::span<const double> widths, const Bounds& place) const {
    double left = place.left.value;
    int index = 0;
    for (const auto& column : columns) {
        const double width = widths[static_cast<std::size_t>(index)];
        label("cap" + std::string(name.substr(3)), column.caption, left, place.top.value, width, index++);
        left += width;
    }
    const double top = place.top.value + Line;
    auto& made =
        add(ControlKind::Grid, name, {}, boundsOf(place.left.value, top, place.width.value, place.height.value - Line));
    made.grid().setCols(static_cast<int>(widths.size()));
    for (int col = 0; col < made.grid().cols(); ++col) {
        made.grid().setColWidth(col, Twips{widths[static_cast<std::size_t>(col)]});
    }
    add(ControlKind::TextBox, overlay, {}, boundsOf(place.left.value, top, DummySize, Line)).visible = false;
    add(ControlKind::TextBox, "Dummy", {}, boundsOf(place.left.value, top, DummySize, DummySize), dummy);
    return made;
}

void Placer::menu(std::string_view name, std::string_view caption, std::string_view parentMenu) const {
    window.add(ControlKind::Menu, std::string(name), std::string(caption)).menu().menu = parentMenu;
}

} // namespace kov
