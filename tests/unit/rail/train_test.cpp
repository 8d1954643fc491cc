#include "core/cards/failure.hpp"
#include "rail/model/train.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace kov {
namespace {

using rail_test::allRead;
using rail_test::card;
using rail_test::file;
using rail_test::joined;
using rail_test::padded;
using rail_test::written;

DataOptions performanceOption(std::int16_t option) {
    DataOptions options;
    options.TPOpt = option;
    return options;
}

std::string writtenTrain(const cTrain& train, std::int16_t option) {
    return written([&](CardWriter& w) { train.WriteData(w, performanceOption(option)); });
}

std::string writtenMotor(const cTrain& train) {
    return written([&](CardWriter& w) { train.Motor.WriteData(w); });
}

void fill(cTrain& train, std::int16_t control, std::int16_t flywheel) {
    train.SetPhysical({"Six cars", "6", "4", "3", "450.", "110.", "40.", "35."});
    train.setResist({"sk", "tr", "fr", "r1", "r2", "r3", "ar"});
    train.setHtLoads({"h1", "h2", "h3", "h4", "h5", "h6"});
    train.setRGrid({"g0", "g1", "g2", "g3", "g4", "g5", "g6", "g7", "g8", "g9", "g10", "g11", "g12", "g13"});
    train.setRates({"q0", "q1", "q2", "q3", "q4"});
    train.Motor.CtrlOpt = control;
    train.Motor.FWOpt = flywheel;
    train.FlyWheel.FWNumber = "2.";
}

const std::string Head = padded("Six cars", 40) + card({" 6", " 4", "450.", "110."});
const std::string SixCards = file({Head, card({"40.", "sk", "tr", "fr"}), card({"h1", "h2", "h3", "h4", "h5", "h6"}),
                                   card({"g0", "g7", "g1", "g8", "g2", "g9", "g3", "g10"}),
                                   card({"g4", "g11", "g5", "g12", "g6", "g13"}), card({"35.", " 3", "r1", "r2", "r3", "ar"})});
const std::string RatesCard = file({card({"q0", "q1", "q2", "q3", "q4"})});
const std::string FlyWheelCards =
    file({card({"2.", " 0", " 0", " 0", " 0"}), card({"0.", "0.", "0.", "0.", "0.", "0.", "0."})});

TEST(Train, WithGivenHeatItIsItsFirstSixCards) {
    cTrain train;
    fill(train, 2, 2);
    EXPECT_EQ(writtenTrain(train, 3), SixCards);
}

TEST(Train, WithGivenSpeedsThereAreMotorCardsButNeitherRatesNorFlywheels) {
    for (const auto option : std::initializer_list<std::int16_t>{0, 2}) {
        cTrain train;
        fill(train, 2, 2);
        EXPECT_EQ(writtenTrain(train, option), SixCards + writtenMotor(train)) << option;
    }
}

TEST(Train, WithStopsTheFlywheelCardsAreTheLast) {
    cTrain train;
    fill(train, 2, 2);
    EXPECT_EQ(writtenTrain(train, 1), SixCards + writtenMotor(train) + RatesCard + FlyWheelCards);
}

TEST(Train, WithStopsAndNoFlywheelTheRatesAreTheLast) {
    for (const auto flywheel : std::initializer_list<std::int16_t>{0, 1, 3}) {
        cTrain train;
        fill(train, 2, flywheel);
        EXPECT_EQ(writtenTrain(train, 1), joined({SixCards, writtenMotor(train), RatesCard})) << flywheel;
    }
}

TEST(Train, EveryOptionReadsBackWhatItWrote) {
    for (const auto option : std::initializer_list<std::int16_t>{0, 1, 2, 3}) {
        for (const auto control : std::initializer_list<std::int16_t>{1, 2, 3}) {
            cTrain train;
            fill(train, control, 1);
            const auto text = writtenTrain(train, option);
            CardReader reader(text);
            cTrain again;
            ASSERT_TRUE(again.ReadData(reader, performanceOption(option))) << option;
            EXPECT_TRUE(allRead(reader)) << option;
            EXPECT_EQ(again.GetPhysical().NMtr, " 3");
            train.Motor.MtrSpecs[0] = "0"; // the diameters lose their point on reading
            train.Motor.MtrSpecs[1] = "0";
            EXPECT_EQ(writtenTrain(again, option), writtenTrain(train, option)) << option;
        }
    }
}

TEST(Train, FlywheelCardsAreReadWhateverTheOptionButWrittenOnlyWithStops) {
    cTrain train;
    fill(train, 2, 2);
    for (const auto option : std::initializer_list<std::int16_t>{0, 1, 2}) {
        const auto text = joined({SixCards, writtenMotor(train), option == 1 ? RatesCard : "", FlyWheelCards});
        CardReader reader(text);
        cTrain again;
        ASSERT_TRUE(again.ReadData(reader, performanceOption(option))) << option;
        EXPECT_TRUE(allRead(reader)) << option;
        EXPECT_EQ(again.FlyWheel.FWNumber, CardText("2."));
        const auto out = writtenTrain(again, option);
        EXPECT_EQ(out.ends_with(FlyWheelCards), option == 1) << option;
        EXPECT_NE(out.find(card({"0.", "0.", "0.", "0.", " 2"})), std::string::npos) << "the motor still tells of it";
    }
}

TEST(Train, WithoutTheFlywheelCardsThatItsMotorTellsOfItIsBad) {
    cTrain train;
    fill(train, 2, 2);
    const auto text = SixCards + writtenMotor(train);
    CardReader reader(text);
    EXPECT_FALSE(cTrain().ReadData(reader, performanceOption(2)));
}

TEST(Train, ACamsFlywheelIsWrittenButCantBeReadBack) {
    cTrain train;
    fill(train, 1, 2);
    const auto text = writtenTrain(train, 1);
    EXPECT_TRUE(text.ends_with(RatesCard + FlyWheelCards));
    CardReader reader(text);
    cTrain again;
    ASSERT_TRUE(again.ReadData(reader, performanceOption(1)));
    EXPECT_EQ(again.Motor.FWOpt, 1);
    EXPECT_FALSE(allRead(reader)) << "the flywheel's cards are left over";
}

TEST(Train, FourBlanksPartTheNameFromTheCars) {
    cTrain train;
    train.TrainID = "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxtoo long";
    const auto text = writtenTrain(train, 3);
    EXPECT_EQ(text.substr(0, 60), std::string(36, 'x') + "    " + card({" 0", " 0"}));
}

TEST(Train, ANewTrainHasItsDefaults) {
    const cTrain train;
    const auto zeros = card({"0.", "0.", "0.", "0."});
    EXPECT_EQ(writtenTrain(train, 3),
              file({padded("", 40) + card({" 0", " 0", "0.", "0."}), zeros, zeros + card({"0.", "0."}), zeros + zeros,
                    zeros + card({"0.", "0."}), card({"0.", " 0", "1.3", "116.", "0.045", "8.8"})}));
    EXPECT_EQ(train.getRates(), zeroTexts<5>());
}

std::string withHead(const std::string& head) { return head + "\n" + SixCards.substr(Head.size() + 1); }

TEST(Train, TextsOfItsFirstCardKeepTheirLeadingBlanks) {
    const auto text = withHead(padded("T", 40) + "       2.5         2     450.      110.beyond");
    CardReader reader(text);
    cTrain train;
    ASSERT_TRUE(train.ReadData(reader, performanceOption(3)));
    EXPECT_EQ(train.NCars, 2);
    EXPECT_EQ(train.NPwrd, 2);
    EXPECT_EQ(train.TLength.view(), "     450. ");
    EXPECT_EQ(train.AFront.view(), "     110.b");
}

TEST(Train, ItsFirstCardMayBeShort) {
    const auto text = withHead("T");
    CardReader reader(text);
    cTrain train;
    ASSERT_TRUE(train.ReadData(reader, performanceOption(3)));
    EXPECT_EQ(train.id().trimmed(), "T");
    EXPECT_EQ(train.NCars, 0);
    EXPECT_TRUE(train.TLength.blank());
}

TEST(Train, OfItsSecondCardColumnsBeyondTheFourthFieldAreIgnored) {
    auto text = SixCards;
    text.insert(text.find("fr        ") + 10, "extra");
    CardReader reader(text);
    cTrain train;
    ASSERT_TRUE(train.ReadData(reader, performanceOption(3)));
    EXPECT_EQ(writtenTrain(train, 3), SixCards);
}

TEST(Train, TheMotorsPerCarMustBeWhollyNumeric) {
    for (const auto* motors : {"", "3x", "three", "40000"}) {
        const auto text = SixCards.substr(0, SixCards.find("35.")) + file({card({"35.", motors, "r1"})});
        CardReader reader(text);
        EXPECT_FALSE(cTrain().ReadData(reader, performanceOption(3))) << motors;
    }
}

TEST(Train, ANumberOfCarsBeyondSixteenBitsIsABadCard) {
    const auto text = withHead(padded("T", 40) + "40000");
    CardReader reader(text);
    EXPECT_FALSE(cTrain().ReadData(reader, performanceOption(3)));
}

TEST(Train, EveryTruncationIsAFailure) {
    for (const auto option : std::initializer_list<std::int16_t>{0, 1, 2, 3}) {
        cTrain train;
        fill(train, 2, option == 1 ? 2 : 1);
        const auto text = writtenTrain(train, option);
        for (auto end = text.find('\n'); end + 1 < text.size(); end = text.find('\n', end + 1)) {
            CardReader reader(std::string_view(text).substr(0, end + 1));
            EXPECT_FALSE(cTrain().ReadData(reader, performanceOption(option))) << option << " after " << end;
        }
        CardReader nothing("");
        EXPECT_FALSE(cTrain().ReadData(nothing, performanceOption(option)));
    }
}

TEST(Train, ItsPhysicalValuesPassAsTexts) {
    cTrain train;
    train.SetPhysical({"T", "2.5", "-1", "4 a car", "1.", "2.", "3.", "12345678901"});
    const auto values = train.GetPhysical();
    EXPECT_EQ(values.TrainID, padded("T", 36));
    EXPECT_EQ(values.NCars, " 2");
    EXPECT_EQ(values.NPwrd, "-1");
    EXPECT_EQ(values.NMtr, " 4");
    EXPECT_EQ(values.TLength, "1.        ");
    EXPECT_EQ(values.AFront, "2.        ");
    EXPECT_EQ(values.Perim, "3.        ");
    EXPECT_EQ(values.Cwt, "1234567890");
    EXPECT_THROW(train.SetPhysical({"T", "99999", "", "", "", "", "", ""}), Failure);
}

TEST(Train, ACopyHoldsEverythingAndSharesNothing) {
    cTrain train;
    fill(train, 2, 2);
    cTrain copy;
    copy.XCopy(train);
    const auto before = writtenTrain(train, 1);
    EXPECT_EQ(writtenTrain(copy, 1), before);
    copy.Motor.MotorID = "other";
    copy.FlyWheel.FWNumber = "9.";
    EXPECT_EQ(writtenTrain(train, 1), before);
}

TEST(Train, ACopyOfATrainWithoutFlywheelLeavesTheFlywheelDataBehind) {
    cTrain train;
    fill(train, 2, 1);
    cTrain copy;
    copy.XCopy(train);
    EXPECT_EQ(copy.FlyWheel.FWNumber, CardText("0."));
    EXPECT_EQ(writtenTrain(copy, 1), writtenTrain(train, 1));
}

} // namespace
} // namespace kov
