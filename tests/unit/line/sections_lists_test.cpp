#include "unit/line/line_cards.hpp"

#include "core/cards/failure.hpp"

#include <gtest/gtest.h>

namespace kov::test {
namespace {

Lines itemsOf(const ItemList& list) {
    Lines items;
    items.reserve(static_cast<std::size_t>(list.count()));
    for (int index = 0; index < list.count(); ++index) {
        items.push_back(list.item(index));
    }
    return items;
}

std::shared_ptr<cSection> addSection(cSections& sections, std::int16_t number, std::int16_t start, std::int16_t stop) {
    auto section = sections.Add(Position{0});
    section->id = number;
    section->StartNode = start;
    section->StopNode = stop;
    return section;
}

TEST(SectionList, HasFiveColumnsAndLosesTheEmptyRow) {
    cSections sections;
    addSection(sections, 12, 3, -4)->InitAir = "500.";
    addSection(sections, -1, 4, 5)->AddSeg();
    Grid grid;
    grid.setCols(5);
    sections.SectList(grid);
    EXPECT_EQ(linesOf(grid), (Lines{" 12\t 3\t-4\t 1\t500.      ", "-1\t 4\t 5\t 2\t0.        "}));
}

TEST(SectionList, WithoutSectionsKeepsTheEmptyRow) {
    const cSections sections;
    Grid grid;
    grid.setCols(5);
    sections.SectList(grid);
    EXPECT_EQ(linesOf(grid), Lines{""});
}

TEST(SegmentList, GivesSegmentsWithoutANumberThatOfTheirSection) {
    cSections sections;
    const auto section = addSection(sections, 0, 1, 2);
    const auto numbered = section->AddSeg();
    numbered->id = 31;
    Grid grid;
    grid.setCols(2);
    Collection<cSegment> segments;
    sections.SegList(grid, segments);
    EXPECT_EQ(section->Segment(Position{1})->id, 0);
    EXPECT_EQ(linesOf(grid), (Lines{" 0\t 0", " 0\t 31"}));

    section->id = 7;
    Grid later;
    later.setCols(2);
    Collection<cSegment> laterSegments;
    sections.SegList(later, laterSegments);
    EXPECT_EQ(section->Segment(Position{1})->id, 7);
    EXPECT_EQ(linesOf(later), (Lines{" 7\t 7", " 7\t 31"}));
}

TEST(SegmentList, RowsAndEntriesGoTogether) {
    cSections sections;
    const auto first = addSection(sections, 1, 1, 2);
    const auto second = addSection(sections, 2, 2, 3);
    second->AddSeg();
    Grid grid;
    grid.setCols(2);
    Collection<cSegment> segments;
    sections.SegList(grid, segments);
    ASSERT_EQ(grid.rows(), 3);
    ASSERT_EQ(segments.count(), 3);
    EXPECT_EQ(segments.at(Position{1}), first->Segment(Position{1}));
    EXPECT_EQ(segments.at(Position{2}), second->Segment(Position{1}));
    EXPECT_EQ(segments.at(Position{3}), second->Segment(Position{2}));
    EXPECT_EQ(grid.line(2), " 2\t 2");
}

TEST(SegmentList, WithoutSegmentsKeepsTheEmptyRow) {
    cSections sections;
    Grid grid;
    Collection<cSegment> segments;
    sections.SegList(grid, segments);
    EXPECT_EQ(linesOf(grid), Lines{""});
    EXPECT_TRUE(segments.empty());
}

TEST(SegmentCollection, AppendsEverySegmentAndTouchesNoNumber) {
    cSections sections;
    const auto section = addSection(sections, 7, 1, 2);
    addSection(sections, 8, 2, 3);
    Collection<cSegment> segments;
    segments.append(std::make_shared<cSegment>());
    sections.SegCol(segments);
    ASSERT_EQ(segments.count(), 3);
    EXPECT_EQ(segments.at(Position{2}), section->Segment(Position{1}));
    EXPECT_EQ(section->Segment(Position{1})->id, 0);
}

TEST(ZoneRecords, EverySegmentGetsOneUnderItsNumber) {
    cSections sections;
    addSection(sections, 1, 1, 2)->Segment(Position{1})->id = 12;
    addSection(sections, 2, 2, 3)->Segment(Position{1})->id = -3;
    ZsectList zsects;
    sections.SegZList(zsects);
    ASSERT_EQ(zsects.size(), 2U);
    EXPECT_EQ(zsects.at(" 12").sid, " 12");
    EXPECT_FALSE(zsects.at(" 12").vent);
    EXPECT_FALSE(zsects.at(" 12").used);
    EXPECT_EQ(zsects.at("-3").sid, "-3");
}

TEST(ZoneRecords, TwoSegmentsWithOneNumberAreAFailure) {
    cSections sections;
    addSection(sections, 1, 1, 2)->Segment(Position{1})->id = 12;
    addSection(sections, 2, 2, 3)->Segment(Position{1})->id = 12;
    ZsectList zsects;
    EXPECT_THROW(sections.SegZList(zsects), Failure);
}

TEST(SectionShortList, LeavesOutWhatIsUsedInEitherDirection) {
    cSections sections;
    for (const std::int16_t number : std::vector<std::int16_t>{1, 2, 3, 12}) {
        addSection(sections, number, 1, 2);
    }
    ItemList available;
    available.addItem("left over");
    ItemList used;
    used.addItem(" 1");
    used.addItem("-3 backwards");
    used.addItem(" ");
    sections.SectShortList(available, used);
    EXPECT_EQ(itemsOf(available), (Lines{"2", "12"}));
}

TEST(SectionShortList, ABlankEntryStandsForASectionWithoutNumber) {
    cSections sections;
    addSection(sections, 0, 1, 2);
    addSection(sections, -5, 1, 2);
    ItemList available;
    ItemList used;
    sections.SectShortList(available, used);
    EXPECT_EQ(itemsOf(available), (Lines{"0", "-5"}));
    used.addItem(" ");
    used.addItem("-5");
    sections.SectShortList(available, used);
    EXPECT_EQ(itemsOf(available), (Lines{"-5"}));
}

TEST(NodeTableOfSections, EverySectionStandsAtBothItsNodes) {
    cSections sections;
    addSection(sections, 11, 1, 2);
    addSection(sections, 12, 2, 4);
    NodeTable nodes;
    sections.NodeList(nodes);
    EXPECT_EQ(nodes.branches(1), 1);
    EXPECT_EQ(nodes.branch(1, 1), 11);
    EXPECT_EQ(nodes.branches(2), 2);
    EXPECT_EQ(nodes.branch(2, 1), 11);
    EXPECT_EQ(nodes.branch(2, 2), 12);
    EXPECT_EQ(nodes.branches(4), 1);
    EXPECT_EQ(nodes.branches(3), 0);
}

TEST(NodeTableOfSections, ASectionFromANodeToItselfIsEnteredTwice) {
    cSections sections;
    addSection(sections, 9, 3, 3);
    NodeTable nodes;
    sections.NodeList(nodes);
    EXPECT_EQ(nodes.branches(3), 2);
    EXPECT_EQ(nodes.branch(3, 1), 9);
    EXPECT_EQ(nodes.branch(3, 2), 9);
}

TEST(NodeTableOfSections, ANodeOutsideTheTableIsAFailure) {
    for (const std::int16_t node : std::vector<std::int16_t>{-1, 1001}) {
        cSections sections;
        addSection(sections, 9, 3, node);
        NodeTable nodes;
        EXPECT_THROW(sections.NodeList(nodes), Failure);
    }
}

} // namespace
} // namespace kov::test
