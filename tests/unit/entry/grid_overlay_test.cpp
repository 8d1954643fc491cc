#include "unit/entry/overlay_window.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

class Overlay : public testing::Test, protected test::OverlayWindow {};

TEST_F(Overlay, IsHiddenUntilACellIsChosen) {
    EXPECT_FALSE(box->visible);
    EXPECT_FALSE(overlay->isOpen());
}

TEST_F(Overlay, IsLaidOverTheCellTwoPixelsInside) {
    grid->bounds = {Twips{1000}, Twips{2000}, Twips{5000}, Twips{3000}};
    cells().setColWidth(0, Twips{900});
    cells().setColWidth(1, Twips{750});
    cells().setRowHeight(Twips{240});
    desk.cell(*grid, 1, 1);
    EXPECT_EQ(box->bounds.left, Twips{1000 + 900 + 30});
    EXPECT_EQ(box->bounds.top, Twips{2000 + 240 + 30});
    EXPECT_EQ(box->bounds.width, Twips{750 - 30});
    EXPECT_EQ(box->bounds.height, Twips{240 - 30});
}

TEST_F(Overlay, ShowsTheCellWithoutTrailingBlanksAllSelected) {
    cells().setText(1, 0, " second  ");
    desk.cell(*grid, 1, 0);
    EXPECT_EQ(typed(), " second");
    EXPECT_EQ(box->text().selStart, 0);
    EXPECT_EQ(box->text().selLength, 7);
    EXPECT_EQ(under(), "1,0");
    EXPECT_EQ(desk.focus(), box);
    EXPECT_TRUE(box->visible);
    EXPECT_EQ(desk.panel(2), "name hint");
}

TEST_F(Overlay, OpensOnAClickOnTheCellThatIsCurrentAlready) {
    desk.cell(*grid, 0, 0);
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(under(), "0,0");
}

TEST_F(Overlay, OpensByDoubleClickF2AndEnterOnTheGrid) {
    desk.focusOn(*grid);
    EXPECT_FALSE(box->visible) << "the focus alone opens nothing";
    desk.doubleClick(*grid);
    EXPECT_EQ(desk.focus(), box);
    desk.focusOn(*grid);
    desk.key(Key::F2);
    EXPECT_EQ(desk.focus(), box);
    desk.focusOn(*grid);
    desk.key(Key::Enter);
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(typed(), "first") << "Enter isn't sent on to the box";
    EXPECT_EQ(at(), "0,0");
}

TEST_F(Overlay, StartsWithTheCharacterTypedOnTheGrid) {
    desk.focusOn(*grid);
    desk.type("75");
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(typed(), "75") << "the first digit replaced the selected cell text";
    EXPECT_TRUE(flags.FieldChanged);
}

TEST_F(Overlay, LeavesNoTraceOfEscapeTypedOnTheGrid) {
    desk.focusOn(*grid);
    desk.key(Key::Escape);
    EXPECT_EQ(typed(), "first");
    EXPECT_FALSE(flags.FieldChanged);
}

TEST_F(Overlay, CommitsWhenItIsLeft) {
    desk.cell(*grid, 0, 1);
    replace("7");
    desk.focusOn(*button);
    EXPECT_EQ(cells().text(0, 1), "7.");
    EXPECT_FALSE(box->visible);
    EXPECT_TRUE(flags.FormChanged);
    EXPECT_FALSE(flags.FieldChanged);
    EXPECT_EQ(desk.focus(), button);
}

TEST_F(Overlay, ChecksAlsoACellThatWasOnlyVisitedButDoesNotMarkTheWindow) {
    cells().setText(0, 1, "5");
    desk.cell(*grid, 0, 1);
    desk.focusOn(*button);
    EXPECT_EQ(cells().text(0, 1), "5.");
    EXPECT_FALSE(flags.FormChanged);
}

TEST_F(Overlay, TakesTheFocusBackFromAClickElsewhereInTheGrid) {
    desk.cell(*grid, 0, 1);
    replace("x");
    desk.cell(*grid, 1, 2);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(at(), "0,1");
    EXPECT_EQ(cells().selection().startRow, 0);
    EXPECT_EQ(cells().selection().endRow, 0);
    EXPECT_EQ(cells().selection().startCol, 1);
    EXPECT_EQ(cells().selection().endCol, 1);
    EXPECT_EQ(cells().text(0, 1), "10.") << "the cell keeps its old text";
    EXPECT_EQ(desk.focus(), box);
    EXPECT_TRUE(box->visible);
    EXPECT_EQ(box->text().selLength, 1);
}

TEST_F(Overlay, OpensOnTheClickedCellAfterAGoodCommit) {
    desk.cell(*grid, 0, 1);
    replace("7");
    desk.cell(*grid, 1, 2);
    EXPECT_EQ(cells().text(0, 1), "7.");
    EXPECT_EQ(under(), "1,2");
    EXPECT_EQ(typed(), "2");
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(desk.panel(2), "count hint");
}

TEST_F(Overlay, OpensAgainOnAClickOnItsOwnCell) {
    desk.cell(*grid, 0, 1);
    replace("7");
    desk.cell(*grid, 0, 1);
    EXPECT_EQ(typed(), "7.");
    EXPECT_EQ(desk.focus(), box);
}

TEST_F(Overlay, KeepsAValueOutOfRangeOnTheAnswerNo) {
    desk.cell(*grid, 0, 1);
    replace("101");
    surroundings.messages.queue(Answer::No);
    desk.focusOn(*button);
    EXPECT_EQ(cells().text(0, 1), "101");
}

TEST_F(Overlay, WalksAlongTheRowByEnter) {
    desk.cell(*grid, 0, 0);
    desk.key(Key::Enter);
    EXPECT_EQ(under(), "0,1");
    EXPECT_EQ(desk.focus(), box);
    desk.key(Key::Enter);
    desk.key(Key::Enter);
    EXPECT_EQ(under(), "1,0") << "behind the last column comes the next row";
    EXPECT_EQ(typed(), "second");
    EXPECT_EQ(cells().rows(), 2);
}

TEST_F(Overlay, CommitsTheCellThatEnterLeaves) {
    desk.cell(*grid, 0, 1);
    replace("8");
    desk.key(Key::Enter);
    EXPECT_EQ(cells().text(0, 1), "8.");
    EXPECT_EQ(cells().text(0, 2), "1") << "the next cell isn't touched";
    EXPECT_EQ(typed(), "1");
}

TEST_F(Overlay, StaysWhenEnterLeavesABadCell) {
    desk.cell(*grid, 0, 1);
    replace("bad");
    desk.key(Key::Enter);
    EXPECT_EQ(at(), "0,1");
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(typed(), "bad");
    EXPECT_EQ(boxes().size(), 1U);
}

TEST_F(Overlay, GrowsTheGridByEnterInTheLastCell) {
    desk.cell(*grid, 1, 2);
    desk.key(Key::Enter);
    ASSERT_EQ(cells().rows(), 3) << "one row, not two";
    EXPECT_EQ(cells().text(2, 0), " ");
    EXPECT_EQ(under(), "2,0");
    EXPECT_EQ(typed(), "") << "the blank is trimmed away in the box";
    EXPECT_EQ(desk.focus(), box);
}

TEST_F(Overlay, GoesToTheFirstColumnBehindTheFixedOnes) {
    cells().setFixed(0, 1);
    desk.cell(*grid, 0, 2);
    desk.key(Key::Enter);
    EXPECT_EQ(under(), "1,1");
}

TEST_F(Overlay, WalksUpAndDownByTheArrows) {
    desk.cell(*grid, 0, 1);
    desk.key(Key::Down);
    EXPECT_EQ(under(), "1,1");
    EXPECT_EQ(typed(), "20.");
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(cells().selection().startRow, 1);
    EXPECT_EQ(cells().selection().endRow, 1);
    desk.key(Key::Up);
    EXPECT_EQ(under(), "0,1");
}

TEST_F(Overlay, GivesTheGridTheFocusAtTheFirstRow) {
    desk.cell(*grid, 0, 1);
    replace("3");
    desk.key(Key::Up);
    EXPECT_EQ(desk.focus(), grid);
    EXPECT_EQ(at(), "0,1");
    EXPECT_FALSE(box->visible);
    EXPECT_EQ(cells().text(0, 1), "3.") << "losing the focus commits";
}

TEST_F(Overlay, TakesTheFirstRowBehindTheFixedOnesAsTheFirst) {
    cells().setFixed(1, 0);
    desk.cell(*grid, 1, 0);
    desk.key(Key::Up);
    EXPECT_EQ(at(), "1,0");
    EXPECT_EQ(desk.focus(), grid);
}

TEST_F(Overlay, GivesTheGridTheFocusAtTheLastRow) {
    cells().setRows(3);
    desk.cell(*grid, 2, 0);
    desk.key(Key::Down);
    EXPECT_EQ(desk.focus(), grid);
    EXPECT_EQ(at(), "2,0");
    EXPECT_EQ(cells().rows(), 3);
}

TEST_F(Overlay, StaysWhenAnArrowLeavesABadCell) {
    desk.cell(*grid, 0, 2);
    replace("bad");
    desk.key(Key::Down);
    EXPECT_EQ(at(), "0,2");
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(cells().text(0, 2), "1");
}

TEST_F(Overlay, MovesInItsTextByTheOtherArrows) {
    desk.cell(*grid, 0, 0);
    desk.key(Key::Right);
    EXPECT_EQ(at(), "0,0");
    EXPECT_EQ(desk.focus(), box);
    EXPECT_EQ(box->text().selStart, 5);
}

TEST_F(Overlay, MovesOneCellToTheRightByTab) {
    desk.cell(*grid, 0, 0);
    replace("new");
    desk.key(Key::Tab);
    EXPECT_EQ(cells().text(0, 0), "new");
    EXPECT_EQ(under(), "0,1");
    EXPECT_EQ(desk.focus(), box);
}

TEST_F(Overlay, StaysOnTheGridWhenTabLeavesTheLastColumn) {
    desk.cell(*grid, 0, 2);
    desk.key(Key::Tab);
    EXPECT_EQ(at(), "0,2");
    EXPECT_EQ(desk.focus(), grid);
    EXPECT_FALSE(box->visible);
}

TEST_F(Overlay, StaysWhenTabLeavesABadCell) {
    desk.cell(*grid, 0, 1);
    replace("bad");
    desk.key(Key::Tab);
    EXPECT_EQ(at(), "0,1");
    EXPECT_EQ(desk.focus(), box);
}

TEST_F(Overlay, KeepsABlankRowBelowATextOnTheLastRow) {
    cells().setRows(3);
    desk.cell(*grid, 2, 0);
    desk.type("third");
    desk.focusOn(*button);
    ASSERT_EQ(cells().rows(), 4);
    EXPECT_EQ(cells().text(3, 0), "");
}

TEST_F(Overlay, AddsNoRowBelowAnEmptyCell) {
    cells().setRows(3);
    desk.cell(*grid, 2, 0);
    desk.focusOn(*button);
    EXPECT_EQ(cells().rows(), 3);
}

TEST_F(Overlay, InsertsTheWindowsRowAheadOfTheCurrentOne) {
    desk.focusOn(*grid);
    desk.key(Key::Insert);
    EXPECT_EQ(cells().rows(), 3);
    EXPECT_EQ(cells().text(1, 0), "first");
}

TEST_F(Overlay, RemovesTheCurrentRowWhileMoreThanOneRemains) {
    desk.focusOn(*grid);
    desk.key(Key::Delete);
    ASSERT_EQ(cells().rows(), 1);
    EXPECT_EQ(cells().text(0, 0), "second");
    desk.key(Key::Delete);
    ASSERT_EQ(cells().rows(), 1);
    EXPECT_EQ(cells().text(0, 0), "second") << "the only row stays";
}

TEST_F(Overlay, DeletesInItsTextNotInTheGrid) {
    desk.cell(*grid, 0, 0);
    desk.key(Key::Delete);
    EXPECT_EQ(cells().rows(), 2);
    EXPECT_EQ(typed(), "");
}

TEST_F(Overlay, OpensNothingWhileTheGuardIsRaised) {
    desk.focusOn(*grid);
    overlay->setGuard(true);
    desk.moveCell(*grid, 1, 1);
    EXPECT_EQ(desk.focus(), grid);
    overlay->setGuard(false);
    desk.moveCell(*grid, 0, 0);
    EXPECT_EQ(desk.focus(), box);
}

TEST_F(Overlay, ClosesTheProgramAtAWholeNumberThatIsTooLarge) {
    desk.cell(*grid, 0, 2);
    replace("40000");
    desk.focusOn(*button);
    EXPECT_EQ(desk.failure(), "Overflow");
}

TEST(TheTextOfARow, JoinsAllCellsByTabsAndLeavesTheGridWhereItWas) {
    Grid grid;
    grid.setCols(3);
    grid.addItem("a\tb");
    grid.setRow(1);
    grid.setCol(2);
    EXPECT_EQ(GridRowText(grid), "a\tb\t");
    EXPECT_EQ(grid.col(), 2);
}

} // namespace
} // namespace kov
