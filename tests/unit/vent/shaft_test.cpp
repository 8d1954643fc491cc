#include "core/cards/failure.hpp"
#include "unit/vent/cards.hpp"
#include "vent/model/shaft.hpp"

#include <gtest/gtest.h>

namespace {

using namespace kov;
using kov::test::card;
using kov::test::deck;
using kov::test::padded;
using kov::test::written;

const DataOptions WithFans{.NFans = 1};
const DataOptions WithoutFans{};

std::string head(std::string_view title) { return card({" 7", " 2"}) + std::string(title); }

/// A shaft with segments of that many different lengths.
cVShaft shaftWith(int segments) {
    cVShaft shaft;
    for (int i = 1; i <= segments; ++i) {
        shaft.AddVSeg()->sLen = std::to_string(i) + ".";
    }
    return shaft;
}

bool read(cVShaft& shaft, const std::string& text, const DataOptions& options) {
    CardReader reader(text);
    return shaft.ReadData(reader, options);
}

std::string writtenShaft(const cVShaft& shaft, const DataOptions& options) {
    return written([&](CardWriter& writer) { shaft.WriteData(writer, options); });
}

TEST(VentSegment, BareSegmentHoldsZeros) {
    const auto values = cVentSeg().getVSeg();
    for (const auto& value : values) {
        EXPECT_EQ(value.view(), "0.        ");
    }
}

TEST(VentSegment, SevenMembersPassInCardOrderAndTheEighthFieldIsIgnored) {
    const auto text = deck({card({" 1.", " 2.", " 3.", " 4.", " 5.", " 6.", " 7.", " 8."})});
    CardReader reader(text);
    cVentSeg segment;
    ASSERT_TRUE(segment.ReadData(reader));
    EXPECT_EQ(segment.sLen.view(), "1.        ");
    EXPECT_EQ(segment.Area.trimmed(), "2.");
    EXPECT_EQ(segment.Perim.trimmed(), "3.");
    EXPECT_EQ(segment.FPHL.trimmed(), "4.");
    EXPECT_EQ(segment.FNHL.trimmed(), "5.");
    EXPECT_EQ(segment.BPHL.trimmed(), "6.");
    EXPECT_EQ(segment.BNHL.trimmed(), "7.");
    EXPECT_EQ(written([&](CardWriter& writer) { segment.WriteData(writer); }),
              deck({card({"1.", "2.", "3.", "4.", "5.", "6.", "7."})}));
}

TEST(VentSegment, SetAndGetPassTheSameOrderAndCopyTakesAll) {
    cVentSeg segment;
    segment.setVSeg({"1.", "2.", "3.", "4.", "5.", "6.", "7."});
    EXPECT_EQ(segment.Perim.trimmed(), "3.");
    EXPECT_EQ(segment.BNHL.trimmed(), "7.");
    cVentSeg copy;
    copy.XCopy(segment);
    EXPECT_EQ(copy.getVSeg(), segment.getVSeg());
}

TEST(VentSegment, ReadingAtTheEndOfTheFileFails) {
    CardReader reader("");
    cVentSeg segment;
    EXPECT_FALSE(segment.ReadData(reader));
}

TEST(Shaft, BareShaftHoldsZerosAndBlanks) {
    const cVShaft shaft;
    EXPECT_EQ(shaft.id, 0);
    EXPECT_EQ(shaft.VType, 0);
    EXPECT_EQ(shaft.NSeg(), 0);
    EXPECT_TRUE(shaft.Title.blank());
    EXPECT_TRUE(shaft.FanOn.blank());
    EXPECT_TRUE(shaft.FanOff.blank());
    EXPECT_TRUE(shaft.vent.expired());
}

TEST(Shaft, GroupWithFanCardComesBackAsItWasWritten) {
    const auto text = deck({head(padded("North shaft", 36)), card({" 2", " 3", "10.", "20.", "30.", "40.", "50.", "60."}),
                            card({" 1", "5.", "6."}) + "-1 ", card({"1.", "2.", "3.", "4.", "5.", "6.", "7."}),
                            card({"8.", "9.", "10.", "11.", "12.", "13.", "14."})});
    cVShaft shaft;
    ASSERT_TRUE(read(shaft, text, WithFans));
    EXPECT_EQ(shaft.id, 7);
    EXPECT_EQ(shaft.VType, 2);
    EXPECT_EQ(shaft.Title.trimmed(), "North shaft");
    EXPECT_EQ(shaft.DeclaredSegs, 2);
    EXPECT_EQ(shaft.NSubSeg, 3);
    EXPECT_EQ(shaft.Grate.trimmed(), "10.");
    EXPECT_EQ(shaft.VGrate.trimmed(), "20.");
    EXPECT_EQ(shaft.WSTemp.trimmed(), "30.");
    EXPECT_EQ(shaft.TDB0.trimmed(), "40.");
    EXPECT_EQ(shaft.TWB0.trimmed(), "50.");
    EXPECT_EQ(shaft.StackHt.trimmed(), "60.");
    EXPECT_EQ(shaft.FanType, 1);
    EXPECT_EQ(shaft.FanOn.trimmed(), "5.");
    EXPECT_EQ(shaft.FanOff.trimmed(), "6.");
    EXPECT_EQ(shaft.FanDir, -1);
    ASSERT_EQ(shaft.NSeg(), 2);
    EXPECT_EQ(shaft.colVSegs.at(Position(2))->sLen.trimmed(), "8.");
    EXPECT_EQ(writtenShaft(shaft, WithFans), text);
}

TEST(Shaft, WithoutFanTypesThereIsNoFanCard) {
    const auto text = deck({head(padded("North shaft", 36)), card({" 1", " 3", "", "", "", "", "", ""}),
                            card({"1.", "2.", "3.", "4.", "5.", "6.", "7."})});
    cVShaft shaft;
    ASSERT_TRUE(read(shaft, text, WithoutFans));
    EXPECT_EQ(shaft.FanType, 0);
    EXPECT_EQ(shaft.FanDir, 0);
    EXPECT_TRUE(shaft.FanOn.blank());
    EXPECT_TRUE(shaft.FanOff.blank());
    EXPECT_EQ(shaft.NSeg(), 1);
    EXPECT_EQ(writtenShaft(shaft, WithoutFans), text);
}

TEST(Shaft, FanCardIsWrittenForAShaftWithoutFanAndUnsetTimesAreBlank) {
    const cVShaft shaft;
    const auto text = writtenShaft(shaft, WithFans);
    EXPECT_EQ(text.substr(text.size() - 34), card({" 0", "", ""}) + " 0 \n");
}

TEST(Shaft, FanDirectionIsAFreeFormIntegerWithOneBlankBehind) {
    cVShaft shaft;
    const auto lastFive = [&](std::int16_t direction) {
        shaft.FanDir = direction;
        const auto text = writtenShaft(shaft, WithFans);
        return text.substr(text.rfind('\n', text.size() - 2) + 31);
    };
    EXPECT_EQ(lastFive(1), " 1 \n");
    EXPECT_EQ(lastFive(0), " 0 \n");
    EXPECT_EQ(lastFive(-1), "-1 \n");
    EXPECT_EQ(lastFive(123), " 123 \n");
}

TEST(Shaft, TitleOf36CharactersLosesItsLastOnARoundThroughTheFile) {
    const std::string title = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    cVShaft shaft;
    shaft.Title = title;
    const auto text = writtenShaft(shaft, WithoutFans);
    EXPECT_EQ(text.substr(20, 37), title + "\n");
    cVShaft back;
    ASSERT_TRUE(read(back, text, WithoutFans));
    EXPECT_EQ(back.Title.view(), title.substr(0, 35) + " ");
    EXPECT_EQ(writtenShaft(back, WithoutFans).substr(20, 37), title.substr(0, 35) + " \n");
}

TEST(Shaft, TitleKeepsItsLeadingBlanks) {
    cVShaft shaft;
    ASSERT_TRUE(read(shaft, deck({head("  North"), ""}), WithoutFans));
    EXPECT_EQ(shaft.Title.trimmed(), "  North");
}

TEST(Shaft, ShortCardsLeaveWhatIsMissingEmptyAndZero) {
    cVShaft shaft;
    shaft.Title = "old";
    ASSERT_TRUE(read(shaft, deck({" 4", "", "1"}), WithFans));
    EXPECT_EQ(shaft.id, 4);
    EXPECT_EQ(shaft.VType, 0);
    EXPECT_TRUE(shaft.Title.blank());
    EXPECT_EQ(shaft.DeclaredSegs, 0);
    EXPECT_EQ(shaft.FanType, 1);
    EXPECT_EQ(shaft.FanDir, 0);
}

TEST(Shaft, IntegersAreRoundedHalfToEven) {
    cVShaft shaft;
    ASSERT_TRUE(read(shaft, deck({card({"2.5", "1.5"}), card({"0.5", "3.5"})}), WithoutFans));
    EXPECT_EQ(shaft.id, 2);
    EXPECT_EQ(shaft.VType, 2);
    EXPECT_EQ(shaft.DeclaredSegs, 0);
    EXPECT_EQ(shaft.NSubSeg, 4);
}

TEST(Shaft, IntegerBeyondSixteenBitsFailsOnEveryCard) {
    cVShaft shaft;
    EXPECT_FALSE(read(shaft, deck({card({" 3", "40000"}), "", ""}), WithFans));
    EXPECT_EQ(shaft.id, 3);
    EXPECT_FALSE(read(shaft, deck({"", card({"40000"}), ""}), WithFans));
    EXPECT_FALSE(read(shaft, deck({"", "", card({"-40000"})}), WithFans));
    EXPECT_FALSE(read(shaft, deck({"", "", card({"", "", "", "40000"})}), WithFans));
}

TEST(Shaft, MissingSegmentCardFailsAndTheSegmentsReadSoFarStay) {
    cVShaft shaft;
    EXPECT_FALSE(read(shaft, deck({head("A"), card({" 2", " 1"}), card({"1."})}), WithoutFans));
    EXPECT_EQ(shaft.NSeg(), 1);
    EXPECT_EQ(shaft.DeclaredSegs, 2);
}

TEST(Shaft, MissingTitleDataOrFanCardFails) {
    cVShaft shaft;
    EXPECT_FALSE(read(shaft, "", WithoutFans));
    EXPECT_FALSE(read(shaft, deck({head("A")}), WithoutFans));
    EXPECT_EQ(shaft.Title.trimmed(), "A");
    EXPECT_FALSE(read(shaft, deck({head("A"), card({" 0"})}), WithFans));
}

TEST(Shaft, DeclaredCountOfZeroGivesNoSegmentsAndIsWrittenAsZero) {
    cVShaft shaft;
    ASSERT_TRUE(read(shaft, deck({head("A"), card({" 0", " 1"})}), WithoutFans));
    EXPECT_TRUE(shaft.colVSegs.empty());
    EXPECT_EQ(writtenShaft(shaft, WithoutFans).substr(57, 20), card({" 0", " 1"}));
}

TEST(Shaft, NegativeDeclaredCountReadsNoSegmentsAndIsWrittenAsZero) {
    cVShaft shaft;
    ASSERT_TRUE(read(shaft, deck({head("A"), card({"-3", " 1"})}), WithoutFans));
    EXPECT_EQ(shaft.DeclaredSegs, -3);
    EXPECT_EQ(writtenShaft(shaft, WithoutFans).substr(57, 10), card({" 0"}));
}

TEST(Shaft, ReadingAddsToTheSegmentsAlreadyThere) {
    auto shaft = shaftWith(1);
    ASSERT_TRUE(read(shaft, deck({head("A"), card({" 1", " 1"}), card({"9."})}), WithoutFans));
    ASSERT_EQ(shaft.NSeg(), 2);
    EXPECT_EQ(shaft.colVSegs.at(Position(2))->sLen.trimmed(), "9.");
}

TEST(Shaft, CardGetsTheLiveCountWhenAnEditorHasAddedSegments) {
    cVShaft shaft;
    ASSERT_TRUE(read(shaft, deck({head("A"), card({" 1", " 1"}), card({"9."})}), WithoutFans));
    shaft.AddVSeg();
    EXPECT_EQ(shaft.DeclaredSegs, 1);
    EXPECT_EQ(shaft.NSeg(), 2);
    EXPECT_EQ(writtenShaft(shaft, WithoutFans).substr(57, 10), card({" 2"}));
}

TEST(Shaft, ClearRemovesEverySegment) {
    auto shaft = shaftWith(3);
    shaft.ClearVSegs();
    EXPECT_EQ(shaft.NSeg(), 0);
}

TEST(Shaft, CopyTakesAllButNumberAndSectionAndDeclaresTheLiveCount) {
    auto source = shaftWith(2);
    source.id = 5;
    source.VType = 2;
    source.Title = "North";
    source.DeclaredSegs = 9;
    source.NSubSeg = 3;
    source.Grate = "1.";
    source.VGrate = "2.";
    source.WSTemp = "3.";
    source.TDB0 = "4.";
    source.TWB0 = "5.";
    source.StackHt = "6.";
    source.FanType = 7;
    source.FanOn = "8.";
    source.FanOff = "9.";
    source.FanDir = -1;
    cVShaft target;
    target.id = 1;
    target.XCopy(source);
    EXPECT_EQ(target.id, 1);
    EXPECT_EQ(target.DeclaredSegs, 2);
    EXPECT_EQ(target.NSeg(), 2);
    EXPECT_EQ(target.colVSegs.at(Position(2))->sLen.trimmed(), "2.");
    EXPECT_NE(target.colVSegs.at(Position(2)), source.colVSegs.at(Position(2)));
    target.id = 5;
    EXPECT_EQ(writtenShaft(target, WithFans), writtenShaft(source, WithFans));
}

TEST(Shaft, CopyReplacesASingleOldSegment) {
    auto target = shaftWith(1);
    target.XCopy(shaftWith(3));
    ASSERT_EQ(target.NSeg(), 3);
    EXPECT_EQ(target.colVSegs.at(Position(1))->sLen.trimmed(), "1.");
}

TEST(Shaft, CopyOntoTwoOrMoreSegmentsFailsUnlessTheyAreClearedFirst) {
    auto target = shaftWith(2);
    EXPECT_THROW(target.XCopy(shaftWith(1)), Failure);
    EXPECT_EQ(target.NSeg(), 1);
    EXPECT_EQ(target.colVSegs.at(Position(1))->sLen.trimmed(), "2.");
    auto cleared = shaftWith(3);
    cleared.ClearVSegs();
    cleared.XCopy(shaftWith(2));
    EXPECT_EQ(cleared.NSeg(), 2);
}

TEST(Shaft, SubListShowsTheSegmentsAndEndsInABlankRow) {
    auto shaft = shaftWith(2);
    Grid grid;
    grid.setCols(7);
    grid.addItem("old");
    grid.addItem("older");
    shaft.SubList(grid);
    ASSERT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.line(0), "1.        \t0.        \t0.        \t0.        \t0.        \t0.        \t0.        ");
    EXPECT_EQ(grid.text(1, 0), "2.        ");
    EXPECT_EQ(grid.line(2), " ");
}

TEST(Shaft, SubListOfNoSegmentsIsOneBlankRow) {
    Grid grid;
    grid.setCols(7);
    grid.addItem("old\told");
    cVShaft().SubList(grid);
    ASSERT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.line(0), " ");
}

} // namespace
