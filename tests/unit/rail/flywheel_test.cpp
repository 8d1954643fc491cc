#include "core/cards/failure.hpp"
#include "rail/model/flywheel.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using rail_test::card;
using rail_test::file;
using rail_test::written;

std::string writtenWheel(const cFlyWheel& wheel) {
    return written([&](CardWriter& w) { wheel.WriteData(w); });
}

TEST(FlyWheel, ANewOneIsAllZero) {
    EXPECT_EQ(writtenWheel(cFlyWheel()),
              file({card({"0.", " 0", " 0", " 0", " 0"}), card({"0.", "0.", "0.", "0.", "0.", "0.", "0."})}));
}

TEST(FlyWheel, ItsTwoCardsAreReadAndWritten) {
    const auto text =
        file({card({"4.", "2.5", "7,000", "14000 rpm", ""}), card({"90.", "91", "A", "B", "C", "D", "E", "lost"})});
    CardReader reader(text);
    cFlyWheel wheel;
    ASSERT_TRUE(wheel.ReadData(reader));
    EXPECT_EQ(writtenWheel(wheel),
              file({card({"4.", " 2", " 7", " 14000", " 0"}), card({"90.", "91", "A", "B", "C", "D", "E"})}));
}

TEST(FlyWheel, AMissingCardOrALargeIntegerIsAFailure) {
    for (const auto& text : {std::string(), file({card({"4.", "1", "2", "3", "4"})}), file({card({"4.", "99999"}), "90."})}) {
        CardReader reader(text);
        EXPECT_FALSE(cFlyWheel().ReadData(reader)) << text;
    }
}

TEST(FlyWheel, ItsTwelveTextsPassInMemberOrder) {
    cFlyWheel wheel;
    wheel.setFlyWheel({"1.", " 2.5", "3 rpm", "4", "", "6.", "7.", "8.", "9.", "10.", "11.", "12345678901"});
    const cFlyWheel::Texts expected{"1.        ", " 2",         " 3",         " 4",         " 0",         "6.        ",
                                    "7.        ", "8.        ", "9.        ", "10.       ", "11.       ", "1234567890"};
    EXPECT_EQ(wheel.getFlyWheel(), expected);
    EXPECT_THROW(wheel.setFlyWheel({"1.", "40000", "", "", "", "", "", "", "", "", "", ""}), Failure);
}

TEST(FlyWheel, ACopyHoldsEverything) {
    cFlyWheel wheel;
    wheel.setFlyWheel({"1.", "2", "3", "4", "5", "6.", "7.", "8.", "9.", "10.", "11.", "12."});
    cFlyWheel copy;
    copy.XCopy(wheel);
    EXPECT_EQ(copy.getFlyWheel(), wheel.getFlyWheel());
}

} // namespace
} // namespace kov
