#include "line/editor/placing.hpp"

namespace kov {
namespace {

// Of a character of 8 to 9 points, and of the lines of a caption that takes two.
constexpr double Character = 92, TextLine = 255;
// A person never sees the box behind an overlay.
constexpr double DummySize = 15;

double textWidth(std::string_view text) { return static_cast<double>(text.size()) * Character; }

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
        label("unit" + suffix, field.unit, boxLeft + boxWidth + Gap, top, textWidth(field.unit));
    }
    return box;
}

Placer Placer::frame(std::string_view name, std::string_view caption, const Bounds& place) const {
    auto& made = add(ControlKind::Frame, name, caption, place);
    return {window, &made, strip, page};
}

Control& Placer::grid(std::string_view name, std::string_view overlay, std::optional<int> dummy,
                      std::span<const Column> columns, std::span<const double> widths, const Bounds& place) const {
    double captionHeight = Line;
    double unitHeight = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (textWidth(columns[i].caption) > widths[i]) {
            captionHeight = 2 * TextLine;
        }
        if (!columns[i].unit.empty()) {
            unitHeight = TextLine;
        }
    }
    const std::string suffix(name.substr(3));
    const double top = place.top.value;
    double left = place.left.value;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int index = static_cast<int>(i);
        add(ControlKind::Label, "cap" + suffix, columns[i].caption, boundsOf(left, top, widths[i], captionHeight), index);
        if (!columns[i].unit.empty()) {
            add(ControlKind::Label, "unit" + suffix, columns[i].unit,
                boundsOf(left, top + captionHeight, widths[i], unitHeight), index);
        }
        left += widths[i];
    }
    const double above = captionHeight + unitHeight;
    return plainGrid(name, overlay, dummy, widths,
                     boundsOf(place.left.value, top + above, place.width.value, place.height.value - above));
}

Control& Placer::plainGrid(std::string_view name, std::string_view overlay, std::optional<int> dummy,
                           std::span<const double> widths, const Bounds& place) const {
    auto& made = add(ControlKind::Grid, name, {}, place);
    made.grid().setCols(static_cast<int>(widths.size()));
    for (int col = 0; col < made.grid().cols(); ++col) {
        made.grid().setColWidth(col, Twips{widths[static_cast<std::size_t>(col)]});
    }
    const double left = place.left.value;
    const double top = place.top.value;
    add(ControlKind::TextBox, overlay, {}, boundsOf(left, top, DummySize, Line)).visible = false;
    add(ControlKind::TextBox, "Dummy", {}, boundsOf(left, top, DummySize, DummySize), dummy);
    return made;
}

void Placer::menu(std::string_view name, std::string_view caption, std::string_view parentMenu) const {
    window.add(ControlKind::Menu, std::string(name), std::string(caption)).menu().menu = parentMenu;
}

} // namespace kov
