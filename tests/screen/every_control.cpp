#include "every_control.hpp"

#include <memory>

namespace kov::screen {
namespace {

constexpr double Row = 390, BoxHeight = 315;

Bounds place(double left, double top, double width, double height = BoxHeight) {
    return {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

/// Builds the window; it has no other logic than to write down what it hears.
class Everything {
public:
    Everything(Window& window, Heard& heard) : window_(window), heard_(heard) {
        window.caption = "Every Kind of Control";
        window.bounds = place(600, 600, 9600, 7200);
        addTexts();
        addButtons();
        addLists();
        addGrid();
        addTabs();
        addDrawing();
        addMenus();
        for (const auto& control : window.controls()) {
            listen(*control);
        }
    }

private:
    Control& add(ControlKind kind, const std::string& name, const Bounds& bounds, const std::string& caption = {}) {
        auto& control = window_.add(kind, name, caption);
        control.bounds = bounds;
        return control;
    }
    void listen(Control& control) {
        const auto note = [this, name = control.label()](const std::string& event) {
            return [this, line = event + " " + name] { heard_.push_back(line); };
        };
        control.on.gotFocus = note("got");
        control.on.lostFocus = note("lost");
        control.on.change = note("change");
        control.on.click = note("click");
        control.on.dblClick = note("double");
        control.on.cellChange = note("cell");
        control.on.spinUp = note("up");
        control.on.spinDown = note("down");
        control.on.rightClick = [this, name = control.label()](int row) {
            heard_.push_back("right " + name + " " + std::to_string(row));
        };
    }
    void addTexts() {
        auto& label = add(ControlKind::Label, "lblName", place(150, 150, 1650), "Station &Name");
        label.alignRight = true;
        add(ControlKind::TextBox, "tbName", place(1890, 150, 2100))
            .setText("Deep \xC9"
                     "ast");
        auto& locked = add(ControlKind::TextBox, "tbLocked", place(1890, 150 + Row, 2100));
        locked.setText("locked");
        locked.text().locked = true;
        auto& off = add(ControlKind::TextBox, "tbOff", place(1890, 150 + 2 * Row, 2100));
        off.setText("disabled");
        off.enabled = false;
        auto& many = add(ControlKind::TextBox, "tbMany", place(150, 150 + 3 * Row, 3840, 1050));
        many.text().multiLine = true;
        many.text().fixedPitch = true;
        many.setText("first line\r\nsecond line");
    }
    void addButtons() {
        auto& panel = add(ControlKind::Panel, "Panel1", place(4200, 150, 2400, 1560));
        for (int i = 0; i < 3; ++i) {
            auto& option = window_.add(ControlKind::OptionButton, "rbWay", "Way &" + std::to_string(i + 1), i);
            option.parent = &panel;
            option.bounds = place(150, 90 + (i * Row), 1500);
            option.checked = i == 0;
        }
        auto& check = add(ControlKind::CheckBox, "ckOn", place(150, 90 + (3 * Row) - 60, 2100), "Switched &On");
        check.parent = &panel;
        auto& frame = add(ControlKind::Frame, "Frame1", place(6750, 90, 2700, 1620), "Fans && Shafts");
        auto& push = add(ControlKind::Button, "cmdPush", place(180, 360, 1200, 390), "&Push");
        push.parent = &frame;
        auto& gray = add(ControlKind::Button, "cmdGray", place(1440, 360, 1110, 390), "Gray");
        gray.parent = &frame;
        gray.enabled = false;
        auto& spin = add(ControlKind::Spin, "spnUp", place(1440, 900, 300, 480));
        spin.parent = &frame;
        auto& bar = add(ControlKind::Progress, "Progress1", place(180, 1050, 1110, 240));
        bar.parent = &frame;
        bar.progress().value = 40;
        add(ControlKind::Line, "Line1", place(150, 2550, 9300, 15));
    }
    void addLists() {
        auto& list = add(ControlKind::List, "lstOne", place(4200, 1800, 1500, 690));
        auto& many = add(ControlKind::List, "lstMany", place(5850, 1800, 1500, 690));
        std::get<ListPart>(many.part).multiSelect = true;
        auto& fixed = add(ControlKind::Combo, "cbFixed", place(7500, 1800, 1950));
        auto& free = add(ControlKind::Combo, "cbFree", place(7500, 2170, 1950));
        std::get<ComboPart>(free.part).dropDownList = false;
        for (auto* control : {&list, &many, &fixed, &free}) {
            for (const auto* entry : {"Alpha", "Beta", "Gamma", "Delta"}) {
                control->items().addItem(entry);
            }
        }
        list.items().setIndex(1);
        fixed.items().setIndex(0);
        many.items().setSelected(0, true);
        many.items().setSelected(2, true);
        free.setText("typed");
    }
    void addGrid() {
        auto& control = add(ControlKind::Grid, "grdData", place(150, 2700, 4500, 3000));
        auto& grid = control.grid();
        grid.setCols(4);
        for (int row = 0; row < 2000; ++row) {
            const auto number = std::to_string(row);
            grid.addItem(number + "\tline " + number + "\t" + std::to_string(row * 10) + ".\tx", row);
        }
        grid.setFixed(1, 1);
        for (int col = 0; col < 4; ++col) {
            grid.setText(0, col, col == 0 ? "No." : "Column " + std::to_string(col));
            grid.setColWidth(col, Twips{col == 0 ? 600.0 : 1200.0});
        }
        grid.setRow(2);
        grid.setCol(1);
        auto& box = add(ControlKind::TextBox, "gtext", place(0, 0, 0));
        box.visible = false;
    }
    void addTabs() {
        auto& strip = add(ControlKind::TabStrip, "Tabs1", place(4800, 2700, 4650, 3000));
        strip.tabs().tabs = {{"Segments", true}, {"Heat", true}, {"Closed", false}};
        for (int page = 0; page < 2; ++page) {
            const auto number = std::to_string(page);
            auto& label = add(ControlKind::Label, "lblPage" + number, place(5000, 3300, 1500), "On page " + number);
            auto& box = add(ControlKind::TextBox, "tbPage" + number, place(6600, 3300, 1500));
            for (auto* control : {&label, &box}) {
                control->strip = &strip;
                control->page = page;
            }
            box.setText(number);
        }
        auto& picture = add(ControlKind::Image, "Image1", place(5000, 3900, 1500, 1500));
        std::get<ImagePart>(picture.part).path = "missing.svg";
        add(ControlKind::Button, "cmdDone", place(6900, 6600, 1200, 420), "OK");
        add(ControlKind::Button, "cmdCancel", place(8250, 6600, 1200, 420), "Cancel");
    }
    void addDrawing() {
        auto& drawing = add(ControlKind::Drawing, "Curves", place(150, 5850, 3000, 1200)).drawing();
        drawing.lines.push_back({{{Twips{150}, Twips{600}}, {Twips{2850}, Twips{600}}}, DrawingPart::Tone::First, false});
        drawing.marks.push_back({{Twips{1500}, Twips{900}}, DrawingPart::Tone::Second});
        drawing.labels.push_back({{Twips{1500}, Twips{225}}, "cfm", DrawingPart::Anchor::Center, DrawingPart::Tone::Text});
    }
    void addMenus() {
        window_.add(ControlKind::Menu, "M_Edit", "&Edit");
        for (const auto& [name, caption] : {std::pair{"ME_Cut", "Cu&t"}, {"ME_Bar", "-"}, {"ME_Gray", "&Gray"}}) {
            window_.add(ControlKind::Menu, name, caption).menu().menu = "M_Edit";
        }
        window_.control("ME_Gray").enabled = false;
    }

    Window& window_;
    Heard& heard_;
};

} // namespace

void registerEverything(Desk& desk, Heard& heard) {
    desk.registerWindow("Everything", [&heard](Window& window) { return std::make_shared<Everything>(window, heard); });
}

} // namespace kov::screen
