#include "vent/editor/shaft_controls.hpp"

#include "shell/entry/layout.hpp"
#include "vent/editor/window_tools.hpp"

#include <algorithm>
#include <array>

namespace kov {
namespace {

constexpr std::array Fields{
    Field{"tbsegtitle", "Title", "", text(), "Shaft Description", nullptr, "Form 5 title card, columns 21-56"},
    Field{"tbsegtype", "Type", "", text(), "Select the type of shaft", nullptr, "Form 5 title card, columns 11-20"},
    Field{"tbNSubSegs", "Number of SubSegments", "", real(1, 330), "Number of Subsegments in Equivalent Shaft: 1 to 330",
          nullptr, "Form 5 data card, columns 11-20"},
    Field{"tbGrate", "Grate Free Area", "sqft", real(3, 3000), "Grate Free Area: 3 to 3000. SqFt", nullptr,
          "Form 5 data card, columns 21-30"},
    Field{"tbVGrate", "Max Outflow Velocity ", "fpm", real(0, 6000), "Maximum Design Outflow Through Grate: 0 to 6000 fpm",
          nullptr, "Form 5 data card, columns 31-40"},
    Field{"tbStack", "Stack Ht ", "ft", real(0, 1000), "Stack Height: 0 to 1000 ft", nullptr,
          "Form 5 data card, columns 71-80"},
    Field{"tbWSTemp", "Wall Surface Temperature ", "Deg F", real(0, 130), "Wall Surface Temperature: 0 to 130 deg F", nullptr,
          "Form 5 data card, columns 41-50"},
    Field{"tbTDB0", "InitIal Dry-Bulb", "Deg F", real(0, 130), "Initial Air Dry-Bulb Temperature: 0 to 130 deg F", nullptr,
          "Form 5 data card, columns 51-60"},
    Field{"tbTWB0", "InitIal Wet-Bulb", "Deg F", real(0, 130), "Initial Air Wet-Bulb Temperature: 0 to 130 deg F", nullptr,
          "Form 5 data card, columns 61-70"},
    Field{"cbFanType", "Type", "", text(), "Select the type of fan used in this shaft", nullptr,
          "Form 5 fan card, columns 1-10"},
    Field{"tbFanOn", "Time ON", "", real(0, 100000), "Simulation Time Fan Switches ON: ", nullptr,
          "Form 5 fan card, columns 11-20"},
    // The hint asks for more than the switch-on time; the check doesn't.
    Field{"tbFanOff", "Time OFF", "", real(0, 100000), "Simulation Time Fan Switches OFF: > Switch ON Time", nullptr,
          "Form 5 fan card, columns 21-30"},
};
constexpr std::span<const Field> All{Fields};
constexpr auto Plain = All.subspan(2, 4), Temperatures = All.subspan(6, 3), Times = All.subspan(10, 2);
constexpr const Field& Title = Fields[0];
constexpr const Field& Type = Fields[1];
constexpr const Field& FanType = Fields[9];

constexpr std::array<std::string_view, 2> ShaftTypes{"1 - Vent w/ or w/o Fan", "2 - Stairway"};
constexpr std::array<std::string_view, 3> Directions{"Supply", "Off", "Exhaust"};

constexpr std::array ShaftColumns{
    Column{"Vent", "", text(), "", "Form 2B, columns 1-10"},
    Column{"Shaft", "", integer(1, 999), "Vent Shaft ID - Note: Shafts must be added and deleted from VENT Form",
           "Form 5 title card, columns 1-10"},
};

constexpr std::array SegmentColumns{
    Column{"Length", "", real(0, 2000), "Segment Length:  0 to 2000 ft", "Form 5 segment card, columns 1-10"},
    Column{"Area", "", real(3, 3000), "Cross-sectional Area:  3 to 3000 SqFt", "Form 5 segment card, columns 11-20"},
    Column{"Perimeter", "", real(5, 500), "Shaft Perimeter: 5 to 500 ft", "Form 5 segment card, columns 21-30"},
    Column{"For'd Pos", "", real(0, 1000), "Head Loss Coefficient at Forward End for Positive Flow: 0 to 1000",
           "Form 5 segment card, columns 31-40"},
    Column{"For'd Neg", "", real(0, 1000), "Head Loss Coefficient at Forward End for Negative Flow: 0 to 1000",
           "Form 5 segment card, columns 41-50"},
    Column{"Back Pos", "", real(0, 1000), "Head Loss Coefficient at Backward End for Positive Flow: 0 to 1000",
           "Form 5 segment card, columns 51-60"},
    Column{"Back Neg", "", real(0, 1000), "Head Loss Coefficient at Backward End for Negative Flow: 0 to 1000",
           "Form 5 segment card, columns 61-70"},
};

constexpr std::array Menus{
    MenuEntry{"M_Edit", "&Edit", ""},
    MenuEntry{"ME_Copy", "&Copy", "M_Edit"},
    MenuEntry{"ME_Cut", "Cu&t", "M_Edit"},
    MenuEntry{"ME_Paste", "&Paste", "M_Edit"},
    MenuEntry{"ME_Temps", "&Temps", "M_Edit"},
    MenuEntry{"M_PopUp", "PopUp", ""},
    MenuEntry{"MP_Before", "&Before", "M_PopUp"},
    MenuEntry{"MP_Replace", "&Replace", "M_PopUp"},
    MenuEntry{"MP_After", "&After", "M_PopUp"},
    MenuEntry{"M_Help", "&Help", ""},
    MenuEntry{"MH_Contents", "&Contents", "M_Help"},
    MenuEntry{"MH_Search", "&Search for Help on...", "M_Help"},
};

constexpr int ShaftRows = 5, SegmentRows = 4, CaptionCharacters = 16;
constexpr double OptionWidth = 1200, OptionHeight = 285, ListWidth = 2350, Edge = 150;

void addFields(LayoutPanel& panel, std::span<const Field> fields) {
    for (const auto& field : fields) {
        panel.field(field);
    }
}

/// A title or a fan's description is longer than a number.
void widen(Control& box, double width) {
    const double room = box.parent->bounds.width.value - box.bounds.left.value - Edge;
    box.bounds.width = Twips{std::max(box.bounds.width.value, std::min(width, room))};
}

} // namespace

std::span<const Field> shaftFields() { return Fields; }
std::span<const Column> shaftGridColumns() { return ShaftColumns; }
std::span<const Column> segmentGridColumns() { return SegmentColumns; }

void buildShaftControls(Window& window) {
    addMenus(window, Menus);
    window.control("M_PopUp").visible = false; // no menu of the bar
    Layout layout(window);
    layout.panel("pnlShafts", "Vent - Shaft").grid("GrdShaft", ShaftColumns, ShaftRows);
    addFields(layout.panel("pnlTemps", "Temperatures", CaptionCharacters), Temperatures);
    layout.nextColumn();
    auto& shaft = layout.panel("pnlShaft", "Vent Shaft", CaptionCharacters);
    shaft.note("lblShaftNo", "Shaft  999");
    shaft.field(Title);
    shaft.list(Type, ShaftTypes);
    addFields(shaft, Plain);
    layout.nextColumn();
    auto& fan = layout.panel("pnlFan", "Fan", CaptionCharacters);
    auto& types = fan.list(FanType, {});
    std::get<ComboPart>(types.part).dropDownList = false;
    addFields(fan, Times);
    fan.button("cmdFan", "Fans . . .");
    auto& direction = layout.panel("pnlFanDir", "Fan Direction");
    for (std::size_t i = 0; i < Directions.size(); ++i) {
        direction.area(ControlKind::OptionButton, "rbFanDir", Directions.at(i), OptionWidth, OptionHeight, static_cast<int>(i));
    }
    layout.nextBand();
    layout.panel("pnlSegments", "Segments").grid("grdVSeg", SegmentColumns, SegmentRows, "gtext1", "Dummy1");
    layout.button("cmdOkay", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.finish();
    widen(window.control("tbsegtitle"), ListWidth);
    widen(types, ListWidth);
    types.bounds.height = window.control("tbFanOn").bounds.height;
}

} // namespace kov
