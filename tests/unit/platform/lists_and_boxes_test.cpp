#include "platform/controls.hpp"
#include "platform/item_list.hpp"
#include "platform/text_edit.hpp"
#include "platform/window.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace kov {
namespace {

TEST(AList, HasNoCurrentEntryAtFirst) {
    ItemList list;
    list.addItem("one");
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.index(), -1);
    EXPECT_FALSE(list.selected(0));
}

TEST(AList, RefusesEntriesThatAreNotThere) {
    ItemList list;
    list.addItem("one");
    EXPECT_THROW(static_cast<void>(list.item(1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(list.item(-1)), std::out_of_range);
    EXPECT_THROW(list.setIndex(1), std::out_of_range);
    EXPECT_THROW(list.setIndex(-2), std::out_of_range);
    EXPECT_THROW(list.removeItem(1), std::out_of_range);
}

TEST(AList, KeepsItsCurrentEntryWhenOneAheadOfItGoes) {
    ItemList list;
    list.addItem("one");
    list.addItem("two");
    list.addItem("three");
    list.setIndex(2);
    list.removeItem(0);
    EXPECT_EQ(list.item(list.index()), "three");
    list.removeItem(1);
    EXPECT_EQ(list.index(), -1) << "the current entry itself went";
    list.clear();
    EXPECT_EQ(list.count(), 0);
}

TextPart box(const std::string& text, int start, int length = 0) {
    TextPart part;
    part.text = text;
    part.selStart = start;
    part.selLength = length;
    return part;
}

TEST(Typing, ReplacesTheSelection) {
    auto part = box("12345", 1, 3);
    EXPECT_TRUE(insertText(part, "x"));
    EXPECT_EQ(part.text, "1x5");
    EXPECT_EQ(part.selStart, 2);
    EXPECT_EQ(part.selLength, 0);
}

TEST(Typing, DoesNothingInALockedBox) {
    auto part = box("12", 0, 2);
    part.locked = true;
    EXPECT_FALSE(insertText(part, "x"));
    EXPECT_FALSE(deleteForward(part));
    EXPECT_FALSE(deleteBackward(part));
    EXPECT_EQ(part.text, "12");
}

TEST(Typing, NothingOverNothingIsNoChange) {
    auto part = box("12", 1);
    EXPECT_FALSE(insertText(part, ""));
}

TEST(Deleting, TakesTheSelectionOrOneCharacter) {
    auto part = box("abcd", 1, 2);
    EXPECT_TRUE(deleteBackward(part));
    EXPECT_EQ(part.text, "ad");
    EXPECT_TRUE(deleteForward(part));
    EXPECT_EQ(part.text, "a");
    EXPECT_FALSE(deleteForward(part)) << "nothing behind the end";
    EXPECT_TRUE(deleteBackward(part));
    EXPECT_FALSE(deleteBackward(part)) << "nothing ahead of the start";
}

TEST(Deleting, TakesALineEndAsOneCharacter) {
    auto part = box("a\r\nb", 3);
    EXPECT_TRUE(deleteBackward(part));
    EXPECT_EQ(part.text, "ab");
    part = box("a\r\nb", 1);
    EXPECT_TRUE(deleteForward(part));
    EXPECT_EQ(part.text, "ab");
}

TEST(TheCursor, CollapsesASelectionToItsSide) {
    auto part = box("abcd", 1, 2);
    cursorRight(part);
    EXPECT_EQ(part.selStart, 3);
    EXPECT_EQ(part.selLength, 0);
    part = box("abcd", 1, 2);
    cursorLeft(part);
    EXPECT_EQ(part.selStart, 1);
}

TEST(TheCursor, GoesToTheEndsOfItsLine) {
    auto part = box("ab\r\ncd\r\nef", 5);
    cursorHome(part);
    EXPECT_EQ(part.selStart, 4);
    cursorEnd(part);
    EXPECT_EQ(part.selStart, 6);
    cursorRight(part);
    EXPECT_EQ(part.selStart, 8) << "over the line end in one step";
}

TEST(ASelection, OutsideTheTextIsBroughtInside) {
    auto part = box("ab", 7, 9);
    EXPECT_TRUE(insertText(part, "c"));
    EXPECT_EQ(part.text, "abc");
}

/// A grid of twenty rows of 300 twips that shows five of them.
class AScrolledGrid : public testing::Test {
protected:
    AScrolledGrid() {
        control.bounds.width = Twips{5000};
        control.bounds.height = Twips{5 * 300 + 30};
        grid.setRows(20);
    }
    int topAfterReveal(int row) {
        grid.setRow(row);
        revealCurrentRow(control);
        return grid.topRow();
    }
    Window window{"form"};
    Control& control = window.add(ControlKind::Grid, "grd");
    Grid& grid = control.grid();
};

TEST_F(AScrolledGrid, MovesOnlyAsFarAsItsCurrentRowNeedsIt) {
    EXPECT_EQ(topAfterReveal(4), 0);
    EXPECT_EQ(topAfterReveal(5), 1);
    EXPECT_EQ(topAfterReveal(19), 15);
    EXPECT_EQ(topAfterReveal(15), 15);
    EXPECT_EQ(topAfterReveal(14), 14);
    EXPECT_EQ(topAfterReveal(0), 0);
}

TEST_F(AScrolledGrid, KeepsItsRowsClearOfTheFixedOnes) {
    grid.setFixed(1, 0);
    EXPECT_EQ(topAfterReveal(5), 1);
    EXPECT_EQ(topAfterReveal(2), 1);
    EXPECT_EQ(topAfterReveal(1), 0);
}

TEST_F(AScrolledGrid, LeavesRoomForTheScrollBarUnderWideColumns) {
    grid.setColWidth(0, Twips{6000});
    EXPECT_EQ(topAfterReveal(4), 1);
}

TEST_F(AScrolledGrid, StaysWhereItIsWithoutAHeight) {
    control.bounds.height = Twips{};
    EXPECT_EQ(topAfterReveal(19), 0);
}

TEST(ACaption, IsReadWithoutTheSignOfItsKey) {
    EXPECT_EQ(plainCaption("&File"), "File");
    EXPECT_EQ(plainCaption("Reset  &Size && Font"), "Reset  Size & Font");
    EXPECT_EQ(plainCaption("end&"), "end");
}

class TabOrder : public testing::Test {
protected:
    TabOrder() {
        window.add(ControlKind::Label, "lbl");
        first = &window.add(ControlKind::TextBox, "first");
        hidden = &window.add(ControlKind::TextBox, "hidden");
        hidden->visible = false;
        disabled = &window.add(ControlKind::Button, "disabled");
        disabled->enabled = false;
        skipped = &window.add(ControlKind::TextBox, "skipped");
        skipped->tabStop = false;
        last = &window.add(ControlKind::Grid, "last");
    }
    Window window{"any"};
    Control* first = nullptr;
    Control* hidden = nullptr;
    Control* disabled = nullptr;
    Control* skipped = nullptr;
    Control* last = nullptr;
};

TEST_F(TabOrder, IsTheOrderInWhichControlsWereMadeWithoutThoseThatCannotHaveTheFocus) {
    EXPECT_EQ(window.nextInTabOrder(nullptr, false), first);
    EXPECT_EQ(window.nextInTabOrder(first, false), last);
}

TEST_F(TabOrder, GoesRoundAtBothEnds) {
    EXPECT_EQ(window.nextInTabOrder(last, false), first);
    EXPECT_EQ(window.nextInTabOrder(first, true), last);
    EXPECT_EQ(window.nextInTabOrder(nullptr, true), last);
}

TEST_F(TabOrder, GoesFromTheTabsIntoTheirCurrentPageThoughAnotherPageComesToTheFrontByItself) {
    auto& strip = window.add(ControlKind::TabStrip, "strip");
    strip.tabs().tabs = {{"one"}, {"two"}};
    strip.tabs().current = 1;
    auto& turning = window.add(ControlKind::TextBox, "turning");
    auto& shown = window.add(ControlKind::TextBox, "shown");
    turning.strip = shown.strip = &strip;
    turning.turnsPage = true;
    shown.page = 1;

    EXPECT_EQ(window.nextInTabOrder(&strip, false), &shown);
    EXPECT_EQ(window.nextInTabOrder(last, false), &strip);
    EXPECT_EQ(window.nextInTabOrder(&shown, true), &turning);
}

TEST_F(TabOrder, LeavesOutWhatStandsOnAHiddenPanelOrAnotherPage) {
    auto& panel = window.add(ControlKind::Panel, "panel");
    panel.visible = false;
    last->parent = &panel;
    EXPECT_EQ(window.nextInTabOrder(first, false), first);
    auto& strip = window.add(ControlKind::TabStrip, "strip");
    strip.tabs().tabs = {{"one"}, {"two"}};
    last->parent = nullptr;
    last->strip = &strip;
    last->page = 1;
    EXPECT_EQ(window.nextInTabOrder(first, false), &strip);
    strip.tabs().current = 1;
    EXPECT_EQ(window.nextInTabOrder(first, false), last);
}

TEST(AWindowWithoutControls, HasNothingInItsTabOrder) {
    const Window empty{"empty"};
    EXPECT_EQ(empty.nextInTabOrder(nullptr, false), nullptr);
    EXPECT_THROW(static_cast<void>(empty.control("any")), std::out_of_range);
}

TEST(AControlArray, IsFoundByNameAndIndex) {
    Window window{"any"};
    window.add(ControlKind::Button, "Command1", "A", 0);
    auto& second = window.add(ControlKind::Button, "Command1", "B", 1);
    EXPECT_EQ(window.find("Command1", 1), &second);
    EXPECT_EQ(window.find("Command1", 2), nullptr);
    EXPECT_EQ(window.find("Command1")->caption, "A");
    EXPECT_EQ(second.label(), "Command1(1)");
}

} // namespace
} // namespace kov
