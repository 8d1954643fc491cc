#include "rail/editor/number_row.hpp"
#include "rail/editor/train_editor.hpp"
#include "shell/entry/menus.hpp"
#include "shell/entry/stacked_layout.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace kov {
namespace {

constexpr std::array<std::string_view, 7> Tabs{"&General",    "Heat &Load", "&Resistors", "&Motor",
                                               "&Controller", "&Acc/Decel", "&FlyWheel"};
constexpr int CaptionCharacters = 20, CaptionOnOneLine = 40;
constexpr std::string_view RoomOfSpeed = "0000000000";
// An identification has 36 characters.
constexpr double Margin = 105, InnerTop = 330, IdentityWidth = 2850, IdentityHeight = 315, OptionWidth = 2000,
                 OptionHeight = 285, ChartWidth = 4900, ChartHeight = 2040;

Control& add(Window& window, ControlKind kind, std::string_view name, std::string_view caption = {}) {
    return window.add(kind, std::string(name), std::string(caption));
}

void addHead(Window& window, StackedLayout& stack) {
    auto& label = add(window, ControlKind::Label, "lblTrainId", trainField("tbTrainId").caption);
    label.alignRight = true;
    const std::array title{RowItem{label, 900}, RowItem{add(window, ControlKind::TextBox, "tbTrainId"), 4200}};
    stack.row(title);
    addNumberRow(window, stack, "lblTrnNo", "Train", "tbTrnNo");
}

void addFields(LayoutPanel& panel, std::initializer_list<std::string_view> names) {
    for (const auto& name : names) {
        panel.field(trainField(name));
    }
}

/// Boxes of one row behind one caption, as elements of their array. The unit of the first stands behind them unless they have
/// different ones.
void addElements(Window& window, LayoutPanel& panel, std::string_view caption, std::string_view array,
                 std::initializer_list<int> indices, bool oneUnit = true) {
    const auto first = window.controls().size();
    std::vector<Field> fields;
    fields.reserve(indices.size());
    for (const int index : indices) {
        fields.push_back(trainField(array, index));
        if (!oneUnit) {
            fields.back().unit = {};
        }
    }
    panel.boxes(caption, fields);
    const auto* next = indices.begin();
    for (auto i = first; i < window.controls().size(); ++i) {
        auto& control = *window.controls()[i];
        control.index = next == indices.end() ? *indices.begin() : *next;
        if (control.kind == ControlKind::TextBox) {
            ++next;
        }
    }
}

void addElementRows(Window& window, LayoutPanel& panel, std::string_view array, int first, int last) {
    for (int index = first; index <= last; ++index) {
        addElements(window, panel, trainField(array, index).caption, array, {index});
    }
}

void generalPage(Layout& layout) {
    addFields(layout.panel("pnlPhysical", "Physical Data", CaptionCharacters),
              {"tbNCars", "tbNPwrd", "tbNMtr", "tbTLength", "tbAFront", "tbPerim", "tbCwt"});
    layout.nextColumn();
    addFields(layout.panel("pnlDrag", "Drag Coefficients", CaptionCharacters), {"tbCSkin", "tbCTruck", "tbCFront"});
    addFields(layout.panel("pnlRolling", "Rolling Resistance Coefficients", CaptionCharacters),
              {"tbCRR1", "tbCRR2", "tbCRR3", "tbARRP"});
}

void heatPage(Layout& layout) {
    addFields(layout.panel("pnlSensible", "Sensible Heat", CaptionCharacters), {"tbSensAuxE", "tbSensPac"});
    addFields(layout.panel("pnlLatent", "Latent Heat", CaptionCharacters), {"tbLatentAuxE", "tbLatentPac"});
    layout.nextColumn();
    addFields(layout.panel("pnlAuxiliary", "Auxiliary Power Consumption", CaptionCharacters), {"tbPwrAuxE", "tbPwrPac"});
}

void resistorPage(Window& window, Layout& layout) {
    auto& panel = layout.panel("pnlResistors", "Resistor Grids", CaptionCharacters);
    panel.headings("lblAccDec", {"Accel", "Decel"});
    for (int row = 0; row < 7; ++row) {
        addElements(window, panel, trainField("tbAccRg", row).caption, "tbAccRg", {row, row + 7});
    }
}

void motorPage(Window& window, Layout& layout) {
    auto& identity = layout.panel("pnlMotor", "Motor");
    identity.note("lblMotorID", trainField("tbMotorID").caption);
    identity.area(ControlKind::TextBox, "tbMotorID", "", IdentityWidth, IdentityHeight);
    layout.nextColumn();
    auto& motor = layout.panel("pnlSpecs", "Specifications", CaptionCharacters);
    motor.headings("lblSpecs", {"Wheel Diam. (in)", "Gear Ratio", "Supply (volts)", "Terminal (volts)"});
    addElements(window, motor, "Manuf. Data", "tbMtrSpec", {0, 1, 2}, false);
    addElements(window, motor, "Actual", "tbMtrSpec", {3, 4, 5, 6}, false);
    layout.nextBand();
    auto& curve = layout.panel("pnlCurve", "Performance Curve (MPH, lb, amps)", CaptionCharacters);
    curve.headings("lblCurve", {"Speed", "Tractive Effort", "Motor Current"});
    for (int point = 0; point < 4; ++point) {
        const int first = 4 * point + 1;
        addElements(window, curve, "", "tbMtrDat", {first, first + 1, first + 2}, false);
    }
    layout.nextColumn();
    layout.panel("pnlPicture", "Effort and Current over Speed")
        .area(ControlKind::Drawing, "Curves", "", ChartWidth, ChartHeight);
}

/// The speeds of the curve, repeated as captions of the line currents.
void addLineCurrents(Window& window, LayoutPanel& panel) {
    for (int point = 0; point <= 4; ++point) {
        const auto first = window.controls().size();
        addElements(window, panel, RoomOfSpeed, "tbMtrDat", {4 * point});
        auto& speed = *window.controls()[first];
        speed.caption = "0";
        speed.name = "lblCrvSpeed";
        speed.index = point;
    }
}

void controllerPage(Window& window, Layout& layout) {
    auto& kind = layout.panel("fraCtrlOpt", "Controller", CaptionCharacters);
    kind.area(ControlKind::OptionButton, "rbCtrlOpt", "Cam", OptionWidth, OptionHeight, 1);
    kind.area(ControlKind::OptionButton, "rbCtrlOpt", "Chopper", OptionWidth, OptionHeight, 2);
    layout.nextColumn();
    auto& repeated =
        layout.panel("pnlMotorID2", "Motor ID").area(ControlKind::TextBox, "tbMotorID2", "", IdentityWidth, IdentityHeight);
    repeated.text().locked = true;
    repeated.tabStop = false;
    LayoutPanel cam(window, "pnlCam", "Cam", CaptionOnOneLine);
    addElementRows(window, cam, "tbController", 0, 4);
    cam.place(0, 0, cam.width());
    layout.nextBand();
    auto& chopper = layout.panel("pnlChopper", "Chopper", CaptionCharacters);
    chopper.field(Field{"cbFlyWheel", "Onboard Flywheel", "", checkBox(), "", nullptr, ""});
    addElementRows(window, chopper, "tbChopper", 1, 5);
    layout.nextColumn();
    addLineCurrents(window, layout.panel("pnlLineCurrent", "Speed vs Line Current", CaptionCharacters));
}

void flyWheelPage(Window& window, Layout& layout) {
    addElementRows(window, layout.panel("SSPanel11", "Flywheels"), "tbFlyWheel", 0, 4);
    layout.nextColumn();
    addElementRows(window, layout.panel("pnlLosses", "Efficiencies and Losses"), "tbFlyWheel", 5, 11);
}

/// The panel becomes a part of the one to its left, which grows around it.
void nest(Control& inner, Control& outer) {
    auto& place = inner.bounds;
    outer.bounds.width = place.left + place.width - outer.bounds.left + Twips{Margin};
    outer.bounds.height = std::max(outer.bounds.height, place.height + Twips{InnerTop + Margin});
    place.left = place.left - outer.bounds.left;
    place.top = Twips{InnerTop};
    inner.parent = &outer;
    inner.strip = nullptr;
}

/// The specifications are entered in the order of their cards, manufacturer's and actual value by turns, and seen in two rows.
void arrangeSpecifications(Window& window) {
    constexpr std::array PlaceOf{0, 3, 1, 4, 2, 5, 6};
    std::array<Bounds, PlaceOf.size()> places;
    for (std::size_t i = 0; i < places.size(); ++i) {
        places.at(i) = window.control("tbMtrSpec", static_cast<int>(i)).bounds;
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
        window.control("tbMtrSpec", static_cast<int>(i)).bounds = places.at(static_cast<std::size_t>(PlaceOf.at(i)));
    }
}

/// The panel of the cam controller stands where that of the chopper does: a train has one of the two.
void placeCamPanel(Window& window) {
    auto& cam = window.control("pnlCam").bounds;
    cam.left = window.control("pnlChopper").bounds.left;
    cam.top = window.control("pnlChopper").bounds.top;
}

} // namespace

void buildTrainControls(Window& window) {
    addEditMenu(window);
    addHelpMenu(window);
    StackedLayout stack(window);
    addHead(window, stack);
    auto& strip = add(window, ControlKind::TabStrip, "SSTab1");
    for (const auto& caption : Tabs) {
        strip.tabs().tabs.push_back({std::string(caption), true});
    }
    const std::vector<StackedLayout::Build> pages{
        generalPage,
        heatPage,
        [&](Layout& layout) { resistorPage(window, layout); },
        [&](Layout& layout) { motorPage(window, layout); },
        [&](Layout& layout) { controllerPage(window, layout); },
        [&](Layout& layout) { addElementRows(window, layout.panel("SSPanel10", "Rates", CaptionOnOneLine), "tbRate", 0, 4); },
        [&](Layout& layout) { flyWheelPage(window, layout); },
    };
    stack.pages(strip, pages);
    nest(window.control("pnlLineCurrent"), window.control("pnlChopper"));
    nest(window.control("pnlLosses"), window.control("SSPanel11"));
    placeCamPanel(window);
    arrangeSpecifications(window);
    stack.button("cmdOkay", "OK");
    stack.button("cmdCancel", "Cancel");
    stack.button("cmdHelp", "Help");
    stack.finish();
}

} // namespace kov
