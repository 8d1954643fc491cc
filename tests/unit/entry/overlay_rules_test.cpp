#include "unit/entry/overlay_window.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kov {
namespace {

class OtherRules : public testing::Test {
protected:
    OverlayRules rules;
};

TEST_F(OtherRules, MayOpenOnlyWhenAskedTo) {
    rules.opensOnSelect = false;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 1);
    EXPECT_EQ(place.desk.focus(), place.grid);
    EXPECT_EQ(place.desk.panel(2), "length hint");
    place.desk.type("4");
    EXPECT_EQ(place.desk.focus(), place.box);
    place.desk.key(Key::Enter);
    EXPECT_EQ(place.cells().text(1, 1), "4.");
    EXPECT_EQ(place.at(), "1,2");
    EXPECT_EQ(place.desk.focus(), place.grid) << "the next cell waits to be opened";
}

TEST_F(OtherRules, MayMoveRightByThemselvesWhenTheGridStoodStillButOnlyOnce) {
    rules.opensOnSelect = false;
    rules.rightWhenStill = true;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 0, 0);
    place.desk.key(Key::F2);
    place.desk.key(Key::Tab);
    EXPECT_EQ(place.at(), "0,1");
    EXPECT_EQ(place.desk.focus(), place.grid);
    place.desk.key(Key::F2);
    place.desk.key(Key::Enter);
    EXPECT_EQ(place.at(), "0,2") << "Enter moved the grid itself";
}

TEST_F(OtherRules, MayCheckACellByAnotherRuleAndChangeItsText) {
    rules.ruleOf = [](int row, int) { return row == 1 ? text() : integer(0, 5); };
    rules.accepted = [](int, int, std::string& accepted) { accepted += "!"; };
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 1);
    place.replace("words");
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.cells().text(1, 1), "words!");
}

TEST_F(OtherRules, MayInsertAWholeRowOfDefaults) {
    rules.newRow = "new\t1.\t1";
    rules.opensOnSelect = false;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 0);
    place.desk.key(Key::Insert);
    EXPECT_EQ(place.cells().line(1), "new\t1.\t1");
    EXPECT_EQ(place.cells().line(2), "second\t20.\t2");
}

TEST_F(OtherRules, MayKeepEnterFromGrowingTheGrid) {
    rules.growsByEnter = false;
    test::OverlayWindow place(rules);
    place.cells().setRows(3);
    place.desk.cell(*place.grid, 2, 2);
    place.desk.key(Key::Enter);
    EXPECT_EQ(place.cells().rows(), 3);
    EXPECT_EQ(place.desk.focus(), place.grid);
}

// An overlay that checks only what was typed into.

TEST_F(OtherRules, MayLetAnOverlayThatNobodyTypedIntoJustClose) {
    rules.editedOnly = true;
    rules.rightWhenStill = true;
    int taken = 0;
    int closed = 0;
    rules.accepted = [&](int, int, std::string&) { ++taken; };
    rules.closed = [&] { ++closed; };
    test::OverlayWindow place(rules);
    place.cells().setText(0, 1, "500  ");
    place.desk.cell(*place.grid, 0, 1);
    place.desk.focusOn(*place.button);
    EXPECT_TRUE(place.boxes().empty()) << "500 is out of range, but nobody touched it";
    EXPECT_EQ(place.cells().text(0, 1), "500  ");
    EXPECT_EQ(place.at(), "0,1") << "nor does the grid move";
    EXPECT_EQ(taken, 0);
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(place.box->visible);
    EXPECT_FALSE(place.flags.FormChanged);
}

TEST_F(OtherRules, CheckAndTakeWhatWasTypedAllTheSame) {
    rules.editedOnly = true;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 0, 1);
    place.replace("bad");
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.boxes().size(), 1U);
    EXPECT_EQ(place.desk.focus(), place.box);
    place.replace("4");
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.cells().text(0, 1), "4.");
    EXPECT_TRUE(place.flags.FormChanged);
}

TEST_F(OtherRules, LeaveARefusedCellThatWasNotTypedIntoAgainAsItWas) {
    rules.editedOnly = true;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 0, 1);
    place.replace("bad");
    place.desk.focusOn(*place.button);
    ASSERT_EQ(place.desk.focus(), place.box);
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.boxes().size(), 1U);
    EXPECT_EQ(place.cells().text(0, 1), "10.") << "what was refused is not taken";
    EXPECT_EQ(place.desk.focus(), place.button);
}

// One column to the right when the grid stood still.

TEST_F(OtherRules, MoveRightOnceWhenAnotherControlIsClickedAndOpenNothing) {
    rules.opensOnSelect = false;
    rules.rightWhenStill = true;
    std::vector<std::string> moves;
    test::OverlayWindow* window = nullptr;
    rules.moved = [&] { moves.push_back(window->at()); };
    test::OverlayWindow place(rules);
    window = &place;
    place.desk.focusOn(*place.grid);
    place.desk.key(Key::F2);
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.at(), "0,1");
    EXPECT_EQ(moves, std::vector<std::string>{"0,1"});
    EXPECT_EQ(place.desk.focus(), place.button);
    EXPECT_FALSE(place.box->visible);
}

TEST_F(OtherRules, MoveRightWithoutOpeningTheNextCellOnTheWayToAnotherControl) {
    rules.rightWhenStill = true;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 0, 0);
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.at(), "0,1");
    EXPECT_FALSE(place.box->visible);
    EXPECT_EQ(place.desk.focus(), place.button);
}

TEST_F(OtherRules, OpenTheNextCellWhenTabOrAnArrowAtTheEdgeCameToTheGrid) {
    rules.rightWhenStill = true;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 0, 0);
    place.desk.key(Key::Tab);
    EXPECT_EQ(place.under(), "0,1") << "once, not twice";
    EXPECT_EQ(place.desk.focus(), place.box);
    EXPECT_EQ(place.desk.panel(2), "length hint");
    place.desk.key(Key::Up);
    EXPECT_EQ(place.under(), "0,2");
    EXPECT_EQ(place.desk.focus(), place.box);
}

TEST_F(OtherRules, StayInTheLastColumnWhenTheGridStoodStill) {
    for (const bool opens : {false, true}) {
        rules.opensOnSelect = opens;
        rules.rightWhenStill = true;
        test::OverlayWindow place(rules);
        place.desk.cell(*place.grid, 0, 2);
        place.desk.key(Key::F2);
        place.desk.key(Key::Tab);
        EXPECT_EQ(place.at(), "0,2");
        EXPECT_EQ(place.desk.focus(), place.grid);
    }
}

TEST_F(OtherRules, DoNotMoveRightFromARefusedCell) {
    rules.opensOnSelect = false;
    rules.rightWhenStill = true;
    std::string refused;
    rules.refused = [&](int row, int col) { refused = std::to_string(row) + "," + std::to_string(col); };
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 1);
    place.desk.type("bad");
    place.desk.key(Key::Tab);
    EXPECT_EQ(refused, "1,1");
    EXPECT_EQ(place.at(), "1,1");
    EXPECT_EQ(place.desk.focus(), place.box);
}

TEST_F(OtherRules, EndOnTheCellThatWasClickedWhateverTheOverlayDidWhenItWasLeft) {
    for (const bool opens : {false, true}) {
        rules.opensOnSelect = opens;
        rules.rightWhenStill = true;
        for (const auto& [row, col] : {std::pair{1, 2}, std::pair{0, 1}, std::pair{0, 0}}) {
            test::OverlayWindow place(rules);
            place.desk.cell(*place.grid, 0, 0);
            place.desk.key(Key::F2);
            place.replace("new");
            place.desk.cell(*place.grid, row, col);
            EXPECT_EQ(place.cells().text(0, 0), "new");
            EXPECT_EQ(place.at(), std::to_string(row) + "," + std::to_string(col));
            EXPECT_EQ(place.desk.focus(), opens ? place.box : place.grid);
        }
    }
}

// What the window hears.

TEST_F(OtherRules, TellTheWindowOfTheNextCellOnceAndOnlyAfterTheOldOneIsInOrder) {
    std::vector<std::string> heard;
    rules.opensOnSelect = false;
    rules.accepted = [&](int row, int col, std::string&) {
        heard.push_back("took " + std::to_string(row) + "," + std::to_string(col));
    };
    rules.closed = [&] { heard.push_back("closed"); };
    rules.moved = [&] { heard.push_back("moved"); };
    test::OverlayWindow place(rules);
    place.desk.focusOn(*place.grid);
    place.desk.key(Key::F2);
    place.desk.key(Key::Enter);
    EXPECT_EQ(heard, (std::vector<std::string>{"took 0,0", "closed", "moved"}));
    heard.clear();
    place.desk.type("bad");
    place.desk.key(Key::Enter);
    EXPECT_TRUE(heard.empty()) << "a refused cell is not left";
}

TEST_F(OtherRules, ShowTheWindowTheGridOnTheOldCellWhileItIsTakenAndOnTheNextWhenItClosed) {
    test::OverlayWindow* window = nullptr;
    std::string taken;
    std::string closed;
    rules.accepted = [&](int, int, std::string&) { taken = window->at(); };
    rules.closed = [&] { closed = window->at(); };
    test::OverlayWindow place(rules);
    window = &place;
    place.desk.cell(*place.grid, 0, 1);
    place.desk.key(Key::Down);
    EXPECT_EQ(taken, "0,1");
    EXPECT_EQ(closed, "1,1");
}

TEST_F(OtherRules, MayOpenSomethingElseOverACell) {
    rules.opensOnSelect = false;
    rules.openInstead = [](int, int col) { return col == 1; };
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 0, 1);
    place.desk.type("9");
    EXPECT_FALSE(place.box->visible);
    EXPECT_EQ(place.desk.focus(), place.grid);
    EXPECT_EQ(place.cells().text(0, 1), "10.") << "the character goes nowhere";
    place.desk.cell(*place.grid, 0, 0);
    place.desk.type("9");
    EXPECT_EQ(place.desk.focus(), place.box);
    EXPECT_EQ(place.typed(), "9");
}

TEST_F(OtherRules, TakeNothingWhenTheRowWentUnderTheOpenOverlay) {
    int closed = 0;
    rules.closed = [&] { ++closed; };
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 1);
    place.replace("bad");
    place.cells().removeItem(1);
    place.desk.focusOn(*place.button);
    EXPECT_TRUE(place.boxes().empty());
    EXPECT_FALSE(place.box->visible);
    EXPECT_FALSE(place.flags.FieldChanged);
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(place.cells().text(0, 1), "10.");
}

// Rows.

TEST_F(OtherRules, MayHoldABlankInTheRowBelow) {
    rules.blankRow = " ";
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 0);
    place.desk.focusOn(*place.button);
    ASSERT_EQ(place.cells().rows(), 3);
    EXPECT_EQ(place.cells().line(2), " ");
}

TEST_F(OtherRules, MayDoWithoutTheRowBelow) {
    rules.blankRowBelow = false;
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 0);
    place.replace("last");
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.cells().rows(), 2);
}

TEST_F(OtherRules, AddNoRowBelowATextThatTheWindowEmptied) {
    rules.accepted = [](int, int, std::string& accepted) { accepted.clear(); };
    test::OverlayWindow place(rules);
    place.desk.cell(*place.grid, 1, 0);
    place.replace("last");
    place.desk.focusOn(*place.button);
    EXPECT_EQ(place.cells().rows(), 2);
    EXPECT_EQ(place.cells().text(1, 0), "");
}

TEST_F(OtherRules, MayInsertAndDeleteRowsInTheirOwnWay) {
    rules.opensOnSelect = false;
    std::string done;
    rules.insertRow = [&] { done += "inserted "; };
    rules.deleteRow = [&] { done += "deleted "; };
    test::OverlayWindow place(rules);
    place.desk.focusOn(*place.grid);
    place.desk.key(Key::Insert);
    place.desk.key(Key::Delete);
    EXPECT_EQ(done, "inserted deleted ");
    EXPECT_EQ(place.cells().rows(), 2);
}

TEST(AWalkBelowTheRowsInSight, ScrollsTheGridSoThatTheOverlayStaysInIt) {
    test::OverlayWindow place;
    place.grid->bounds = {Twips{}, Twips{}, Twips{4000}, Twips{930}};
    place.cells().setRows(10);
    place.desk.cell(*place.grid, 0, 0);
    for (int row = 1; row < 10; ++row) {
        place.desk.key(Key::Down);
        EXPECT_EQ(place.under(), std::to_string(row) + ",0");
        EXPECT_LE(place.box->bounds.top.value + place.box->bounds.height.value, 930);
    }
    for (int row = 8; row >= 0; --row) {
        place.desk.key(Key::Up);
        EXPECT_GE(place.box->bounds.top.value, 0);
    }
    EXPECT_EQ(place.cells().topRow(), 0);
}

TEST(ADropDownOverACell, KeepsItsHeight) {
    test::OverlayWindow place;
    auto& list = place.window->add(ControlKind::Combo, "list");
    list.visible = false;
    list.bounds.height = Twips{315};
    place.cells().setRowHeight(Twips{240});
    place.cells().setRow(1);
    LayOverCell(place.app, *place.grid, list);
    EXPECT_EQ(list.bounds.height, Twips{315});
    EXPECT_EQ(list.bounds.top, place.grid->bounds.top + Twips{270});
    EXPECT_TRUE(list.visible);
    EXPECT_EQ(place.under(), "1,0");
}

TEST(TwoGrids, CommitEachItsOwnCellWhenAPersonGoesFromOneToTheOther) {
    test::OverlayWindow place;
    auto& second = place.window->add(ControlKind::Grid, "second");
    auto& box = place.window->add(ControlKind::TextBox, "gtext2");
    second.grid().setCols(3);
    second.grid().setRows(4);
    GridOverlay overlay(place.app, place.flags, second, box, test::OverlayColumns);
    place.desk.cell(*place.grid, 0, 1);
    place.replace("3");
    place.desk.cell(second, 3, 0);
    place.desk.type("there");
    EXPECT_EQ(place.cells().text(0, 1), "3.");
    EXPECT_EQ(place.under(), "3,0");
    place.desk.cell(*place.grid, 0, 0);
    EXPECT_EQ(second.grid().text(3, 0), "there");
    EXPECT_EQ(place.typed(), "first");
    EXPECT_EQ(second.grid().rows(), 5) << "a text on its last row";
    EXPECT_EQ(place.cells().rows(), 2);
}

} // namespace
} // namespace kov
