#include "app/composition/program.hpp"
#include "platform/headless/surroundings.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace kov {
namespace {

constexpr double Pixel = 15, TopOfFrame = 100;
constexpr std::int32_t FocusColor = 16776960, PlainColor = 12632256;

/// The program with nobody in front of it, past its splash, and as many sections of one segment as a test asks for.
class LineWindows : public testing::Test {
protected:
    LineWindows() : program_(surroundings_.services(), "app") {
        program_.start("");
        program_.desk().pass(5000);
    }

    void addSections(int count) {
        auto& sections = data().Sections;
        for (int number = 1; number <= count; ++number) {
            sections.Add(Position{0})->id = static_cast<std::int16_t>(number);
        }
    }
    [[nodiscard]] Application& app() { return program_.application(); }
    [[nodiscard]] KOVDataSet& data() { return *app().DataSet; }
    [[nodiscard]] Desk& desk() { return program_.desk(); }
    Window& open(const std::string& name) { return *desk().show(name); }

    Surroundings surroundings_{std::filesystem::temp_directory_path()};
    Program program_;
};

// Layout.

bool isPlaced(const Control& control) {
    return control.kind != ControlKind::Menu && control.kind != ControlKind::Timer && control.visible &&
           control.name != "Dummy";
}

bool overlap(const Bounds& one, const Bounds& other) {
    return one.left.value + one.width.value > other.left.value + Pixel &&
           other.left.value + other.width.value > one.left.value + Pixel &&
           one.top.value + one.height.value > other.top.value + Pixel &&
           other.top.value + other.height.value > one.top.value + Pixel;
}

/// A page stands on its strip, so that the two cover each other.
bool shareASurface(const Control& one, const Control& other) {
    if (one.parent != other.parent || one.strip == &other || other.strip == &one) {
        return false;
    }
    return one.strip == nullptr || other.strip == nullptr || (one.strip == other.strip && one.page == other.page);
}

std::vector<std::string> overlapping(const Window& window) {
    std::vector<std::string> found;
    const auto& controls = window.controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        for (std::size_t j = i + 1; j < controls.size(); ++j) {
            const auto& one = *controls[i];
            const auto& other = *controls[j];
            if (isPlaced(one) && isPlaced(other) && shareASurface(one, other) && overlap(one.bounds, other.bounds)) {
                found.push_back(one.label() + " covers " + other.label());
            }
        }
    }
    return found;
}

bool liesIn(const Bounds& inner, double width, double height, double top) {
    return inner.left.value >= 0 && inner.top.value >= top && inner.left.value + inner.width.value <= width + Pixel &&
           inner.top.value + inner.height.value <= height + Pixel;
}

std::vector<std::string> outside(const Window& window) {
    std::vector<std::string> found;
    for (const auto& control : window.controls()) {
        if (!isPlaced(*control)) {
            continue;
        }
        const auto& place = control->bounds;
        const bool inside = control->parent == nullptr ? liesIn(place, window.bounds.width.value, window.bounds.height.value, 0)
                                                       : liesIn(place, control->parent->bounds.width.value,
                                                                control->parent->bounds.height.value, TopOfFrame);
        bool onStrip = true;
        if (control->strip != nullptr && control->parent == nullptr) {
            const auto& strip = control->strip->bounds;
            onStrip = place.left.value >= strip.left.value && place.top.value >= strip.top.value &&
                      place.left.value + place.width.value <= strip.left.value + strip.width.value &&
                      place.top.value + place.height.value <= strip.top.value + strip.height.value;
        }
        if (!inside || !onStrip) {
            found.push_back(control->label());
        }
    }
    return found;
}

TEST_F(LineWindows, GivenTheWindowsOfTheLineNetworkWhenTheyOpenThenNoControlCoversAnotherAndNoneSticksOut) {
    addSections(2);
    for (const auto* name : {"frmLSect", "lseg"}) {
        const auto& window = open(name);
        EXPECT_EQ(overlapping(window), std::vector<std::string>{}) << name;
        EXPECT_EQ(outside(window), std::vector<std::string>{}) << name;
    }
}

TEST_F(LineWindows, GivenTheSegmentWindowWhenItOpensThenEveryCaptionBeforeABoxStandsAgainstIt) {
    const auto& window = open("lseg");
    for (const auto* caption : {"lblSLen", "lblHeight", "lblXArea", "lblWWS", "lblForward", "lblBack", "lblWThk", "lblTSink"}) {
        EXPECT_TRUE(window.control(caption).alignRight) << caption;
    }
}

TEST_F(LineWindows, GivenColumnsWithAUnitWhenAWindowOpensThenItStandsUnderTheCaption) {
    addSections(1);
    EXPECT_EQ(open("frmLSect").control("unitLSect", 4).caption, "CFM");
    const auto& window = open("lseg");
    EXPECT_EQ(window.control("unitSubSeg", 2).caption, "deg F");
    EXPECT_EQ(window.control("unitSSHS", 5).caption, "Btu/hr");
    EXPECT_EQ(window.control("unitWCond").caption, "Btu/ ft-hr-Deg F");
}

// What no script can see.

TEST_F(LineWindows, GivenTheFireBoxWhenItHasTheFocusThenItsBackgroundTellsSo) {
    addSections(1);
    auto& window = open("lseg");
    auto& fire = window.control("cbfire");
    EXPECT_EQ(fire.backColor, PlainColor);

    desk().focusOn(fire);
    EXPECT_EQ(fire.backColor, FocusColor);

    desk().focusOn(window.control("tbSLen"));
    EXPECT_EQ(fire.backColor, PlainColor);
}

TEST_F(LineWindows, GivenAnyGridOfTheWindowsWhenTheRightButtonIsPressedThenTheEditMenuPopsUp) {
    addSections(3);
    auto& sections = open("frmLSect");
    desk().rightClick(sections.control("grdLSect"), 2);
    EXPECT_TRUE(sections.control("M_Edit").menu().popup);
    EXPECT_EQ(sections.control("grdLSect").grid().row(), 0);

    auto& segments = open("lseg");
    desk().rightClick(segments.control("grdLSeg"), 2);
    EXPECT_TRUE(segments.control("M_Edit").menu().popup);
    EXPECT_EQ(segments.control("grdLSeg").grid().row(), 2);
    for (const auto* const grid : {"grdSubSeg", "grdSSHS"}) {
        segments.control("M_Edit").menu().popup = false;
        desk().focusOn(segments.control(grid));
        desk().rightClick(segments.control(grid), 0);
        EXPECT_TRUE(segments.control("M_Edit").menu().popup) << grid;
    }
}

TEST_F(LineWindows, GivenASectionToShowFirstWhenTheSegmentsOpenThenTheTopRowFollowsFromRow15On) {
    addSections(40);
    app().lineSelection.SelSect = 15; // row 14
    EXPECT_EQ(open("lseg").control("grdLSeg").grid().topRow(), 0);
    EXPECT_EQ(open("lseg").control("grdLSeg").grid().row(), 14);
    desk().unload(*desk().find("lseg"));

    app().lineSelection.SelSect = 16; // row 15
    EXPECT_EQ(open("lseg").control("grdLSeg").grid().topRow(), 15);
}

TEST_F(LineWindows, GivenASectionThatIsNotThereWhenTheSegmentsOpenThenTheFirstRowIsShown) {
    addSections(3);
    app().lineSelection.SelSect = 77;
    const auto& window = open("lseg");
    EXPECT_EQ(window.control("grdLSeg").grid().row(), 0);
    EXPECT_EQ(window.control("lblsegid").caption, " 1");
}

TEST_F(LineWindows, GivenARowWhenGoingToTheSegmentsThenItsFirstSegmentIsWantedUntilTheSectionsClose) {
    addSections(3);
    auto& window = open("frmLSect");
    desk().cell(window.control("grdLSect"), 1, 0);
    desk().click(window.control("cmdGoSeg"));
    EXPECT_EQ(app().lineSelection.SelSect, 2);
    EXPECT_EQ(app().lineSelection.SelSeg, 1);

    desk().close(window);
    EXPECT_EQ(app().lineSelection.SelSect, 0);
}

TEST_F(LineWindows, GivenScrolledGridsWhenARowGoesThenTheTopRowIsKept) {
    addSections(40);
    auto& window = open("frmLSect");
    auto& grid = window.control("grdLSect").grid();
    desk().cell(window.control("grdLSect"), 30, 0);
    grid.setTopRow(20);
    desk().key(Key::Delete);
    EXPECT_EQ(grid.rows(), 39);
    EXPECT_EQ(grid.topRow(), 20);
    EXPECT_EQ(grid.selection().startRow, 0);
    EXPECT_EQ(grid.selection().endRow, 0);

    desk().cell(window.control("grdLSect"), 38, 0);
    grid.setTopRow(38);
    desk().key(Key::Delete);
    EXPECT_EQ(grid.topRow(), 37) << "the row above when the old one is gone";
}

TEST_F(LineWindows, GivenNoEnvironmentalControlWhenTheWallThicknessIsFocusedThenItDoesNotTakeIt) {
    addSections(1);
    auto& window = open("lseg");
    EXPECT_FALSE(desk().focusOn(window.control("tbWThk")));
    EXPECT_FALSE(desk().chooseTab(window.control("SSTab1"), 2));
    EXPECT_EQ(window.control("SSTab1").tabs().current, 0);
}

TEST_F(LineWindows, GivenNoEnvironmentalControlWhenASegmentIsSavedThenItsWallAndSoilStay) {
    addSections(2);
    const auto& segment = data().Sections.Section(Position{1})->Segment(Position{1});
    segment->WThk = "1.25";
    auto& window = open("lseg");
    EXPECT_EQ(window.control("tbWThk").text().text, "");
    desk().click(window.control("cmdOK"));
    EXPECT_EQ(segment->WThk.view(), "1.25      ");
}

TEST_F(LineWindows, GivenNoSectionsWhenTheSegmentsOpenThenNothingIsShownAndOkStoresNothing) {
    auto& window = open("lseg");
    EXPECT_EQ(window.control("grdLSeg").grid().rows(), 1);
    EXPECT_EQ(window.control("lblsegid").caption, "");
    desk().click(window.control("cmdOK"));
    EXPECT_EQ(desk().find("lseg"), nullptr);
    EXPECT_FALSE(desk().failure().has_value());
}

} // namespace
} // namespace kov
