#include "app/composition/program.hpp"
#include "platform/headless/surroundings.hpp"
#include "rail/editor/initial_train_editor.hpp"
#include "rail/editor/route_editor.hpp"
#include "rail/editor/train_editor.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace kov {
namespace {

constexpr double ButtonWidth = 1200, ButtonHeight = 405, Rounding = 16;

/// The program with nobody in front of it, past its splash.
class RailWindows : public testing::Test {
protected:
    RailWindows() : program_(surroundings_.services(), "app") {
        program_.start("");
        program_.desk().pass(5000);
        data().TPOpt = 1;
    }

    [[nodiscard]] KOVDataSet& data() { return *program_.application().DataSet; }
    Window& open(const std::string& name) { return *program_.desk().show(name); }
    void leaveAfterTyping(Control& box, const std::string& text, Control& next) {
        ASSERT_TRUE(program_.desk().focusOn(box));
        ASSERT_TRUE(program_.desk().type(text));
        ASSERT_TRUE(program_.desk().focusOn(next));
    }

    Surroundings surroundings_{std::filesystem::temp_directory_path()};
    Program program_;
};

bool within(const Bounds& inner, Twips width, Twips height) {
    return inner.left.value >= -Rounding && inner.top.value >= -Rounding &&
           (inner.left + inner.width).value <= width.value + Rounding &&
           (inner.top + inner.height).value <= height.value + Rounding;
}

bool overlap(const Bounds& a, const Bounds& b) {
    return a.left + a.width > b.left + Twips{Rounding} && b.left + b.width > a.left + Twips{Rounding} &&
           a.top + a.height > b.top + Twips{Rounding} && b.top + b.height > a.top + Twips{Rounding};
}

bool isSeen(const Control& control) {
    return control.kind != ControlKind::Menu && control.kind != ControlKind::Timer && control.visible &&
           control.bounds.width.value > Rounding;
}

/// Two controls that a person can see at the same time on the same panel.
bool standTogether(const Control& a, const Control& b) {
    const bool samePage = a.strip == nullptr || b.strip == nullptr || a.strip != b.strip || a.page == b.page;
    return a.parent == b.parent && samePage && &a != b.strip && &b != a.strip;
}

void expectOrderly(const Window& window) {
    for (const auto& a : window.controls()) {
        if (!isSeen(*a)) {
            continue;
        }
        const auto room = a->parent != nullptr ? a->parent->bounds : window.bounds;
        EXPECT_TRUE(within(a->bounds, room.width, room.height)) << a->label() << " leaves its place";
        for (const auto& b : window.controls()) {
            if (a.get() < b.get() && isSeen(*b) && standTogether(*a, *b)) {
                EXPECT_FALSE(overlap(a->bounds, b->bounds)) << a->label() << " and " << b->label();
            }
        }
    }
}

TEST_F(RailWindows, HaveAnOrderlyLayoutThatIsNotSqueezedWhenTheyOpen) {
    for (const auto* name : {"Route1", "Trains", "TrnInit"}) {
        SCOPED_TRACE(name);
        auto& window = open(name);
        expectOrderly(window);
        // A design that is larger than an opening window is scaled down: by a twentieth or so in height, and by a tenth or so
        // in width, which a grid of eight columns takes.
        const auto& okay = window.control("cmdOkay");
        EXPECT_GE(okay.bounds.height.value, 0.94 * ButtonHeight);
        EXPECT_GE(okay.bounds.width.value, 0.89 * ButtonWidth);
    }
}

TEST_F(RailWindows, AreReachableAsTables) {
    EXPECT_EQ(RouteEditor::fields().size(), 8U);
    EXPECT_EQ(RouteEditor::grids().size(), 4U);
    EXPECT_EQ(InitialTrainEditor::columns().size(), 8U);
    EXPECT_EQ(TrainEditor::fields().size(), 87U);
}

TEST_F(RailWindows, GivenNoTrainPerformanceThenNothingOfARouteIsSwitchedOff) {
    data().TPOpt = 0;
    auto& window = open("Route1");
    for (const auto& tab : window.control("SSTab1").tabs().tabs) {
        EXPECT_TRUE(tab.enabled) << tab.caption;
    }
    EXPECT_TRUE(window.control("tbNpax0").enabled);
}

TEST_F(RailWindows, GivenNoTrainPerformanceThenAChopperTrainShowsFlyWheels) {
    data().TPOpt = 0;
    const auto train = data().Trains.Add(Position{0});
    train->Motor.CtrlOpt = 3;
    auto& window = open("Trains");
    EXPECT_TRUE(window.control("rbCtrlOpt", 2).checked);
    EXPECT_TRUE(window.control("cbFlyWheel").checked);
    EXPECT_TRUE(window.control("SSTab1").tabs().tabs.at(6).enabled);
}

TEST_F(RailWindows, GivenACoastOptionOutsideItsListThenNeitherIsSelectedAndAStoreMakesItOne) {
    const auto route = data().Routes.Add(Position{0});
    route->RouteID = "East";
    route->CoastOpt = 7;
    auto& window = open("Route1");
    EXPECT_FALSE(window.control("rbCoastOpt", 0).checked);
    EXPECT_FALSE(window.control("rbCoastOpt", 1).checked);
    program_.desk().click(window.control("cmdCopy"));
    EXPECT_EQ(route->CoastOpt, 1);
}

TEST_F(RailWindows, GivenStopsWhenThePerformanceIsStoredUnseenThenTheyAreStillThere) {
    const auto route = data().Routes.Add(Position{0});
    route->RouteID = "East";
    auto point = std::make_shared<cRtTPerf>();
    point->PerfTime = "10.";
    route->TPerfs.append(point);
    auto& window = open("Route1"); // option 1 doesn't show the performance
    program_.desk().click(window.control("cmdCopy"));
    ASSERT_EQ(route->TPerfs.count(), 1);
    EXPECT_NE(route->TPerfs.at(Position{1}), point) << "it was rewritten from the hidden grid";
    EXPECT_EQ(route->TPerfs.at(Position{1})->PerfTime.trimmed(), "10.");
}

TEST_F(RailWindows, GivenNoSectionIsCurrentWhenTheSignIsChangedThenNothingHappens) {
    auto& window = open("Route1");
    auto& desk = program_.desk();
    ASSERT_TRUE(desk.chooseTab(window.control("SSTab1"), 5));
    EXPECT_TRUE(desk.click(window.control("cmdChgSign")));
    EXPECT_EQ(window.control("RtList").items().count(), 1);
    EXPECT_FALSE(desk.failure().has_value());
}

TEST_F(RailWindows, GivenACellIsLeftThenTheProfileIsDrawnAnew) {
    auto& window = open("Route1");
    auto& desk = program_.desk();
    ASSERT_TRUE(desk.chooseTab(window.control("SSTab1"), 2));
    auto& profile = window.control("Profile");
    EXPECT_TRUE(profile.drawing().lines.empty());
    for (const auto* cell : {"1000", "0", "0", "50", "30"}) {
        ASSERT_TRUE(desk.type(cell));
        const auto before = profile.drawing().revision;
        ASSERT_TRUE(desk.key(Key::Enter));
        EXPECT_GT(profile.drawing().revision, before);
    }
    EXPECT_FALSE(profile.drawing().lines.empty());
}

TEST_F(RailWindows, GivenAFieldIsLeftThenThePerformanceCurveIsDrawnAnew) {
    auto& window = open("Trains");
    ASSERT_TRUE(program_.desk().chooseTab(window.control("SSTab1"), 3));
    auto& picture = window.control("Curves");
    EXPECT_TRUE(picture.drawing().lines.empty());
    leaveAfterTyping(window.control("tbMtrDat", 1), "17", window.control("tbMtrDat", 2));
    leaveAfterTyping(window.control("tbMtrDat", 2), "4400", window.control("tbMtrDat", 3));
    EXPECT_EQ(picture.drawing().marks.size(), 2U) << "one point, effort and current";
}

TEST_F(RailWindows, GivenAnotherSizeThenThePicturesAreDrawnForIt) {
    auto& window = open("Trains");
    const auto before = window.control("Curves").drawing().revision;
    program_.desk().resize(window, Twips{15000}, Twips{10000});
    EXPECT_GT(window.control("Curves").drawing().revision, before);
}

} // namespace
} // namespace kov
