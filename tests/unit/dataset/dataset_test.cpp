#include "core/cards/failure.hpp"
#include "unit/dataset/support.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace kov {
namespace {

using test::linesOf;
using test::written;

TEST(ANewDataSet, IsWrittenWithItsDefaults) {
    KOVDataSet data;
    const auto lines = linesOf(written(data));
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines[0], std::string(80, ' ')) << "the identification keeps its 80 columns, title lines are all blank";
    EXPECT_EQ(lines[1], "12.       7.        1997.     ");
    EXPECT_EQ(lines[2], " 0         0         1         0         0         0         0         0        ");
    EXPECT_EQ(lines[3], " 0         0         0         0         0                   0         0        ");
    EXPECT_EQ(lines[4], " 0         0         0         2         0         0         0         0        ");
    EXPECT_EQ(lines[5], "0.        0.        0.        0.        0.        0.        0.        0.        ");
    EXPECT_EQ(lines[6], "100.      0.        0.        0.        0.        0.         0        0.        ");
    EXPECT_EQ(lines[7], "10.        0        ");
    EXPECT_EQ(lines[8], "10.       120.       5         5        ");
}

TEST(ANewDataSet, HasTheCountsOfTheSmallestNetworkUntilItIsWritten) {
    KOVDataSet data;
    EXPECT_EQ(data.cardCounts().NSections, 1);
    EXPECT_EQ(data.cardCounts().NNodes, 2);
    EXPECT_EQ(data.NLS(), 0);
    EXPECT_EQ(data.NVSec(), 0);
    EXPECT_EQ(data.NFans(), 0);
    EXPECT_EQ(data.NPGroups(), 0);
    static_cast<void>(written(data));
    EXPECT_EQ(data.cardCounts().NSections, 0);
    EXPECT_EQ(data.cardCounts().NNodes, 0);
}

TEST(ANewDataSet, HasBlankTextsAndNoForm) {
    const KOVDataSet data;
    EXPECT_TRUE(data.Sysid.blank());
    EXPECT_EQ(data.Title(), "");
    EXPECT_EQ(data.CurForm, "");
    EXPECT_EQ(data.lineEnd, "");
    EXPECT_TRUE(data.RstFileName.blank());
}

TEST(TheIdentification, KeepsItsFirst80Characters) {
    KOVDataSet data;
    const std::string text = std::string(79, 'x') + "yz";
    data.Sysid = std::string_view(text);
    EXPECT_EQ(data.Sysid.text(), std::string(79, 'x') + "y");
}

TEST(TheTitle, IsWrittenWithoutBlankLinesAndTrailingBlanks) {
    KOVDataSet data;
    data.setTitle("one  \r\n\r\nthree");
    const auto lines = linesOf(written(data));
    EXPECT_EQ(lines[1], "one");
    EXPECT_EQ(lines[2], "three");
    EXPECT_EQ(lines[3].substr(0, 3), "12.");
}

TEST(TheCountOfLineSections, IsTheTrueOneEvenWhenTheCardsSayOtherwise) {
    KOVDataSet data;
    data.Sections.Add(Position{0});
    data.Sections.Add(Position{0});
    EXPECT_EQ(data.cardCounts().NLSections, 0);
    EXPECT_EQ(data.NLSec(), 2);
}

TEST(PrintGroups, AreFoundByTheirNumber) {
    KOVDataSet data;
    for (std::int16_t i = 1; i <= 5; ++i) {
        auto group = std::make_shared<cPGroup>();
        group->setPGroup({i, "60.", 0, 0, 0, 0});
        data.AddPGroup(group);
    }
    EXPECT_EQ(data.NPGroups(), 5);
    EXPECT_EQ(data.PGroup(5)->getPGroup().NIntervals, 5);
    EXPECT_EQ(data.PGroup(7), nullptr);
    EXPECT_EQ(data.PGroup(0), nullptr);
    EXPECT_EQ(data.PGroup(25), nullptr);
    EXPECT_THROW(static_cast<void>(data.PGroup(26)), Failure);
    EXPECT_THROW(static_cast<void>(data.PGroup(-1)), Failure);
}

TEST(PrintGroups, AreAtMost25) {
    KOVDataSet data;
    for (int i = 1; i <= 25; ++i) {
        data.AddPGroup(std::make_shared<cPGroup>());
    }
    EXPECT_NE(data.PGroup(25), nullptr);
    EXPECT_THROW(data.AddPGroup(std::make_shared<cPGroup>()), Failure);
}

TEST(PrintGroups, AreAllGoneAfterClearing) {
    KOVDataSet data;
    data.AddPGroup(std::make_shared<cPGroup>());
    data.ClrPGroup();
    EXPECT_EQ(data.NPGroups(), 0);
    EXPECT_EQ(data.PGroup(1), nullptr);
}

TEST(APrintGroup, CopiesAllSixValues) {
    cPGroup source;
    source.setPGroup({-1, "60.", 2, 3, 4, 5});
    cPGroup copy;
    copy.XCopy(source);
    EXPECT_EQ(copy.getPGroup(), source.getPGroup());
}

TEST(APrintGroup, IsWrittenInSixFields) {
    cPGroup group;
    group.setPGroup({-1, " 300", 2, 3, 4, 5});
    CardWriter writer;
    group.WriteData(writer);
    EXPECT_EQ(writer.content(), "-1         300       2         3         4         5        \n");
}

TEST(ANewPrintGroup, HasABlankIntervalLength) {
    CardWriter writer;
    cPGroup().WriteData(writer);
    EXPECT_EQ(writer.content(), " 0                   0         0         0         0        \n");
}

TEST(TheCounts, LeaveOutWhatItsOptionSwitchesOff) {
    KOVDataSet data;
    for (int i = 0; i < 3; ++i) {
        data.Routes.Add(Position{0});
    }
    data.Trains.Add(Position{0});
    data.ECZones.Add(Position{0});
    auto counts = data.getCounts();
    EXPECT_EQ(counts.routes, 0);
    EXPECT_EQ(counts.trains, 0);
    EXPECT_EQ(counts.zones, 0);
    data.TPOpt = 1;
    data.ECLOpt = 1;
    counts = data.getCounts();
    EXPECT_EQ(counts.routes, 3);
    EXPECT_EQ(counts.trains, 1);
    EXPECT_EQ(counts.zones, 1);
}

TEST(TheCounts, CountTheNetwork) {
    KOVDataSet data;
    data.Sections.Add(Position{0});
    data.Sections.Add(Position{0});
    data.Vents.Add(Position{0});
    data.Fires.Add();
    const auto counts = data.getCounts();
    EXPECT_EQ(counts.segments, 2) << "a new section has one segment";
    EXPECT_EQ(counts.sections, 2);
    EXPECT_EQ(counts.vents, 1);
    EXPECT_EQ(counts.fires, 1);
    EXPECT_EQ(counts.nodes, 0);
    EXPECT_EQ(counts.fans, 0);
    EXPECT_EQ(counts.impulseFans, 0);
    EXPECT_EQ(counts.initialTrains, 0);
}

TEST(BuildingNodes, MakesANodeForEveryEndOfASection) {
    KOVDataSet data;
    const auto section = data.Sections.Add(Position{0});
    section->id = 4;
    section->StartNode = 7;
    section->StopNode = 9;
    const auto table = data.buildNodeTable();
    EXPECT_EQ(table.branches(7), 1);
    EXPECT_EQ(table.branch(9, 1), 4);
    data.BuildNodes();
    EXPECT_EQ(data.Nodes.Count(), 2);
}

} // namespace
} // namespace kov
