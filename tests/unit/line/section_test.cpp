#include "unit/line/line_cards.hpp"

#include "core/cards/failure.hpp"

#include <gtest/gtest.h>

namespace kov::test {
namespace {

bool reads(cSection& section, const std::string& text) {
    CardReader reader(text);
    return section.ReadData(reader);
}

std::string withoutHeaderNumber(cSegment& segment) { return written(segment, WithControl).substr(10); }

TEST(Section, ANewOneIsEmpty) {
    const auto section = cSection::make();
    EXPECT_EQ(section->id, 0);
    EXPECT_EQ(section->StartNode, 0);
    EXPECT_EQ(section->StopNode, 0);
    EXPECT_EQ(section->DeclaredSegs, 0);
    EXPECT_EQ(section->nLSegs(), 0);
    EXPECT_TRUE(section->InitAir.blank());
}

TEST(Section, TheCardFillsTheMembersAndGivesNoSegments) {
    const auto section = cSection::make();
    ASSERT_TRUE(reads(*section, card({" 12", " 3", " 4", " 2", "5000."})));
    EXPECT_EQ(section->id, 12);
    EXPECT_EQ(section->StartNode, 3);
    EXPECT_EQ(section->StopNode, 4);
    EXPECT_EQ(section->DeclaredSegs, 2);
    EXPECT_EQ(section->nLSegs(), 0);
    EXPECT_EQ(section->InitAir.view(), "5000.     ");
}

TEST(Section, TheCardIsWrittenWithTheSegmentsThatThereAre) {
    const auto section = cSection::make();
    ASSERT_TRUE(reads(*section, card({" 12", "-3", " 4", " 2", "  5E3  kg"})));
    EXPECT_EQ(written(*section), card({" 12", "-3", " 4", " 0", "5E3  kg"}));
    section->AddSeg();
    section->AddSeg();
    section->AddSeg();
    EXPECT_EQ(written(*section), card({" 12", "-3", " 4", " 3", "5E3  kg"}));
}

TEST(Section, WholeNumbersAreRoundedHalfToEvenAndMissingOnesAreZero) {
    const auto section = cSection::make();
    ASSERT_TRUE(reads(*section, "2.5       3.5\n"));
    EXPECT_EQ(section->id, 2);
    EXPECT_EQ(section->StartNode, 4);
    EXPECT_EQ(section->StopNode, 0);
    EXPECT_EQ(section->DeclaredSegs, 0);
    EXPECT_TRUE(section->InitAir.blank());
}

TEST(Section, ABlankCardIsASectionOfZeros) {
    const auto section = cSection::make();
    EXPECT_TRUE(reads(*section, "\n"));
    EXPECT_EQ(section->id, 0);
}

TEST(Section, TheEndOfTheFileAndTooLargeNumbersAreRefused) {
    const auto section = cSection::make();
    EXPECT_FALSE(reads(*section, ""));
    EXPECT_FALSE(reads(*section, card({" 1", " 2", " 40000", " 1", "0."})));
    EXPECT_FALSE(reads(*section, card({" 1", " 2", " 3", " 40000", "0."})));
}

TEST(Section, AddedSegmentsKnowTheirSectionBearItsNumberAndCountAsDeclared) {
    const auto section = cSection::make();
    section->id = 9;
    section->DeclaredSegs = 40;
    const auto segment = section->AddSeg();
    EXPECT_EQ(segment->Daddy.lock(), section);
    EXPECT_EQ(segment->id, 9);
    EXPECT_EQ(section->Segment(Position{1}), segment);
    EXPECT_EQ(section->DeclaredSegs, 1);
}

TEST(Section, ASegmentBeyondTheLastIsNoneAndBelowTheFirstAFailure) {
    const auto section = cSection::make();
    EXPECT_EQ(section->Segment(Position{1}), nullptr);
    section->AddSeg();
    EXPECT_NE(section->Segment(Position{1}), nullptr);
    EXPECT_EQ(section->Segment(Position{2}), nullptr);
    EXPECT_THROW(static_cast<void>(section->Segment(Position{0})), Failure);
    EXPECT_THROW(static_cast<void>(section->Segment(Position{-1})), Failure);
}

TEST(Section, InsertedSegmentsStandBesideTheirReferenceWithoutNumberOrDeclaration) {
    const auto section = cSection::make();
    section->id = 9;
    const auto first = section->AddSeg();
    const auto last = section->AddSeg();
    const auto before = section->InsertSeg(*last, true);
    const auto after = section->InsertSeg(*last, false);
    EXPECT_EQ(section->Segment(Position{1}), first);
    EXPECT_EQ(section->Segment(Position{2}), before);
    EXPECT_EQ(section->Segment(Position{3}), last);
    EXPECT_EQ(section->Segment(Position{4}), after);
    EXPECT_EQ(before->id, 0);
    EXPECT_EQ(before->Daddy.lock(), section);
    EXPECT_EQ(section->nLSegs(), 4);
    EXPECT_EQ(section->DeclaredSegs, 2);
}

TEST(Section, ASegmentInsertedBesideAStrangerIsAddedNowhere) {
    const auto section = cSection::make();
    section->AddSeg();
    const cSegment stranger;
    const auto segment = section->InsertSeg(stranger, true);
    ASSERT_NE(segment, nullptr);
    EXPECT_EQ(segment->Daddy.lock(), section);
    EXPECT_EQ(section->nLSegs(), 1);
}

TEST(Section, DeletingTakesThatVeryObjectAndLeavesTheDeclaration) {
    const auto section = cSection::make();
    const auto first = section->AddSeg();
    const auto last = section->AddSeg();
    section->DelSeg(*first);
    EXPECT_EQ(section->nLSegs(), 1);
    EXPECT_EQ(section->Segment(Position{1}), last);
    section->DelSeg(*first);
    EXPECT_EQ(section->nLSegs(), 1);
    EXPECT_EQ(section->DeclaredSegs, 2);
}

TEST(SectionCount, ALowerOneIsRefusedWithAMessage) {
    const auto section = cSection::make();
    section->AddSeg();
    section->AddSeg();
    NotedMessages messages;
    section->setNLSegs(1, messages);
    EXPECT_EQ(messages.shown, (std::vector<std::string>{"0||Cannot decrease number of segments.\r"
                                                        "Delete Segments on the Line Segment Form"}));
    EXPECT_EQ(section->nLSegs(), 2);
    EXPECT_EQ(section->DeclaredSegs, 2);
}

TEST(SectionCount, TheSameOneChangesNothing) {
    const auto section = cSection::make();
    section->AddSeg();
    NotedMessages messages;
    section->setNLSegs(1, messages);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(section->nLSegs(), 1);
}

TEST(SectionCount, AfterADeletionTheCountThatIsThereIsTakenForALowerOne) {
    const auto section = cSection::make();
    section->AddSeg();
    const auto last = section->AddSeg();
    section->DelSeg(*last);
    NotedMessages messages;
    section->setNLSegs(section->nLSegs(), messages);
    EXPECT_EQ(messages.shown.size(), 1U);
    // The count that was declared is taken for the same one, although a segment is missing.
    section->setNLSegs(2, messages);
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(section->nLSegs(), 1);
}

TEST(SectionCount, AHigherOneAddsCopiesOfTheLastSegment) {
    const auto section = cSection::make();
    section->id = 5;
    const auto first = section->AddSeg();
    first->Title = "Tube";
    first->WThk = "1.5";
    first->Perim[3] = "20.";
    first->id = 77;
    NotedMessages messages;
    section->setNLSegs(3, messages);
    ASSERT_EQ(section->nLSegs(), 3);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(section->DeclaredSegs, 3);
    for (const int place : {2, 3}) {
        const auto added = section->Segment(Position{place});
        EXPECT_EQ(added->id, 5);
        EXPECT_EQ(added->Daddy.lock(), section);
        EXPECT_EQ(withoutHeaderNumber(*added), withoutHeaderNumber(*first));
    }
}

TEST(SectionCount, AfterAnInsertionTheCountThatIsThereAddsNothingAndStaysUndeclared) {
    const auto section = cSection::make();
    const auto first = section->AddSeg();
    section->InsertSeg(*first, false);
    NotedMessages messages;
    section->setNLSegs(2, messages);
    EXPECT_EQ(section->nLSegs(), 2);
    EXPECT_EQ(section->DeclaredSegs, 1);
    section->setNLSegs(3, messages);
    EXPECT_EQ(section->nLSegs(), 3);
    EXPECT_EQ(section->DeclaredSegs, 3);
}

TEST(SectionCount, RaisingAnEmptySectionIsAFailureBehindTheFirstAddedSegment) {
    const auto section = cSection::make();
    NotedMessages messages;
    EXPECT_THROW(section->setNLSegs(2, messages), Failure);
    EXPECT_EQ(section->nLSegs(), 1);
}

TEST(SectionSegments, AsManyAreReadAsTheCardDeclares) {
    const auto section = cSection::make();
    section->id = 3;
    section->DeclaredSegs = 2;
    const auto text = GroupText{}.text() + GroupText{}.text() + "next card\n";
    CardReader reader(text);
    ASSERT_TRUE(section->ReadSegs(reader, NoControl));
    EXPECT_EQ(section->nLSegs(), 2);
    EXPECT_EQ(section->Segment(Position{2})->id, 101);
    EXPECT_EQ(section->Segment(Position{2})->Daddy.lock(), section);
    EXPECT_EQ(reader.readLine(), "next card");

    CardWriter writer;
    section->WriteSegs(writer, NoControl);
    EXPECT_EQ(writer.content(), GroupText{}.text() + GroupText{}.text());
}

TEST(SectionSegments, ADeclaredCountOfZeroOrLessReadsNothing) {
    for (const std::int16_t count : std::vector<std::int16_t>{0, -4}) {
        const auto section = cSection::make();
        section->DeclaredSegs = count;
        CardReader reader("untouched\n");
        EXPECT_TRUE(section->ReadSegs(reader, NoControl));
        EXPECT_EQ(reader.readLine(), "untouched");
    }
}

TEST(SectionSegments, ABadOneEndsTheReadingAndIsNotAdded) {
    const auto section = cSection::make();
    section->DeclaredSegs = 3;
    GroupText bad;
    bad.header = card({" 40000", " 1"});
    const auto text = GroupText{}.text() + bad.text() + GroupText{}.text();
    CardReader reader(text);
    EXPECT_FALSE(section->ReadSegs(reader, NoControl));
    EXPECT_EQ(section->nLSegs(), 1);
}

TEST(SectionCopy, TakesNodesAirAndSegmentsBehindThoseHereButNotTheNumber) {
    const auto source = cSection::make();
    source->id = 8;
    source->StartNode = 1;
    source->StopNode = 2;
    source->InitAir = "500.";
    source->AddSeg()->Title = "A";
    source->AddSeg()->Title = "B";
    const auto copy = cSection::make();
    copy->id = 6;
    copy->AddSeg()->Title = "mine";
    copy->XCopy(*source);
    EXPECT_EQ(copy->id, 6);
    EXPECT_EQ(copy->StartNode, 1);
    EXPECT_EQ(copy->StopNode, 2);
    EXPECT_EQ(copy->InitAir.trimmed(), "500.");
    ASSERT_EQ(copy->nLSegs(), 3);
    EXPECT_EQ(copy->DeclaredSegs, 3);
    EXPECT_EQ(copy->Segment(Position{1})->Title.trimmed(), "mine");
    EXPECT_EQ(copy->Segment(Position{2})->Title.trimmed(), "A");
    EXPECT_EQ(copy->Segment(Position{3})->Title.trimmed(), "B");
    EXPECT_EQ(copy->Segment(Position{3})->id, 6);
    EXPECT_EQ(copy->Segment(Position{3})->Daddy.lock(), copy);
}

TEST(SectionCopy, IntoItselfDoublesOnce) {
    const auto section = cSection::make();
    section->AddSeg();
    section->AddSeg();
    section->XCopy(*section);
    EXPECT_EQ(section->nLSegs(), 4);
}

} // namespace
} // namespace kov::test
