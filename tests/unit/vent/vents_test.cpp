#include "core/cards/failure.hpp"
#include "unit/vent/cards.hpp"
#include "vent/model/vents.hpp"

#include <gtest/gtest.h>

namespace {

using namespace kov;
using kov::test::card;
using kov::test::deck;
using kov::test::padded;
using kov::test::written;

const DataOptions WithFans{.NFans = 1};
const DataOptions WithoutFans{};

/// One section between two nodes.
std::shared_ptr<cVent> addVent(cVents& vents, std::int16_t id, std::int16_t start = 1, std::int16_t stop = 2) {
    auto vent = vents.Add(Position(0));
    vent->id = id;
    vent->StartNode = start;
    vent->StopNode = stop;
    return vent;
}

std::string numbersOf(const cVents& vents) {
    std::string numbers;
    for (const auto& vent : vents.Vents) {
        numbers += std::to_string(vent->id);
    }
    return numbers;
}

cVents threeVents() {
    cVents vents;
    for (const auto id : std::initializer_list<std::int16_t>{1, 2, 3}) {
        addVent(vents, id);
    }
    return vents;
}

Grid emptyGrid(int columns) {
    Grid grid;
    grid.setCols(columns);
    return grid;
}

std::string shaftDeck(std::string_view id) {
    return deck({card({id, " 1"}) + padded("Shaft", 36), card({" 1", " 1", "1.", "2.", "3.", "4.", "5.", "6."}),
                 card({"1.", "2.", "3.", "4.", "5.", "6.", "7."})});
}

TEST(Vent, NewSectionIsUnnumberedAndItsShaftRefersBackToIt) {
    const auto vent = cVent::make();
    EXPECT_EQ(vent->id, 0);
    EXPECT_EQ(vent->StartNode, 0);
    EXPECT_TRUE(vent->InitAir.blank());
    EXPECT_EQ(vent->uVShaft->id, 0);
    EXPECT_EQ(vent->uVShaft->vent.lock(), vent);
}

TEST(Vent, ShaftDoesNotKeepItsSectionAlive) {
    auto vent = cVent::make();
    const auto shaft = vent->uVShaft;
    vent.reset();
    EXPECT_TRUE(shaft->vent.expired());
}

TEST(Vent, CardIsReadLeftTrimmedWithIntegersRoundedHalfToEven) {
    const auto text = deck({card({"2.5", " 3.5", "  4", "   1000."})});
    CardReader reader(text);
    const auto vent = cVent::make();
    ASSERT_TRUE(vent->ReadFile(reader));
    EXPECT_EQ(vent->id, 2);
    EXPECT_EQ(vent->StartNode, 4);
    EXPECT_EQ(vent->StopNode, 4);
    EXPECT_EQ(vent->InitAir.view(), "1000.     ");
    EXPECT_EQ(written([&](CardWriter& writer) { vent->WriteData(writer); }), deck({card({" 2", " 4", " 4", "1000."})}));
}

TEST(Vent, EmptyCardGivesZerosAndABlankAirFlow) {
    const auto text = deck({""});
    CardReader reader(text);
    const auto vent = cVent::make();
    ASSERT_TRUE(vent->ReadFile(reader));
    EXPECT_EQ(vent->id, 0);
    EXPECT_EQ(vent->StopNode, 0);
    EXPECT_TRUE(vent->InitAir.blank());
}

TEST(Vent, IntegerBeyondSixteenBitsFails) {
    const auto text = deck({card({" 1", "40000", " 2", "0."})});
    CardReader reader(text);
    EXPECT_FALSE(cVent::make()->ReadFile(reader));
}

TEST(Vent, MissingCardFails) {
    CardReader reader("");
    EXPECT_FALSE(cVent::make()->ReadFile(reader));
}

TEST(Vent, CopyTakesTheShaftButNotTheNumbers) {
    const auto source = cVent::make();
    source->id = 5;
    source->StartNode = 6;
    source->StopNode = 7;
    source->InitAir = "8.";
    source->uVShaft->id = 9;
    source->uVShaft->Title = "North";
    const auto target = cVent::make();
    target->XCopy(*source);
    EXPECT_EQ(target->id, 0);
    EXPECT_EQ(target->StartNode, 6);
    EXPECT_EQ(target->StopNode, 7);
    EXPECT_EQ(target->InitAir.trimmed(), "8.");
    EXPECT_EQ(target->uVShaft->id, 0);
    EXPECT_EQ(target->uVShaft->Title.trimmed(), "North");
    EXPECT_EQ(target->uVShaft->vent.lock(), target);
}

TEST(Vents, DefaultsOfANewDataSet) {
    const cVents vents;
    EXPECT_EQ(vents.Count(), 0);
    EXPECT_EQ(vents.ClipVent, nullptr);
    EXPECT_EQ(vents.DefaultVent->id, 1);
    EXPECT_EQ(vents.DefaultVent->StartNode, 1);
    EXPECT_EQ(vents.DefaultVent->StopNode, 2);
    EXPECT_EQ(vents.DefaultVent->InitAir.view(), "0.        ");
    const auto& shaft = *vents.DefaultShaft;
    EXPECT_EQ(shaft.id, 0);
    EXPECT_EQ(shaft.Title.trimmed(), "New");
    EXPECT_EQ(shaft.VType, 1);
    EXPECT_EQ(shaft.NSubSeg, 1);
    EXPECT_EQ(shaft.FanType, 0);
    EXPECT_EQ(shaft.FanDir, 0);
    for (const auto& text :
         {shaft.Grate, shaft.VGrate, shaft.WSTemp, shaft.TDB0, shaft.TWB0, shaft.StackHt, shaft.FanOn, shaft.FanOff}) {
        EXPECT_EQ(text.view(), "0.        ");
    }
    ASSERT_EQ(shaft.NSeg(), 1);
    EXPECT_EQ(shaft.colVSegs.at(Position(1))->getVSeg(), (cVentSeg::Values{"10.", "10.", "10.", "0.", "0.", "0.", "0."}));
}

TEST(Vents, DefaultShaftDeclaresNoSegmentWhileItsCopyDeclaresOne) {
    const cVents vents;
    EXPECT_EQ(vents.DefaultShaft->DeclaredSegs, 0);
    EXPECT_EQ(vents.DefaultVent->uVShaft->DeclaredSegs, 1);
    EXPECT_EQ(vents.DefaultVent->uVShaft->NSeg(), 1);
    EXPECT_EQ(vents.DefaultVent->uVShaft->Title.trimmed(), "New");
}

TEST(Vents, AddedSectionIsLikeTheDefaultButUnnumbered) {
    cVents vents;
    const auto vent = vents.Add(Position(0));
    EXPECT_EQ(vent->id, 0);
    EXPECT_EQ(vent->StartNode, 1);
    EXPECT_EQ(vent->StopNode, 2);
    EXPECT_EQ(vent->uVShaft->id, 0);
    EXPECT_EQ(vent->uVShaft->NSeg(), 1);
    EXPECT_EQ(vents.vent(Position(1)), vent);
}

TEST(Vents, AddBelowOneAppendsAndElsewhereGoesBefore) {
    auto vents = threeVents();
    vents.Add(Position(-1))->id = 8;
    EXPECT_EQ(numbersOf(vents), "1238");
    vents.Add(Position(4))->id = 9;
    EXPECT_EQ(numbersOf(vents), "12398");
    EXPECT_THROW((void)vents.Add(Position(6)), Failure);
}

TEST(Vents, PasteAtTheCountAppendsWhereAddGoesBeforeTheLast) {
    auto vents = threeVents();
    vents.Copy(Position(1));
    vents.Paste(Position(3))->id = 9;
    EXPECT_EQ(numbersOf(vents), "1239");
    vents.Add(Position(4))->id = 8;
    EXPECT_EQ(numbersOf(vents), "12389");
}

TEST(Vents, PastePastTheCountAppendsAndALowerPositionGoesBefore) {
    auto vents = threeVents();
    vents.Copy(Position(1));
    vents.Paste(Position(77))->id = 9;
    vents.Paste(Position(2))->id = 8;
    EXPECT_EQ(numbersOf(vents), "18239");
}

TEST(Vents, PasteBelowOneIsNotGuardedUnlessTheListIsEmpty) {
    auto vents = threeVents();
    vents.Cut(Position(1));
    EXPECT_THROW((void)vents.Paste(Position(0)), Failure);
    vents.Delete(Position(1));
    vents.Delete(Position(1));
    vents.Paste(Position(0))->id = 5;
    EXPECT_EQ(numbersOf(vents), "5");
}

TEST(Vents, ClipAndPastedSectionAreUnnumberedCopies) {
    auto vents = threeVents();
    vents.vent(Position(2))->InitAir = "5.";
    vents.Cut(Position(2));
    EXPECT_EQ(numbersOf(vents), "13");
    EXPECT_EQ(vents.ClipVent->id, 0);
    const auto pasted = vents.Paste(Position(1));
    EXPECT_EQ(numbersOf(vents), "013");
    EXPECT_EQ(pasted->InitAir.trimmed(), "5.");
    EXPECT_NE(pasted, vents.ClipVent);
}

TEST(Vents, CopyLeavesTheEntryInPlace) {
    auto vents = threeVents();
    vents.Copy(Position(2));
    EXPECT_EQ(numbersOf(vents), "123");
    EXPECT_EQ(vents.vent(Position(2))->id, 2);
    EXPECT_EQ(vents.ClipVent->id, 0);
}

TEST(Vents, PasteFromAnEmptyClipFails) {
    cVents vents;
    EXPECT_THROW((void)vents.Paste(Position(1)), Failure);
    EXPECT_EQ(vents.Count(), 0);
}

TEST(Vents, PositionsOutsideTheListFail) {
    auto vents = threeVents();
    EXPECT_THROW((void)vents.vent(Position(4)), Failure);
    EXPECT_THROW((void)vents.vent(Position(0)), Failure);
    EXPECT_THROW(vents.Copy(Position(4)), Failure);
    EXPECT_THROW(vents.Cut(Position(4)), Failure);
    EXPECT_THROW(vents.Delete(Position(4)), Failure);
    EXPECT_THROW(vents.SetDefault(Position(4)), Failure);
}

TEST(Vents, SetDefaultMakesAnUnnumberedCopyTheModelForNewSections) {
    auto vents = threeVents();
    vents.vent(Position(2))->StopNode = 55;
    vents.vent(Position(2))->uVShaft->AddVSeg();
    vents.SetDefault(Position(2));
    EXPECT_EQ(vents.DefaultVent->id, 0);
    vents.vent(Position(2))->StopNode = 66;
    const auto added = vents.Add(Position(0));
    EXPECT_EQ(added->StopNode, 55);
    EXPECT_EQ(added->uVShaft->NSeg(), 2);
}

TEST(Vents, SectionsAreReadAndWrittenInFileOrder) {
    const auto text = deck({card({" 301", " 1", " 2", "0."}), card({" 300", " 3", " 4", "-5."})});
    CardReader reader(text);
    cVents vents;
    ASSERT_TRUE(vents.ReadVents(reader, 2));
    EXPECT_EQ(numbersOf(vents), "301300");
    EXPECT_EQ(vents.vent(Position(1))->uVShaft->NSeg(), 0);
    EXPECT_EQ(written([&](CardWriter& writer) { vents.WriteVents(writer); }), text);
}

TEST(Vents, ReadingStopsAtTheFirstSectionThatFails) {
    const auto text = deck({card({" 1"}), card({"99999"}), card({" 3"})});
    CardReader reader(text);
    cVents vents;
    EXPECT_FALSE(vents.ReadVents(reader, 3));
    EXPECT_EQ(numbersOf(vents), "1");
}

TEST(Vents, ReadingStopsAtTheEndOfTheFile) {
    const auto text = deck({card({" 1"})});
    CardReader reader(text);
    cVents vents;
    EXPECT_FALSE(vents.ReadVents(reader, 2));
    EXPECT_EQ(vents.Count(), 1);
}

TEST(Vents, ShaftGroupsBelongToTheSectionsInOrderWhateverTheirNumber) {
    const auto sections = deck({card({" 1"}), card({" 2"})});
    const auto shafts = shaftDeck(" 2") + shaftDeck(" 77");
    CardReader first(sections);
    CardReader second(shafts);
    cVents vents;
    ASSERT_TRUE(vents.ReadVents(first, 2));
    ASSERT_TRUE(vents.ReadVShafts(second, WithoutFans));
    EXPECT_EQ(vents.vent(Position(1))->uVShaft->id, 2);
    EXPECT_EQ(vents.vent(Position(2))->uVShaft->id, 77);
    EXPECT_EQ(vents.vent(Position(2))->uVShaft->vent.lock(), vents.vent(Position(2)));
    EXPECT_EQ(written([&](CardWriter& writer) { vents.WriteVShafts(writer, WithoutFans); }), shafts);
}

TEST(Vents, ShaftsAreReadAndWrittenWithFanCardsWhereThereAreFanTypes) {
    const auto sections = deck({card({" 1"})});
    const auto shafts = deck(
        {card({" 1", " 1"}) + padded("A", 36), card({" 0", " 1", "", "", "", "", "", ""}), card({" 3", "1.", "2."}) + " 1 "});
    CardReader first(sections);
    CardReader second(shafts);
    cVents vents;
    ASSERT_TRUE(vents.ReadVents(first, 1));
    ASSERT_TRUE(vents.ReadVShafts(second, WithFans));
    EXPECT_EQ(vents.vent(Position(1))->uVShaft->FanType, 3);
    EXPECT_EQ(written([&](CardWriter& writer) { vents.WriteVShafts(writer, WithFans); }), shafts);
}

TEST(Vents, MissingShaftGroupFails) {
    const auto sections = deck({card({" 1"}), card({" 2"})});
    const auto shafts = shaftDeck(" 1");
    CardReader first(sections);
    CardReader second(shafts);
    cVents vents;
    ASSERT_TRUE(vents.ReadVents(first, 2));
    EXPECT_FALSE(vents.ReadVShafts(second, WithoutFans));
    EXPECT_EQ(vents.vent(Position(1))->uVShaft->NSeg(), 1);
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
