#include "platform/grid.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace kov {
namespace {

class ThreeColumns : public testing::Test {
protected:
    ThreeColumns() {
        grid.setCols(3);
        grid.setRows(2);
        grid.setText(0, 0, "a");
        grid.setText(1, 1, "b");
    }
    Grid grid;
};

TEST(ANewGrid, HasOneEmptyCell) {
    const Grid grid;
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.cols(), 1);
    EXPECT_EQ(grid.text(0, 0), "");
    EXPECT_EQ(grid.line(0), "");
}

TEST_F(ThreeColumns, RefuseACellThatIsNotThere) {
    EXPECT_THROW(static_cast<void>(grid.text(2, 0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(grid.text(0, 3)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(grid.text(-1, 0)), std::out_of_range);
    EXPECT_THROW(grid.setText(0, -1, "x"), std::out_of_range);
    EXPECT_THROW(grid.setRow(2), std::out_of_range);
    EXPECT_THROW(grid.setCol(3), std::out_of_range);
    EXPECT_THROW(grid.setTopRow(2), std::out_of_range);
    EXPECT_THROW(grid.removeItem(2), std::out_of_range);
    EXPECT_THROW(grid.addItem("x", 3), std::out_of_range);
}

TEST_F(ThreeColumns, JoinTheFilledCellsOfALineByTabs) {
    EXPECT_EQ(grid.line(0), "a") << "cells never filled at the end are left out";
    EXPECT_EQ(grid.line(1), "\tb");
    grid.setText(1, 2, "");
    EXPECT_EQ(grid.line(1), "\tb\t") << "a cell that was filled with nothing counts";
}

TEST_F(ThreeColumns, TakeANewRowAtTheEndOrAheadOfAnother) {
    grid.addItem("x\ty\tz");
    EXPECT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.line(2), "x\ty\tz");
    grid.addItem("p\tq", 0);
    EXPECT_EQ(grid.line(0), "p\tq");
    EXPECT_EQ(grid.line(1), "a");
    grid.addItem("last", 4);
    EXPECT_EQ(grid.line(4), "last") << "ahead of the row behind the last one is the end";
}

TEST_F(ThreeColumns, LoseTheCellsBehindTheLastColumn) {
    grid.addItem("1\t2\t3\t4");
    EXPECT_EQ(grid.line(2), "1\t2\t3");
}

TEST_F(ThreeColumns, KeepTheCurrentCellInsideWhenRowsGo) {
    grid.setRow(1);
    grid.setCol(2);
    grid.removeItem(1);
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.row(), 0);
    grid.setCols(1);
    EXPECT_EQ(grid.col(), 0);
}

TEST_F(ThreeColumns, EmptyTheOnlyRowInsteadOfRemovingIt) {
    grid.removeItem(1);
    grid.removeItem(0);
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.line(0), "");
    grid.setRows(0);
    EXPECT_EQ(grid.rows(), 1);
}

TEST_F(ThreeColumns, TellWhereCellsAreFromTheInnerCorner) {
    grid.setColWidth(0, Twips{500});
    grid.setColWidth(1, Twips{700});
    grid.setRowHeight(Twips{240});
    EXPECT_EQ(grid.colPos(0), Twips{0});
    EXPECT_EQ(grid.colPos(2), Twips{1200});
    EXPECT_EQ(grid.rowPos(1), Twips{240});
    grid.setTopRow(1);
    EXPECT_EQ(grid.rowPos(1), Twips{0});
    EXPECT_EQ(grid.rowPos(0), Twips{-240}) << "rows above the top row";
}

TEST_F(ThreeColumns, TellAViewThatTheirCellsAreOthersNow) {
    const auto before = grid.revision();
    grid.setText(0, 0, "new");
    EXPECT_NE(grid.revision(), before);
}

} // namespace
} // namespace kov
