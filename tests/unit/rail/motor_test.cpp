#include "core/cards/failure.hpp"
#include "rail/model/motor.hpp"
#include "unit/rail/deck.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using rail_test::allRead;
using rail_test::card;
using rail_test::file;
using rail_test::joined;
using rail_test::padded;
using rail_test::written;

std::string writtenMotor(const cMotor& motor) {
    return written([&](CardWriter& w) { motor.WriteData(w); });
}

/// A motor with another text in every place.
void fill(cMotor& motor, std::int16_t control) {
    motor.MotorID = "M-7";
    motor.MtrSpecs = {"33", "32.5", "s3", "s4", "s5", "s6", "s7"};
    motor.CrvSpeed = {"v1", "v2", "v3", "v4"};
    motor.CrvEffort = {"e1", "e2", "e3", "e4"};
    motor.CrvAmps = {"a1", "a2", "a3", "a4"};
    motor.CtrlOpt = control;
    motor.LineAmps = {"l0", "l1", "l2", "l3", "l4"};
    motor.Chopper = {"c1", "c2", "c3", "c4"};
    motor.FWOpt = 2;
    motor.Cam = {"k1", "k2", "k3", "k4"};
    motor.MotorRes = "r";
}

const std::string Head = padded("M-7", 40) + card({"33", "32.5"});
const std::string FirstCards = file({Head, card({"s3", "s4", "s5", "s6", "s7"}), card({"v1", "v2", "v3", "v4"}),
                                     card({"e1", "e2", "e3", "e4"}), card({"a1", "a2", "a3", "a4"})});
const std::string ChopperCards = file({card({"l0", "l1", "l2", "l3", "l4"}), card({"c1", "c2", "c3", "c4", " 2"})});
const std::string LastCard = file({card({"k1", "k2", "k3", "k4", "r"})});

TEST(Motor, AChopperWritesLineCurrentsAndItsEfficiencies) {
    cMotor motor;
    fill(motor, 2);
    EXPECT_EQ(writtenMotor(motor), FirstCards + file({card({" 2"})}) + ChopperCards + LastCard);
}

TEST(Motor, ACamWritesNeither) {
    cMotor motor;
    fill(motor, 1);
    EXPECT_EQ(writtenMotor(motor), FirstCards + file({card({" 1"})}) + LastCard);
}

TEST(Motor, ItReadsBackWhatItWrote) {
    for (const auto control : std::initializer_list<std::int16_t>{1, 2, 3, 0, -4}) {
        cMotor motor;
        fill(motor, control);
        const auto text = writtenMotor(motor);
        CardReader reader(text);
        cMotor again;
        ASSERT_TRUE(again.ReadData(reader)) << control;
        EXPECT_TRUE(allRead(reader)) << control;
        EXPECT_EQ(writtenMotor(again), text) << control;
        EXPECT_EQ(again.CtrlOpt, control);
        EXPECT_EQ(again.FWOpt, control == 1 ? 1 : 2) << "a cam's flywheel option is not in the file";
    }
}

TEST(Motor, ANewMotorIsAChopperWithoutFlywheel) {
    const cMotor motor;
    EXPECT_EQ(motor.CtrlOpt, 2);
    EXPECT_EQ(motor.FWOpt, 1);
    const auto zeros = card({"0.", "0.", "0.", "0."});
    EXPECT_EQ(writtenMotor(motor), file({padded("", 40) + card({"0.", "0."}), zeros + card({"0."}), zeros, zeros, zeros,
                                         card({" 2"}), zeros + card({"0."}), zeros + card({" 1"}), zeros + card({"0."})}));
}

CardText readDiameter(const std::string& text) {
    const auto deck =
        file({padded("M", 40) + padded(text, 10) + "1"}) + FirstCards.substr(Head.size() + 1) + file({"1"}) + LastCard;
    CardReader reader(deck);
    cMotor motor;
    EXPECT_TRUE(motor.ReadData(reader)) << text;
    return motor.MtrSpecs[0];
}

TEST(Motor, TheDiametersAreRewrittenInTheShortestFormOnReading) {
    EXPECT_EQ(readDiameter("33.00"), CardText("33"));
    EXPECT_EQ(readDiameter("36."), CardText("36"));
    EXPECT_EQ(readDiameter("    28.50"), CardText("28.5"));
    EXPECT_EQ(readDiameter("0.5"), CardText(".5"));
    EXPECT_EQ(readDiameter("-0.250"), CardText("-.25"));
    EXPECT_EQ(readDiameter("-3."), CardText("-3"));
    EXPECT_EQ(readDiameter("28 in"), CardText("28"));
    EXPECT_EQ(readDiameter(""), CardText("0"));
    EXPECT_EQ(readDiameter("unknown"), CardText("0"));
}

TEST(Motor, ADiameterTooLongForItsColumnsLosesDigitsButNotItsSize) {
    EXPECT_EQ(readDiameter("1E14"), CardText("1E+14"));
    EXPECT_EQ(readDiameter("12345678E9"), CardText("1.2346E+16"));
    EXPECT_EQ(readDiameter("1.2346E+16"), CardText("1.2346E+16"));
    EXPECT_EQ(readDiameter("-123456E-9"), CardText("-.00012346"));
    EXPECT_EQ(readDiameter("-.00012346"), CardText("-.00012346"));
    EXPECT_EQ(readDiameter("1.2345E-20"), CardText("1.2345E-20"));
}

TEST(Motor, ADiameterThatNoNumberHoldsIsABadCard) {
    const auto deck = file({padded("M", 40) + "1E999     1"}) + FirstCards.substr(Head.size() + 1) + file({"1"}) + LastCard;
    CardReader reader(deck);
    EXPECT_FALSE(cMotor().ReadData(reader));
}

TEST(Motor, OtherTextsAreNeverRewritten) {
    const auto deck = file({"M", card({"1.50", "2.00", "600.0", "600", "300."}), card({"10.00"}), "", "", "1", card({"5.0"})});
    CardReader reader(deck);
    cMotor motor;
    ASSERT_TRUE(motor.ReadData(reader));
    EXPECT_EQ(motor.MtrSpecs[2], CardText("1.50"));
    EXPECT_EQ(motor.CrvSpeed[0], CardText("10.00"));
    EXPECT_TRUE(motor.CrvEffort[0].blank());
    EXPECT_EQ(motor.Cam[0], CardText("5.0"));
    EXPECT_TRUE(motor.MotorRes.blank());
    EXPECT_EQ(motor.MtrSpecs[0], CardText("0"));
}

TEST(Motor, TheControllerIsTheNumberOfItsWholeLine) {
    const auto deck = FirstCards + file({"   1 cam"}) + LastCard;
    CardReader reader(deck);
    cMotor motor;
    ASSERT_TRUE(motor.ReadData(reader));
    EXPECT_EQ(motor.CtrlOpt, 1);

    const auto wide = FirstCards + file({"1         1"}) + ChopperCards + LastCard;
    CardReader wideReader(wide);
    ASSERT_TRUE(motor.ReadData(wideReader));
    EXPECT_EQ(motor.CtrlOpt, 11);
}

TEST(Motor, ABlankControllerIsAChopper) {
    const auto deck = FirstCards + file({""}) + ChopperCards + LastCard;
    CardReader reader(deck);
    cMotor motor;
    ASSERT_TRUE(motor.ReadData(reader));
    EXPECT_EQ(motor.CtrlOpt, 0);
    EXPECT_EQ(motor.FWOpt, 2);
}

TEST(Motor, TheFlywheelOptionMustBeWhollyNumeric) {
    for (const auto* option : {"", "2x", "yes", "40000"}) {
        const auto deck = joined(
            {FirstCards, file({"2", card({"l0", "l1", "l2", "l3", "l4"}), card({"c1", "c2", "c3", "c4", option})}), LastCard});
        CardReader reader(deck);
        EXPECT_FALSE(cMotor().ReadData(reader)) << option;
    }
}

TEST(Motor, EveryTruncationIsAFailure) {
    cMotor motor;
    fill(motor, 2);
    const auto text = writtenMotor(motor);
    for (auto end = text.find('\n'); end + 1 < text.size(); end = text.find('\n', end + 1)) {
        CardReader reader(std::string_view(text).substr(0, end + 1));
        EXPECT_FALSE(cMotor().ReadData(reader)) << end;
    }
    CardReader nothing("");
    EXPECT_FALSE(cMotor().ReadData(nothing));
}

TEST(Motor, CurvePointsPassInFoursWithAnEmptyFourth) {
    cMotor motor;
    fill(motor, 2);
    auto texts = motor.getMtrData();
    EXPECT_EQ(texts[0], "v1        ");
    EXPECT_EQ(texts[1], "e1        ");
    EXPECT_EQ(texts[2], "a1        ");
    EXPECT_EQ(texts[3], "");
    EXPECT_EQ(texts[12], "v4        ");
    EXPECT_EQ(texts[15], "");

    texts[3] = "not mine";
    texts[14] = "new";
    motor.setMtrData(texts);
    EXPECT_EQ(motor.CrvAmps[3], CardText("new"));
    EXPECT_EQ(motor.LineAmps[1], CardText("l1"));
    EXPECT_EQ(motor.getMtrData()[3], "");
}

TEST(Motor, ItsResistanceHasTwoDoors) {
    cMotor motor;
    fill(motor, 2);
    EXPECT_EQ(motor.getChopper().Chop[4], CardText("r"));
    EXPECT_EQ(motor.getCam()[4], CardText("r"));

    auto chopper = motor.getChopper();
    chopper.Chop[4] = "r2";
    motor.setChopper(chopper);
    EXPECT_EQ(motor.getCam(), (cMotor::CamData{"k1", "k2", "k3", "k4", "r2"}));

    motor.setCam({"x1", "x2", "x3", "x4", "r3"});
    EXPECT_EQ(motor.MotorRes, CardText("r3"));
    EXPECT_EQ(motor.getChopper().Chop, (std::array<CardText, 5>{"c1", "c2", "c3", "c4", "r3"}));
    EXPECT_EQ(motor.getChopper().Amps, motor.LineAmps);
}

TEST(Motor, ACopyHoldsEverything) {
    for (const auto control : std::initializer_list<std::int16_t>{1, 2}) {
        cMotor motor;
        fill(motor, control);
        cMotor copy;
        copy.XCopy(motor);
        EXPECT_EQ(writtenMotor(copy), writtenMotor(motor));
        EXPECT_EQ(copy.LineAmps, motor.LineAmps);
        EXPECT_EQ(copy.Chopper, motor.Chopper);
        EXPECT_EQ(copy.FWOpt, 2);
    }
}

} // namespace
} // namespace kov
