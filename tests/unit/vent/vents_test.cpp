#include "core/cards/failure.hpp"
#include "unit/vent/cards.hpp"
#include "unit/vent/sections.hpp"
#include "vent/model/vents.hpp"

#include <gtest/gtest.h>

namespace {

using namespace kov;
using kov::test::addVent;
using kov::test::card;
using kov::test::deck;
using kov::test::numbersOf;
using kov::test::padded;
using kov::test::threeVents;
using kov::test::written;

const DataOptions WithFans{.NFans = 1};
const DataOptions WithoutFans{};

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

} // namespace
