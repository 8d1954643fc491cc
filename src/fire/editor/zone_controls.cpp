#include "fire/editor/zone_editor.hpp"
#include "shell/entry/menus.hpp"
#include "shell/entry/stacked_layout.hpp"

#include <array>
#include <string>

namespace kov {
namespace {

constexpr std::array<std::string_view, 3> ZoneTypes{"1 - Controlled", "2 - Uncontrolled", "3 - Non-Inertial Vent Shaft"};
constexpr Field TypeField{"cbZoneType", "Zone Type", "", text(), "", nullptr, "Form 11, columns 1-10"};
constexpr double Margin = 150, TitleHeight = 330, Line = 315, Button = 405, ListHeight = 2700;
constexpr double ListWidth = 2400, MoveWidth = 1500, NumberWidth = 750, SpinWidth = 330, CommandWidth = 1000;

Control& addIn(Window& window, Control& panel, ControlKind kind, std::string_view name, std::string_view caption,
               Bounds place) {
    auto& control = window.add(kind, std::string(name), std::string(caption));
    control.parent = &panel;
    control.bounds = place;
    return control;
}

Bounds at(double left, double top, double width, double height) {
    return {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

/// Number, spin button and the two commands on zones as a whole.
void addZonePanel(Window& window, Bounds place) {
    auto& panel = window.add(ControlKind::Panel, "pnlZone", "EC Zone");
    panel.bounds = place;
    const double top = TitleHeight;
    addIn(window, panel, ControlKind::TextBox, "tbZoneNo", "", at(Margin, top, NumberWidth, Line));
    addIn(window, panel, ControlKind::Spin, "Spin1", "", at(Margin + NumberWidth, top, SpinWidth, Line));
    addIn(window, panel, ControlKind::Button, "cmdInsert", "Insert",
          at(2 * Margin + NumberWidth + SpinWidth, top, CommandWidth, Button));
    addIn(window, panel, ControlKind::Button, "cmdDelete", "Delete",
          at(3 * Margin + NumberWidth + SpinWidth + CommandWidth, top, CommandWidth, Button));
}

Control& addList(Window& window, std::string_view name, std::string_view caption, double left, double top) {
    auto& label = window.add(ControlKind::Label, "lbl" + std::string(name), std::string(caption));
    label.bounds = at(left, top, ListWidth, Line);
    auto& list = window.add(ControlKind::List, std::string(name));
    list.bounds = at(left, top + Line, ListWidth, ListHeight);
    std::get<ListPart>(list.part).multiSelect = true;
    return list;
}

} // namespace

void ZoneEditor::build() {
    addEditMenu(window_);
    addHelpMenu(window_);
    StackedLayout stack(window_);
    stack.panels([&](Layout& layout) {
        auto& zone = layout.panel("pnlZoneType", "Zone");
        zone.note("lblECZone", "Zone  1");
        zone.list(TypeField, ZoneTypes);
        layout.nextColumn();
        auto& temperatures = layout.panel("sspnlECTemps", "Design Temperatures");
        temperatures.headings("lblBulb", {fields()[0].caption, fields()[1].caption});
        temperatures.boxes("Morning Rush Hour", fields().subspan(0, 2));
        temperatures.boxes("Evening Rush Hour", fields().subspan(2, 2));
    });
    const double width = stack.width();
    const double top = stack.top() + Margin;
    addZonePanel(window_, at(Margin, top, width - 2 * Margin, TitleHeight + Button + Margin));
    const double lists = top + TitleHeight + Button + 2 * Margin;
    const double left = (width - 2 * ListWidth - MoveWidth - 2 * Margin) / 2;
    addList(window_, "ZList", "Zone Segments", left, lists);
    const double middle = left + ListWidth + Margin;
    window_.add(ControlKind::Button, "cmdAdd", "<< Add").bounds = at(middle, lists + ListHeight / 3, MoveWidth, Button);
    window_.add(ControlKind::Button, "cmdDelItem", "Remove >>").bounds =
        at(middle, lists + ListHeight / 3 + Button + Margin, MoveWidth, Button);
    addList(window_, "PickList", "Pick From...", middle + MoveWidth + Margin, lists);
    stack.skip(TitleHeight + Button + 3 * Margin + Line + ListHeight);
    stack.button("cmdDone", "OK");
    stack.button("cmdCancel", "Cancel");
    stack.button("cmdHelp", "Help");
    stack.finish();
}

} // namespace kov
