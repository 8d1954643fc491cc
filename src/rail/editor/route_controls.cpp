#include "rail/editor/number_row.hpp"
#include "rail/editor/route_editor.hpp"
#include "shell/entry/menus.hpp"
#include "shell/entry/stacked_layout.hpp"

#include <array>
#include <string>
#include <vector>

namespace kov {
namespace {

constexpr std::array<std::string_view, 6> Tabs{"&General", "&Train Groups", "&Alignment",
                                               "&Stops",   "&Performance",  "&Route Sects"};
constexpr std::array<std::string_view, 4> Headings{"lblGroups", "lblTracks", "lblStops", "lblPerformance"};
// The alignment leaves room for the profile below it.
constexpr int VisibleRows = 8, AlignmentRows = 4, SectionsPage = static_cast<int>(RoutePage::Sections);
constexpr double ProfileWidth = 4000, ProfileHeight = 1500, OptionWidth = 2400, OptionHeight = 285;
constexpr double Margin = 90, Line = 315, Button = 405, ListTop = 1200, ListHeight = 2400, ListWidth = 1900, MoveWidth = 1500;

Bounds at(double left, double top, double width, double height) {
    return {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

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
    addNumberRow(window, stack, "lblRtNo", "Route", "tbRtNo");
}

/// Grid, overlay and stop of one page, as elements of their arrays, and the headings by the name of what the grid holds.
void addGrid(Window& window, LayoutPanel& panel, int index, int visibleRows = VisibleRows) {
    const auto first = window.controls().size();
    const auto place = static_cast<std::size_t>(index);
    auto made = panel.grid("Grid1", routeGrids()[place].columns, visibleRows, "gtext", "Dummy1");
    made.grid.index = index;
    made.overlay.index = index;
    made.dummy.index = index;
    for (auto i = first; i < window.controls().size(); ++i) {
        if (window.controls()[i]->kind == ControlKind::Label) {
            window.controls()[i]->name = Headings.at(place);
        }
    }
}

void addCoasting(LayoutPanel& panel) {
    panel.area(ControlKind::OptionButton, "rbCoastOpt", "Maintain Min Speed", OptionWidth, OptionHeight, 0);
    panel.area(ControlKind::OptionButton, "rbCoastOpt", "Accel from Min Speed", OptionWidth, OptionHeight, 1);
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
    const std::vector<StackedLayout::Build> pages{
        [](Layout& layout) {
            auto& schedule = layout.panel("pnlGeneral", "Schedule");
            for (const auto* name : {"tbRtOrigin", "tbDelay", "tbTType1"}) {
                schedule.field(routeField(name));
            }
            layout.nextColumn();
            addCoasting(layout.panel("fraCoastOpt", "Coasting Option"));
            layout.panel("pnlCoasting", "Coasting").field(routeField("tbVcMin"));
        },
        [&](Layout& layout) { addGrid(window, layout.panel("pnlGroups", "Train Groups"), GroupGrid); },
        [&](Layout& layout) {
            auto& alignment = layout.panel("pnlAlignment", "Alignment");
            addGrid(window, alignment, TrackGrid, AlignmentRows);
            alignment.area(ControlKind::Drawing, "Profile", "", ProfileWidth, ProfileHeight);
        },
        [&](Layout& layout) {
            auto& passengers = layout.panel("pnlPassengers", "Passengers");
            passengers.field(routeField("tbNpax0"));
            passengers.field(routeField("tbPatWht"));
            layout.nextColumn();
            addGrid(window, layout.panel("pnlStops", "Stops"), StopGrid);
        },
        [&](Layout& layout) {
            auto& performance = layout.panel("pnlPerformance", "Performance");
            performance.note("lblPower", "Pwr to Resistor Grid (KW/Train)").alignRight = true;
            addGrid(window, performance, PerformanceGrid);
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
