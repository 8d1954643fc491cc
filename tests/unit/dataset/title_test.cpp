#include "core/cards/failure.hpp"
#include "core/dataset/dataset.hpp"
#include "core/dataset/title.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kov {
namespace {

std::string line(const TitleLines& lines, std::size_t number) { return std::string(lines[number - 1].trimmed()); }

TEST(SplittingATitle, TakesItsLines) {
    const auto lines = splitTitle("First\r\n\r\nThird line");
    EXPECT_EQ(line(lines, 1), "First");
    EXPECT_EQ(line(lines, 2), "");
    EXPECT_EQ(line(lines, 3), "Third line");
    EXPECT_EQ(line(lines, 4), "");
}

TEST(SplittingATitle, WrapsAtTheLastBlankThatFits) {
    const std::string text = std::string(69, 'a') + " " + std::string(15, 'b');
    ASSERT_EQ(text.size(), 85U);
    const auto lines = splitTitle(text);
    EXPECT_EQ(line(lines, 1), std::string(69, 'a'));
    EXPECT_EQ(line(lines, 2), std::string(15, 'b'));
    EXPECT_EQ(line(lines, 3), "");
}

TEST(SplittingATitle, KeepsALineOfExactlyEightyCharacters) {
    const auto lines = splitTitle(std::string(80, 'x') + "\r\nmore");
    EXPECT_EQ(line(lines, 1), std::string(80, 'x'));
    EXPECT_EQ(line(lines, 2), "more");
}

TEST(SplittingATitle, MayWrapAtABlankInColumn81) {
    const auto lines = splitTitle(std::string(80, 'x') + " yz");
    EXPECT_EQ(line(lines, 1), std::string(80, 'x'));
    EXPECT_EQ(line(lines, 2), "yz");
}

TEST(SplittingATitle, MayWrapAtABlankInTheFirstColumn) {
    const auto lines = splitTitle(" " + std::string(80, 'x'));
    EXPECT_EQ(line(lines, 1), "") << "the line is empty and the blank is gone";
    EXPECT_EQ(line(lines, 2), std::string(80, 'x'));
}

TEST(SplittingATitle, WrapsWithinItsLineOnly) {
    const std::string longLine = std::string(70, 'a') + " " + std::string(20, 'b');
    const auto lines = splitTitle("x y\r\n" + longLine + "\r\nend");
    EXPECT_EQ(line(lines, 2), std::string(70, 'a'));
    EXPECT_EQ(line(lines, 3), std::string(20, 'b'));
    EXPECT_EQ(line(lines, 4), "end");
}

TEST(SplittingATitle, FailsOnALongLineWithoutABlank) {
    EXPECT_THROW(static_cast<void>(splitTitle(std::string(81, 'x'))), Failure);
    EXPECT_THROW(static_cast<void>(splitTitle(std::string(81, 'x') + " y")), Failure) << "the blank stands too far right";
}

TEST(SplittingATitle, LosesALastLineOfOneCharacter) {
    const auto lines = splitTitle("abc\r\nd");
    EXPECT_EQ(line(lines, 1), "abc");
    EXPECT_EQ(line(lines, 2), "");
    EXPECT_EQ(line(splitTitle("abc\r\nde"), 2), "de");
}

TEST(SplittingATitle, LosesOneCharacterBehindAWrapToo) {
    const auto lines = splitTitle(std::string(80, 'x') + " y");
    EXPECT_EQ(line(lines, 1), std::string(80, 'x'));
    EXPECT_EQ(line(lines, 2), "");
}

TEST(SplittingATitle, KeepsASingleCharacterThatIsTheWholeText) { EXPECT_EQ(line(splitTitle("d"), 1), "d"); }

TEST(SplittingATitle, IgnoresALineBreakAtTheEnd) {
    const auto lines = splitTitle("abc\r\n");
    EXPECT_EQ(line(lines, 1), "abc");
    EXPECT_EQ(line(lines, 2), "");
}

TEST(SplittingATitle, OfNoTextGivesBlankLines) {
    for (const auto& each : splitTitle("")) {
        EXPECT_TRUE(each.blank());
    }
}

TEST(SplittingATitle, LosesWhatIsBehindLine19) {
    std::string text;
    for (int i = 1; i <= 22; ++i) {
        text += "line " + std::to_string(i) + "\r\n";
    }
    const auto lines = splitTitle(text);
    EXPECT_EQ(line(lines, 19), "line 19");
    EXPECT_EQ(lines.size(), 19U);
}

TEST(SplittingATitle, PartsAtCrLfOnly) {
    EXPECT_EQ(line(splitTitle("one\ntwo"), 1), "one\ntwo");
    EXPECT_EQ(line(splitTitle("one\rtwo"), 1), "one\rtwo");
}

TEST(JoiningATitle, EndsAtTheFirstBlankLineBehindTheFirst) {
    TitleLines lines;
    lines[0] = "one";
    lines[1] = "two";
    lines[3] = "four";
    EXPECT_EQ(joinTitle(lines), "one\r\ntwo");
    EXPECT_EQ(line(lines, 4), "four") << "it stays although it isn't shown";
}

TEST(JoiningATitle, ShowsABlankFirstLine) {
    TitleLines lines;
    lines[1] = "two";
    EXPECT_EQ(joinTitle(lines), "\r\ntwo");
    EXPECT_EQ(joinTitle(TitleLines{}), "");
}

TEST(JoiningATitle, KeepsLeadingBlanksAndAllNineteenLines) {
    TitleLines lines;
    lines.fill(" x");
    std::string expected = " x";
    for (int i = 2; i <= 19; ++i) {
        expected += "\r\n x";
    }
    EXPECT_EQ(joinTitle(lines), expected);
}

TEST(TheTitleOfADataSet, ReplacesAllOldLines) {
    KOVDataSet data;
    data.setTitle("a1\r\na2\r\na3");
    data.setTitle("b1");
    EXPECT_EQ(data.Title(), "b1");
    EXPECT_TRUE(data.titleLines()[1].blank());
    EXPECT_TRUE(data.titleLines()[2].blank());
}

} // namespace
} // namespace kov
