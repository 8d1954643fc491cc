#include "unit/line/line_cards.hpp"

#include "core/cards/failure.hpp"

#include <gtest/gtest.h>

namespace kov::test {
namespace {

TEST(Segment, ANewOneHasItsStartingValues) {
    const cSegment segment;
    EXPECT_TRUE(segment.Daddy.expired());
    EXPECT_EQ(segment.id, 0);
    EXPECT_EQ(segment.sType, 1);
    EXPECT_TRUE(segment.Title.blank());
    EXPECT_EQ(segment.Fire, 0);
    EXPECT_EQ(segment.NSSHS, 0);
    EXPECT_EQ(segment.WWS.view(), "0         ");
    for (const auto* text :
         {&segment.sLen, &segment.XArea, &segment.Height, &segment.HLFP, &segment.HLFN, &segment.HLBP, &segment.HLBN,
          &segment.WThk, &segment.WDist, &segment.WCond, &segment.WDiff, &segment.SCond, &segment.SDiff, &segment.TSink}) {
        EXPECT_EQ(text->view(), "0.        ");
    }
    EXPECT_TRUE(segment.Perim[0].blank());
    EXPECT_TRUE(segment.Rough[0].blank());
    for (int type = 1; type <= 8; ++type) {
        EXPECT_EQ(segment.Perim[type].view(), "0.        ");
        EXPECT_EQ(segment.Rough[type].view(), "0.        ");
    }
}

TEST(Segment, ANewOneHasOneSubsegmentAlthoughNoneIsStated) {
    const cSegment segment;
    EXPECT_EQ(segment.statedSubs(), 0);
    EXPECT_EQ(segment.NSubs(), 1);
    const auto& group = segment.SubSeg(Position{1})->getSubSeg();
    EXPECT_EQ(group.start, 1);
    EXPECT_EQ(group.stop, 1);
    EXPECT_EQ(group.wall.view(), "60.       ");
    EXPECT_EQ(group.dryBulb.view(), "60.       ");
    EXPECT_EQ(group.wetBulb.view(), "60.       ");
    EXPECT_THROW(static_cast<void>(segment.SubSeg(Position{2})), Failure);
    EXPECT_THROW(static_cast<void>(segment.SubSeg(Position{0})), Failure);
    EXPECT_THROW(static_cast<void>(segment.SSHS(Position{1})), Failure);
}

TEST(Segment, ANewHeatSourceHasItsStartingValuesAndCountsNowhere) {
    cSegment segment;
    const auto source = segment.AddSSHS()->getSSHS();
    EXPECT_EQ(source.start, 1);
    EXPECT_EQ(source.stop, 1);
    EXPECT_EQ(source.type, 1);
    EXPECT_EQ(source.sensible.view(), "100       ");
    EXPECT_EQ(source.latent.view(), "100       ");
    EXPECT_EQ(source.identification.trimmed(), "Heat");
    EXPECT_EQ(segment.NSSHS, 0);
}

TEST(Segment, StatingANumberOfSubsegmentsDoesNotChangeHowManyThereAre) {
    cSegment segment;
    segment.setNSubs(5);
    EXPECT_EQ(segment.NSubs(), 1);
    segment.AddSubSeg()->setSubSeg({.start = 2, .stop = 4});
    EXPECT_EQ(segment.NSubs(), 4);
    EXPECT_EQ(segment.statedSubs(), 5);
}

TEST(Segment, WithoutSubsegmentsTheirNumberIsAFailure) {
    cSegment segment;
    segment.ClearSubs();
    EXPECT_THROW(static_cast<void>(segment.NSubs()), Failure);
}

TEST(Segment, WallTypesBeyondTheEighthAreAFailure) {
    cSegment segment;
    EXPECT_THROW(static_cast<void>(segment.Perim[9]), Failure);
    EXPECT_THROW(static_cast<void>(segment.Rough[9]), Failure);
    EXPECT_THROW(static_cast<void>(segment.Perim[-1]), Failure);
}

TEST(Segment, SettingTheSubsegmentTemperaturesReachesEveryGroup) {
    cSegment segment;
    segment.AddSubSeg()->setSubSeg({.start = 2, .stop = 3});
    segment.setSubSegs("70.", "71.", "72.");
    for (const int place : {1, 2}) {
        const auto& group = segment.SubSeg(Position{place})->getSubSeg();
        EXPECT_EQ(group.wall.trimmed(), "70.");
        EXPECT_EQ(group.dryBulb.trimmed(), "71.");
        EXPECT_EQ(group.wetBulb.trimmed(), "72.");
    }
    EXPECT_EQ(segment.SubSeg(Position{2})->SStop(), 3);
}

TEST(SegmentCopy, TakesEverythingButTheNumber) {
    cSegment source;
    source.id = 12;
    source.sType = 3;
    source.Title = "Tube";
    source.sLen = "1.";
    source.XArea = "2.";
    source.Height = "3.";
    source.Fire = 1;
    source.HLFP = "4.";
    source.HLFN = "5.";
    source.HLBP = "6.";
    source.HLBN = "7.";
    source.WWS = "8.";
    source.Perim[1] = "9.";
    source.Perim[8] = "10.";
    source.Rough[1] = "11.";
    source.Rough[8] = "12.";
    source.WThk = "13.";
    source.WDist = "14.";
    source.WCond = "15.";
    source.WDiff = "16.";
    source.SCond = "17.";
    source.SDiff = "18.";
    source.TSink = "19.";
    source.AddSSHS()->setSSHS({.type = 4});
    source.SubSeg(Position{1})->setSubSeg({.start = 1, .stop = 1, .wall = "20."});
    source.AddSubSeg()->setSubSeg({.start = 2, .stop = 2, .wall = "21."});
    const auto expected = written(source, WithControl);

    cSegment copy;
    copy.id = 5;
    copy.AddSSHS();
    copy.XCopy(source);
    EXPECT_EQ(copy.id, 5);
    EXPECT_EQ(copy.statedSubs(), 2);
    copy.id = 12;
    EXPECT_EQ(written(copy, WithControl), expected);
    // The copy has objects of its own.
    EXPECT_NE(copy.SubSeg(Position{1}), source.SubSeg(Position{1}));
    EXPECT_NE(copy.SSHS(Position{1}), source.SSHS(Position{1}));
}

TEST(SegmentCopy, StopsAtTheFirstSubsegmentThatReachesTheNumber) {
    cSegment source;
    source.AddSubSeg()->setSubSeg({.start = 1, .stop = 1, .wall = "0"});
    cSegment copy;
    copy.XCopy(source);
    EXPECT_EQ(copy.SubSeg(Position{1})->getSubSeg().wall.trimmed(), "60.");
    EXPECT_THROW(static_cast<void>(copy.SubSeg(Position{2})), Failure);
}

TEST(SegmentCopy, TakesAsManyHeatSourcesAsAreStated) {
    cSegment source;
    source.AddSSHS();
    source.AddSSHS();
    cSegment copy;
    copy.XCopy(source);
    EXPECT_EQ(copy.NSSHS, 0);
    EXPECT_THROW(static_cast<void>(copy.SSHS(Position{1})), Failure);

    source.NSSHS = 1;
    copy.XCopy(source);
    EXPECT_NO_THROW(static_cast<void>(copy.SSHS(Position{1})));
    EXPECT_THROW(static_cast<void>(copy.SSHS(Position{2})), Failure);

    source.NSSHS = 3;
    EXPECT_THROW(copy.XCopy(source), Failure);
}

TEST(SegmentCopy, FromASegmentWithoutSubsegmentsIsAFailure) {
    cSegment source;
    source.ClearSubs();
    cSegment copy;
    EXPECT_THROW(copy.XCopy(source), Failure);
}

/// A source that asks for nothing to be changed, as far as it can ask.
void markAll(cSegment& source) {
    source.Title = "9.1E-91";
    for (auto* text :
         {&source.sLen, &source.XArea, &source.Height, &source.HLFP, &source.HLFN, &source.HLBP, &source.HLBN, &source.WWS,
          &source.WThk, &source.WDist, &source.WCond, &source.WDiff, &source.SCond, &source.SDiff, &source.TSink}) {
        *text = "9.1E-91";
    }
    for (int type = 1; type <= 8; ++type) {
        source.Perim[type] = "9.1E-91";
    }
}

TEST(SegmentEdit, MarkedTextsAreLeftAloneButRoughnessAndWholeNumbersCome) {
    cSegment source;
    markAll(source);
    source.id = 40;
    source.sType = 9;
    source.Fire = 1;
    source.NSSHS = 2;
    source.Rough[8] = "9.1E-91";
    source.AddSubSeg()->setSubSeg({.start = 2, .stop = 6});

    cSegment segment;
    segment.id = 3;
    segment.Title = "Tube";
    segment.Perim[1] = "30.";
    segment.Rough[1] = "0.01";
    segment.XEdit(source);

    EXPECT_EQ(segment.id, 3);
    EXPECT_EQ(segment.Title.trimmed(), "Tube");
    EXPECT_EQ(segment.sLen.trimmed(), "0.");
    EXPECT_EQ(segment.TSink.trimmed(), "0.");
    EXPECT_EQ(segment.Perim[1].trimmed(), "30.");
    EXPECT_EQ(segment.Rough[1].trimmed(), "0.");
    EXPECT_EQ(segment.Rough[8].trimmed(), "9.1E-91");
    EXPECT_EQ(segment.sType, 9);
    EXPECT_EQ(segment.Fire, 1);
    EXPECT_EQ(segment.NSSHS, 2);
    EXPECT_EQ(segment.statedSubs(), 6);
    // Neither list follows.
    EXPECT_EQ(segment.NSubs(), 1);
    EXPECT_THROW(static_cast<void>(segment.SSHS(Position{1})), Failure);
}

TEST(SegmentEdit, EveryUnmarkedTextIsTaken) {
    const std::vector<Fixed<10> cSegment::*> texts{&cSegment::sLen,  &cSegment::XArea, &cSegment::Height, &cSegment::HLFP,
                                                   &cSegment::HLFN,  &cSegment::HLBP,  &cSegment::HLBN,   &cSegment::WWS,
                                                   &cSegment::WThk,  &cSegment::WDist, &cSegment::WCond,  &cSegment::WDiff,
                                                   &cSegment::SCond, &cSegment::SDiff, &cSegment::TSink};
    for (const auto text : texts) {
        cSegment source;
        markAll(source);
        source.*text = "4.5";
        cSegment segment;
        segment.XEdit(source);
        for (const auto other : texts) {
            EXPECT_EQ((segment.*other).trimmed() == "4.5", other == text);
        }
    }
    cSegment source;
    markAll(source);
    source.Title = "1234";
    source.Perim[4] = "4.5";
    cSegment segment;
    segment.XEdit(source);
    EXPECT_EQ(segment.Title.trimmed(), "1234");
    EXPECT_EQ(segment.Perim[4].trimmed(), "4.5");
    EXPECT_EQ(segment.Perim[5].trimmed(), "0.");
}

TEST(SegmentEdit, ATitleThatIsNoNumberIsAFailure) {
    cSegment source;
    markAll(source);
    source.Title = "New";
    cSegment segment;
    EXPECT_THROW(segment.XEdit(source), Failure);
}

TEST(SegmentLists, SubsegmentsHaveFiveColumnsAndABlankRowBehindThem) {
    cSegment segment;
    segment.AddSubSeg()->setSubSeg({.start = 2, .stop = -3, .wall = "70.", .dryBulb = "71.", .wetBulb = "72."});
    Grid grid;
    grid.setCols(5);
    grid.addItem("left over");
    segment.SubList(grid);
    EXPECT_EQ(linesOf(grid),
              (Lines{" 1\t 1\t60.       \t60.       \t60.       ", " 2\t-3\t70.       \t71.       \t72.       ", " "}));

    segment.ClearSubs();
    segment.SubList(grid);
    EXPECT_EQ(linesOf(grid), Lines{" "});
}

TEST(SegmentLists, HeatSourcesHaveSixColumnsAndABlankRowBehindThem) {
    cSegment segment;
    Grid grid;
    grid.setCols(6);
    grid.addItem("left over");
    segment.SSHSList(grid);
    EXPECT_EQ(linesOf(grid), Lines{" "});

    segment.AddSSHS()->setSSHS({.start = 2, .stop = 3, .type = -1, .sensible = "5.", .latent = "6.", .identification = "Pump"});
    segment.SSHSList(grid);
    EXPECT_EQ(linesOf(grid), (Lines{padded("Pump", 30) + "\t 2\t 3\t-1\t5.        \t6.        ", " "}));
}

} // namespace
} // namespace kov::test
