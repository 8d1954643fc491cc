#include "core/cards/failure.hpp"
#include "unit/vent/cards.hpp"
#include "vent/model/nodes.hpp"

#include <gtest/gtest.h>

namespace {

using namespace kov;
using kov::test::card;
using kov::test::deck;
using kov::test::written;

/// A node as a file gives it.
std::shared_ptr<cNode> addNode(cNodes& nodes, std::int16_t id, std::int16_t aeroType = 0, std::int16_t thermoType = 1) {
    const auto text = deck({card({std::to_string(id), std::to_string(aeroType), std::to_string(thermoType)}), "", ""});
    CardReader reader(text);
    EXPECT_TRUE(nodes.ReadNodes(reader, 1));
    return nodes.Nodes.at(Position(nodes.Count()));
}

std::string numbersOf(const cNodes& nodes) {
    std::string numbers;
    for (const auto& node : nodes.Nodes) {
        numbers += std::to_string(node->id()) + " ";
    }
    return numbers;
}

cNodes threeNodes() {
    cNodes nodes;
    for (const auto id : std::initializer_list<std::int16_t>{1, 2, 3}) {
        addNode(nodes, id);
    }
    return nodes;
}

/// Branches at one node: line sections positive, vent sections negative.
void enterAll(NodeTable& table, std::int32_t node, std::initializer_list<std::int16_t> branches) {
    for (const auto branch : branches) {
        table.enter(node, branch);
    }
}

/// What becomes of a node of these types with these branches.
std::shared_ptr<cNode> rebuilt(std::int16_t aeroType, std::int16_t thermoType, std::initializer_list<std::int16_t> branches) {
    cNodes nodes;
    auto node = addNode(nodes, 5, aeroType, thermoType);
    NodeTable table;
    enterAll(table, 5, branches);
    nodes.BuildNodes(table);
    EXPECT_EQ(nodes.Count(), 1);
    EXPECT_EQ(table.branches(5), -1);
    return node;
}

/// The node that is made where there was none.
std::shared_ptr<cNode> built(std::initializer_list<std::int16_t> branches) {
    cNodes nodes;
    NodeTable table;
    enterAll(table, 5, branches);
    nodes.BuildNodes(table);
    EXPECT_EQ(numbersOf(nodes), "5 ");
    return nodes.Nodes.at(Position(1));
}

void expectTypes(const cNode& node, int aeroType, int thermoType) {
    EXPECT_EQ(node.AType(), aeroType);
    EXPECT_EQ(node.TType(), thermoType);
}

void expectJunction(const cNode& node, int first, int second, int third) {
    const auto data = node.GetA4();
    EXPECT_EQ(data.i1, first);
    EXPECT_EQ(data.i2, second);
    EXPECT_EQ(data.i3, third);
    EXPECT_EQ(data.AR.view(), "1.        ");
    EXPECT_EQ(data.Angle.view(), "20.       ");
}

TEST(Nodes, DefaultsOfANewDataSet) {
    const cNodes nodes;
    EXPECT_EQ(nodes.Count(), 0);
    EXPECT_EQ(nodes.ClipNode, nullptr);
    expectTypes(*nodes.DefaultNode, 0, 1);
    const auto data = nodes.DefaultNode->GetA4();
    EXPECT_EQ(data.i1, 1);
    EXPECT_EQ(data.i2, 2);
    EXPECT_EQ(data.i3, 3);
    EXPECT_EQ(data.AR.view(), "1.        ");
    EXPECT_EQ(data.Angle.view(), "10.       ");
    for (const auto& cell : nodes.DefaultNode->GetT2()) {
        EXPECT_EQ(cell.view(), "0.        ");
    }
}

TEST(Nodes, AddBelowOneAppendsAndElsewhereGoesBefore) {
    auto nodes = threeNodes();
    nodes.Add(Position(-1))->setId(8);
    nodes.Add(Position(4))->setId(9);
    EXPECT_EQ(numbersOf(nodes), "1 2 3 9 8 ");
    EXPECT_THROW((void)nodes.Add(Position(6)), Failure);
}

TEST(Nodes, AddedNodeIsUnnumberedAndTakesOnlyWhatTheDefaultsTypeUses) {
    cNodes nodes;
    const auto straight = nodes.Add(Position(0));
    EXPECT_EQ(straight->id(), 0);
    EXPECT_EQ(straight->GetA4().i1, 0);
    nodes.DefaultNode->setAType(4);
    const auto junction = nodes.Add(Position(0));
    EXPECT_EQ(junction->GetA4().i1, 1);
    EXPECT_EQ(junction->GetA4().Angle.trimmed(), "10.");
}

TEST(Nodes, NodeOutsideTheListIsNone) {
    const auto nodes = threeNodes();
    EXPECT_EQ(nodes.Node(Position(0)), nullptr);
    EXPECT_EQ(nodes.Node(Position(4)), nullptr);
    EXPECT_EQ(nodes.Node(Position(3))->id(), 3);
}

TEST(Nodes, CutTakesTheEntryIntoTheClipAndPastePutsAnUnnumberedCopyBefore) {
    cNodes nodes;
    addNode(nodes, 1, 7);
    addNode(nodes, 2);
    nodes.Cut(Position(1));
    EXPECT_EQ(numbersOf(nodes), "2 ");
    nodes.Paste(Position(1));
    EXPECT_EQ(numbersOf(nodes), "0 2 ");
    EXPECT_EQ(nodes.Node(Position(1))->AType(), 7);
    EXPECT_NE(nodes.Node(Position(1)), nodes.ClipNode);
}

TEST(Nodes, PasteFromAnEmptyClipOrPastTheEndFails) {
    auto nodes = threeNodes();
    EXPECT_THROW(nodes.Paste(Position(1)), Failure);
    nodes.Copy(Position(1));
    EXPECT_EQ(nodes.Count(), 3);
    EXPECT_THROW(nodes.Paste(Position(4)), Failure);
    EXPECT_EQ(nodes.Count(), 3);
}

TEST(Nodes, PositionsOutsideTheListFail) {
    auto nodes = threeNodes();
    EXPECT_THROW(nodes.Copy(Position(4)), Failure);
    EXPECT_THROW(nodes.Cut(Position(0)), Failure);
    EXPECT_THROW(nodes.Delete(Position(4)), Failure);
    EXPECT_THROW(nodes.SetDefault(Position(4)), Failure);
    nodes.Delete(Position(2));
    EXPECT_EQ(numbersOf(nodes), "1 3 ");
}

TEST(Nodes, SetDefaultMakesACopyTheModelForNewNodes) {
    cNodes nodes;
    addNode(nodes, 4, 7, 2);
    nodes.SetDefault(Position(1));
    nodes.Node(Position(1))->setAType(0);
    EXPECT_EQ(nodes.DefaultNode->id(), 0);
    expectTypes(*nodes.Add(Position(0)), 7, 2);
}

TEST(Nodes, BranchedNodesAreCounted) {
    cNodes nodes;
    addNode(nodes, 1, 0);
    addNode(nodes, 2, 1);
    addNode(nodes, 3, 7);
    EXPECT_EQ(nodes.BrCount(), 2);
    EXPECT_EQ(nodes.Count(), 3);
}

TEST(Nodes, GridListsTheNumbersAlone) {
    const auto nodes = threeNodes();
    Grid grid;
    grid.addItem("old");
    grid.addItem("older");
    nodes.NodeList(grid);
    ASSERT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.line(0), " 1");
    EXPECT_EQ(grid.line(2), " 3");
}

TEST(Nodes, GridOfNoNodesKeepsItsFirstRow) {
    Grid grid;
    grid.setText(0, 0, "first");
    grid.addItem("old");
    cNodes().NodeList(grid);
    ASSERT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.line(0), "first");
}

TEST(Nodes, NodesAreReadAndWrittenInFileOrder) {
    const auto text = deck({card({" 9", " 2", " 1"}), card({" 1", " 2", " 3"}), card({" 4", " 0", " 3"}),
                            card({"70.", "60.", "70.", "60.", "70.", "60."})});
    CardReader reader(text);
    cNodes nodes;
    ASSERT_TRUE(nodes.ReadNodes(reader, 2));
    EXPECT_EQ(numbersOf(nodes), "9 4 ");
    EXPECT_EQ(written([&](CardWriter& writer) { nodes.WriteNodes(writer); }), text);
}

TEST(Nodes, ReadingStopsAtTheFirstNodeThatFails) {
    const auto text = deck({card({" 1", " 0", " 1"}), card({" 2", " 4", " 1"})});
    CardReader reader(text);
    cNodes nodes;
    EXPECT_FALSE(nodes.ReadNodes(reader, 2));
    EXPECT_EQ(numbersOf(nodes), "1 ");
}

TEST(BuildNodes, NewNodesGetTheTypesOfTheirBranches) {
    expectTypes(*built({101}), 0, 3);
    expectTypes(*built({-301}), 0, 3);
    expectTypes(*built({101, 102}), 0, 1);
    expectTypes(*built({101, 102, 103}), 2, 1);
    expectTypes(*built({101, 102, -301}), 3, 1);
    expectTypes(*built({101, 102, 103, 104}), 1, 1);
    expectTypes(*built({101, 102, 103, -301}), 7, 1);
    expectTypes(*built({101, 102, 103, 104, 105}), 7, 1);
    expectTypes(*built({101, 102, 103, 104, -301}), 7, 1);
}

TEST(BuildNodes, NewCrossoverGetsFourBranchesAndAspectRatioOne) {
    const auto node = built({101, 102, 103, 104});
    const auto data = node->GetA1();
    EXPECT_EQ(data.i1, 101);
    EXPECT_EQ(data.i2, 102);
    EXPECT_EQ(data.i3, 103);
    EXPECT_EQ(data.i4, 104);
    EXPECT_EQ(data.AR.view(), "1.        ");
    EXPECT_TRUE(node->GetA4().Angle.blank());
}

TEST(BuildNodes, EveryOtherBranchedTypeGetsThreeBranchesWithoutSignAspectRatioAndAngle) {
    expectJunction(*built({101, 102, 103}), 101, 102, 103);
    expectJunction(*built({101, 102, -301}), 101, 102, 301);
    expectJunction(*built({101, -301, -302, -303}), 101, 301, 302);
}

TEST(BuildNodes, StraightNodesGetNoBranches) {
    const auto node = built({101, 102});
    EXPECT_EQ(node->GetA1().i1, 0);
    EXPECT_TRUE(node->GetA1().AR.blank());
}

TEST(BuildNodes, MixingOfAStraightNodeFollowsItsBranches) {
    expectTypes(*rebuilt(0, 3, {101, 102}), 0, 1);
    expectTypes(*rebuilt(0, 1, {101}), 0, 3);
    expectTypes(*rebuilt(0, 2, {101, 102}), 0, 1);
}

TEST(BuildNodes, StraightNodeOfThreeOrMoreBranchesBecomesAJunction) {
    const auto node = rebuilt(0, 2, {101, 102, 103});
    expectTypes(*node, 2, 1);
    expectJunction(*node, 101, 102, 103);
    expectTypes(*rebuilt(0, 1, {101, 102, 103, -301}), 7, 1);
}

TEST(BuildNodes, CrossoverOfFourBranchesStaysAsItIs) {
    const auto kept = rebuilt(1, 2, {101, 102, 103, -301});
    expectTypes(*kept, 1, 2);
    EXPECT_EQ(kept->GetA1().i1, 0);
    expectTypes(*rebuilt(1, 2, {101, 102, -301}), 3, 1);
    expectTypes(*rebuilt(1, 2, {101}), 0, 3);
}

TEST(BuildNodes, JunctionsAlwaysGoBackToTheTypeOfTheirBranches) {
    for (const auto type : std::initializer_list<std::int16_t>{2, 3, 4, 5}) {
        const auto three = rebuilt(type, 1, {101, 102, -301});
        expectTypes(*three, 3, 1);
        expectJunction(*three, 101, 102, 301);
        expectTypes(*rebuilt(type, 1, {101, 102, 103}), 2, 1);
        expectTypes(*rebuilt(type, 1, {101, 102}), 0, 1);
        expectTypes(*rebuilt(type, 1, {101, 102, 103, 104}), 1, 1);
    }
}

TEST(BuildNodes, HandMadeYJunctionLosesItsAngle) {
    cNodes nodes;
    const auto node = addNode(nodes, 5, 5);
    node->SetA5({.i1 = 9, .i2 = 8, .i3 = 7, .AR = "2.5", .Angle = "60."});
    NodeTable table;
    enterAll(table, 5, {101, 102, 103});
    nodes.BuildNodes(table);
    expectTypes(*node, 2, 1);
    expectJunction(*node, 101, 102, 103);
}

TEST(BuildNodes, NodeWithoutPressureChangeStaysWithThreeBranchesOrMore) {
    expectTypes(*rebuilt(7, 2, {101, 102, 103}), 7, 2);
    expectTypes(*rebuilt(7, 2, {101, 102, 103, 104}), 7, 2);
    expectTypes(*rebuilt(7, 2, {101, 102}), 0, 1);
    expectTypes(*rebuilt(7, 2, {101}), 0, 3);
}

TEST(BuildNodes, NodeOfAnUnknownTypeIsLeftAlone) {
    expectTypes(*rebuilt(6, 9, {101, 102, 103}), 6, 9);
    expectTypes(*rebuilt(-1, 2, {101}), -1, 2);
}

TEST(BuildNodes, StraightenedJunctionKeepsItsOldBranches) {
    cNodes nodes;
    const auto node = addNode(nodes, 5, 4);
    node->SetA4({.i1 = 9, .i2 = 8, .i3 = 7, .AR = "2.5", .Angle = "60."});
    NodeTable table;
    enterAll(table, 5, {101, 102});
    nodes.BuildNodes(table);
    expectTypes(*node, 0, 1);
    EXPECT_EQ(node->GetA4().i1, 9);
    EXPECT_EQ(node->GetA4().Angle.trimmed(), "60.");
}

TEST(BuildNodes, UnusedNodesGoAndMissingOnesAreAppendedOutOfOrder) {
    cNodes nodes;
    addNode(nodes, 20);
    addNode(nodes, 30);
    addNode(nodes, 10);
    NodeTable table;
    enterAll(table, 20, {101});
    enterAll(table, 10, {101});
    enterAll(table, 15, {102});
    enterAll(table, 5, {102});
    nodes.BuildNodes(table);
    EXPECT_EQ(numbersOf(nodes), "20 10 5 15 ");
}

TEST(BuildNodes, NewNodesAreCopiesOfTheDefault) {
    cNodes nodes;
    nodes.DefaultNode->setTType(3);
    nodes.DefaultNode->SetT3({"70.", "60.", "71.", "61.", "72.", "62."});
    NodeTable table;
    enterAll(table, 5, {101});
    nodes.BuildNodes(table);
    EXPECT_EQ(nodes.Node(Position(1))->GetT3()[0].trimmed(), "70.");
}

TEST(BuildNodes, Nodes1000And0AreCountedButNotMade) {
    cNodes nodes;
    NodeTable table;
    enterAll(table, 1000, {101});
    enterAll(table, 0, {101});
    enterAll(table, 999, {102});
    nodes.BuildNodes(table);
    EXPECT_EQ(numbersOf(nodes), "999 ");
    cNodes withThem;
    addNode(withThem, 1000, 0, 1);
    NodeTable again;
    enterAll(again, 1000, {101});
    withThem.BuildNodes(again);
    EXPECT_EQ(numbersOf(withThem), "1000 ");
    EXPECT_EQ(withThem.Node(Position(1))->TType(), 3);
}

TEST(BuildNodes, NodeNumberOutsideTheTableFails) {
    for (const auto id : std::initializer_list<std::int16_t>{1001, -1}) {
        cNodes nodes;
        addNode(nodes, id);
        NodeTable table;
        EXPECT_THROW(nodes.BuildNodes(table), Failure);
    }
}

TEST(BuildNodes, SecondNodeOfOneNumberFails) {
    for (const auto type : std::initializer_list<std::int16_t>{0, 1, 2, 7, 6}) {
        cNodes nodes;
        addNode(nodes, 5, type);
        addNode(nodes, 5, type);
        NodeTable table;
        enterAll(table, 5, {101, 102, 103});
        EXPECT_THROW(nodes.BuildNodes(table), Failure);
    }
}

TEST(BuildNodes, SecondNodeOfAnUnusedNumberIsRemovedLikeTheFirst) {
    cNodes nodes;
    addNode(nodes, 5);
    addNode(nodes, 5);
    NodeTable table;
    nodes.BuildNodes(table);
    EXPECT_EQ(nodes.Count(), 0);
}

} // namespace
