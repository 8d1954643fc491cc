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
constexpr double Margin = 105, InnerTop = 330, IdentityWidth = 3500, OptionWidth = 2000, OptionHeight = 285, ChartWidth = 3000,
                 ChartHeight = 1500;

Control& add(Window& window, ControlKind kind, std::string_view name, std::string_view caption = {}) {
    return window.add(kind, std::string(name), std::string(caption));
}

void addHead(Window& window, StackedLayout& stack) {
    auto& label = add(window, ControlKind::Label, "lblTrainId", trainField("tbTrainId").caption);
    label.alignRight = true;
    const std::array title{RowItem{label, 900}, RowItem{add(window, ControlKind::TextBox, "tbTrainId"), 4200}};
    stack.row(title);
    auto& number = add(window, ControlKind::Label, "lblTrnNo", "Train");
    number.alignRight = true;
    const std::array commands{RowItem{number, 900},
                              RowItem{add(window, ControlKind::TextBox, "tbTrnNo"), 700},
                              RowItem{add(window, ControlKind::Spin, "Spin1"), 330},
                              RowItem{add(window, ControlKind::Button, "cmdInsert", "Insert"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdCut", "Cut"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdCopy", "Copy"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdPaste", "Paste"), 1000},
                              RowItem{add(window, ControlKind::Button, "cmdDelete", "Delete"), 1000}};
    stack.row(commands);
}

void addFields(LayoutPanel& panel, std::initializer_list<std::string_view> names) {
    for (const auto& name : names) {
        panel.field(trainField(name));
    }
}

/// Boxes of one row behind one caption, as elements of their array.
void addElements(Window& window, LayoutPanel& panel, std::string_view caption, std::string_view array,
                 std::initializer_list<int> indices) {
    const auto first = window.controls().size();
    std::vector<Field> fields;
    for (const int index : indices) {
        fields.push_back(trainField(array, index));
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
    auto& motor = layout.panel("pnlMotor", "Motor", CaptionCharacters);
    motor.field(trainField("tbMotorID"));
    motor.headings("lblSpecs", {"Manuf. Data", "Actual"});
    for (const int index : {0, 2, 4}) {
        addElements(window, motor, trainField("tbMtrSpec", index).caption, "tbMtrSpec", {index, index + 1});
    }
    addElementRows(window, motor, "tbMtrSpec", 6, 6);
    layout.nextColumn();
    auto& curve = layout.panel("pnlCurve", "Performance Curve", CaptionCharacters);
    curve.headings("lblCurve", {"Speed", "Tractive Effort", "Motor Current"});
    for (int point = 0; point < 4; ++point) {
        const int first = 4 * point + 1;
        addElements(window, curve, "", "tbMtrDat", {first, first + 1, first + 2});
    }
    curve.area(ControlKind::Drawing, "Curves", "", ChartWidth, ChartHeight);
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
    auto& repeated = layout.panel("pnlMotorID2", "Motor", CaptionCharacters)
                         .field(Field{"tbMotorID2", "Motor ID", "", text(), "", nullptr, ""});
    repeated.text().locked = true;
    repeated.tabStop = false;
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

/// The panel of the cam controller stands where that of the chopper does: a train has one of the two.
void addCamPanel(Window& window, Control& strip) {
    LayoutPanel panel(window, "pnlCam", "Cam", CaptionOnOneLine);
    addElementRows(window, panel, "tbController", 0, 4);
    const auto& chopper = window.control("pnlChopper");
    panel.place(chopper.bounds.left.value, chopper.bounds.top.value, panel.width());
    panel.frame().strip = &strip;
    panel.frame().page = chopper.page;
}

/// An identification takes 36 characters.
void widen(Control& box) {
    const Twips room = box.parent->bounds.width - box.bounds.left - Twips{Margin};
    box.bounds.width = std::min(room, Twips{IdentityWidth});
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
    addCamPanel(window, strip);
    widen(window.control("tbMotorID"));
    widen(window.control("tbMotorID2"));
    stack.button("cmdOkay", "OK");
    stack.button("cmdCancel", "Cancel");
    stack.button("cmdHelp", "Help");
    stack.finish();
}

} // namespace kov
