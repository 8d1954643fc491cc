#include "unit/line/line_cards.hpp"

#include "core/cards/failure.hpp"

#include <gtest/gtest.h>

namespace kov::test {
namespace {

using Numbers = std::vector<int>;

/// Sections with these numbers, one segment each, from node 1 to node 2.
cSections sectionsNumbered(const Numbers& numbers) {
    cSections sections;
    for (const int number : numbers) {
        sections.Add(Position{0})->id = static_cast<std::int16_t>(number);
    }
    return sections;
}

Numbers numbersOf(const cSections& sections) {
    Numbers numbers;
    for (const auto& section : sections.SectColl) {
        numbers.push_back(section->id);
    }
    return numbers;
}

TEST(Sections, TheDefaultSegmentHasItsValues) {
    const cSections sections;
    const auto& segment = *sections.DefaultSegment;
    EXPECT_EQ(segment.id, 1);
    EXPECT_EQ(segment.sType, 1);
    EXPECT_EQ(segment.statedSubs(), 1);
    EXPECT_EQ(segment.Title.trimmed(), "New");
    EXPECT_EQ(segment.Fire, 0);
    EXPECT_EQ(segment.NSSHS, 0);
    for (const auto* text : {&segment.sLen, &segment.XArea, &segment.Height, &segment.HLFP, &segment.HLFN, &segment.HLBP,
                             &segment.HLBN, &segment.WWS, &segment.Perim[1], &segment.Rough[1], &segment.WThk, &segment.WDist,
                             &segment.WCond, &segment.WDiff, &segment.SCond, &segment.SDiff, &segment.TSink}) {
        EXPECT_EQ(text->view(), "0.        ");
    }
    EXPECT_EQ(segment.SubSeg(Position{1})->getSubSeg().wall.trimmed(), "60.");
    const auto& second = segment.SubSeg(Position{2})->getSubSeg();
    EXPECT_EQ(second.start, 1);
    EXPECT_EQ(second.stop, 1);
    EXPECT_EQ(second.wall.view(), "0         ");
    EXPECT_EQ(second.dryBulb.view(), "0         ");
    EXPECT_EQ(second.wetBulb.view(), "0         ");
}

TEST(Sections, TheDefaultSectionsSegmentLacksTheSecondSubsegment) {
    const cSections sections;
    const auto& section = *sections.DefaultSection;
    EXPECT_EQ(section.id, 1);
    EXPECT_EQ(section.StartNode, 1);
    EXPECT_EQ(section.StopNode, 2);
    EXPECT_EQ(section.InitAir.view(), "0.        ");
    ASSERT_EQ(section.nLSegs(), 1);
    const auto segment = section.Segment(Position{1});
    EXPECT_EQ(segment->id, 1);
    EXPECT_EQ(segment->Title.trimmed(), "New");
    EXPECT_EQ(segment->SubSeg(Position{1})->getSubSeg().wall.trimmed(), "60.");
    EXPECT_THROW(static_cast<void>(segment->SubSeg(Position{2})), Failure);
}

TEST(Sections, NothingIsCopiedAtFirst) {
    cSections sections;
    EXPECT_EQ(sections.Count(), 0);
    EXPECT_EQ(sections.ClipSection, nullptr);
    EXPECT_THROW(sections.Paste(Position{1}), Failure);
    EXPECT_EQ(sections.Count(), 0);
}

TEST(Sections, AnAddedOneIsLikeTheDefaultWithoutNumbers) {
    cSections sections;
    const auto section = sections.Add(Position{0});
    EXPECT_EQ(section->id, 0);
    EXPECT_EQ(section->StartNode, 1);
    EXPECT_EQ(section->StopNode, 2);
    ASSERT_EQ(section->nLSegs(), 1);
    EXPECT_EQ(section->Segment(Position{1})->id, 0);
    EXPECT_EQ(section->Segment(Position{1})->Title.trimmed(), "New");
}

TEST(Sections, AddingBelowOneAppendsAndElsewhereInsertsAhead) {
    auto sections = sectionsNumbered({1, 2});
    sections.Add(Position{-1})->id = 3;
    sections.Add(Position{3})->id = 4;
    sections.Add(Position{1})->id = 5;
    EXPECT_EQ(numbersOf(sections), (Numbers{5, 1, 2, 4, 3}));
    EXPECT_THROW(sections.Add(Position{6}), Failure);
    EXPECT_EQ(sections.Count(), 5);
}

TEST(Sections, PastingAtTheLastPositionAppendsWhereAddingInserts) {
    auto sections = sectionsNumbered({1});
    sections.Copy(Position{1});
    sections.Paste(Position{1})->id = 2;
    EXPECT_EQ(numbersOf(sections), (Numbers{1, 2}));
    sections.Add(Position{1})->id = 3;
    EXPECT_EQ(numbersOf(sections), (Numbers{3, 1, 2}));
    sections.Paste(Position{2})->id = 4;
    EXPECT_EQ(numbersOf(sections), (Numbers{3, 4, 1, 2}));
    sections.Paste(Position{99})->id = 5;
    EXPECT_EQ(numbersOf(sections), (Numbers{3, 4, 1, 2, 5}));
    EXPECT_THROW(sections.Paste(Position{0}), Failure);
}

TEST(Sections, PastingIntoNoSectionsAppends) {
    auto sections = sectionsNumbered({1});
    sections.Cut(Position{1});
    EXPECT_EQ(sections.Count(), 0);
    sections.Paste(Position{0});
    EXPECT_EQ(sections.Count(), 1);
}

TEST(Sections, CopiesLoseTheNumbersAndAreObjectsOfTheirOwn) {
    auto sections = sectionsNumbered({7});
    const auto original = sections.Section(Position{1});
    original->Segment(Position{1})->id = 71;
    original->Segment(Position{1})->Title = "Tube";
    original->StopNode = 9;
    sections.Copy(Position{1});
    EXPECT_EQ(sections.ClipSection->id, 0);
    original->StopNode = 10;

    const auto pasted = sections.Paste(Position{1});
    EXPECT_EQ(pasted->id, 0);
    EXPECT_EQ(pasted->StopNode, 9);
    ASSERT_EQ(pasted->nLSegs(), 1);
    EXPECT_EQ(pasted->Segment(Position{1})->Title.trimmed(), "Tube");
    EXPECT_EQ(pasted->Segment(Position{1})->id, 0);
    EXPECT_NE(sections.Paste(Position{1}), pasted);
}

TEST(Sections, CuttingCopiesAndRemoves) {
    auto sections = sectionsNumbered({1, 2, 3});
    sections.Section(Position{2})->StopNode = 44;
    sections.Cut(Position{2});
    EXPECT_EQ(numbersOf(sections), (Numbers{1, 3}));
    EXPECT_EQ(sections.ClipSection->StopNode, 44);
}

TEST(Sections, DeletingRemovesAndCopiesNothing) {
    auto sections = sectionsNumbered({1, 2, 3});
    sections.Delete(Position{1});
    EXPECT_EQ(numbersOf(sections), (Numbers{2, 3}));
    EXPECT_EQ(sections.ClipSection, nullptr);
}

TEST(Sections, TheNewDefaultShapesLaterSections) {
    auto sections = sectionsNumbered({1, 2});
    sections.Section(Position{2})->StartNode = 50;
    sections.Section(Position{2})->AddSeg();
    sections.SetDefault(Position{2});
    EXPECT_EQ(sections.DefaultSection->id, 0);
    const auto added = sections.Add(Position{0});
    EXPECT_EQ(added->StartNode, 50);
    EXPECT_EQ(added->nLSegs(), 2);
}

TEST(Sections, APositionOutsideIsAFailure) {
    auto sections = sectionsNumbered({1});
    for (const int place : {0, 2}) {
        EXPECT_THROW(static_cast<void>(sections.Section(Position{place})), Failure);
        EXPECT_THROW(sections.Copy(Position{place}), Failure);
        EXPECT_THROW(sections.Cut(Position{place}), Failure);
        EXPECT_THROW(sections.Delete(Position{place}), Failure);
        EXPECT_THROW(sections.SetDefault(Position{place}), Failure);
    }
    EXPECT_EQ(sections.Count(), 1);
}

TEST(SectionsCards, AsManyAreReadAsAreAskedForAndWrittenInTheirOrder) {
    const auto text = card({" 5", " 1", " 2", " 0", "1.50"}) + card({" 3", " 2", " 3", " 0", "2."}) + "next card\n";
    CardReader reader(text);
    cSections sections;
    ASSERT_TRUE(sections.ReadSections(reader, 2));
    EXPECT_EQ(numbersOf(sections), (Numbers{5, 3}));
    EXPECT_EQ(reader.readLine(), "next card");
    CardWriter writer;
    sections.WriteSections(writer);
    EXPECT_EQ(writer.content() + "next card\n", text);
}

TEST(SectionsCards, ABadCardEndsTheReadingAndThoseBeforeItStay) {
    const auto text = card({" 5", " 1", " 2", " 1"}) + card({" 40000", " 2", " 3", " 1"}) + card({" 6", " 3", " 4", " 1"});
    CardReader reader(text);
    cSections sections;
    EXPECT_FALSE(sections.ReadSections(reader, 3));
    EXPECT_EQ(numbersOf(sections), (Numbers{5}));
}

TEST(SectionsCards, TheEndOfTheFileEndsTheReading) {
    const auto text = card({" 5", " 1", " 2", " 1"});
    CardReader reader(text);
    cSections sections;
    EXPECT_FALSE(sections.ReadSections(reader, 2));
    EXPECT_EQ(sections.Count(), 1);
    EXPECT_TRUE(sections.ReadSections(reader, 0));
}

TEST(SectionsCards, SegmentsAreReadSectionBySectionUntilOneIsBad) {
    const auto heads = card({" 5", " 1", " 2", " 1"}) + card({" 6", " 1", " 2", " 2"}) + card({" 7", " 1", " 2", " 1"});
    const auto group = GroupText{}.text();
    cSections whole;
    const auto good = heads + group + group + group + group;
    CardReader reader(good);
    ASSERT_TRUE(whole.ReadSections(reader, 3));
    ASSERT_TRUE(whole.ReadSegments(reader, NoControl));
    EXPECT_EQ(whole.Section(Position{2})->nLSegs(), 2);
    EXPECT_EQ(whole.Section(Position{3})->nLSegs(), 1);

    cSections cut;
    const auto bad = heads + group + group;
    CardReader cutReader(bad);
    ASSERT_TRUE(cut.ReadSections(cutReader, 3));
    EXPECT_FALSE(cut.ReadSegments(cutReader, NoControl));
    EXPECT_EQ(cut.Section(Position{2})->nLSegs(), 1);
    EXPECT_EQ(cut.Section(Position{3})->nLSegs(), 0);
}

} // namespace
} // namespace kov::test
