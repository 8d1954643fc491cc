#include "unit/line/line_cards.hpp"

#include "core/cards/failure.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace kov::test {
namespace {

bool reads(cSegment& segment, const std::string& text, const DataOptions& options = NoControl) {
    CardReader reader(text);
    return segment.ReadData(reader, options);
}

std::string lineOf(const std::string& text, int number) {
    CardReader reader(text);
    for (int i = 1; i < number; ++i) {
        static_cast<void>(reader.readLine());
    }
    return std::string(reader.readLine());
}

TEST(SegmentCards, EveryFieldOfTheGroupFindsItsMember) {
    GroupText group;
    group.losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 1"});
    group.heatSources = card({" 1", " 2", " 3", "500.", "50."}).substr(0, 50) + "Signal room\n";
    group.wallAndSoil = card({"1.1", "1.2", "1.3", "1.4", "1.5", "1.6", "1.7"});
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text(), WithControl));

    EXPECT_EQ(segment.id, 101);
    EXPECT_EQ(segment.sType, 1);
    EXPECT_EQ(segment.Title.trimmed(), "North tube");
    EXPECT_EQ(segment.sLen.trimmed(), "1200.");
    EXPECT_EQ(segment.XArea.trimmed(), "300.5");
    EXPECT_EQ(segment.Height.trimmed(), "0.");
    EXPECT_EQ(segment.Fire, 1);
    EXPECT_EQ(segment.Perim[1].trimmed(), "12.5");
    EXPECT_EQ(segment.Perim[8].trimmed(), "7.");
    EXPECT_EQ(segment.Rough[1].trimmed(), ".01");
    EXPECT_EQ(segment.Rough[8].trimmed(), ".5");
    EXPECT_EQ(segment.HLFP.trimmed(), "1.");
    EXPECT_EQ(segment.HLFN.trimmed(), "2.");
    EXPECT_EQ(segment.HLBP.trimmed(), "3.");
    EXPECT_EQ(segment.HLBN.trimmed(), "4.");
    EXPECT_EQ(segment.WWS.trimmed(), "25.");
    EXPECT_EQ(segment.statedSubs(), 2);
    EXPECT_EQ(segment.NSSHS, 1);
    const auto& source = segment.SSHS(Position{1})->getSSHS();
    EXPECT_EQ(source.start, 1);
    EXPECT_EQ(source.stop, 2);
    EXPECT_EQ(source.type, 3);
    EXPECT_EQ(source.sensible.trimmed(), "500.");
    EXPECT_EQ(source.latent.trimmed(), "50.");
    EXPECT_EQ(source.identification.trimmed(), "Signal room");
    const auto& subs = segment.SubSeg(Position{1})->getSubSeg();
    EXPECT_EQ(subs.start, 1);
    EXPECT_EQ(subs.stop, 2);
    EXPECT_EQ(subs.wall.trimmed(), "61.");
    EXPECT_EQ(subs.dryBulb.trimmed(), "62.");
    EXPECT_EQ(subs.wetBulb.trimmed(), "63.");
    EXPECT_EQ(segment.WThk.trimmed(), "1.1");
    EXPECT_EQ(segment.WDist.trimmed(), "1.2");
    EXPECT_EQ(segment.WCond.trimmed(), "1.3");
    EXPECT_EQ(segment.WDiff.trimmed(), "1.4");
    EXPECT_EQ(segment.SCond.trimmed(), "1.5");
    EXPECT_EQ(segment.SDiff.trimmed(), "1.6");
    EXPECT_EQ(segment.TSink.trimmed(), "1.7");
}

TEST(SegmentCards, ATidyGroupComesBackByteForByte) {
    GroupText group;
    group.losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 2"});
    const std::string source = card({" 1", " 2", " 3", "500.", "50."}).substr(0, 50) + padded("Signal room", 30) + "\n";
    group.heatSources = source + source;
    group.subsegments = card({" 1", " 1", "61.", "62.", "63."}) + card({" 2", " 2", "60.", "60.", "60."});
    group.wallAndSoil = card({"1.1", "1.2", "1.3", "1.4", "1.5", "1.6", "1.7"});
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text(), WithControl));
    EXPECT_EQ(written(segment, WithControl), group.text());
}

TEST(SegmentCards, TheFormOfARealStaysWhateverWasTyped) {
    cSegment segment;
    ASSERT_TRUE(reads(segment, GroupText{}.text()));
    EXPECT_EQ(lineOf(written(segment), 3).substr(0, 20), "12.5      12.500    ");
}

TEST(SegmentCards, PerimetersAndRoughnessesKeepTheirLeadingBlanks) {
    GroupText group;
    group.perimeters = card({"   12.5", "", "", "", "", "", "", " 7."});
    group.roughnesses = card({"    .01", "", "", "", "", "", "", " .5"});
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(written(segment), group.text());
}

TEST(SegmentCards, TheOtherRealsLoseTheirLeadingBlanks) {
    GroupText group;
    group.geometry = card({"   1200.", " 300.5", "0.", " 1"});
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(lineOf(written(segment), 2) + "\n", card({"1200.", "300.5", "0.", " 1"}));
}

TEST(SegmentCards, ATitleIsReadInThirtySixColumnsAndWrittenInFifty) {
    const std::string forty = "1234567890123456789012345678901234567890";
    GroupText group;
    group.header = padded(" 7", 10) + padded(" 2", 10) + forty + "\n";
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(segment.Title.view(), padded(forty.substr(0, 36), 50));
    EXPECT_EQ(lineOf(written(segment), 1), padded(" 7", 10) + padded(" 2", 10) + padded(forty.substr(0, 36), 50));
}

TEST(SegmentCards, ATitleTypedInTheEditorIsWrittenInAllItsFiftyColumns) {
    cSegment segment;
    segment.Title = std::string(60, 'x');
    EXPECT_EQ(lineOf(written(segment), 1).substr(20), std::string(50, 'x'));
}

TEST(SegmentCards, SubsegmentCardsAreReadUntilOneReachesTheStatedNumber) {
    GroupText group;
    group.losses = card({"1.", "2.", "3.", "4.", "25.", " 3", " 0"});
    group.subsegments = card({" 1", " 1", "61.", "62.", "63."}) + card({" 2", " 3", "60.", "60.", "60."});
    const auto text = group.text() + "next card\n";
    CardReader reader(text);
    cSegment segment;
    ASSERT_TRUE(segment.ReadData(reader, NoControl));
    EXPECT_EQ(segment.SubSeg(Position{2})->SStop(), 3);
    EXPECT_THROW(static_cast<void>(segment.SubSeg(Position{3})), Failure);
    EXPECT_EQ(reader.readLine(), "next card");
}

TEST(SegmentCards, ASubsegmentBeyondTheStatedNumberEndsTheReadingAndBecomesTheNumber) {
    GroupText group;
    group.subsegments = card({" 1", " 9", "61.", "62.", "63."});
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(segment.statedSubs(), 2);
    EXPECT_EQ(segment.NSubs(), 9);
    EXPECT_EQ(lineOf(written(segment), 5).substr(50, 10), padded(" 9", 10));
    EXPECT_EQ(segment.statedSubs(), 9);
}

TEST(SegmentCards, OneSubsegmentCardIsReadEvenWhenNoneIsStated) {
    GroupText group;
    group.losses = card({"1.", "2.", "3.", "4.", "25.", " 0", "-1"});
    group.subsegments = card({" 1", " 1", "61.", "62.", "63."});
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(segment.SubSeg(Position{1})->getSubSeg().wall.trimmed(), "61.");
    EXPECT_EQ(segment.NSSHS, -1);
    EXPECT_THROW(static_cast<void>(segment.SSHS(Position{1})), Failure);
}

TEST(SegmentCards, TheWallCardComesAndGoesWithTheOption) {
    cSegment without;
    const auto eightCards = GroupText{}.text() + card({"9.", "9.", "9.", "9.", "9.", "9.", "9."});
    CardReader reader(eightCards);
    ASSERT_TRUE(without.ReadData(reader, NoControl));
    EXPECT_EQ(without.WThk.view(), "0.        ");
    EXPECT_EQ(without.TSink.view(), "0.        ");
    EXPECT_EQ(reader.readLine().substr(0, 2), "9.");
    EXPECT_EQ(written(without, NoControl), GroupText{}.text());
    const auto zeros = card({"0.", "0.", "0.", "0.", "0.", "0.", "0."});
    EXPECT_EQ(written(without, WithControl), GroupText{}.text() + zeros);

    cSegment with;
    ASSERT_TRUE(reads(with, eightCards, WithControl));
    EXPECT_EQ(with.WThk.trimmed(), "9.");
    // Switched off, the data is not written but not lost either.
    EXPECT_EQ(written(with, NoControl), GroupText{}.text());
    EXPECT_EQ(written(with, WithControl), eightCards);
}

TEST(SegmentCards, TheWallCardIsMissedWhenTheOptionAsksForIt) {
    cSegment segment;
    EXPECT_FALSE(reads(segment, GroupText{}.text(), WithControl));
}

TEST(SegmentCards, TheCountsOnTheCardAreThoseOfTheLists) {
    cSegment segment;
    segment.NSSHS = 7;
    segment.setNSubs(7);
    segment.AddSSHS();
    segment.AddSSHS();
    EXPECT_EQ(lineOf(written(segment), 5).substr(50), padded(" 1", 10) + padded(" 2", 10));
    EXPECT_EQ(segment.NSSHS, 2);
    EXPECT_EQ(segment.statedSubs(), 1);
}

TEST(SegmentCards, AGroupWithoutSubsegmentsFailsBehindItsFirstFourCards) {
    cSegment segment;
    segment.ClearSubs();
    CardWriter writer;
    EXPECT_THROW(segment.WriteData(writer, NoControl), Failure);
    EXPECT_EQ(std::count(writer.content().begin(), writer.content().end(), '\n'), 4);
}

TEST(SegmentCards, HeatSourceFieldsAreTakenByPlaceWithoutTrimming) {
    GroupText group;
    group.losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 1"});
    group.heatSources = card({" 1", " 2", " 3", "  500.", " 50."}).substr(0, 50) + padded("  Signal room", 30) + "\n";
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(segment.SSHS(Position{1})->getSSHS().sensible.view(), "  500.    ");
    EXPECT_EQ(written(segment), group.text());
}

TEST(SegmentCards, WhatIsMissingOnShortLinesIsEmptyAndZero) {
    cSegment segment;
    ASSERT_TRUE(reads(segment, "5\n\n12.5\n\n1.,\n9\n"));
    EXPECT_EQ(segment.id, 5);
    EXPECT_EQ(segment.sType, 0);
    EXPECT_TRUE(segment.Title.blank());
    EXPECT_TRUE(segment.sLen.blank());
    EXPECT_EQ(segment.Fire, 0);
    EXPECT_EQ(segment.Perim[1].view(), "12.5      ");
    EXPECT_TRUE(segment.Perim[2].blank());
    EXPECT_TRUE(segment.Rough[1].blank());
    EXPECT_EQ(segment.SubSeg(Position{1})->getSubSeg().start, 9);
    EXPECT_TRUE(segment.SubSeg(Position{1})->getSubSeg().wall.blank());

    cSSHS source;
    CardReader reader("1\n");
    ASSERT_TRUE(source.ReadData(reader));
    EXPECT_EQ(source.getSSHS().stop, 0);
    EXPECT_TRUE(source.getSSHS().identification.blank());
}

TEST(SegmentCards, WholeNumbersAreRoundedHalfToEven) {
    GroupText group;
    group.header = card({"2.5", "3.5", "T"});
    group.geometry = card({"1.", "1.", "1.", "0.5"});
    group.subsegments = card({"1.5", "2.5", "61.", "62.", "63."});
    cSegment segment;
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(segment.id, 2);
    EXPECT_EQ(segment.sType, 4);
    EXPECT_EQ(segment.Fire, 0);
    EXPECT_EQ(segment.SubSeg(Position{1})->getSubSeg().start, 2);
    EXPECT_EQ(segment.SubSeg(Position{1})->SStop(), 2);
}

TEST(SegmentCards, EveryCutShortGroupIsRefused) {
    GroupText group;
    group.losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 1"});
    group.heatSources = card({" 1", " 2", " 3", "500.", "50."});
    group.wallAndSoil = card({"1.", "1.", "1.", "1.", "1.", "1.", "1."});
    const auto text = group.text();
    cSegment whole;
    ASSERT_TRUE(reads(whole, text, WithControl));
    for (std::size_t end = text.find('\n'); end + 1 < text.size(); end = text.find('\n', end + 1)) {
        cSegment segment;
        EXPECT_FALSE(reads(segment, text.substr(0, end + 1), WithControl)) << end;
    }
    cSegment nothing;
    EXPECT_FALSE(reads(nothing, ""));
}

TEST(SegmentCards, AWholeNumberOutsideSixteenBitsIsRefusedOnEveryCard) {
    const auto refused = [](auto change) {
        GroupText group;
        group.losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 1"});
        group.heatSources = card({" 1", " 2", " 3", "500.", "50."});
        change(group);
        cSegment segment;
        return !reads(segment, group.text());
    };
    EXPECT_FALSE(refused([](GroupText&) {}));
    EXPECT_TRUE(refused([](GroupText& g) { g.header = card({" 40000", " 1"}); }));
    EXPECT_TRUE(refused([](GroupText& g) { g.header = card({" 1", "-40000"}); }));
    EXPECT_TRUE(refused([](GroupText& g) { g.geometry = card({"1.", "1.", "1.", " 40000"}); }));
    EXPECT_TRUE(refused([](GroupText& g) { g.losses = card({"1.", "2.", "3.", "4.", "25.", " 40000", " 1"}); }));
    EXPECT_TRUE(refused([](GroupText& g) { g.losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 40000"}); }));
    EXPECT_TRUE(refused([](GroupText& g) { g.heatSources = card({" 1", " 40000", " 3"}); }));
    EXPECT_TRUE(refused([](GroupText& g) { g.subsegments = card({" 1", " 40000"}); }));
}

TEST(SegmentCards, HeatSourcesReadComeBehindThoseAlreadyThere) {
    GroupText group;
    group.losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 1"});
    group.heatSources = card({" 1", " 2", " 3", "500.", "50."});
    cSegment segment;
    segment.AddSSHS();
    ASSERT_TRUE(reads(segment, group.text()));
    EXPECT_EQ(segment.SSHS(Position{1})->getSSHS().type, 1);
    EXPECT_EQ(segment.SSHS(Position{2})->getSSHS().type, 3);
}

} // namespace
} // namespace kov::test
