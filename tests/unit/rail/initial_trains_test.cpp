#include "core/cards/failure.hpp"
#include "rail/model/initial_trains.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using rail_test::card;
using rail_test::file;
using rail_test::written;

std::string writtenTrain(const cInitTrain& train) {
    return written([&](CardWriter& w) { train.WriteData(w); });
}

std::string writtenTrains(const cInitTrains& trains) {
    return written([&](CardWriter& w) { trains.WriteITrains(w); });
}

TEST(InitialTrain, ValuesPassTextsFirst) {
    cInitTrain train;
    train.setITrain({"100.", "25.", "80.", "90.", 1, 2, -1, 1});
    EXPECT_EQ(writtenTrain(train), card({"100.", "25.", " 1", " 2", "80.", "90.", "-1.", " 1"}) + "\n");
    const auto values = train.getITrain();
    EXPECT_EQ(values.ITLocation, CardText("100."));
    EXPECT_EQ(values.ITSpeed, CardText("25."));
    EXPECT_EQ(values.ITAccTemp, CardText("80."));
    EXPECT_EQ(values.ITDecTemp, CardText("90."));
    EXPECT_EQ(values.ITRoute, 1);
    EXPECT_EQ(values.ITType, 2);
    EXPECT_EQ(values.ITDwell, -1);
    EXPECT_EQ(values.ITCoast, 1);
}

TEST(InitialTrain, TheDwellIsWrittenWithAPoint) {
    cInitTrain train;
    train.ITDwell = -1;
    EXPECT_EQ(writtenTrain(train).substr(60, 10), "-1.       ");
    train.ITDwell = 30;
    EXPECT_EQ(writtenTrain(train).substr(60, 10), " 30.      ");
    train.ITDwell = 100000;
    EXPECT_EQ(writtenTrain(train).substr(60, 10), " 100000.  ");
}

TEST(InitialTrain, TheDwellLosesItsFractionOnReading) {
    const auto line = card({"1.", "2.", "3", "4", "5.", "6.", "2.5", "0"});
    CardReader reader(line);
    cInitTrain train;
    ASSERT_TRUE(train.ReadData(reader));
    EXPECT_EQ(train.ITDwell, 2);
    EXPECT_EQ(writtenTrain(train), card({"1.", "2.", " 3", " 4", "5.", "6.", " 2.", " 0"}) + "\n");
}

TEST(InitialTrain, OnlyTheDwellHasThirtyTwoBits) {
    const auto line = card({"1.", "2.", "3", "4", "5.", "6.", "2147483647", "0"});
    CardReader reader(line);
    cInitTrain train;
    ASSERT_TRUE(train.ReadData(reader));
    EXPECT_EQ(train.ITDwell, 2147483647);

    for (const auto& bad : {card({"", "", "40000"}), card({"", "", "", "40000"}), card({"", "", "", "", "", "", "3E9"}),
                            card({"", "", "", "", "", "", "", "40000"})}) {
        CardReader badReader(bad);
        EXPECT_FALSE(cInitTrain().ReadData(badReader)) << bad;
    }
}

TEST(InitialTrain, ABlankCardIsBlankTextsAndZeros) {
    CardReader reader("\n");
    cInitTrain train;
    ASSERT_TRUE(train.ReadData(reader));
    EXPECT_EQ(writtenTrain(train), card({"", "", " 0", " 0", "", "", " 0.", " 0"}) + "\n");
}

TEST(InitialTrain, IntegersAreFieldValuesAndTextsLoseTheirLeadingBlanks) {
    const auto line = std::string("     100. ") + card({"fast", "1 north", "2.5", "80", "90", "30 sec", "x"});
    CardReader reader(line);
    cInitTrain train;
    ASSERT_TRUE(train.ReadData(reader));
    EXPECT_EQ(writtenTrain(train), card({"100.", "fast", " 1", " 2", "80", "90", " 30.", " 0"}) + "\n");
}

TEST(InitialTrains, AnEmptyListIsOneBlankRowAndNoCard) {
    const cInitTrains trains;
    Grid grid;
    grid.setCols(8);
    grid.setRows(5);
    trains.TrainList(grid);
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.line(0), " ");
    EXPECT_EQ(writtenTrains(trains), "");
}

TEST(InitialTrains, TheGridShowsTheOrderOfTheCardAndABlankRow) {
    cInitTrains trains;
    trains.Add()->setITrain({"1.", "2.", "5.", "6.", 3, 4, -7, 8});
    trains.Add();
    Grid grid;
    grid.setCols(8);
    trains.TrainList(grid);
    ASSERT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.line(0), "1.        \t2.        \t 3\t 4\t5.        \t6.        \t-7\t 8");
    EXPECT_EQ(grid.line(2), " ");
}

TEST(InitialTrains, AreAddedAtTheEndDeletedAndCleared) {
    cInitTrains trains;
    trains.Add()->ITRoute = 1;
    trains.Add()->ITRoute = 2;
    trains.Add()->ITRoute = 3;
    trains.Delete(Position{2});
    EXPECT_EQ(trains.Count(), 2);
    EXPECT_EQ(writtenTrains(trains),
              card({"", "", " 1", " 0", "", "", " 0.", " 0"}) + "\n" + card({"", "", " 3", " 0", "", "", " 0.", " 0"}) + "\n");
    EXPECT_THROW(trains.Delete(Position{3}), Failure);
    EXPECT_THROW(trains.Delete(Position{0}), Failure);
    trains.Clear();
    EXPECT_EQ(trains.Count(), 0);
}

TEST(InitialTrains, AsManyAreReadAsDeclaredAndBackComesTheSame) {
    const auto first = card({"1.", "2.", " 3", " 4", "5.", "6.", " 7.", " 0"});
    const auto second = card({"9.", "2.", " 3", " 4", "5.", "6.", "-1.", " 1"});
    const auto text = file({first, second, "next"});
    CardReader reader(text);
    cInitTrains trains;
    ASSERT_TRUE(trains.ReadITrains(reader, 2));
    EXPECT_EQ(writtenTrains(trains), file({first, second}));
    EXPECT_EQ(reader.readLine(), "next");
}

TEST(InitialTrains, ABadCardEndsReadingAndTheOnesBeforeStay) {
    const auto text = file({card({"1."}), card({"", "", "99999"}), card({"3."})});
    CardReader reader(text);
    cInitTrains trains;
    EXPECT_FALSE(trains.ReadITrains(reader, 3));
    EXPECT_EQ(trains.Count(), 1);
}

TEST(InitialTrains, ANegativeCountReadsNoneAndAHugeOneEndsWithTheFile) {
    const auto text = file({card({"1."})});
    CardReader reader(text);
    cInitTrains trains;
    EXPECT_TRUE(trains.ReadITrains(reader, -32768));
    EXPECT_EQ(trains.Count(), 0);
    EXPECT_FALSE(trains.ReadITrains(reader, 32767));
    EXPECT_EQ(trains.Count(), 1);
}

} // namespace
} // namespace kov
