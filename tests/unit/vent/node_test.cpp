#include "unit/vent/cards.hpp"
#include "vent/model/node.hpp"

#include <gtest/gtest.h>

namespace {

using namespace kov;
using kov::test::card;
using kov::test::deck;
using kov::test::written;

constexpr const char* Zero = "0.        ";

bool read(cNode& node, const std::string& text) {
    CardReader reader(text);
    return node.ReadData(reader);
}

cNode nodeFrom(const std::string& text) {
    cNode node;
    EXPECT_TRUE(read(node, text));
    return node;
}

std::string writtenNode(const cNode& node) {
    return written([&](CardWriter& writer) { node.WriteData(writer); });
}

void expectRoundTrip(const std::string& text) {
    CardReader reader(text);
    cNode node;
    ASSERT_TRUE(node.ReadData(reader));
    EXPECT_EQ(writtenNode(node), text);
    EXPECT_ANY_THROW((void)reader.readLine()) << "a card was left unread";
}

TEST(Node, BareNodeIsStraightAndMixing) {
    const cNode node;
    EXPECT_EQ(node.id(), 0);
    EXPECT_EQ(node.AType(), 0);
    EXPECT_EQ(node.TType(), 1);
    for (const auto& cell : node.GetT2()) {
        EXPECT_EQ(cell.view(), Zero);
    }
    const auto branches = node.GetA1();
    EXPECT_EQ(branches.i1 + branches.i2 + branches.i3 + branches.i4, 0);
    EXPECT_TRUE(branches.AR.blank());
    EXPECT_TRUE(node.GetA4().Angle.blank());
}

TEST(Node, NumberOutside1To999IsIgnored) {
    cNode node;
    node.setId(1);
    EXPECT_EQ(node.id(), 1);
    node.setId(999);
    EXPECT_EQ(node.id(), 999);
    node.setId(0);
    node.setId(1000);
    node.setId(-1);
    EXPECT_EQ(node.id(), 999);
}

TEST(Node, ThermodynamicTypeOutside1To3IsIgnored) {
    cNode node;
    node.setTType(3);
    EXPECT_EQ(node.TType(), 3);
    node.setTType(0);
    node.setTType(4);
    EXPECT_EQ(node.TType(), 3);
}

TEST(Node, AerodynamicTypeIsJudgedByTheOneHeldSoFar) {
    auto six = nodeFrom(deck({card({" 1", " 6", " 1"})}));
    six.setAType(3);
    EXPECT_EQ(six.AType(), 6);
    cNode five;
    five.setAType(5);
    five.setAType(3);
    EXPECT_EQ(five.AType(), 3);
    cNode straight;
    straight.setAType(6);
    EXPECT_EQ(straight.AType(), 6);
    straight.setAType(0);
    EXPECT_EQ(straight.AType(), 6);
    cNode seven;
    seven.setAType(7);
    seven.setAType(1);
    EXPECT_EQ(seven.AType(), 1);
    cNode negative;
    negative.setAType(-1);
    negative.setAType(1);
    EXPECT_EQ(negative.AType(), -1);
}

TEST(Node, BranchedMeansTypeOneOrMore) {
    cNode node;
    EXPECT_FALSE(node.Branched());
    node.setAType(1);
    EXPECT_TRUE(node.Branched());
    node.setAType(7);
    EXPECT_TRUE(node.Branched());
    node.setAType(-1);
    EXPECT_FALSE(node.Branched());
}

TEST(Node, EachSetOfBranchesTouchesOnlyItsMembers) {
    cNode node;
    node.SetA1({.i1 = 1, .i2 = 2, .i3 = 3, .i4 = 4, .AR = "5."});
    EXPECT_TRUE(node.GetA4().Angle.blank());
    node.SetA2({.i1 = 11, .i2 = 12, .i3 = 13});
    EXPECT_EQ(node.GetA1().i1, 11);
    EXPECT_EQ(node.GetA1().i4, 4);
    EXPECT_EQ(node.GetA1().AR.trimmed(), "5.");
    node.SetA3({.i1 = 21, .i2 = 22, .i3 = 23, .AR = "6."});
    EXPECT_EQ(node.GetA3().i3, 23);
    EXPECT_EQ(node.GetA3().AR.trimmed(), "6.");
    EXPECT_TRUE(node.GetA4().Angle.blank());
    node.SetA4({.i1 = 31, .i2 = 32, .i3 = 33, .AR = "7.", .Angle = "45."});
    EXPECT_EQ(node.GetA2().i2, 32);
    EXPECT_EQ(node.GetA4().Angle.trimmed(), "45.");
    node.SetA5({.i1 = 41, .i2 = 42, .i3 = 43, .AR = "8.", .Angle = "60."});
    EXPECT_EQ(node.GetA5().Angle.trimmed(), "60.");
    EXPECT_EQ(node.GetA1().i4, 4);
    EXPECT_EQ(node.AType(), 0);
}

TEST(Node, BothThermodynamicTypesShareTheirCells) {
    cNode node;
    node.SetT2({"1.", "2.", "3.", "4.", "5.", "6.", "7."});
    EXPECT_EQ(node.GetT3()[0].trimmed(), "1.");
    EXPECT_EQ(node.GetT3()[5].trimmed(), "6.");
    node.SetT3({"11.", "12.", "13.", "14.", "15.", "16."});
    EXPECT_EQ(node.GetT2()[5].trimmed(), "16.");
    EXPECT_EQ(node.GetT2()[6].trimmed(), "7.");
}

TEST(Node, EveryTypeComesBackFromItsCards) {
    const auto temperatures = card({"70.", "60.", "71.", "61.", "72.", "62."});
    const auto subnodes = card({"1", "2", "3", "4", "5", "6", "7"});
    expectRoundTrip(deck({card({" 5", " 0", " 1"})}));
    expectRoundTrip(deck({card({" 5", " 0", " 3"}), temperatures}));
    expectRoundTrip(deck({card({" 5", " 1", " 1"}), card({" 1", " 2", " 3", "-4", "1."})}));
    expectRoundTrip(deck({card({" 5", " 1", " 2"}), card({" 1", " 2", " 3", "-4", "1."}), subnodes}));
    expectRoundTrip(deck({card({" 5", " 2", " 1"}), card({" 1", " 2", " 3"})}));
    expectRoundTrip(deck({card({" 5", " 3", " 1"}), card({" 1", " 2", " 3", "1."})}));
    expectRoundTrip(deck({card({" 5", " 4", " 1"}), card({" 1", " 2", " 3", "1.", "20."})}));
    expectRoundTrip(deck({card({" 5", " 5", " 1"}), card({" 1", " 2", " 3", "1.", "20."})}));
    expectRoundTrip(deck({card({" 5", " 7", " 1"})}));
    expectRoundTrip(deck({card({" 5", " 7", " 2"}), subnodes}));
}

TEST(Node, TemperaturesStandAheadOfTheBranchesAndSubnodesBehindThem) {
    const auto boundary = nodeFrom(deck({card({" 5", " 3", " 3"}), card({"70.", "60."}), card({" 1", " 2", " 3", "1.5"})}));
    EXPECT_EQ(boundary.GetT3()[0].trimmed(), "70.");
    EXPECT_EQ(boundary.GetA3().i3, 3);
    EXPECT_EQ(boundary.GetA3().AR.trimmed(), "1.5");
    const auto partial = nodeFrom(deck({card({" 5", " 3", " 2"}), card({" 1", " 2", " 3", "1.5"}), card({"70", "60"})}));
    EXPECT_EQ(partial.GetA3().i3, 3);
    EXPECT_EQ(partial.GetT2()[0].trimmed(), "70");
}

TEST(Node, TextsAreLeftTrimmedAndIntegersRoundedHalfToEven) {
    const auto node =
        nodeFrom(deck({card({"2.5", "4", "  3"}), card({"  70.", " 60."}), card({"1.5", "2.5", "3", "  1.", " 20."})}));
    EXPECT_EQ(node.id(), 2);
    EXPECT_EQ(node.AType(), 4);
    EXPECT_EQ(node.GetT3()[0].view(), "70.       ");
    EXPECT_EQ(node.GetA4().i1, 2);
    EXPECT_EQ(node.GetA4().i2, 2);
    EXPECT_EQ(node.GetA4().Angle.view(), "20.       ");
}

TEST(Node, FileMayPutAnyNumberIntoANode) {
    const auto text = deck({card({" 5000", " 6", " 9"})});
    const auto node = nodeFrom(text);
    EXPECT_EQ(node.id(), 5000);
    EXPECT_EQ(node.AType(), 6);
    EXPECT_EQ(node.TType(), 9);
    EXPECT_EQ(writtenNode(node), text);
}

TEST(Node, MissingCardFailsAndWhatWasReadStays) {
    cNode none;
    EXPECT_FALSE(read(none, ""));
    cNode boundary;
    EXPECT_FALSE(read(boundary, deck({card({" 5", " 0", " 3"})})));
    EXPECT_EQ(boundary.id(), 5);
    EXPECT_EQ(boundary.TType(), 3);
    cNode shortJunction;
    EXPECT_FALSE(read(shortJunction, deck({card({" 5", " 2", " 1"})})));
    cNode longJunction;
    EXPECT_FALSE(read(longJunction, deck({card({" 5", " 4", " 1"})})));
    cNode partial;
    EXPECT_FALSE(read(partial, deck({card({" 5", " 1", " 2"}), card({" 1", " 2", " 3", " 4", "1."})})));
    EXPECT_EQ(partial.GetA1().i4, 4);
}

TEST(Node, IntegerBeyondSixteenBitsFails) {
    cNode node;
    EXPECT_FALSE(read(node, deck({card({" 5", "40000", " 1"})})));
    EXPECT_EQ(node.id(), 5);
    EXPECT_FALSE(read(node, deck({card({" 5", " 2", " 1"}), card({" 1", "40000"})})));
    EXPECT_EQ(node.GetA2().i1, 1);
}

TEST(Node, CopyTakesOnlyWhatTheTypesUse) {
    cNode source;
    source.SetA1({.i1 = 11, .i2 = 12, .i3 = 13, .i4 = 14, .AR = "2."});
    source.SetA4({.i1 = 11, .i2 = 12, .i3 = 13, .AR = "2.", .Angle = "30."});
    const auto copyAs = [&](std::int16_t type) {
        source.setAType(type);
        cNode copy;
        copy.XCopy(source);
        EXPECT_EQ(copy.AType(), type);
        return copy;
    };
    EXPECT_EQ(copyAs(0).GetA1().i1, 0);
    EXPECT_TRUE(copyAs(0).GetA1().AR.blank());
    const auto one = copyAs(1);
    EXPECT_EQ(one.GetA1().i4, 14);
    EXPECT_EQ(one.GetA1().AR.trimmed(), "2.");
    EXPECT_TRUE(one.GetA4().Angle.blank());
    const auto two = copyAs(2);
    EXPECT_EQ(two.GetA1().i3, 13);
    EXPECT_EQ(two.GetA1().i4, 0);
    EXPECT_TRUE(two.GetA1().AR.blank());
    const auto three = copyAs(3);
    EXPECT_EQ(three.GetA3().AR.trimmed(), "2.");
    EXPECT_TRUE(three.GetA4().Angle.blank());
    EXPECT_EQ(copyAs(4).GetA4().Angle.trimmed(), "30.");
    EXPECT_EQ(copyAs(5).GetA5().Angle.trimmed(), "30.");
    EXPECT_EQ(copyAs(7).GetA1().i1, 0);
}

TEST(Node, CopyTakesTheCellsOfTheThermodynamicType) {
    cNode source;
    source.SetT2({"1.", "2.", "3.", "4.", "5.", "6.", "7."});
    source.setTType(2);
    cNode partial;
    partial.XCopy(source);
    EXPECT_EQ(partial.GetT2()[6].trimmed(), "7.");
    source.setTType(3);
    cNode boundary;
    boundary.XCopy(source);
    EXPECT_EQ(boundary.GetT2()[5].trimmed(), "6.");
    EXPECT_EQ(boundary.GetT2()[6].view(), Zero);
    source.setTType(1);
    cNode mixing;
    mixing.XCopy(source);
    EXPECT_EQ(mixing.GetT2()[0].view(), Zero);
}

TEST(Node, CopyGoesPastTheTestsOfTheSetters) {
    const auto source = nodeFrom(deck({card({" 1", " 6", " 9"})}));
    auto target = nodeFrom(deck({card({" 2", " 8", " 1"})}));
    target.XCopy(source);
    EXPECT_EQ(target.AType(), 6);
    EXPECT_EQ(target.TType(), 9);
    EXPECT_EQ(target.id(), 2);
}

} // namespace
