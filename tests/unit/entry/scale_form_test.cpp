#include "shell/entry/scale_form.hpp"
#include "unit/support/fakes.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

/// A window of 1000 by 2000 that is made twice as wide and half as high.
class Scaling : public testing::Test, protected test::Workplace {
protected:
    Scaling() {
        window.bounds = {Twips{}, Twips{}, Twips{1000}, Twips{2000}};
        window.oldW = Twips{1000};
        window.oldH = Twips{2000};
        window.on.resize = [this] { ScaleForm(app, window); };
    }
    Control& at(ControlKind kind, double left, double top, double width, double height) {
        auto& control = window.add(kind, "control");
        control.bounds = {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
        return control;
    }
    void resize() { window.moveTo({Twips{}, Twips{}, Twips{2000}, Twips{1000}}); }

    static void expect(const Control& control, double left, double top, double width, double height) {
        EXPECT_DOUBLE_EQ(control.bounds.left.value, left);
        EXPECT_DOUBLE_EQ(control.bounds.top.value, top);
        EXPECT_DOUBLE_EQ(control.bounds.width.value, width);
        EXPECT_DOUBLE_EQ(control.bounds.height.value, height);
    }

    Application app{desk};
    Window window{"form"};
};

TEST_F(Scaling, LeavesTheMarginAtTheTopUnscaled) {
    const auto& label = at(ControlKind::Label, 100, 245, 300, 80);
    const auto& top = at(ControlKind::Label, 0, 45, 10, 10);
    resize();
    expect(label, 200, 145, 600, 40);
    expect(top, 0, 45, 20, 5);
}

TEST_F(Scaling, TreatsBoxesButtonsAndListsLikeLabels) {
    for (const auto kind : {ControlKind::TextBox, ControlKind::Button, ControlKind::CheckBox, ControlKind::OptionButton,
                            ControlKind::List, ControlKind::Panel, ControlKind::Frame}) {
        at(kind, 100, 245, 300, 80);
    }
    resize();
    for (const auto& control : window.controls()) {
        expect(*control, 200, 145, 600, 40);
    }
}

TEST_F(Scaling, MovesBothEndsOfALine) {
    const auto& line = at(ControlKind::Line, 100, 245, 300, 200);
    resize();
    // From (100, 245) to (400, 445): X doubled; Y (245-45)/2+45 and (445-45)/2+45.
    expect(line, 200, 145, 600, 100);
}

TEST_F(Scaling, KeepsAParkedControlParked) {
    const auto& parked = at(ControlKind::TextBox, -74905, 245, 300, 80);
    const auto& atTheLimit = at(ControlKind::TextBox, -50000, 245, 300, 80);
    resize();
    expect(parked, (-74905 + 76005) * 2 - 76005, 145, 600, 40);
    expect(atTheLimit, -100000, 145, 600, 40);
}

TEST_F(Scaling, LeavesTheHeightOfADropDownListToThePlatform) {
    auto& list = at(ControlKind::Combo, 100, 245, 300, 80);
    auto& typed = at(ControlKind::Combo, 100, 245, 300, 80);
    std::get<ComboPart>(typed.part).dropDownList = false;
    resize();
    expect(list, 200, 145, 600, 80);
    expect(typed, 200, 145, 600, 40);
}

TEST_F(Scaling, WidensTheColumnsOfAGridAndLeavesItsRows) {
    auto& grid = at(ControlKind::Grid, 100, 245, 300, 80);
    grid.grid().setCols(2);
    grid.grid().setColWidth(0, Twips{111});
    grid.grid().setColWidth(1, Twips{50});
    grid.grid().setRowHeight(Twips{240});
    resize();
    expect(grid, 200, 145, 600, 40);
    EXPECT_EQ(grid.grid().colWidth(0), Twips{222});
    EXPECT_EQ(grid.grid().colWidth(1), Twips{100});
    EXPECT_EQ(grid.grid().rowHeight(), Twips{240});
}

TEST_F(Scaling, ComesBackWithTheSize) {
    const auto& label = at(ControlKind::Label, 100, 245, 300, 80);
    resize();
    window.moveTo({Twips{}, Twips{}, Twips{1000}, Twips{2000}});
    expect(label, 100, 245, 300, 80);
}

TEST_F(Scaling, KeepsTheLastSizeInTheTags) {
    resize();
    EXPECT_EQ(window.oldW, Twips{2000});
    EXPECT_EQ(window.oldH, Twips{1000});
}

TEST_F(Scaling, DoesNothingToAMinimisedWindow) {
    const auto& label = at(ControlKind::Label, 100, 245, 300, 80);
    app.UserFontSize = 12;
    window.minimized = true;
    window.bounds.width = Twips{2000};
    ScaleForm(app, window);
    expect(label, 100, 245, 300, 80);
    EXPECT_EQ(window.oldW, Twips{1000});
    EXPECT_EQ(label.fontSize, 0);
}

TEST_F(Scaling, ScalesNothingToNothingSoThatThereIsAWayBack) {
    const auto& label = at(ControlKind::Label, 100, 245, 300, 80);
    window.moveTo({Twips{}, Twips{}, Twips{0}, Twips{0}});
    expect(label, 100, 245, 300, 80);
    resize();
    expect(label, 200, 145, 600, 40);
}

TEST_F(Scaling, GivesTheChosenFontToAllButPanelsAndLines) {
    app.UserFontName = "Courier New";
    app.UserFontSize = 12;
    for (const auto kind : {ControlKind::Label, ControlKind::TextBox, ControlKind::Button, ControlKind::CheckBox,
                            ControlKind::OptionButton, ControlKind::List, ControlKind::Combo, ControlKind::Grid}) {
        at(kind, 100, 245, 300, 80);
    }
    const auto& panel = at(ControlKind::Panel, 0, 0, 10, 10);
    const auto& line = at(ControlKind::Line, 0, 0, 10, 10);
    resize();
    EXPECT_EQ(panel.fontSize, 0);
    EXPECT_EQ(line.fontSize, 0);
    for (const auto& control : window.controls()) {
        if (control.get() != &panel && control.get() != &line) {
            EXPECT_EQ(control->fontName, "Courier New");
            EXPECT_EQ(control->fontSize, 12);
        }
    }
}

TEST_F(Scaling, LeavesTheDesignFontWithoutAChosenSize) {
    app.UserFontName = "Courier New";
    const auto& label = at(ControlKind::Label, 100, 245, 300, 80);
    resize();
    EXPECT_EQ(label.fontName, "");
    EXPECT_EQ(label.fontSize, 0);
}

} // namespace
} // namespace kov
