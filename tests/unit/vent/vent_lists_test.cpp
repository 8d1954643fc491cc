#include "core/cards/failure.hpp"
#include "unit/vent/cards.hpp"
#include "unit/vent/sections.hpp"
#include "vent/model/vents.hpp"

#include <gtest/gtest.h>

namespace {

using namespace kov;
using kov::test::addVent;
using kov::test::padded;
using kov::test::threeVents;

Grid emptyGrid(int columns) {
    Grid grid;
    grid.setCols(columns);
    return grid;
}

TEST(Vents, VentListReplacesTheEmptyRow) {
    cVents vents;
    addVent(vents, 301, 1, -2)->InitAir = "5.";
    auto grid = emptyGrid(4);
    vents.VentList(grid);
    ASSERT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.line(0), " 301\t 1\t-2\t5.        ");
}

TEST(Vents, VentListOfNoSectionsKeepsTheEmptyRow) {
    auto grid = emptyGrid(4);
    cVents().VentList(grid);
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.line(0), "");
}

TEST(Vents, VentListDoesNotClearTheGrid) {
    const auto vents = threeVents();
    auto grid = emptyGrid(4);
    grid.addItem("kept");
    vents.VentList(grid);
    ASSERT_EQ(grid.rows(), 4);
    EXPECT_EQ(grid.line(0), "kept");
    EXPECT_EQ(grid.text(1, 0), " 1");
}

TEST(Vents, ShaftListNumbersAnUnnumberedShaftAfterItsSection) {
    cVents vents;
    addVent(vents, 301);
    addVent(vents, 302)->uVShaft->id = 77;
    auto grid = emptyGrid(2);
    Collection<cVShaft> shafts;
    vents.VShaftList(grid, shafts);
    ASSERT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.line(0), " 301\t 301");
    EXPECT_EQ(grid.line(1), " 302\t 77");
    EXPECT_EQ(vents.vent(Position(1))->uVShaft->id, 301);
    ASSERT_EQ(shafts.count(), 2);
    EXPECT_EQ(shafts.at(Position(2)), vents.vent(Position(2))->uVShaft);
}

TEST(Vents, ShaftListOfNoSectionsKeepsTheEmptyRow) {
    auto grid = emptyGrid(2);
    Collection<cVShaft> shafts;
    cVents().VShaftList(grid, shafts);
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_TRUE(shafts.empty());
}

class FanListTest : public testing::Test {
protected:
    void SetUp() override {
        fans_.Add(Position(0))->setFan({.id = "Small"});
        fans_.Add(Position(0))->setFan({.id = "Main"});
    }
    std::shared_ptr<cVShaft> addFanShaft(std::int16_t type, std::int16_t direction) {
        const auto vent = addVent(vents_, 301);
        auto& shaft = *vent->uVShaft;
        shaft.id = 77;
        shaft.Title = "North";
        shaft.FanType = type;
        shaft.FanOn = "5.";
        shaft.FanOff = "6.";
        shaft.FanDir = direction;
        return vent->uVShaft;
    }

    cVents vents_;
    cFans fans_;
    Grid grid_ = emptyGrid(6);
    Collection<cVShaft> shafts_;
};

TEST_F(FanListTest, RowShowsSectionShaftFanTimesAndDirection) {
    const auto shaft = addFanShaft(2, -1);
    vents_.FanList(grid_, shafts_, fans_);
    ASSERT_EQ(grid_.rows(), 1);
    EXPECT_EQ(grid_.line(0),
              " 301- 77\t" + padded("North", 36) + "\t" + padded("Main", 36) + "\t5.        \t6.        \tSupply");
    ASSERT_EQ(shafts_.count(), 1);
    EXPECT_EQ(shafts_.at(Position(1)), shaft);
}

TEST_F(FanListTest, DirectionIsToldInWords) {
    for (const auto direction : std::initializer_list<std::int16_t>{-1, 0, 1, 2, -2}) {
        addFanShaft(1, direction);
    }
    vents_.FanList(grid_, shafts_, fans_);
    ASSERT_EQ(grid_.rows(), 5);
    EXPECT_EQ(grid_.text(0, 5), "Supply");
    EXPECT_EQ(grid_.text(1, 5), "Off");
    EXPECT_EQ(grid_.text(2, 5), "Exhaust");
    EXPECT_EQ(grid_.text(3, 5), "Undefined");
    EXPECT_EQ(grid_.text(4, 5), "Undefined");
}

TEST_F(FanListTest, ShaftsWithoutFanGiveNoRow) {
    addFanShaft(0, 0);
    addFanShaft(-1, 0);
    const auto last = addFanShaft(1, 0);
    vents_.FanList(grid_, shafts_, fans_);
    EXPECT_EQ(grid_.rows(), 1);
    ASSERT_EQ(shafts_.count(), 1);
    EXPECT_EQ(shafts_.at(Position(1)), last);
}

TEST_F(FanListTest, DataWithoutFansLeavesTheEmptyRow) {
    addFanShaft(0, 0);
    vents_.FanList(grid_, shafts_, cFans());
    EXPECT_EQ(grid_.rows(), 1);
    EXPECT_EQ(grid_.line(0), "");
    EXPECT_TRUE(shafts_.empty());
}

TEST_F(FanListTest, FanPutInAheadMovesTheShaftToAnotherFan) {
    addFanShaft(2, 0);
    fans_.Add(Position(1))->setFan({.id = "New"});
    vents_.FanList(grid_, shafts_, fans_);
    EXPECT_EQ(grid_.text(0, 2), padded("Small", 36));
}

TEST_F(FanListTest, FanTypeBeyondTheListFails) {
    addFanShaft(3, 0);
    EXPECT_THROW(vents_.FanList(grid_, shafts_, fans_), Failure);
}

TEST(Vents, NodeTableGetsEverySectionNegatedAtBothNodes) {
    cVents vents;
    addVent(vents, 301, 1, 2);
    addVent(vents, 302, 2, 3);
    NodeTable table;
    vents.NodeList(table);
    EXPECT_EQ(table.branches(1), 1);
    EXPECT_EQ(table.branch(1, 1), -301);
    EXPECT_EQ(table.branches(2), 2);
    EXPECT_EQ(table.branch(2, 1), -301);
    EXPECT_EQ(table.branch(2, 2), -302);
    EXPECT_EQ(table.branches(3), 1);
}

TEST(Vents, SectionFromANodeToItselfCountsTwiceThere) {
    cVents vents;
    addVent(vents, 301, 4, 4);
    NodeTable table;
    vents.NodeList(table);
    EXPECT_EQ(table.branches(4), 2);
    EXPECT_EQ(table.branch(4, 1), -301);
    EXPECT_EQ(table.branch(4, 2), -301);
}

TEST(Vents, NodesOutsideTheTableAndASixthBranchFail) {
    cVents outside;
    addVent(outside, 1, 1, 1001);
    NodeTable table;
    EXPECT_THROW(outside.NodeList(table), Failure);
    cVents negative;
    addVent(negative, 1, -1, 1);
    EXPECT_THROW(negative.NodeList(table), Failure);
    cVents crowded;
    for (const auto id : std::initializer_list<std::int16_t>{1, 2, 3, 4, 5, 6}) {
        addVent(crowded, id, 7, static_cast<std::int16_t>(id + 10));
    }
    EXPECT_THROW(crowded.NodeList(table), Failure);
}

TEST(Vents, NumberThatCannotBeNegatedFails) {
    cVents vents;
    addVent(vents, -32768);
    NodeTable table;
    EXPECT_THROW(vents.NodeList(table), Failure);
}

TEST(Vents, ZoneRecordsBearTheShaftsNumber) {
    cVents vents;
    addVent(vents, 301)->uVShaft->id = 77;
    addVent(vents, 302)->uVShaft->id = -5;
    ZsectList sections;
    vents.VentZList(sections);
    ASSERT_EQ(sections.size(), 2U);
    EXPECT_EQ(sections.at(" 77").sid, " 77");
    EXPECT_TRUE(sections.at(" 77").vent);
    EXPECT_FALSE(sections.at(" 77").used);
    EXPECT_EQ(sections.at("-5").sid, "-5");
}

TEST(Vents, TwoShaftsOfOneNumberFailAsZoneRecords) {
    cVents vents;
    addVent(vents, 301)->uVShaft->id = 77;
    addVent(vents, 302)->uVShaft->id = 77;
    ZsectList sections;
    EXPECT_THROW(vents.VentZList(sections), Failure);
}

} // namespace
