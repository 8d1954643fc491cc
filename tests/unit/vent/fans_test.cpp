#include "core/cards/failure.hpp"
#include "unit/vent/cards.hpp"
#include "vent/model/fans.hpp"

#include <gtest/gtest.h>

namespace {

using namespace kov;
using kov::test::card;
using kov::test::deck;
using kov::test::padded;
using kov::test::written;

std::string fanHead(std::string_view id, std::string_view numbers) { return padded(id, 40) + std::string(numbers); }

std::string fanDeck(std::string_view id) {
    return deck({fanHead(id, "  .075      30.     1000.   90000.  "), card({"1.", "2.", "3.", "4.", "5.", "6.", "7.", "8."}),
                 card({"9.", "10.", "11.", "12.", "13.", "14.", "15.", "16."})});
}

void addFan(cFans& fans, std::string_view id) { fans.Add(Position(0))->setFan({.id = id}); }

void addImpulseFan(cFans& fans, std::string_view flow) { fans.AddI(Position(0))->SetIFan({.FanQ = flow}); }

std::string namesOf(const cFans& fans) {
    std::string names;
    for (const auto& fan : fans.Fans) {
        names += fan->id().trimmed();
    }
    return names;
}

TEST(Fan, BareFanHasABlankDescriptionAndZerosElsewhere) {
    const cFan fan;
    const auto& values = fan.getFan();
    EXPECT_TRUE(fan.id().blank());
    EXPECT_EQ(values.rho.view(), "0.        ");
    EXPECT_EQ(values.runup.view(), "0.        ");
    EXPECT_EQ(values.QLow.view(), "0.        ");
    EXPECT_EQ(values.QHi.view(), "0.        ");
    for (std::size_t i = 0; i < cFan::Points; ++i) {
        EXPECT_EQ(values.FanP.at(i).view(), "0.        ");
        EXPECT_EQ(values.FanQ.at(i).view(), "0.        ");
    }
}

TEST(Fan, CurvePointsAlternatePressureAndFlowOverTwoCards) {
    const auto text = fanDeck("Main");
    CardReader reader(text);
    cFan fan;
    ASSERT_TRUE(fan.ReadData(reader));
    const auto& values = fan.getFan();
    EXPECT_EQ(values.FanP[0].trimmed(), "1.");
    EXPECT_EQ(values.FanQ[0].trimmed(), "2.");
    EXPECT_EQ(values.FanP[3].trimmed(), "7.");
    EXPECT_EQ(values.FanQ[3].trimmed(), "8.");
    EXPECT_EQ(values.FanP[4].trimmed(), "9.");
    EXPECT_EQ(values.FanQ[4].trimmed(), "10.");
    EXPECT_EQ(values.FanP[7].trimmed(), "15.");
    EXPECT_EQ(values.FanQ[7].trimmed(), "16.");
}

TEST(Fan, FirstCardKeepsItsLeadingBlanksWhileCurveCardsAreLeftJustified) {
    const auto head = fanHead("  Main supply", "      .075       30.     1000.    90000.");
    const auto text = deck({head, "        1.        2.        3.        4.        5.        6.        7.        8.",
                            "        9.       10.       11.       12.       13.       14.       15.       16."});
    CardReader reader(text);
    cFan fan;
    ASSERT_TRUE(fan.ReadData(reader));
    EXPECT_EQ(fan.getFan().rho.view(), "      .075");
    EXPECT_EQ(fan.getFan().QHi.view(), "    90000.");
    EXPECT_EQ(fan.getFan().FanP[0].view(), "1.        ");
    EXPECT_EQ(written([&](CardWriter& writer) { fan.WriteData(writer); }),
              deck({head, card({"1.", "2.", "3.", "4.", "5.", "6.", "7.", "8."}),
                    card({"9.", "10.", "11.", "12.", "13.", "14.", "15.", "16."})}));
}

TEST(Fan, DescriptionOf36CharactersSurvivesARoundThroughTheFile) {
    const std::string id = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    ASSERT_EQ(id.size(), 36U);
    cFan fan;
    fan.setFan({.id = id});
    const auto text = written([&](CardWriter& writer) { fan.WriteData(writer); });
    EXPECT_EQ(text.substr(0, 50), id + "    0.        ");
    EXPECT_EQ(text.find('\n'), 80U);
    CardReader reader(text);
    cFan back;
    ASSERT_TRUE(back.ReadData(reader));
    EXPECT_EQ(back.id().view(), id);
}

TEST(Fan, ColumnsBetweenDescriptionAndValuesAreIgnoredAndWrittenBlank) {
    const std::string text = deck({padded("Main", 36) + "junk" + card({"1.", "2.", "3.", "4."}), "", ""});
    CardReader reader(text);
    cFan fan;
    ASSERT_TRUE(fan.ReadData(reader));
    EXPECT_EQ(fan.id().trimmed(), "Main");
    EXPECT_EQ(fan.getFan().rho.trimmed(), "1.");
    EXPECT_EQ(written([&](CardWriter& writer) { fan.WriteData(writer); }).substr(36, 4), "    ");
}

TEST(Fan, ShortFirstCardLeavesTheMissingColumnsBlank) {
    const std::string text = deck({"Main", "", ""});
    CardReader reader(text);
    cFan fan;
    ASSERT_TRUE(fan.ReadData(reader));
    EXPECT_EQ(fan.id().trimmed(), "Main");
    EXPECT_TRUE(fan.getFan().rho.blank());
    EXPECT_TRUE(fan.getFan().QHi.blank());
}

TEST(Fan, MissingCurveCardFailsWithItsPointsUnset) {
    const std::string text = deck({fanHead("Main", ".075")});
    CardReader reader(text);
    cFan fan;
    EXPECT_FALSE(fan.ReadData(reader));
    EXPECT_EQ(fan.id().trimmed(), "Main");
    EXPECT_EQ(fan.getFan().FanP[0].view(), "0.        ");
}

TEST(Fan, MissingSecondCurveCardFailsWithTheFirstStored) {
    const std::string text = deck({"Main", card({"1.", "2."})});
    CardReader reader(text);
    cFan fan;
    EXPECT_FALSE(fan.ReadData(reader));
    EXPECT_EQ(fan.getFan().FanP[0].trimmed(), "1.");
    EXPECT_EQ(fan.getFan().FanP[4].view(), "0.        ");
}

TEST(Fan, ReadingAtTheEndOfTheFileFails) {
    CardReader reader("");
    cFan fan;
    EXPECT_FALSE(fan.ReadData(reader));
}

TEST(Fan, CopyTakesTheDescriptionToo) {
    cFan source;
    source.setFan({.id = "Main", .rho = ".075"});
    cFan target;
    target.XCopy(source);
    EXPECT_EQ(target.id().trimmed(), "Main");
    EXPECT_EQ(target.getFan().rho.trimmed(), ".075");
}

TEST(ImpulseFan, BareFanHoldsZeros) {
    const cIFan fan;
    EXPECT_EQ(fan.FanQ().view(), "0.        ");
    EXPECT_EQ(fan.GetIFan().Feff.view(), "0.        ");
    EXPECT_EQ(fan.GetIFan().fVel.view(), "0.        ");
    EXPECT_EQ(fan.GetIFan().TmOn, 0);
    EXPECT_EQ(fan.GetIFan().TmOff, 0);
}

TEST(ImpulseFan, CardIsLeftJustifiedAndItsTimesAreRoundedHalfToEven) {
    const std::string text = deck({card({"  100.", " .9", " 2000.", "2.5", "3.5"})});
    CardReader reader(text);
    cIFan fan;
    ASSERT_TRUE(fan.ReadData(reader));
    EXPECT_EQ(fan.FanQ().view(), "100.      ");
    EXPECT_EQ(fan.GetIFan().TmOn, 2);
    EXPECT_EQ(fan.GetIFan().TmOff, 4);
    EXPECT_EQ(written([&](CardWriter& writer) { fan.WriteData(writer); }), deck({card({"100.", ".9", "2000.", " 2", " 4"})}));
}

TEST(ImpulseFan, TimeBeyondSixteenBitsFailsWithTheFieldsAheadStored) {
    const std::string text = deck({card({"100.", ".9", "2000.", "40000", "5"})});
    CardReader reader(text);
    cIFan fan;
    EXPECT_FALSE(fan.ReadData(reader));
    EXPECT_EQ(fan.FanQ().trimmed(), "100.");
    EXPECT_EQ(fan.GetIFan().TmOn, 0);
}

TEST(ImpulseFan, CopyTakesAllMembers) {
    cIFan source;
    source.SetIFan({.FanQ = "1.", .Feff = "2.", .fVel = "3.", .TmOn = 4, .TmOff = 5});
    cIFan target;
    target.XCopy(source);
    EXPECT_EQ(target.FanQ().trimmed(), "1.");
    EXPECT_EQ(target.GetIFan().Feff.trimmed(), "2.");
    EXPECT_EQ(target.GetIFan().fVel.trimmed(), "3.");
    EXPECT_EQ(target.GetIFan().TmOn, 4);
    EXPECT_EQ(target.GetIFan().TmOff, 5);
}

TEST(Fans, ListWithoutFansHoldsOnlyNone) {
    ItemList list;
    list.addItem("left over");
    cFans().List(list);
    ASSERT_EQ(list.count(), 1);
    EXPECT_EQ(list.item(0), "0. None");
}

TEST(Fans, ListIndexIsTheFanTypeAndTrailingBlanksAreCut) {
    cFans fans;
    addFan(fans, "First");
    addFan(fans, "Main   ");
    addImpulseFan(fans, "100.");
    ItemList list;
    fans.List(list);
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(1), "1. First");
    EXPECT_EQ(list.item(2), "2. Main");
}

TEST(Fans, AddAtZeroAppendsAndElsewhereGoesBefore) {
    cFans fans;
    addFan(fans, "A");
    addFan(fans, "B");
    addFan(fans, "C");
    EXPECT_EQ(namesOf(fans), "ABC");
    fans.Add(Position(1))->setFan({.id = "D"});
    EXPECT_EQ(namesOf(fans), "DABC");
    EXPECT_EQ(fans.Count(), 4);
}

TEST(Fans, AddedFanIsBareWithoutADefaultToCopyFrom) {
    cFans fans;
    addFan(fans, "A");
    EXPECT_TRUE(fans.Add(Position(0))->id().blank());
    EXPECT_EQ(fans.AddI(Position(0))->FanQ().view(), "0.        ");
}

TEST(Fans, AddAtAPositionThatDoesNotExistFails) {
    cFans fans;
    EXPECT_THROW((void)fans.Add(Position(1)), Failure);
    EXPECT_THROW((void)fans.Add(Position(-1)), Failure);
    EXPECT_THROW((void)fans.AddI(Position(1)), Failure);
}

TEST(Fans, FanAboveTheCountIsNone) {
    cFans fans;
    addFan(fans, "A");
    addImpulseFan(fans, "1.");
    EXPECT_NE(fans.Fan(Position(1)), nullptr);
    EXPECT_EQ(fans.Fan(Position(2)), nullptr);
    EXPECT_NE(fans.IFan(Position(1)), nullptr);
    EXPECT_EQ(fans.IFan(Position(2)), nullptr);
    EXPECT_EQ(fans.ICount(), 1);
}

TEST(Fans, FanBelowOneIsNotGuarded) {
    const cFans fans;
    EXPECT_THROW((void)fans.Fan(Position(0)), Failure);
    EXPECT_THROW((void)fans.IFan(Position(0)), Failure);
}

TEST(Fans, DeleteAboveTheCountDoesNothingButImpulseFansFail) {
    cFans fans;
    addFan(fans, "A");
    addImpulseFan(fans, "1.");
    fans.Delete(Position(2));
    EXPECT_EQ(fans.Count(), 1);
    fans.Delete(Position(1));
    EXPECT_EQ(fans.Count(), 0);
    EXPECT_THROW(fans.DeleteI(Position(2)), Failure);
    fans.DeleteI(Position(1));
    EXPECT_EQ(fans.ICount(), 0);
}

TEST(Fans, CutAboveTheCountFails) {
    cFans fans;
    addFan(fans, "A");
    addImpulseFan(fans, "1.");
    EXPECT_THROW(fans.Cut(Position(2)), Failure);
    EXPECT_THROW(fans.CutI(Position(2)), Failure);
}

TEST(Fans, CutTakesTheEntryIntoTheClipAndPastePutsACopyBefore) {
    cFans fans;
    addFan(fans, "A");
    addFan(fans, "B");
    fans.Cut(Position(1));
    EXPECT_EQ(namesOf(fans), "B");
    fans.Paste(Position(1));
    fans.Paste(Position(1));
    EXPECT_EQ(namesOf(fans), "AAB");
    EXPECT_NE(fans.Fan(Position(1)), fans.Fan(Position(2)));
}

TEST(Fans, CopyLeavesTheEntryAndLaterEditsDoNotReachTheClip) {
    cFans fans;
    addFan(fans, "A");
    fans.Copy(Position(1));
    fans.Fan(Position(1))->setFan({.id = "B"});
    fans.Paste(Position(1));
    EXPECT_EQ(namesOf(fans), "AB");
}

TEST(Fans, ImpulseFansAreCutAndPastedAlike) {
    cFans fans;
    addImpulseFan(fans, "1.");
    addImpulseFan(fans, "2.");
    fans.CutI(Position(1));
    EXPECT_EQ(fans.ICount(), 1);
    fans.PasteI(Position(1));
    EXPECT_EQ(fans.IFan(Position(1))->FanQ().trimmed(), "1.");
    EXPECT_EQ(fans.ICount(), 2);
    fans.CopyI(Position(2));
    fans.PasteI(Position(1));
    EXPECT_EQ(fans.IFan(Position(1))->FanQ().trimmed(), "2.");
    EXPECT_EQ(fans.ICount(), 3);
}

TEST(Fans, PasteFromAnEmptyClipOrPastTheEndFails) {
    cFans fans;
    addFan(fans, "A");
    addImpulseFan(fans, "1.");
    EXPECT_THROW(fans.Paste(Position(1)), Failure);
    EXPECT_THROW(fans.PasteI(Position(1)), Failure);
    fans.Copy(Position(1));
    fans.CopyI(Position(1));
    EXPECT_THROW(fans.Paste(Position(2)), Failure);
    EXPECT_THROW(fans.PasteI(Position(2)), Failure);
    EXPECT_EQ(fans.Count(), 1);
}

TEST(Fans, FanGroupsAreReadAheadOfImpulseFanCardsAndWrittenSo) {
    const auto text = fanDeck("One") + fanDeck("Two") + deck({card({"100.", ".9", "2000.", " 2", " 4"})});
    CardReader reader(text);
    cFans fans;
    ASSERT_TRUE(fans.ReadFans(reader, 2, 1));
    EXPECT_EQ(namesOf(fans), "OneTwo");
    EXPECT_EQ(fans.ICount(), 1);
    const auto out = written([&](CardWriter& writer) { fans.WriteFans(writer); });
    EXPECT_EQ(out,
              deck({fanHead("One", "  .075      30.     1000.   90000.      "),
                    card({"1.", "2.", "3.", "4.", "5.", "6.", "7.", "8."}),
                    card({"9.", "10.", "11.", "12.", "13.", "14.", "15.", "16."}),
                    fanHead("Two", "  .075      30.     1000.   90000.      "),
                    card({"1.", "2.", "3.", "4.", "5.", "6.", "7.", "8."}),
                    card({"9.", "10.", "11.", "12.", "13.", "14.", "15.", "16."}), card({"100.", ".9", "2000.", " 2", " 4"})}));
}

TEST(Fans, FailureInTheFirstRunStopsBeforeTheSecond) {
    const auto text = fanDeck("One");
    CardReader reader(text);
    cFans fans;
    EXPECT_FALSE(fans.ReadFans(reader, 2, 1));
    EXPECT_EQ(fans.Count(), 1);
    EXPECT_EQ(fans.ICount(), 0);
}

TEST(Fans, FailureInTheSecondRunFailsTheWhole) {
    const auto text = fanDeck("One");
    CardReader reader(text);
    cFans fans;
    EXPECT_FALSE(fans.ReadFans(reader, 1, 1));
    EXPECT_EQ(fans.Count(), 1);
    EXPECT_EQ(fans.ICount(), 0);
}

} // namespace
