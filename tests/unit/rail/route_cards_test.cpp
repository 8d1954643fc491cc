#include "core/cards/failure.hpp"
#include "rail/model/route_cards.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using rail_test::card;
using rail_test::written;

TEST(RouteCards, ANewGroupIsOneTrainOfTheFirstTypeEveryTwentySeconds) {
    const cRtGroup group;
    EXPECT_EQ(written([&](CardWriter& w) { group.WriteData(w); }), " 1         1         20       \n");
}

TEST(RouteCards, NewStopsPointsAndTracksHoldZerosWithAPoint) {
    EXPECT_EQ(written([](CardWriter& w) { cRtStop().WriteData(w); }), card({"0.", "0.", "0."}) + "\n");
    EXPECT_EQ(written([](CardWriter& w) { cRtTPerf().WriteData(w); }), card({"0.", "0.", "0.", "0."}) + "\n");
    EXPECT_EQ(written([](CardWriter& w) { cRtTrack().WriteData(w); }), card({"0.", "0.", "0.", "0.", "0.", " 1", " 0"}) + "\n");
}

TEST(RouteCards, IntegersOfAGroupAreFieldValuesRoundedHalfToEven) {
    CardReader reader("2.5       3.5 kg    \n");
    cRtGroup group;
    ASSERT_TRUE(group.ReadData(reader));
    EXPECT_EQ(group.Trains, 2);
    EXPECT_EQ(group.TrainType, 4);
    EXPECT_EQ(group.Headway, 0);
}

TEST(RouteCards, AGroupIntegerBeyondSixteenBitsIsABadCard) {
    CardReader reader("32768     1         20\n");
    cRtGroup group;
    EXPECT_FALSE(group.ReadData(reader));
}

TEST(RouteCards, ATrackCardIsReadInItsSevenFieldsAndWrittenAsItWas) {
    const auto line = card({"1250.5", "0", "-.5", "1E2", "45", "2", "1"});
    CardReader reader(line);
    cRtTrack track;
    ASSERT_TRUE(track.ReadData(reader));
    EXPECT_EQ(track.ForwardEnd, CardText("1250.5"));
    EXPECT_EQ(track.Radius, CardText("0"));
    EXPECT_EQ(track.Grade, CardText("-.5"));
    EXPECT_EQ(track.Elevation, CardText("1E2"));
    EXPECT_EQ(track.MaxSpeed, CardText("45"));
    EXPECT_EQ(track.EnergySector, 2);
    EXPECT_EQ(track.CoastParam, 1);
    EXPECT_EQ(written([&](CardWriter& w) { track.WriteData(w); }),
              card({"1250.5", "0", "-.5", "1E2", "45", " 2", " 1"}) + "\n");
}

TEST(RouteCards, ATrackIntegerBeyondSixteenBitsIsABadCard) {
    const auto line = card({"1.", "0.", "0.", "0.", "45.", "-99999", "1"});
    CardReader reader(line);
    cRtTrack track;
    EXPECT_FALSE(track.ReadData(reader));
}

TEST(RouteCards, LeadingBlanksOfACardFieldAreLostAndTextStaysText) {
    CardReader reader("   1,200.   twenty        -30\n");
    cRtStop stop;
    ASSERT_TRUE(stop.ReadData(reader));
    EXPECT_EQ(stop.StopAt, CardText("1,200."));
    EXPECT_EQ(stop.Dwell, CardText("twenty"));
    EXPECT_EQ(stop.Persons, CardText("-30"));
}

TEST(RouteCards, AShortPerformanceCardLeavesItsLastTextsBlank) {
    CardReader reader("10.       33.\n");
    cRtTPerf point;
    ASSERT_TRUE(point.ReadData(reader));
    EXPECT_EQ(point.PerfTime, CardText("10."));
    EXPECT_EQ(point.PerfSpeed, CardText("33."));
    EXPECT_TRUE(point.PwrAccel.blank());
    EXPECT_TRUE(point.PwrDecel.blank());
}

TEST(RouteCards, NoneIsReadAtTheEndOfTheFile) {
    CardReader reader("");
    EXPECT_FALSE(cRtGroup().ReadData(reader));
    EXPECT_FALSE(cRtTrack().ReadData(reader));
    EXPECT_FALSE(cRtStop().ReadData(reader));
    EXPECT_FALSE(cRtTPerf().ReadData(reader));
}

TEST(RouteCards, ACopyHoldsAllFieldsOfItsSource) {
    cRtGroup group;
    group.setRtGroup({3, 4, 90});
    cRtGroup groupCopy;
    groupCopy.XCopy(group);
    EXPECT_EQ(written([&](CardWriter& w) { groupCopy.WriteData(w); }), card({" 3", " 4", " 90"}) + "\n");

    cRtTrack track;
    track.setRtTrack({"1.", "2.", "3.", "4.", "5.", 6, 7});
    cRtTrack trackCopy;
    trackCopy.XCopy(track);
    EXPECT_EQ(written([&](CardWriter& w) { trackCopy.WriteData(w); }), card({"1.", "2.", "3.", "4.", "5.", " 6", " 7"}) + "\n");

    cRtStop stop;
    stop.setRtStop({"1.", "2.", "3."});
    cRtStop stopCopy;
    stopCopy.XCopy(stop);
    EXPECT_EQ(written([&](CardWriter& w) { stopCopy.WriteData(w); }), card({"1.", "2.", "3."}) + "\n");

    cRtTPerf point;
    point.setRtTPerf({"1.", "2.", "3.", "4."});
    cRtTPerf pointCopy;
    pointCopy.XCopy(point);
    EXPECT_EQ(written([&](CardWriter& w) { pointCopy.WriteData(w); }), card({"1.", "2.", "3.", "4."}) + "\n");
}

} // namespace
} // namespace kov
