#include "rail/editor/route_editor.hpp"
#include "shell/entry/menus.hpp"
#include "shell/entry/stacked_layout.hpp"

#include <array>
#include <string>
#include <vector>

namespace kov {
namespace {

constexpr std::array<std::string_view, 6> Tabs{"&General", "&Train Groups", "&Alignment", "&Stops", "&Performance", "&Route Sects"};
constexpr int VisibleRows = 8, SectionsPage = static_cast<int>(RoutePage::Sections);
constexpr double Margin = 90, Line = 315, Button = 405, ListTop = 1200, ListHeight = 2400, ListWidth = 1900, MoveWidth = 1500;

Bounds at(double left, double top, double width, double height) { return {Twips{left}, Twips{top}, Twips{width}, Twips{height}}; }

Control& add(Window& window, ControlKind kind, std::string_view name, std::string_view caption = {},
             std::optional<int> index = std::nullopt) {
    return window.add(kind, std::string(name), std::string(caption), index);
}

void addHead(Window& window, StackedLayout& stack) {
    auto& label = add(window, ControlKind::Label, "lblRouteID", routeField("tbRouteID").caption);
    label.alignRight = true;
    auto& id = add(window, ControlKind::TextBox, "tbRouteID");
    id.text().fixedPitch = true;
    const std::array title{RowItem{label, 900}, RowItem{id, 7200}};
    stack.row(title);
    auto& number = add(window, ControlKind::Label, "lblRtNo", "Route");
    number.alignRight = true;
    const std::array commands{RowItem{number, 900},
                              RowItem{add(window, ControlKind::TextBox, "tbRtNo"), 700},
                              RowItem{add(window, ControlKind::Spin, "Spin1"), 330},
                              RowItem{add(window, ControlKind::Button, "cmdInsert", "Insert"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdCut", "Cut"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdCopy", "Copy"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdPaste", "Paste"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdDelete", "Delete"), 1000}};
    stack.row(commands);
}

/// Grid, overlay and stop of one page, as elements of their arrays.
void addGrid(LayoutPanel& panel, int index) {
    auto made = panel.grid("Grid1", routeGrids()[static_cast<std::size_t>(index)].columns, VisibleRows, "gtext", "Dummy1");
    made.grid.index = index;
    made.overlay.index = index;
    made.dummy.index = index;
}

void addCoasting(Window& window, LayoutPanel& panel) {
    const std::array<std::string_view, 2> captions{"Maintain Min Speed", "Accel from Min Speed"};
    for (int option = 0; option < 2; ++option) {
        auto& button = panel.note("rbCoastOpt", captions.at(static_cast<std::size_t>(option)));
        button.kind = ControlKind::OptionButton;
        button.index = option;
    }
    static_cast<void>(window);
}

/// The lists of the section page and the buttons beside and between them.
void addSectionLists(Window& window, Control& strip) {
    const double top = strip.bounds.top.value + ListTop;
    double left = strip.bounds.left.value + 2 * Margin;
    const auto put = [&](ControlKind kind, std::string_view name, std::string_view caption, Bounds place,
                         std::optional<int> index = std::nullopt) -> Control& {
        auto& control = add(window, kind, name, caption, index);
        control.bounds = place;
        control.strip = &strip;
        control.page = SectionsPage;
        return control;
    };
    const auto list = [&](std::string_view name, std::string_view caption) {
        put(ControlKind::Label, "lbl" + std::string(name), caption, at(left, top, ListWidth, Line));
        auto& control = put(ControlKind::List, name, "", at(left, top + Line, ListWidth, ListHeight));
        std::get<ListPart>(control.part).multiSelect = true;
        left += ListWidth + Margin;
    };
    double row = top + Line + Button;
    const auto button = [&](std::string_view name, std::string_view caption, std::optional<int> index = std::nullopt) {
        put(ControlKind::Button, name, caption, at(left, row, MoveWidth, Button), index);
        row += Button + Margin;
    };
    list("PickList", "Pick From...");
    button("cmdadd", "Add +", 0);
    button("cmdadd", "Add -", 1);
    button("cmdRemove", "Remove");
    left += MoveWidth + Margin;
    list("RtList", "Route Sections");
    row = top + Line + Button;
    button("cmdUp", "Up");
    button("cmdDown", "Down");
    button("cmdChgSign", "Change Sign");
}

} // namespace

void buildRouteControls(Window& window) {
    addEditMenu(window, {{"ME_Order", "Reverse &Order"}, {"ME_Reverse", "&Reverse Order && Sign"}});
    addHelpMenu(window);
    StackedLayout stack(window);
    addHead(window, stack);
    auto& strip = add(window, ControlKind::TabStrip, "SSTab1");
    for (const auto& caption : Tabs) {
        strip.tabs().tabs.push_back({std::string(caption), true});
    }
    const auto gridPage = [](int index, std::string_view name, std::string_view title) {
        return [=](Layout& layout) { addGrid(layout.panel(name, title), index); };
    };
    const std::vector<StackedLayout::Build> pages{
        [&](Layout& layout) {
            auto& schedule = layout.panel("pnlGeneral", "Schedule");
            for (const auto* name : {"tbRtOrigin", "tbDelay", "tbTType1"}) {
                schedule.field(routeField(name));
            }
            layout.nextColumn();
            addCoasting(window, layout.panel("fraCoastOpt", "Coasting Option"));
            layout.panel("pnlCoasting", "Coasting").field(routeField("tbVcMin"));
        },
        gridPage(GroupGrid, "pnlGroups", "Train Groups"),
        gridPage(TrackGrid, "pnlAlignment", "Alignment"),
        [](Layout& layout) {
            auto& passengers = layout.panel("pnlPassengers", "Passengers");
            passengers.field(routeField("tbNpax0"));
            passengers.field(routeField("tbPatWht"));
            layout.nextBand();
            addGrid(layout.panel("pnlStops", "Stops"), StopGrid);
        },
        [](Layout& layout) {
            auto& performance = layout.panel("pnlPerformance", "Performance");
            performance.note("lblPower", "Pwr to Resistor Grid (KW/Train)").alignRight = true;
            addGrid(performance, PerformanceGrid);
        },
        [](Layout& layout) { layout.panel("pnlSections", "Route Sections", 40).field(routeField("tbDist0")); },
    };
    stack.pages(strip, pages);
    addSectionLists(window, strip);
    stack.button("cmdOkay", "OK");
    stack.button("cmdCancel", "Cancel");
    stack.button("cmdHelp", "Help");
    stack.finish();
}

} // namespace kov
