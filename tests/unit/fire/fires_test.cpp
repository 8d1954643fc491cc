#include "core/cards/failure.hpp"
#include "fire/model/fires.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kov::test {
namespace {

std::string padded(std::string_view text, std::size_t width) {
    std::string result(text);
    result.resize(width, ' ');
    return result;
}

std::string written(const cFires& fires) {
    CardWriter writer;
    fires.WriteFires(writer);
    return writer.take();
}

std::string head(const std::string& name, const std::string& segment, const std::string& subsegment) {
    return padded(name, 40) + padded(segment, 10) + padded(subsegment, 10) + "\n";
}

const std::string Tail = "100.      200.      30.       40.       1500.     60.       \n";

TEST(Fire, ANewOneHasItsStartingValues) {
    const cFire fire;
    const auto& values = fire.GetFire();
    EXPECT_EQ(fire.id().view(), padded("New", 30));
    EXPECT_EQ(values.segment, 0);
    EXPECT_EQ(values.subsegment, 0);
    for (const auto* text :
         {&values.sensible, &values.latent, &values.start, &values.stop, &values.flameTemperature, &values.radiationArea}) {
        EXPECT_EQ(text->view(), "0.        ");
    }
}

TEST(Fire, BothCardsFillItsMembers) {
    const auto text = head("Train fire", " 101", " 2") + Tail;
    CardReader reader(text);
    cFires fires;
    ASSERT_TRUE(fires.ReadFires(reader, 1));
    const auto& values = fires.Fire(Position{1})->GetFire();
    EXPECT_EQ(values.id.trimmed(), "Train fire");
    EXPECT_EQ(values.segment, 101);
    EXPECT_EQ(values.subsegment, 2);
    EXPECT_EQ(values.sensible.trimmed(), "100.");
    EXPECT_EQ(values.latent.trimmed(), "200.");
    EXPECT_EQ(values.start.trimmed(), "30.");
    EXPECT_EQ(values.stop.trimmed(), "40.");
    EXPECT_EQ(values.flameTemperature.trimmed(), "1500.");
    EXPECT_EQ(values.radiationArea.trimmed(), "60.");
    EXPECT_EQ(written(fires), text);
}

TEST(Fire, ALongNameIsCutAndBlanksFillTheColumnsBehindIt) {
    const std::string name = "12345678901234567890123456789012";
    const auto text = head(name, " 1", " 1") + Tail;
    CardReader reader(text);
    cFires fires;
    ASSERT_TRUE(fires.ReadFires(reader, 1));
    EXPECT_EQ(fires.Fire(Position{1})->id().view(), name.substr(0, 30));
    EXPECT_EQ(written(fires), head(name.substr(0, 30), " 1", " 1") + Tail);
}

TEST(Fire, TheNameKeepsItsLeadingBlanksAndTheTextsLoseTheirs) {
    const auto text = head("  Fire", " 1", " 1") + "   100.\n";
    CardReader reader(text);
    cFires fires;
    ASSERT_TRUE(fires.ReadFires(reader, 1));
    EXPECT_EQ(fires.Fire(Position{1})->id().trimmed(), "  Fire");
    EXPECT_EQ(written(fires), head("  Fire", " 1", " 1") + padded("100.", 60) + "\n");
}

TEST(Fire, AShortFirstLineLacksItsPlace) {
    CardReader reader("Fire\n100.\n");
    cFires fires;
    ASSERT_TRUE(fires.ReadFires(reader, 1));
    EXPECT_EQ(fires.Fire(Position{1})->GetFire().segment, 0);
    EXPECT_EQ(fires.Fire(Position{1})->GetFire().subsegment, 0);
}

TEST(Fire, WholeNumbersAreRoundedHalfToEven) {
    const auto text = head("Fire", "2.5", "3.5") + Tail;
    CardReader reader(text);
    cFire fire;
    ASSERT_TRUE(fire.ReadData(reader));
    EXPECT_EQ(fire.GetFire().segment, 2);
    EXPECT_EQ(fire.GetFire().subsegment, 4);
}

TEST(Fire, ACopyTakesAllNineMembers) {
    cFire source;
    source.SetFire({"Fire", 1, 2, "3.", "4.", "5.", "6.", "7.", "8."});
    cFire copy;
    copy.XCopy(source);
    CardWriter first;
    source.WriteData(first);
    CardWriter second;
    copy.WriteData(second);
    EXPECT_EQ(first.content(), second.content());
    EXPECT_EQ(copy.GetFire().radiationArea.trimmed(), "8.");
}

TEST(Fires, ABadOneEndsTheReadingAndThoseBeforeItStay) {
    const auto text = head("A", " 1", " 1") + Tail + head("B", " 40000", " 1") + Tail + head("C", " 1", " 1") + Tail;
    CardReader reader(text);
    cFires fires;
    EXPECT_FALSE(fires.ReadFires(reader, 3));
    ASSERT_EQ(fires.Count(), 1);
    EXPECT_EQ(fires.Fire(Position{1})->id().trimmed(), "A");
}

TEST(Fires, EveryCutShortReadingIsRefused) {
    const auto line = head("A", " 1", " 1");
    for (const auto& text : {std::string(), line, line + Tail, line + Tail + line}) {
        CardReader reader(text);
        cFires fires;
        EXPECT_FALSE(fires.ReadFires(reader, 2));
    }
}

TEST(Fires, ACountOfZeroReadsNothing) {
    CardReader reader("untouched\n");
    cFires fires;
    EXPECT_TRUE(fires.ReadFires(reader, 0));
    EXPECT_EQ(reader.readLine(), "untouched");
}

TEST(Fires, EverySourceIsWrittenAlsoOneThatIsStillCalledNew) {
    cFires fires;
    EXPECT_EQ(written(fires), "");
    fires.Add();
    const std::string zeros = "0.        0.        0.        0.        0.        0.        \n";
    EXPECT_EQ(written(fires), head("New", " 0", " 0") + zeros);
}

TEST(Fires, AreAddedDeletedAndCleared) {
    cFires fires;
    fires.Add()->setId("A");
    fires.Add()->setId("B");
    fires.Delete(Position{1});
    ASSERT_EQ(fires.Count(), 1);
    EXPECT_EQ(fires.Fire(Position{1})->id().trimmed(), "B");
    EXPECT_THROW(fires.Delete(Position{2}), Failure);
    EXPECT_THROW(fires.Delete(Position{0}), Failure);
    fires.Clear();
    EXPECT_EQ(fires.Count(), 0);
}

TEST(Fires, TheListHasNineColumnsAndABlankRowBehindThem) {
    cFires fires;
    Grid grid;
    grid.setCols(9);
    grid.addItem("left over");
    fires.FireList(grid);
    ASSERT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.line(0), " ");

    fires.Add()->SetFire({"Fire", 1, -2, "3.", "4.", "5.", "6.", "7.", "8."});
    fires.FireList(grid);
    ASSERT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.line(0),
              padded("Fire", 30) + "\t 1\t-2\t3.        \t4.        \t5.        \t6.        \t7.        \t8.        ");
    EXPECT_EQ(grid.line(1), " ");
}

} // namespace
} // namespace kov::test
