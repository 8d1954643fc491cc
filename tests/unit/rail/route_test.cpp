#include "core/cards/failure.hpp"
#include "rail/model/route.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using rail_test::allRead;
using rail_test::card;
using rail_test::file;
using rail_test::padded;
using rail_test::written;

DataOptions performanceOption(std::int16_t option) {
    DataOptions options;
    options.TPOpt = option;
    return options;
}

std::string title(const std::string& text) { return padded(text, 68); }

std::string writtenRoute(const cRoute& route, std::int16_t option) {
    return written([&](CardWriter& w) { route.WriteData(w, performanceOption(option)); });
}

/// A route with one element in each list.
void fill(cRoute& route) {
    route.SetRoute({"Northbound", "10.", "20.", "5.", "7.", 2, 1, 33});
    route.TGroups.append(std::make_shared<cRtGroup>());
    route.Tracks.append(std::make_shared<cRtTrack>());
    route.TStops.append(std::make_shared<cRtStop>());
    route.TPerfs.append(std::make_shared<cRtTPerf>());
    ItemList sections;
    sections.addItem("-12");
    sections.addItem(" ");
    route.TSectSave(sections);
}

const std::string RouteCard = card({"10.", " 2", " 1", "20.", " 2", "5.", " 1"});
const std::string GroupCard = card({" 1", " 1", " 20"});
const std::string TrackCard = card({"0.", "0.", "0.", "0.", "0.", " 1", " 0"});
const std::string StopHead = card({" 1", " 33"});
const std::string StopCard = card({"0.", "0.", "0."});
const std::string PerfHead = card({" 1"});
const std::string PerfCard = card({"0.", "0.", "0.", "0."});
const std::string SectHead = card({" 1", "7."});
const std::string SectCard = card({"-12"});

TEST(Route, WithoutPerformanceOptionItIsGroupsTracksAndSections) {
    cRoute route;
    fill(route);
    EXPECT_EQ(writtenRoute(route, 0), file({title("Northbound"), RouteCard, GroupCard, TrackCard, SectHead, SectCard}));
}

TEST(Route, WithStopsThereIsNoPerformanceCard) {
    cRoute route;
    fill(route);
    EXPECT_EQ(writtenRoute(route, 1),
              file({title("Northbound"), RouteCard, GroupCard, TrackCard, StopHead, StopCard, SectHead, SectCard}));
}

TEST(Route, WithGivenSpeedsThereIsNoStopCard) {
    cRoute route;
    fill(route);
    EXPECT_EQ(writtenRoute(route, 2),
              file({title("Northbound"), RouteCard, GroupCard, TrackCard, PerfHead, PerfCard, SectHead, SectCard}));
}

TEST(Route, WithGivenHeatTheTrackCountStaysThoughNoTrackCardFollows) {
    cRoute route;
    fill(route);
    EXPECT_EQ(writtenRoute(route, 3),
              file({title("Northbound"), RouteCard, GroupCard, PerfHead, PerfCard, SectHead, SectCard}));
}

TEST(Route, EveryOptionReadsBackWhatItWrote) {
    cRoute route;
    fill(route);
    for (const auto option : std::initializer_list<std::int16_t>{0, 1, 2, 3}) {
        const auto text = writtenRoute(route, option);
        CardReader reader(text);
        cRoute again;
        ASSERT_TRUE(again.ReadData(reader, performanceOption(option))) << option;
        EXPECT_TRUE(allRead(reader)) << option;
        if (option != 3) { // its declared tracks don't follow, so they aren't there to be counted
            EXPECT_EQ(writtenRoute(again, option), text) << option;
        }
    }
}

TEST(Route, WithGivenHeatADeclaredTrackCountReadsNoTrackCard) {
    const auto text = file({title("R"), card({"0.", "1", "5", "0.", "1", "0.", "0"}), "0", card({"0", "9."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(3)));
    EXPECT_EQ(route.NTrackCard, 5);
    EXPECT_TRUE(route.Tracks.empty());
    EXPECT_EQ(route.Dist0, CardText("9."));
}

TEST(Route, PassengersAtTheOriginExistOnlyWithStops) {
    cRoute route;
    fill(route);
    const auto text = writtenRoute(route, 2);
    CardReader reader(text);
    cRoute again;
    ASSERT_TRUE(again.ReadData(reader, performanceOption(2)));
    EXPECT_EQ(again.Npax0, 0);

    const auto stops = writtenRoute(route, 1);
    CardReader stopReader(stops);
    cRoute withStops;
    ASSERT_TRUE(withStops.ReadData(stopReader, performanceOption(1)));
    EXPECT_EQ(withStops.Npax0, 33);
}

TEST(Route, ANewRouteHasItsDefaults) {
    cRoute route;
    EXPECT_TRUE(route.id().blank());
    route.RouteID = "R";
    EXPECT_EQ(writtenRoute(route, 1),
              file({title("R"), card({"0.", " 1", " 0", "0.", " 1", "0.", " 0"}), card({" 0", " 0"}), card({" 0", "0."})}));
}

TEST(Route, WithoutTitleNothingIsWritten) {
    cRoute route;
    fill(route);
    route.RouteID = "   ";
    EXPECT_EQ(writtenRoute(route, 1), "");
}

TEST(Route, NoGroupsAreDeclaredAsOneAndReadAsNone) {
    const auto text = file({"R", card({"0.", "1", "0", "0.", "1", "0.", "0"}), card({"0", "0."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(0)));
    EXPECT_TRUE(route.TGroups.empty());
    EXPECT_EQ(route.NGroupCard, 1);
    EXPECT_TRUE(allRead(reader));
}

TEST(Route, OneLessGroupIsReadThanDeclared) {
    const auto text = file({"R", card({"0.", "3", "0", "0.", "1", "0.", "0"}), "7", "8", card({"0", "0."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(0)));
    ASSERT_EQ(route.TGroups.count(), 2);
    EXPECT_EQ(route.TGroups.at(Position{1})->Trains, 7);
    EXPECT_EQ(route.TGroups.at(Position{2})->Trains, 8);
}

TEST(Route, TheTitleIsTheFirst68ColumnsWithItsLeadingBlanks) {
    const auto text =
        file({"  " + std::string(66, 'x') + "yz", card({"0.", "1", "0", "0.", "1", "0.", "0"}), card({"0", "0."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(0)));
    EXPECT_EQ(route.id().view(), "  " + std::string(66, 'x'));
}

TEST(Route, TextsOfTheRouteCardStayAsTheyAreAndItsLastFieldIsIgnored) {
    const auto text = file({"R", card({"  1E3", "1", "0", "20 sec", "2.5", ".5", "3.5", "99999"}), card({"0", "0."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(0)));
    EXPECT_EQ(writtenRoute(route, 0),
              file({title("R"), card({"1E3", " 1", " 0", "20 sec", " 2", ".5", " 4"}), card({" 0", "0."})}));
}

TEST(Route, TheCountsOfTheRouteCardMustBeWhollyNumeric) {
    for (const auto* group : {"", "2x", "one"}) {
        const auto text = file({"R", card({"0.", group, "0"}), "1", card({"0", "0."})});
        CardReader reader(text);
        EXPECT_FALSE(cRoute().ReadData(reader, performanceOption(0))) << group;
    }
    for (const auto* track : {"", "2x", "one"}) {
        const auto text = file({"R", card({"0.", "1", track}), card({"0", "0."})});
        CardReader reader(text);
        EXPECT_FALSE(cRoute().ReadData(reader, performanceOption(0))) << track;
    }
}

TEST(Route, FirstTypeAndCoastingMayBeBlankOrText) {
    const auto text = file({"R", card({"0.", "1", "0", "0.", "", "0.", "none"}), card({"0", "0."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(0)));
    EXPECT_EQ(route.TType1, 0);
    EXPECT_EQ(route.CoastOpt, 0);
}

TEST(Route, ABadIntegerAnywhereIsABadRoute) {
    const auto text = file({"R", card({"0.", "1", "0", "0.", "40000"}), card({"0", "0."})});
    CardReader reader(text);
    EXPECT_FALSE(cRoute().ReadData(reader, performanceOption(0)));

    const auto sections = file({"R", card({"0.", "1", "0"}), card({"1", "0."}), "40000"});
    CardReader sectionReader(sections);
    EXPECT_FALSE(cRoute().ReadData(sectionReader, performanceOption(0)));
}

TEST(Route, NegativeCountsReadNothing) {
    const auto text = file({"R", card({"0.", "-32768", "-3"}), card({"-1", "4"}), card({"-5", "8."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(1)));
    EXPECT_TRUE(route.TGroups.empty());
    EXPECT_TRUE(route.Tracks.empty());
    EXPECT_TRUE(route.TStops.empty());
    EXPECT_EQ(route.Npax0, 4);
    EXPECT_EQ(route.Dist0, CardText("8."));
    EXPECT_TRUE(allRead(reader));
}

TEST(Route, ACountTooHighEndsWithTheFileAndKeepsWhatWasRead) {
    const auto text = file({"R", card({"0.", "32767", "0"}), "7", "8"});
    CardReader reader(text);
    cRoute route;
    EXPECT_FALSE(route.ReadData(reader, performanceOption(0)));
    EXPECT_EQ(route.TGroups.count(), 2);
}

TEST(Route, EveryTruncationIsAFailure) {
    cRoute route;
    fill(route);
    for (const auto option : std::initializer_list<std::int16_t>{0, 1, 2, 3}) {
        const auto text = writtenRoute(route, option);
        for (auto end = text.find('\n'); end + 1 < text.size(); end = text.find('\n', end + 1)) {
            CardReader reader(std::string_view(text).substr(0, end + 1));
            EXPECT_FALSE(cRoute().ReadData(reader, performanceOption(option))) << option << " after " << end;
        }
        CardReader nothing("");
        EXPECT_FALSE(cRoute().ReadData(nothing, performanceOption(option)));
    }
}

TEST(Route, TheStopHeadIsCutByColumnsAndMayBeShort) {
    const auto text = file({"R", card({"0.", "1", "0"}), "         1 2.5", "100.", ""});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(1)));
    EXPECT_EQ(route.NStopCard, 1);
    EXPECT_EQ(route.Npax0, 2);
    ASSERT_EQ(route.TStops.count(), 1);
    EXPECT_EQ(route.TStops.at(Position{1})->StopAt, CardText("100."));
    EXPECT_EQ(route.NSectCard, 0);
    EXPECT_TRUE(route.Dist0.blank());
}

TEST(Route, ThePerformanceCountIsTheNumberOfTheWholeLine) {
    const auto text = file({"R", card({"0.", "1", "0"}), " 1        1", "0.", "1.", "2.", "3.", "4.", "5.", "6.", "7.", "8.",
                            "9.", "10.", card({"0", "0."})});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(2)));
    EXPECT_EQ(route.NPerfCard, 11);
    EXPECT_EQ(route.TPerfs.count(), 11);
}

TEST(Route, TheDistanceToTheFirstNodeKeepsItsLeadingBlanks) {
    const auto text = file({"R", card({"0.", "1", "0"}), "0            12."});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(0)));
    EXPECT_EQ(route.Dist0.view(), "   12.    ");
}

TEST(Route, ASectionIsTheNumberOfItsWholeLineWithItsSign) {
    const auto text = file({"R", card({"0.", "1", "0"}), card({"4", "0."}), "-12", "         1         7", "2.5", "0"});
    CardReader reader(text);
    cRoute route;
    ASSERT_TRUE(route.ReadData(reader, performanceOption(0)));
    EXPECT_EQ(writtenRoute(route, 0), file({title("R"), card({"0.", " 1", " 0", "", " 0", "", " 0"}), card({" 4", "0."}),
                                            card({"-12"}), card({" 17"}), card({" 2"}), card({" 0"})}));
}

TEST(Route, MoreGroupsThanACardCanCountIsAFailureOnWriting) {
    cRoute route;
    route.RouteID = "R";
    const auto group = std::make_shared<cRtGroup>();
    for (int i = 0; i < 32767; ++i) {
        route.TGroups.append(group);
    }
    CardWriter writer;
    EXPECT_THROW(route.WriteData(writer, performanceOption(0)), Failure);
}

TEST(Route, ACopySharesTheListsButHasNoSections) {
    cRoute route;
    fill(route);
    cRoute copy;
    copy.XCopy(route);
    EXPECT_EQ(copy.TGroups.at(Position{1}), route.TGroups.at(Position{1}));
    EXPECT_EQ(copy.Tracks.at(Position{1}), route.Tracks.at(Position{1}));
    EXPECT_EQ(copy.TStops.at(Position{1}), route.TStops.at(Position{1}));
    EXPECT_EQ(copy.TPerfs.at(Position{1}), route.TPerfs.at(Position{1}));
    EXPECT_EQ(writtenRoute(copy, 1),
              file({title("Northbound"), RouteCard, GroupCard, TrackCard, StopHead, StopCard, card({" 0", "7."})}));
}

TEST(Route, ACopyAppendsToWhatIsThereAlready) {
    cRoute route;
    fill(route);
    cRoute copy;
    fill(copy);
    copy.XCopy(route);
    EXPECT_EQ(copy.TGroups.count(), 2);
    copy.XCopy(copy);
    EXPECT_EQ(copy.TGroups.count(), 4);
}

TEST(Route, ItsValuesPassInAndOutCutAndPadded) {
    cRoute route;
    route.SetRoute({"A", "12345678901", "2.", "3.", "4.", 5, 6, 7});
    const auto values = route.GetRoute();
    EXPECT_EQ(values.RouteID.view(), title("A"));
    EXPECT_EQ(values.RtOrigin.view(), "1234567890");
    EXPECT_EQ(values.Delay.view(), "2.        ");
    EXPECT_EQ(values.VcMin, CardText("3."));
    EXPECT_EQ(values.Dist0, CardText("4."));
    EXPECT_EQ(values.TType1, 5);
    EXPECT_EQ(values.CoastOpt, 6);
    EXPECT_EQ(values.Npax0, 7);
}

} // namespace
} // namespace kov
