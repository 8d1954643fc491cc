#include "core/cards/failure.hpp"
#include "rail/model/trains.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using rail_test::written;

DataOptions givenHeat() {
    DataOptions options;
    options.TPOpt = 3;
    return options;
}

void addTrain(cTrains& trains, std::string_view id, Position before = Position{0}) { trains.Add(before)->TrainID = id; }

std::string ids(const cTrains& trains) {
    std::string text;
    for (std::int32_t i = 1; i <= trains.Count(); ++i) {
        text += std::string(trains.Train(Position{i})->id().trimmed()) + ";";
    }
    return text;
}

std::string writtenTrains(const cTrains& trains) {
    return written([&](CardWriter& w) { trains.WriteTrains(w, givenHeat()); });
}

TEST(Trains, ANewCollectionIsEmptyAndWritesNothing) {
    const cTrains trains;
    EXPECT_EQ(trains.Count(), 0);
    EXPECT_EQ(trains.TrainBuffer, nullptr);
    EXPECT_EQ(writtenTrains(trains), "");
}

TEST(Trains, AreAddedAtTheEndOrAheadOfAnother) {
    cTrains trains;
    addTrain(trains, "A");
    addTrain(trains, "B");
    addTrain(trains, "C", Position{1});
    EXPECT_EQ(ids(trains), "C;A;B;");
    EXPECT_THROW(trains.Add(Position{4}), Failure);
}

TEST(Trains, APlaceThatIsNotThereIsAFailure) {
    cTrains trains;
    addTrain(trains, "A");
    EXPECT_THROW((void)trains.Train(Position{0}), Failure);
    EXPECT_THROW((void)trains.Train(Position{2}), Failure);
    EXPECT_THROW(trains.Delete(Position{2}), Failure);
    trains.Delete(Position{1});
    EXPECT_EQ(trains.Count(), 0);
}

TEST(Trains, OneCopyCanBePastedManyTimes) {
    cTrains trains;
    addTrain(trains, "A");
    addTrain(trains, "B");
    trains.Copy(Position{1});
    trains.Paste(Position{2});
    trains.Paste(Position{2});
    EXPECT_EQ(ids(trains), "A;A;A;B;");
    trains.Train(Position{2})->TrainID = "other";
    EXPECT_EQ(ids(trains), "A;other;A;B;");
    EXPECT_EQ(trains.TrainBuffer->id().trimmed(), "A");
}

TEST(Trains, CuttingKeepsACopyAndRemovesTheTrain) {
    cTrains trains;
    addTrain(trains, "A");
    addTrain(trains, "B");
    trains.Cut(Position{1});
    EXPECT_EQ(ids(trains), "B;");
    EXPECT_EQ(trains.TrainBuffer->id().trimmed(), "A");
}

TEST(Trains, WithNothingCopiedPastingIsAFailure) {
    cTrains trains;
    addTrain(trains, "A");
    EXPECT_THROW(trains.Paste(Position{1}), Failure);
}

TEST(Trains, AreWrittenInOrderAndReadBack) {
    cTrains trains;
    addTrain(trains, "A");
    addTrain(trains, ""); // unlike a route a train needs no name to be written
    addTrain(trains, "C");
    const auto text = writtenTrains(trains);
    CardReader reader(text);
    cTrains again;
    ASSERT_TRUE(again.ReadTrains(reader, 3, givenHeat()));
    EXPECT_EQ(ids(again), "A;;C;");
    EXPECT_EQ(writtenTrains(again), text);
}

TEST(Trains, ABadTrainEndsReadingAndTheOnesBeforeStay) {
    cTrains trains;
    addTrain(trains, "A");
    const auto text = writtenTrains(trains) + "B\n";
    CardReader reader(text);
    cTrains again;
    EXPECT_FALSE(again.ReadTrains(reader, 32767, givenHeat()));
    EXPECT_EQ(ids(again), "A;");
}

TEST(Trains, ANegativeCountReadsNone) {
    CardReader reader("");
    cTrains trains;
    EXPECT_TRUE(trains.ReadTrains(reader, -5, givenHeat()));
    EXPECT_EQ(trains.Count(), 0);
}

} // namespace
} // namespace kov
