#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace kov {
namespace {

Collection<int> numbers(int count) {
    Collection<int> list;
    for (int i = 1; i <= count; ++i) {
        list.append(std::make_shared<int>(i));
    }
    return list;
}

TEST(ACollection, IsNumberedFromOne) {
    const auto list = numbers(3);
    EXPECT_EQ(*list.at(Position{1}), 1);
    EXPECT_EQ(*list.at(Position{3}), 3);
}

TEST(ACollection, FailsOutsideItsPositions) {
    auto list = numbers(2);
    EXPECT_THROW(static_cast<void>(list.at(Position{0})), Failure);
    EXPECT_THROW(static_cast<void>(list.at(Position{3})), Failure);
    EXPECT_THROW(list.remove(Position{3}), Failure);
    EXPECT_THROW(list.insertBefore(Position{0}, std::make_shared<int>(9)), Failure);
    EXPECT_THROW(list.insertAfter(Position{-1}, std::make_shared<int>(9)), Failure);
    EXPECT_EQ(list.count(), 2);
}

TEST(ACollection, InsertsBeforeAndAfterAPosition) {
    auto list = numbers(2);
    list.insertBefore(Position{1}, std::make_shared<int>(10));
    list.insertAfter(Position{3}, std::make_shared<int>(20));
    EXPECT_EQ(*list.at(Position{1}), 10);
    EXPECT_EQ(*list.at(Position{4}), 20);
}

TEST(ACollection, FindsAnElementByIdentity) {
    const auto list = numbers(2);
    EXPECT_EQ(list.find(*list.at(Position{2})), 2);
    const int equalButOther = 2;
    EXPECT_EQ(list.find(equalButOther), 0);
}

TEST(TheNodeTable, CountsBranchesAndKeepsThem) {
    NodeTable table;
    table.enter(3, 7);
    table.enter(3, -8);
    EXPECT_EQ(table.branches(3), 2);
    EXPECT_EQ(table.branch(3, 1), 7);
    EXPECT_EQ(table.branch(3, 2), -8);
    EXPECT_EQ(table.branches(1000), 0);
}

TEST(TheNodeTable, FailsOutsideItsBounds) {
    NodeTable table;
    EXPECT_THROW(table.enter(1001, 1), Failure);
    EXPECT_THROW(table.enter(-1, 1), Failure);
    for (std::int16_t i = 1; i <= 5; ++i) {
        table.enter(0, i);
    }
    EXPECT_THROW(table.enter(0, 6), Failure) << "a sixth branch";
    EXPECT_THROW(static_cast<void>(table.branch(0, 6)), Failure);
}

} // namespace
} // namespace kov
