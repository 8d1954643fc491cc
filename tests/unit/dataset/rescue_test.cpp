#include "core/cards/failure.hpp"
#include "decks/deck.hpp"
#include "unit/dataset/support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace kov {
namespace {

using decks::Hand;
using decks::makeDeck;
using decks::randomPlan;
using test::firstDifference;
using test::linesOf;
using test::Reading;
using test::written;

std::string rescued(KOVDataSet& data) {
    CardWriter writer(data.lineEnd.empty() ? "\n" : std::string_view(data.lineEnd));
    data.WriteRescue(writer);
    return writer.take();
}

std::shared_ptr<cPGroup> printGroup() {
    auto group = std::make_shared<cPGroup>();
    group->setPGroup(
        {.NIntervals = 4, .IntLength = "30.", .AbbrevRatio = 1, .SummaryOpt = 2, .AeroCycles = 1, .ThermoCycles = 1});
    return group;
}

void fillPrintGroups(KOVDataSet& data) {
    data.ClrPGroup();
    for (int i = 0; i < KOVDataSet::MostPGroups; ++i) {
        data.AddPGroup(printGroup());
    }
}

TEST(ARescueCopy, IsTheFileThatASaveWouldWriteWhenNothingIsAmiss) {
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        Reading reading(makeDeck(randomPlan(seed, Hand::Tidy)).text());
        ASSERT_EQ(firstDifference(written(reading.data), rescued(reading.data)), "") << "seed " << seed;
    }
}

TEST(ARescueCopy, HoldsThe25PrintGroupsThatFitAndForm13AfterA26thFailed) {
    Reading reading(makeDeck(randomPlan(2, Hand::Tidy)).text());
    fillPrintGroups(reading.data);
    const auto expected = written(reading.data);
    EXPECT_THROW(reading.data.AddPGroup(printGroup()), Failure);
    EXPECT_THROW(static_cast<void>(written(reading.data)), Failure) << "a save can't go on behind the missing group";
    const auto copy = rescued(reading.data);
    EXPECT_EQ(firstDifference(expected, copy), "");
    EXPECT_TRUE(Reading(copy).done);
}

TEST(ARescueCopy, GoesOnBehindASegmentThatCannotBeWritten) {
    Reading reading(makeDeck(randomPlan(2, Hand::Tidy)).text());
    auto& data = reading.data;
    const auto whole = linesOf(written(data));
    data.Sections.Section(Position{1})->Segment(Position{1})->ClearSubs();
    EXPECT_THROW(static_cast<void>(written(data)), Failure);
    const auto copy = linesOf(rescued(data));
    EXPECT_LT(copy.size(), whole.size());
    const auto behind = std::search(copy.begin(), copy.end(), whole.end() - 8, whole.end());
    EXPECT_EQ(behind, copy.end() - 8) << "the last cards are those of the whole file";
}

TEST(ARescueCopy, EndsALineThatBrokeOff) {
    CardWriter writer;
    writer.endBrokenCard();
    EXPECT_EQ(writer.content(), "");
    writer.text("half a card").endBrokenCard();
    writer.text("next").endCard();
    EXPECT_EQ(writer.content(), "half a card\nnext\n");
}

} // namespace
} // namespace kov
