#include "unit/support/fakes.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace kov {
namespace {

using test::Log;

class TwoBoxesAndAButton : public testing::Test, protected test::Workplace {
protected:
    TwoBoxesAndAButton() {
        window = &open("form", [this](Window& filled) {
            first = &filled.add(ControlKind::TextBox, "first");
            second = &filled.add(ControlKind::TextBox, "second");
            button = &filled.add(ControlKind::Button, "button");
            for (auto* control : {first, second, button}) {
                watch(*control);
            }
        });
        log.clear();
    }
    /// The first box takes the focus back whenever it loses it.
    void makeFirstRefuse() {
        first->on.lostFocus = [this] {
            log.emplace_back("first refused");
            desk.setFocus(*first);
        };
    }
    Window* window = nullptr;
    Control* first = nullptr;
    Control* second = nullptr;
    Control* button = nullptr;
};

TEST_F(TwoBoxesAndAButton, GiveTheFirstOneTheFocusWhenTheWindowOpens) { EXPECT_EQ(desk.focus(), first); }

TEST_F(TwoBoxesAndAButton, HearTheLossFirstThenTheFocusThenTheClick) {
    EXPECT_TRUE(desk.click(*button));
    EXPECT_EQ(log, (Log{"first lost focus", "button got focus", "button clicked"}));
}

TEST_F(TwoBoxesAndAButton, HearNothingWhenTheFocusIsThereAlready) {
    EXPECT_TRUE(desk.focusOn(*first));
    EXPECT_TRUE(log.empty());
}

TEST_F(TwoBoxesAndAButton, StopTheClickWhenACheckTakesTheFocusBack) {
    makeFirstRefuse();
    EXPECT_TRUE(desk.click(*button)) << "the person did click";
    EXPECT_EQ(log, (Log{"first refused", "first got focus"}));
    EXPECT_EQ(desk.focus(), first);
}

TEST_F(TwoBoxesAndAButton, HearTheLossAgainAtTheNextMoveAfterARefusal) {
    makeFirstRefuse();
    desk.focusOn(*second);
    log.clear();
    first->on.lostFocus = [this] { log.emplace_back("first let go"); };
    desk.focusOn(*second);
    EXPECT_EQ(log, (Log{"first let go", "second got focus"}));
}

TEST_F(TwoBoxesAndAButton, DoNotTakeAClickThatTheLossOfFocusDisabled) {
    first->on.lostFocus = [this] { button->enabled = false; };
    desk.click(*button);
    EXPECT_EQ(log.end(), std::find(log.begin(), log.end(), "button clicked"));
}

TEST_F(TwoBoxesAndAButton, CannotBeReachedWhileHiddenOrDisabled) {
    button->enabled = false;
    second->visible = false;
    EXPECT_FALSE(desk.click(*button));
    EXPECT_FALSE(desk.focusOn(*second));
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(desk.focus(), first);
}

TEST_F(TwoBoxesAndAButton, CannotBeReachedOnAPageThatIsNotCurrent) {
    auto& strip = window->add(ControlKind::TabStrip, "strip");
    strip.tabs().tabs = {{"one"}, {"two"}};
    button->strip = &strip;
    button->page = 1;
    EXPECT_FALSE(desk.click(*button));
    EXPECT_TRUE(desk.chooseTab(strip, 1));
    EXPECT_TRUE(desk.click(*button));
}

TEST_F(TwoBoxesAndAButton, AreWalkedByTabAndShiftTab) {
    desk.key(Key::Tab);
    EXPECT_EQ(desk.focus(), second);
    desk.key(Key::ShiftTab);
    EXPECT_EQ(desk.focus(), first);
    desk.key(Key::ShiftTab);
    EXPECT_EQ(desk.focus(), button);
    desk.key(Key::Enter);
    EXPECT_EQ(log.back(), "button clicked");
}

TEST_F(TwoBoxesAndAButton, TellEachKeystroke) {
    desk.type("12");
    EXPECT_EQ(log, (Log{"first changed", "first changed"}));
    EXPECT_EQ(first->text().text, "12");
    log.clear();
    desk.key(Key::Backspace);
    EXPECT_EQ(log, (Log{"first changed"}));
    desk.key(Key::Home);
    desk.key(Key::Escape);
    EXPECT_EQ(log.size(), 1U) << "moving the cursor and Escape change nothing";
    EXPECT_EQ(first->text().text, "1");
}

TEST_F(TwoBoxesAndAButton, HearNothingOfTextsSetByTheProgram) {
    first->setText("new");
    EXPECT_TRUE(log.empty());
}

TEST_F(TwoBoxesAndAButton, TakeAKeyOnlyWhenItWasNotSetToNothing) {
    first->on.keyPress = [](int& character) { character = character == 'x' ? 0 : character; };
    desk.type("axb");
    EXPECT_EQ(first->text().text, "ab");
}

TEST_F(TwoBoxesAndAButton, TakeEnterAsALineEndOnlyWithSeveralLines) {
    desk.type("a\nb\r\nc");
    EXPECT_EQ(first->text().text, "abc");
    second->text().multiLine = true;
    desk.focusOn(*second);
    desk.type("a\nb\r\nc");
    EXPECT_EQ(second->text().text, "a\r\nb\r\nc");
}

TEST_F(TwoBoxesAndAButton, CutCopyAndPasteBySentKeystrokes) {
    first->setText("12345");
    first->selectText(1, 2);
    desk.sendKeys("^C");
    EXPECT_EQ(surroundings.clipboard.text(), "23");
    EXPECT_TRUE(log.empty()) << "copying is no change";
    desk.sendKeys("^X");
    EXPECT_EQ(first->text().text, "145");
    EXPECT_EQ(log, (Log{"first changed"}));
    desk.sendKeys("^V");
    EXPECT_EQ(first->text().text, "12345");
    surroundings.clipboard.clear();
    log.clear();
    desk.sendKeys("^V");
    EXPECT_TRUE(log.empty()) << "an empty clipboard pastes nothing";
}

TEST_F(TwoBoxesAndAButton, PasteOnlyTheFirstLineIntoASingleLine) {
    surroundings.clipboard.setText("1\r\n2");
    desk.sendKeys("^V");
    EXPECT_EQ(first->text().text, "1");
}

TEST_F(TwoBoxesAndAButton, PasteLinesOfAnyEndAsLinesOfTheirOwn) {
    first->text().multiLine = true;
    first->setText("");
    surroundings.clipboard.setText("a\nb\r\nc\rd");
    desk.focusOn(*first);
    desk.key(Key::CtrlV);
    EXPECT_EQ(first->text().text, "a\r\nb\r\nc\r\nd");
}

TEST_F(TwoBoxesAndAButton, TypeSentCharactersOneByOne) {
    desk.sendKeys("7");
    EXPECT_EQ(first->text().text, "7");
}

TEST_F(TwoBoxesAndAButton, EndTheProgramWhenAHandlerFails) {
    std::string notice;
    desk.onFailure = [](const std::string&) { return std::string("copy.kov"); };
    desk.onNotice = [&](const std::string& text) { notice = text; };
    button->on.click = [] { throw std::runtime_error("Overflow"); };
    desk.click(*button);
    EXPECT_TRUE(desk.ended());
    EXPECT_EQ(desk.failure(), "Overflow");
    EXPECT_TRUE(desk.windows().empty());
    EXPECT_NE(notice.find("Overflow"), std::string::npos);
    EXPECT_NE(notice.find("copy.kov"), std::string::npos);
}

TEST_F(TwoBoxesAndAButton, LetAFailureInsideANestedActStopTheOuterOne) {
    button->on.click = [this] {
        desk.click(*second);
        log.emplace_back("went on");
    };
    second->on.click = [] { throw std::runtime_error("inside"); };
    desk.click(*button);
    EXPECT_EQ(desk.failure(), "inside");
    EXPECT_EQ(log.back(), "second got focus");
}

TEST_F(TwoBoxesAndAButton, EndAtAFailureFromOutsideWhileAnotherActIsStillOpen) {
    int noticed = 0;
    desk.onNotice = [&](const std::string&) { ++noticed; };
    button->on.click = [this] {
        desk.act([] { throw std::runtime_error("from a nested loop"); });
        EXPECT_TRUE(desk.ended());
        EXPECT_FALSE(desk.click(*button)) << "nobody can act on an ended program";
        EXPECT_EQ(desk.show("form"), nullptr) << "nor is anything opened";
        throw std::runtime_error("second");
    };
    desk.click(*button);
    EXPECT_EQ(desk.failure(), "from a nested loop");
    EXPECT_EQ(noticed, 1);
}

TEST(ATypedDropDown, IsSelectedWholeWhenItGetsTheFocusAndTellsAChosenEntryAsChange) {
    test::Workplace place;
    Control* combo = nullptr;
    place.open("form", [&](Window& window) {
        window.add(ControlKind::Button, "first");
        combo = &window.add(ControlKind::Combo, "combo");
        std::get<ComboPart>(combo->part).dropDownList = false;
        combo->items().addItem("one");
        combo->items().addItem("two");
        combo->setText("old");
        place.watch(*combo);
    });
    place.desk.focusOn(*combo);
    EXPECT_EQ(combo->text().selLength, 3);
    const std::array chosen{1};
    EXPECT_TRUE(place.desk.select(*combo, chosen));
    EXPECT_EQ(combo->shownText(), "two");
    EXPECT_EQ(place.log, (Log{"combo got focus", "combo changed", "combo clicked"}));
}

TEST(WhatTheOldControlTookAwayOnItsWayOut, IsNotChosenAnyMore) {
    test::Workplace place;
    Control* box = nullptr;
    Control* list = nullptr;
    Control* strip = nullptr;
    place.open("form", [&](Window& window) {
        box = &window.add(ControlKind::TextBox, "box");
        list = &window.add(ControlKind::List, "list");
        strip = &window.add(ControlKind::TabStrip, "strip");
        list->items().addItem("a");
        list->items().addItem("b");
        strip->tabs().tabs = {{"one", true}, {"two", true}};
        box->on.lostFocus = [&] {
            list->items().removeItem(1);
            strip->tabs().tabs[1].enabled = false;
        };
        list->on.click = [&] { place.log.emplace_back("list clicked"); };
        strip->on.click = [&] { place.log.emplace_back("tab clicked"); };
    });
    place.desk.focusOn(*box);
    const std::array second{1};
    EXPECT_TRUE(place.desk.select(*list, second)) << "the person did click";
    EXPECT_EQ(list->items().index(), -1);
    list->items().addItem("b");
    strip->tabs().tabs[1].enabled = true;
    place.desk.focusOn(*box);
    EXPECT_TRUE(place.desk.chooseTab(*strip, 1));
    EXPECT_EQ(strip->tabs().current, 0);
    EXPECT_TRUE(place.log.empty());
    EXPECT_FALSE(place.desk.ended());
}

TEST(AMultipleSelection, IsExactlyTheClickedEntries) {
    test::Workplace place;
    Control* list = nullptr;
    place.open("form", [&](Window& window) {
        list = &window.add(ControlKind::List, "list");
        std::get<ListPart>(list->part).multiSelect = true;
        for (const auto* entry : {"a", "b", "c"}) {
            list->items().addItem(entry);
        }
        list->items().setSelected(1, true);
    });
    const std::array chosen{0, 2};
    EXPECT_TRUE(place.desk.select(*list, chosen));
    EXPECT_TRUE(list->items().selected(0));
    EXPECT_FALSE(list->items().selected(1));
    EXPECT_TRUE(list->items().selected(2));
    const std::array outside{3};
    EXPECT_FALSE(place.desk.select(*list, outside));
}

TEST(OptionButtons, AreOneChoiceOnEachPanel) {
    test::Workplace place;
    Control* one = nullptr;
    Control* two = nullptr;
    Control* other = nullptr;
    place.open("form", [&](Window& window) {
        auto& panel = window.add(ControlKind::Panel, "panel");
        one = &window.add(ControlKind::OptionButton, "rb", "", 0);
        two = &window.add(ControlKind::OptionButton, "rb", "", 1);
        other = &window.add(ControlKind::OptionButton, "elsewhere");
        one->parent = &panel;
        two->parent = &panel;
    });
    place.desk.click(*other);
    place.desk.click(*one);
    place.desk.click(*two);
    EXPECT_FALSE(one->checked);
    EXPECT_TRUE(two->checked);
    EXPECT_TRUE(other->checked);
}

} // namespace
} // namespace kov
