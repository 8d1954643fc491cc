#include "core/cards/failure.hpp"
#include "fire/model/zones.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kov::test {
namespace {

using Texts = std::vector<std::string>;

std::string card(const Texts& fields) {
    std::string line;
    for (auto field : fields) {
        field.resize(10, ' ');
        line += field;
    }
    return line + "\n";
}

/// A line of zone members: the numbers in fields, the line in all its 80 columns.
std::string memberLine(const Texts& fields) {
    auto line = card(fields);
    line.pop_back();
    line.resize(80, ' ');
    return line + "\n";
}

std::string zoneCard(const std::string& type, const std::string& count) {
    return card({type, count, "80.", "70.", "81.", "71."});
}

std::string written(const cECZones& zones, std::int32_t all = 0) {
    CardWriter writer;
    zones.WriteECZones(writer, all);
    return writer.take();
}

bool reads(cECZones& zones, const std::string& text, std::int16_t count) {
    CardReader reader(text);
    return zones.ReadECZones(reader, {.NZones = count});
}

ItemList listOf(const Texts& texts) {
    ItemList list;
    for (const auto& text : texts) {
        list.addItem(text);
    }
    return list;
}

Texts itemsOf(const ItemList& list) {
    Texts items;
    items.reserve(static_cast<std::size_t>(list.count()));
    for (int index = 0; index < list.count(); ++index) {
        items.push_back(list.item(index));
    }
    return items;
}

const std::string TwoZones = zoneCard(" 1", " 9") + memberLine({" 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8"}) +
                             memberLine({" 9"}) + zoneCard(" 3", " 1") + memberLine({" 12"});

TEST(Zone, ANewOneHasItsStartingValues) {
    const cECZone zone;
    EXPECT_EQ(zone.getZone().type, 1);
    EXPECT_EQ(zone.getZone().morningDryBulb.view(), "0.        ");
    EXPECT_EQ(zone.getZone().morningWetBulb.view(), "0.        ");
    EXPECT_EQ(zone.getZone().eveningDryBulb.view(), "0.        ");
    EXPECT_EQ(zone.getZone().eveningWetBulb.view(), "0.        ");
    EXPECT_EQ(zone.NSegs(), 0);
}

TEST(ZoneCards, NineMembersStandOnTwoLinesAndOneOnOne) {
    cECZones zones;
    ASSERT_TRUE(reads(zones, TwoZones, 2));
    ASSERT_EQ(zones.Count(), 2);
    EXPECT_EQ(zones.Zone(Position{1})->NSegs(), 9);
    EXPECT_EQ(zones.Zone(Position{2})->NSegs(), 1);
    const auto& values = zones.Zone(Position{2})->getZone();
    EXPECT_EQ(values.type, 3);
    EXPECT_EQ(values.morningDryBulb.trimmed(), "80.");
    EXPECT_EQ(values.morningWetBulb.trimmed(), "70.");
    EXPECT_EQ(values.eveningDryBulb.trimmed(), "81.");
    EXPECT_EQ(values.eveningWetBulb.trimmed(), "71.");
    EXPECT_EQ(written(zones), TwoZones);
}

TEST(ZoneCards, AFullLastLineIsNotFollowedByAnEmptyOne) {
    const auto text = zoneCard(" 1", " 8") + memberLine({" 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8"}) +
                      zoneCard(" 2", " 16") + memberLine({" 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8"}) +
                      memberLine({" 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8"});
    cECZones zones;
    ASSERT_TRUE(reads(zones, text, 2));
    EXPECT_EQ(written(zones), text);
}

TEST(ZoneCards, MembersAreKeptAsTextAndWrittenAsRoundedNumbers) {
    const auto text = zoneCard(" 1", " 4") + card({"  2.5", "3.5", "", " 7 b"}) + zoneCard(" 2", " 0");
    cECZones zones;
    ASSERT_TRUE(reads(zones, text, 2));
    EXPECT_EQ(written(zones), zoneCard(" 1", " 4") + memberLine({" 2", " 4", " 0", " 7"}) + zoneCard(" 2", " 0"));
}

TEST(ZoneCards, AMemberOutsideSixteenBitsIsReadButCannotBeWritten) {
    const auto text = zoneCard(" 1", " 1") + card({" 40000"}) + zoneCard(" 2", " 0");
    cECZones zones;
    ASSERT_TRUE(reads(zones, text, 2));
    EXPECT_THROW(written(zones), Failure);
}

TEST(ZoneCards, TheOnlyZoneIsItsCardAloneWithEverythingCounted) {
    const auto text = zoneCard(" 1", " 9") + "next card\n";
    CardReader reader(text);
    cECZones zones;
    ASSERT_TRUE(zones.ReadECZones(reader, {.NZones = 1}));
    EXPECT_EQ(reader.readLine(), "next card");
    EXPECT_EQ(zones.Zone(Position{1})->NSegs(), 0);
    EXPECT_EQ(written(zones, 345), zoneCard(" 1", " 345"));
}

TEST(ZoneCards, TheOnlyZoneWritesNoMembersEvenIfItHasSome) {
    cECZones zones;
    zones.Add(Position{0})->ZSectSave(listOf({" 1", " 2"}));
    EXPECT_EQ(written(zones, 7), card({" 1", " 7", "0.", "0.", "0.", "0."}));
}

TEST(ZoneCards, MoreThanSixteenBitsOfSegmentsFailForTheOnlyZoneAlone) {
    cECZones zones;
    EXPECT_NO_THROW(written(zones, 32768));
    zones.Add(Position{0});
    EXPECT_NO_THROW(written(zones, 32767));
    EXPECT_THROW(written(zones, 32768), Failure);
    zones.Add(Position{0});
    EXPECT_NO_THROW(written(zones, 32768));
}

TEST(ZoneCards, WithoutZonesNothingIsWrittenOrRead) {
    cECZones zones;
    EXPECT_EQ(written(zones, 12), "");
    EXPECT_TRUE(reads(zones, "", 0));
    EXPECT_TRUE(reads(zones, "", -1));
    EXPECT_EQ(zones.Count(), 0);
}

TEST(ZoneCards, ABadOneEndsTheReadingAndThoseBeforeItStay) {
    cECZones zones;
    EXPECT_FALSE(reads(zones, zoneCard(" 1", " 0") + zoneCard(" 40000", " 0") + zoneCard(" 1", " 0"), 3));
    EXPECT_EQ(zones.Count(), 1);
}

TEST(ZoneCards, EveryCutShortReadingIsRefused) {
    for (std::size_t end = TwoZones.find('\n'); end + 1 < TwoZones.size(); end = TwoZones.find('\n', end + 1)) {
        cECZones zones;
        EXPECT_FALSE(reads(zones, TwoZones.substr(0, end + 1), 2)) << end;
    }
    cECZones zones;
    EXPECT_FALSE(reads(zones, "", 1));
}

TEST(ZoneCards, ANegativeCountReadsNoMembers) {
    cECZones zones;
    ASSERT_TRUE(reads(zones, zoneCard(" 1", "-2") + zoneCard(" 2", " 0"), 2));
    EXPECT_EQ(zones.Zone(Position{1})->NSegs(), 0);
}

TEST(ZoneMembers, AreListedAndMarkedByTheirRecords) {
    ZsectList zsects;
    zsects.add({.sid = " 12"});
    zsects.add({.sid = " 3", .vent = true});
    zsects.add({.sid = " 4"});
    cECZone zone;
    zone.ZSectSave(listOf({"12", " 3.0"}));
    ItemList list = listOf({"left over"});
    zone.ZSectList(list, zsects);
    EXPECT_EQ(itemsOf(list), (Texts{" 12", " 3"}));
    zone.ZSectStrip(zsects);
    EXPECT_TRUE(zsects.at(" 12").used);
    EXPECT_TRUE(zsects.at(" 3").used);
    EXPECT_FALSE(zsects.at(" 4").used);
}

TEST(ZoneMembers, ReadFromACardFindTheirRecordsToo) {
    cECZones zones;
    ASSERT_TRUE(reads(zones, zoneCard(" 1", " 2") + card({"   12", "012."}) + zoneCard(" 2", " 0"), 2));
    ZsectList zsects;
    zsects.add({.sid = " 12"});
    ItemList list;
    zones.Zone(Position{1})->ZSectList(list, zsects);
    EXPECT_EQ(itemsOf(list), (Texts{" 12", " 12"}));
}

TEST(ZoneMembers, OneWithoutARecordIsAFailure) {
    cECZone zone;
    zone.ZSectSave(listOf({"12"}));
    ZsectList zsects;
    ItemList list;
    EXPECT_THROW(zone.ZSectList(list, zsects), Failure);
    EXPECT_THROW(zone.ZSectStrip(zsects), Failure);
}

TEST(ZoneMembers, SavingReplacesThem) {
    cECZone zone;
    zone.ZSectSave(listOf({"1", "2"}));
    zone.ZSectSave(listOf({"no number"}));
    ASSERT_EQ(zone.NSegs(), 1);
    ZsectList zsects;
    zsects.add({.sid = " 0"});
    ItemList list;
    zone.ZSectList(list, zsects);
    EXPECT_EQ(itemsOf(list), Texts{" 0"});
}

TEST(ZoneCopy, TakesTypeAndTemperaturesAndEmptiesTheMembers) {
    cECZone source;
    source.setZone({.type = 2, .morningDryBulb = "1.", .morningWetBulb = "2.", .eveningDryBulb = "3.", .eveningWetBulb = "4."});
    source.ZSectSave(listOf({"1"}));
    cECZone copy;
    copy.ZSectSave(listOf({"7", "8"}));
    copy.XCopy(source);
    EXPECT_EQ(copy.getZone().type, 2);
    EXPECT_EQ(copy.getZone().eveningWetBulb.trimmed(), "4.");
    EXPECT_EQ(copy.NSegs(), 0);
    EXPECT_EQ(source.NSegs(), 1);
}

TEST(Zones, AddingAtZeroAppendsAndElsewhereInsertsAhead) {
    cECZones zones;
    const auto first = zones.Add(Position{0});
    const auto second = zones.Add(Position{0});
    const auto ahead = zones.Add(Position{2});
    EXPECT_EQ(zones.Zone(Position{1}), first);
    EXPECT_EQ(zones.Zone(Position{2}), ahead);
    EXPECT_EQ(zones.Zone(Position{3}), second);
    EXPECT_THROW(zones.Add(Position{4}), Failure);
    EXPECT_THROW(zones.Add(Position{-1}), Failure);
    EXPECT_THROW(static_cast<void>(zones.Zone(Position{0})), Failure);
}

TEST(Zones, PastingInsertsACopyWithoutMembersAheadOfThePosition) {
    cECZones zones;
    EXPECT_THROW(zones.Paste(Position{1}), Failure);
    const auto first = zones.Add(Position{0});
    first->setZone({.type = 3});
    first->ZSectSave(listOf({"1"}));
    zones.Copy(Position{1});
    zones.Paste(Position{1});
    ASSERT_EQ(zones.Count(), 2);
    EXPECT_EQ(zones.Zone(Position{2}), first);
    EXPECT_EQ(zones.Zone(Position{1})->getZone().type, 3);
    EXPECT_EQ(zones.Zone(Position{1})->NSegs(), 0);
    EXPECT_THROW(zones.Paste(Position{3}), Failure);
    EXPECT_THROW(zones.Copy(Position{3}), Failure);
}

TEST(Zones, DeletingRemovesThatOne) {
    cECZones zones;
    zones.Add(Position{0});
    const auto second = zones.Add(Position{0});
    zones.Delete(Position{1});
    ASSERT_EQ(zones.Count(), 1);
    EXPECT_EQ(zones.Zone(Position{1}), second);
    EXPECT_THROW(zones.Delete(Position{2}), Failure);
}

} // namespace
} // namespace kov::test
