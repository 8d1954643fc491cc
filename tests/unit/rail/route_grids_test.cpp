#include "core/cards/failure.hpp"
#include "rail/model/route.hpp"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace kov {
namespace {

Grid gridOf(int columns, std::initializer_list<std::string> rows = {}) {
    Grid grid;
    grid.setCols(columns);
    for (const auto& row : rows) {
        grid.addItem(row);
    }
    if (rows.size() > 0) {
        grid.removeItem(0);
    }
    return grid;
}

std::vector<std::string> rowsOf(const Grid& grid) {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(grid.rows()));
    for (int row = 0; row < grid.rows(); ++row) {
        rows.push_back(grid.line(row));
    }
    return rows;
}

using Rows = std::vector<std::string>;

TEST(RouteGrids, AnEmptyListIsOneBlankRowWhateverStoodThere) {
    const cRoute route;
    for (const auto list : {&cRoute::TGroupList, &cRoute::TStopList, &cRoute::TPerfList, &cRoute::TrackList}) {
        auto grid = gridOf(7, {"1\t2", "3\t4"});
        (route.*list)(grid);
        EXPECT_EQ(rowsOf(grid), Rows{" "});
    }
}

TEST(RouteGrids, GroupsShowAsPlainNumbersAndABlankRow) {
    cRoute route;
    route.TGroups.append(std::make_shared<cRtGroup>());
    auto second = std::make_shared<cRtGroup>();
    second->setRtGroup({-2, 3, 600});
    route.TGroups.append(second);
    auto grid = gridOf(3, {"old\told\told"});
    route.TGroupList(grid);
    EXPECT_EQ(rowsOf(grid), (Rows{" 1\t 1\t 20", "-2\t 3\t 600", " "}));
}

TEST(RouteGrids, TextsShowWithTheirTrailingBlanks) {
    cRoute route;
    route.TStops.append(std::make_shared<cRtStop>());
    route.TPerfs.append(std::make_shared<cRtTPerf>());
    auto track = std::make_shared<cRtTrack>();
    track->setRtTrack({"1.", "2.", "3.", "4.", "5.", 6, 7});
    route.Tracks.append(track);

    auto stops = gridOf(3);
    route.TStopList(stops);
    EXPECT_EQ(rowsOf(stops), (Rows{"0.        \t0.        \t0.        ", " "}));
    auto points = gridOf(4);
    route.TPerfList(points);
    EXPECT_EQ(rowsOf(points), (Rows{"0.        \t0.        \t0.        \t0.        ", " "}));
    auto tracks = gridOf(7);
    route.TrackList(tracks);
    EXPECT_EQ(rowsOf(tracks), (Rows{"1.        \t2.        \t3.        \t4.        \t5.        \t 6\t 7", " "}));
}

TEST(RouteGrids, AStopRowIsKeptOnlyWhenItsPlaceIsAboveZero) {
    cRoute route;
    auto grid =
        gridOf(3, {"100.\t10\t5", " \t20\t5", "0\t30\t5", "-1.\t40\t5", "x1\t50\t5", "\t60\t5", " .5 mi\t70.123456789\t"});
    route.TStopSave(grid);
    ASSERT_EQ(route.TStops.count(), 2);
    EXPECT_EQ(route.TStops.at(Position{1})->StopAt, CardText("100."));
    EXPECT_EQ(route.TStops.at(Position{1})->Dwell, CardText("10"));
    EXPECT_EQ(route.TStops.at(Position{1})->Persons, CardText("5"));
    EXPECT_EQ(route.TStops.at(Position{2})->StopAt.view(), " .5 mi    ");
    EXPECT_EQ(route.TStops.at(Position{2})->Dwell.view(), "70.1234567");
    EXPECT_TRUE(route.TStops.at(Position{2})->Persons.blank());
}

TEST(RouteGrids, TheFirstPerformancePointAtTimeZeroIsLost) {
    cRoute route;
    auto grid = gridOf(4, {"0.\t1\t2\t3", "1.\t10\t20\t30"});
    route.TPerfSave(grid);
    ASSERT_EQ(route.TPerfs.count(), 1);
    const auto point = route.TPerfs.at(Position{1})->getRtTPerf();
    EXPECT_EQ(point.PerfTime, CardText("1."));
    EXPECT_EQ(point.PerfSpeed, CardText("10"));
    EXPECT_EQ(point.PwrAccel, CardText("20"));
    EXPECT_EQ(point.PwrDecel, CardText("30"));
}

TEST(RouteGrids, TracksTakeTextsUnchangedAndRoundTheirIntegers) {
    cRoute route;
    auto grid = gridOf(7, {"0.\t1\t2\t3\t4\t5\t6", "9.\t1\t2\t3\t4\t2.5\t"});
    route.TrackSave(grid);
    ASSERT_EQ(route.Tracks.count(), 1);
    const auto track = route.Tracks.at(Position{1})->getRtTrack();
    EXPECT_EQ(track.ForwardEnd, CardText("9."));
    EXPECT_EQ(track.Radius, CardText("1"));
    EXPECT_EQ(track.Grade, CardText("2"));
    EXPECT_EQ(track.Elevation, CardText("3"));
    EXPECT_EQ(track.MaxSpeed, CardText("4"));
    EXPECT_EQ(track.EnergySector, 2);
    EXPECT_EQ(track.CoastParam, 0);
}

TEST(RouteGrids, AGroupRowIsKeptByItsRoundedFirstCell) {
    cRoute route;
    auto grid = gridOf(3, {"0.5\t1\t2", "0.6\t3.5\t4 s", "-3\t1\t1", " "});
    route.TGroupSave(grid);
    ASSERT_EQ(route.TGroups.count(), 1);
    EXPECT_EQ(route.TGroups.at(Position{1})->Trains, 1);
    EXPECT_EQ(route.TGroups.at(Position{1})->TrainType, 4);
    EXPECT_EQ(route.TGroups.at(Position{1})->Headway, 4);
}

TEST(RouteGrids, AStopOfAFractionIsKeptThoughItRoundsToZero) {
    cRoute route;
    auto grid = gridOf(3, {"0.4\t1\t2"});
    route.TStopSave(grid);
    EXPECT_EQ(route.TStops.count(), 1);
}

TEST(RouteGrids, AGroupCellBeyondSixteenBitsIsAFailure) {
    cRoute route;
    auto grid = gridOf(3, {"40000\t1\t2"});
    EXPECT_THROW(route.TGroupSave(grid), Failure);
}

TEST(RouteGrids, SavingMakesNewObjectsSoThatACopyKeepsItsOwn) {
    cRoute route;
    route.TStops.append(std::make_shared<cRtStop>());
    cRoute copy;
    copy.XCopy(route);
    auto grid = gridOf(3, {"100.\t1\t2"});
    route.TStopSave(grid);
    ASSERT_EQ(route.TStops.count(), 1);
    EXPECT_NE(route.TStops.at(Position{1}), copy.TStops.at(Position{1}));
    EXPECT_EQ(copy.TStops.at(Position{1})->StopAt, CardText("0."));
}

TEST(RouteGrids, AFilledGridSavesBackWithoutTheBlankRow) {
    cRoute route;
    route.TGroups.append(std::make_shared<cRtGroup>());
    auto grid = gridOf(3);
    route.TGroupList(grid);
    route.TGroupSave(grid);
    ASSERT_EQ(route.TGroups.count(), 1);
    EXPECT_EQ(route.TGroups.at(Position{1})->Headway, 20);
}

ItemList listOf(std::initializer_list<std::string> entries) {
    ItemList list;
    for (const auto& entry : entries) {
        list.addItem(entry);
    }
    return list;
}

std::vector<std::string> entriesOf(const ItemList& list) {
    std::vector<std::string> entries;
    entries.reserve(static_cast<std::size_t>(list.count()));
    for (int i = 0; i < list.count(); ++i) {
        entries.push_back(list.item(i));
    }
    return entries;
}

TEST(RouteSections, TheListEndsWithABlankEntry) {
    cRoute route;
    auto list = listOf({"old"});
    route.TSectList(list);
    EXPECT_EQ(entriesOf(list), Rows{" "});
}

TEST(RouteSections, SectionsAreTakenWithTheirSignAndZerosDropped) {
    cRoute route;
    route.TSectSave(listOf({"-12", "0", " 7", "2.5", "text", " "}));
    auto list = listOf({});
    route.TSectList(list);
    EXPECT_EQ(entriesOf(list), (Rows{"-12", " 7", " 2", " "}));
}

TEST(RouteSections, TheLastEntryIsNeverLookedAt) {
    cRoute route;
    route.TSectSave(listOf({"3", "4"}));
    auto list = listOf({});
    route.TSectList(list);
    EXPECT_EQ(entriesOf(list), (Rows{" 3", " "}));
    route.TSectSave(listOf({}));
    route.TSectList(list);
    EXPECT_EQ(entriesOf(list), Rows{" "});
}

} // namespace
} // namespace kov
