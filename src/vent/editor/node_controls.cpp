#include "vent/editor/node_controls.hpp"

#include "shell/entry/layout.hpp"
#include "vent/editor/window_tools.hpp"

#include <optional>

namespace kov {
namespace {

constexpr std::string_view BranchHint = "Line or Vent Number: 1 to 999", TemperatureHint = "Temperature:  -50 to 140 deg F";
constexpr std::string_view HintA = "Vent or Line connected to thermal Subnode A",
                           HintB = "Vent or Line connected to thermal Subnode B",
                           HintC = "Vent or Line connected to thermal Subnode C";
constexpr auto Branch = integer(1, 999);
constexpr auto Temperature = real(-50, 140);
constexpr auto Subnode = real(1, 999);

constexpr std::array Fields{
    Field{"tb1", "Branch 1", "", Branch, BranchHint, nullptr, "Form 6 card C, columns 1-10"},
    Field{"tb2", "Branch 2", "", Branch, BranchHint, nullptr, "Form 6 card C, columns 11-20"},
    Field{"tb3", "Branch 3", "", Branch, BranchHint, nullptr, "Form 6 card C, columns 21-30"},
    Field{"tb4", "Branch 4", "", Branch, BranchHint, nullptr, "Form 6 card C of type 1, columns 31-40"},
    Field{"tb4", "Aspect Ratio", "", real(0.1, 30), "Aspect Ratio: 0.1 to 30.", nullptr,
          "Form 6 card C of types 3 to 5, columns 31-40"},
    Field{"tb5", "Aspect Ratio", "", real(0.1, 30), "Aspect Ratio: 0.1 to 30.", nullptr,
          "Form 6 card C of type 1, columns 41-50"},
    Field{"tb5", "Junction Angle", "degrees", real(10, 30), "Junction Angle:  10, 20 or 30 Degrees ONLY", nullptr,
          "Form 6 card C of types 4 and 5, columns 41-50"},
    Field{"ttb1", "Boundary Dry-Bulb", "Deg F", Temperature, "Dry-bulb Tempoerature at Boundary: -50 to 140 deg F", nullptr,
          "Form 6 card B, columns 1-10"},
    Field{"ttb2", "Boundary Wet-Bulb", "Deg F", Temperature, "Wet-bulb Tempoerature at Boundary: -50 to 140 deg F\"", nullptr,
          "Form 6 card B, columns 11-20"},
    Field{"ttb3", "Morning Dry-Bulb", "Deg F", Temperature, TemperatureHint, nullptr, "Form 6 card B, columns 21-30"},
    Field{"ttb3", "Morning Wet-Bulb", "Deg F", Temperature, TemperatureHint, nullptr, "Form 6 card B, columns 31-40"},
    Field{"ttb3", "Evening Dry-Bulb", "Deg F", Temperature, TemperatureHint, nullptr, "Form 6 card B, columns 41-50"},
    Field{"ttb3", "Evening Wet-Bulb", "Deg F", Temperature, TemperatureHint, nullptr, "Form 6 card B, columns 51-60"},
    Field{"tbA1", "Thermal SubNode A", "", Subnode, HintA, nullptr, "Form 6 card D, columns 1-10"},
    Field{"tbA2", "Thermal SubNode A", "", Subnode, HintA, nullptr, "Form 6 card D, columns 11-20"},
    Field{"tbA3", "Thermal SubNode A", "", Subnode, HintA, nullptr, "Form 6 card D, columns 21-30"},
    Field{"tbB1", "Thermal SubNode B", "", Subnode, HintB, nullptr, "Form 6 card D, columns 31-40"},
    Field{"tbC1", "Thermal SubNode C", "", Subnode, HintC, nullptr, "Form 6 card D, columns 41-50"},
    Field{"tbC2", "Thermal SubNode C", "", Subnode, HintC, nullptr, "Form 6 card D, columns 51-60"},
    Field{"tbC3", "Thermal SubNode C", "", Subnode, HintC, nullptr, "Form 6 card D, columns 61-70"},
};
constexpr std::span<const Field> All{Fields};
constexpr const Field& FourthBranch = Fields[3];
constexpr const Field& RatioInFourth = Fields[4];
constexpr const Field& RatioInFifth = Fields[5];
constexpr const Field& AngleInFifth = Fields[6];
constexpr auto Branches = All.first(4), Temperatures = All.subspan(7, 6), SubA = All.subspan(13, 3), SubB = All.subspan(16, 1),
               SubC = All.subspan(17, 3);

constexpr std::array Columns{Column{"Node", "", integer(1, 999), "Select Node From List", "Form 6 card A, columns 1-10"}};

constexpr Field AeroList{"cbAeroType", "Aero Type", "", text(), "", nullptr, "Form 6 card A, columns 11-20"};
constexpr Field ThermoList{"cbThermoType", "Thermo Type", "", text(), "", nullptr, "Form 6 card A, columns 21-30"};
constexpr std::array<std::string_view, 7> AeroNames{"0 - Straight Thru",
                                                    "1 - Tunnel to Tunnel Crossover",
                                                    "2 - Dividing Wall Termination",
                                                    "3 - \"T\" Junction",
                                                    "4 - Angled Junction",
                                                    "5 - \"Y\" Junction",
                                                    "7 - Zero Total Pressure Change"};
constexpr std::array<std::string_view, 3> ThermoNames{"1 - Mixing Node", "2 - Partial Mixing Node",
                                                      "3 - Temp/Humidity Boundary"};

constexpr std::array Menus{
    MenuEntry{"MEdit", "&Edit", ""},
    MenuEntry{"ME_Cut", "Cu&t", "MEdit"},
    MenuEntry{"ME_Copy", "&Copy", "MEdit"},
    MenuEntry{"ME_Paste", "&Paste", "MEdit"},
    MenuEntry{"ME_Delete", "&Delete Node", "MEdit"},
    MenuEntry{"ME_Insert", "&Insert Node", "MEdit"},
    MenuEntry{"ME_Default", "Set De&fault", "MEdit"},
    MenuEntry{"ME_Exit", "E&xit", "MEdit"},
    MenuEntry{"M_Update", "&Update", ""},
    MenuEntry{"MHelp", "&Help", ""},
    MenuEntry{"MH_Contents", "&Contents ...", "MHelp"},
    MenuEntry{"MH_Search", "&Search for Help On ...", "MHelp"},
};

constexpr int VisibleRows = 14, CaptionCharacters = 18;
constexpr double PictureWidth = 2700, PictureHeight = 1800;

void addFields(LayoutPanel& panel, std::span<const Field> fields) {
    for (const auto& field : fields) {
        panel.field(field);
    }
}

/// The layout names captions and units by their boxes; here they have names of their own.
void nameLabels(Window& window) {
    renameControl(window, "lbl4", "ALbl4");
    renameControl(window, "lbl5", "ALbl5");
    renameControl(window, "unit5", "AUnit5");
    for (int i = 0; i < 4; ++i) {
        renameControl(window, "lblttb3", "tLbl3");
        renameControl(window, "unitttb3", "unit3t");
    }
    for (const std::string_view name : {"ttb3", "tLbl3", "unit3t"}) {
        numberControls(window, name);
    }
}

} // namespace

std::span<const Field> nodeFields() { return Fields; }
std::span<const Column> nodeColumns() { return Columns; }

const Field* fourthField(std::int16_t aeroType) {
    switch (aeroType) {
    case 1:
        return &FourthBranch;
    case 3:
    case 4:
    case 5:
        return &RatioInFourth;
    default:
        return nullptr;
    }
}

const Field* fifthField(std::int16_t aeroType) {
    switch (aeroType) {
    case 1:
        return &RatioInFifth;
    case 4:
    case 5:
        return &AngleInFifth;
    default:
        return nullptr;
    }
}

std::string_view diagramOf(std::int16_t aeroType, std::int16_t thermoType) {
    constexpr std::int16_t Boundary = 3;
    switch (aeroType) {
    case 0:
        return thermoType == Boundary ? "\\aero03.dib" : "\\aero01.dib";
    case 1:
        return "\\aero1.dib";
    case 2:
        return "\\aero2.dib";
    case 3:
        return "\\aero3.dib";
    case 4:
        return "\\aero4.dib";
    case 5:
        return "\\aero5.dib";
    case 7:
        return "\\aero0.dib";
    default:
        return "";
    }
}

Control& boxOf(const Window& window, const BoxName& name) {
    return window.control(name.control, name.index < 0 ? std::nullopt : std::optional(name.index));
}

void buildNodeControls(Window& window) {
    addMenus(window, Menus);
    Layout layout(window);
    layout.panel("pnlNodes", "Nodes").grid("Grid1", Columns, VisibleRows);
    layout.nextColumn();
    auto& types = layout.panel("pnlTypes", "Type", CaptionCharacters);
    types.note("lblNode", "Node");
    types.list(AeroList, AeroNames);
    types.list(ThermoList, ThermoNames);
    types.area(ControlKind::Image, "Image1", "", PictureWidth, PictureHeight);
    auto& mixing = layout.panel("pnlPartialMix", "Partial Mixing Node Configuration", CaptionCharacters);
    mixing.boxes(SubA.front().caption, SubA);
    mixing.boxes(SubB.front().caption, SubB);
    mixing.boxes(SubC.front().caption, SubC);
    layout.nextColumn();
    auto& aero = layout.panel("pnlAero", "Aerodynamic Data", CaptionCharacters);
    addFields(aero, Branches);
    aero.field(AngleInFifth);
    addFields(layout.panel("pnlThermo", "Thermodynamic Data", CaptionCharacters), Temperatures);
    layout.button("cmdDone", "OK");
    layout.button("cmdHelp", "Help");
    layout.finish();
    nameLabels(window);
}

} // namespace kov
