#include "unit/support/fakes.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using test::Log;

class ThreeWindows : public testing::Test, protected test::Workplace {
protected:
    ThreeWindows() {
        for (const auto* name : {"back", "middle", "top"}) {
            open(name, [this, name](Window& window) {
                auto& box = window.add(ControlKind::TextBox, std::string(name) + "Box");
                watch(box);
                window.on.activate = [this, name] { log.push_back(std::string(name) + " in front"); };
            });
        }
        log.clear();
    }
    Window& window(const std::string& name) { return *desk.find(name); }
    Control& box(const std::string& name) { return window(name).control(name + "Box"); }
};

TEST_F(ThreeWindows, StandInTheOrderInWhichTheyWereOpened) {
    ASSERT_EQ(desk.windows().size(), 3U);
    EXPECT_EQ(desk.front(), &window("top"));
    EXPECT_EQ(desk.focus(), &box("top"));
}

TEST_F(ThreeWindows, GiveTheFocusToTheOneInFrontWhenOneGoes) {
    EXPECT_TRUE(desk.close(window("top")));
    EXPECT_EQ(desk.find("top"), nullptr);
    EXPECT_EQ(desk.focus(), &box("middle"));
    EXPECT_EQ(log, (Log{"topBox lost focus", "middle in front", "middleBox got focus"}));
}

TEST_F(ThreeWindows, AreBroughtToTheFrontAndNoMoreWhenShownAgain) {
    auto* shown = desk.show("back");
    EXPECT_EQ(shown, &window("back"));
    EXPECT_EQ(desk.windows().size(), 3U);
    EXPECT_EQ(desk.front(), shown);
    EXPECT_EQ(log, (Log{"topBox lost focus", "back in front", "backBox got focus"}));
}

TEST_F(ThreeWindows, StayBehindWhenACheckKeepsTheFocus) {
    box("top").on.lostFocus = [this] { desk.setFocus(box("top")); };
    desk.show("back");
    EXPECT_EQ(desk.front(), &window("top"));
    EXPECT_EQ(desk.focus(), &box("top"));
}

TEST_F(ThreeWindows, DoNotOpenWhatNobodyMakes) { EXPECT_EQ(desk.show("nothing"), nullptr); }

TEST_F(ThreeWindows, StayOpenWhenACheckRefusesToLeave) {
    box("top").on.lostFocus = [this] { desk.setFocus(box("top")); };
    desk.close(window("top"));
    EXPECT_NE(desk.find("top"), nullptr);
    EXPECT_EQ(desk.focus(), &box("top"));
}

TEST_F(ThreeWindows, StayOpenWithTheirFocusWhenTheirQuerySaysSo) {
    window("top").on.queryUnload = [](bool& cancel) { cancel = true; };
    desk.close(window("top"));
    EXPECT_NE(desk.find("top"), nullptr);
    EXPECT_EQ(desk.focus(), &box("top"));
    EXPECT_TRUE(desk.leave(window("top")));
    EXPECT_FALSE(desk.unload(window("top")));
    EXPECT_EQ(desk.focus(), &box("top"));
}

TEST_F(ThreeWindows, ComeToTheFrontBeforeTheirFrameCloses) {
    desk.close(window("back"));
    EXPECT_EQ(log, (Log{"topBox lost focus", "back in front", "backBox got focus", "backBox lost focus", "top in front",
                        "topBox got focus"}));
    EXPECT_EQ(desk.find("back"), nullptr);
}

TEST_F(ThreeWindows, CannotBeReachedBehindAModalOne) {
    desk.registerWindow("question", [](Window& filled) -> std::shared_ptr<void> {
        filled.add(ControlKind::Button, "ok");
        return nullptr;
    });
    auto* question = desk.show("question", true);
    EXPECT_FALSE(desk.reachable(window("top")));
    EXPECT_FALSE(desk.click(box("top")));
    EXPECT_FALSE(desk.focusOn(box("top")));
    EXPECT_FALSE(desk.close(window("top")));
    EXPECT_TRUE(desk.click(question->control("ok")));
    desk.close(*question);
    EXPECT_TRUE(desk.focusOn(box("middle")));
}

TEST_F(ThreeWindows, AreHeardNoMoreAfterTheEnd) {
    desk.end();
    EXPECT_TRUE(desk.windows().empty());
    EXPECT_EQ(desk.focus(), nullptr);
    EXPECT_TRUE(log.empty()) << "nothing is asked at the end";
}

TEST_F(ThreeWindows, TellOnlyAnotherSizeAsAResize) {
    int resized = 0;
    window("top").on.resize = [&] { ++resized; };
    const auto at = window("top").bounds;
    window("top").moveTo({Twips{77}, Twips{78}, at.width, at.height});
    EXPECT_EQ(resized, 0);
    desk.resize(window("top"), at.width + Twips{1}, at.height);
    EXPECT_EQ(resized, 1);
}

/// Logic that lives as long as its window; its handler closes the window it is called from.
struct ClosesItself {
    ClosesItself(Desk& theDesk, Window& window, Log& theLog) : desk(theDesk), log(theLog) {
        auto& button = window.add(ControlKind::Button, "ok");
        button.on.click = [this, &window] {
            desk.unload(window);
            log.push_back(text); // a freed object would not have its text any more
        };
    }
    ~ClosesItself() { log.emplace_back("gone"); }
    ClosesItself(const ClosesItself&) = delete;
    ClosesItself& operator=(const ClosesItself&) = delete;
    Desk& desk;
    Log& log;
    std::string text = "still there after the window was unloaded";
};

TEST_F(ThreeWindows, MayGoInsideTheHandlerOfTheirOwnButton) {
    desk.registerWindow("self", [this](Window& filled) { return std::make_shared<ClosesItself>(desk, filled, log); });
    auto* self = desk.show("self");
    log.clear();
    desk.click(self->control("ok"));
    EXPECT_EQ(desk.find("self"), nullptr);
    EXPECT_EQ(log, (Log{"top in front", "topBox got focus", "still there after the window was unloaded", "gone"}));
}

TEST_F(ThreeWindows, MayGoWhileTheFocusIsOnItsWayToThem) {
    box("top").on.lostFocus = [this] { desk.unload(window("back")); };
    desk.focusOn(box("back"));
    EXPECT_EQ(desk.find("back"), nullptr);
    EXPECT_NE(desk.focus(), nullptr);
    EXPECT_TRUE(desk.focus()->window == &window("top") || desk.focus()->window == &window("middle"));
}

class Timers : public testing::Test, protected test::Workplace {
protected:
    Timers() {
        open("form", [this](Window& window) {
            slow = &timer(window, "slow", 500);
            quick = &timer(window, "quick", 200);
        });
    }
    Control& timer(Window& window, const std::string& name, int interval) {
        auto& made = window.add(ControlKind::Timer, name);
        made.timer().interval = interval;
        made.on.tick = [this, name] { log.push_back(name); };
        return made;
    }
    Control* slow = nullptr;
    Control* quick = nullptr;
};

TEST_F(Timers, AreSilentWhileOff) {
    desk.pass(10000);
    EXPECT_TRUE(log.empty());
}

TEST_F(Timers, TickAtTheirIntervalInTheOrderOfTime) {
    slow->timer().on = true;
    quick->timer().on = true;
    desk.pass(599);
    EXPECT_EQ(log, (Log{"quick", "quick", "slow"}));
    desk.pass(1);
    EXPECT_EQ(log.back(), "quick");
    EXPECT_EQ(log.size(), 4U);
}

TEST_F(Timers, CountTimeAcrossPasses) {
    slow->timer().on = true;
    desk.pass(499);
    EXPECT_TRUE(log.empty());
    desk.pass(1);
    EXPECT_EQ(log, (Log{"slow"}));
}

TEST_F(Timers, StopWhenATickSwitchesThemOff) {
    quick->timer().on = true;
    quick->on.tick = [this] {
        log.emplace_back("once");
        quick->timer().on = false;
    };
    desk.pass(5000);
    EXPECT_EQ(log, (Log{"once"}));
}

TEST_F(Timers, StartAtTheMomentAnotherSwitchesThemOn) {
    slow->timer().on = true;
    slow->on.tick = [this] {
        slow->timer().on = false;
        quick->timer().on = true;
    };
    desk.pass(699);
    EXPECT_TRUE(log.empty());
    desk.pass(1);
    EXPECT_EQ(log, (Log{"quick"}));
}

TEST_F(Timers, GoWithTheirWindow) {
    quick->timer().on = true;
    quick->on.tick = [this] {
        log.emplace_back("closing");
        desk.unload(*desk.find("form"));
    };
    desk.pass(5000);
    EXPECT_EQ(log, (Log{"closing"}));
}

TEST(TheDesk, KeepsPanelsPointerAndBeep) {
    test::Workplace place;
    place.desk.setPanel(2, "hint");
    EXPECT_EQ(place.desk.panel(2), "hint");
    EXPECT_THROW(place.desk.setPanel(4, ""), std::out_of_range);
    place.desk.setBusy(true);
    EXPECT_TRUE(place.desk.busy());
    EXPECT_FALSE(place.desk.takeBeep());
    place.desk.beep();
    EXPECT_TRUE(place.desk.takeBeep());
    EXPECT_FALSE(place.desk.takeBeep());
}

} // namespace
} // namespace kov
