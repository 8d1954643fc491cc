#include "core/cards/card_io.hpp"
#include "core/cards/failure.hpp"
#include "core/cards/fixed.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace kov {
namespace {

TEST(FixedText, JustifiesLeftPadsWithBlanksAndCuts) {
    Fixed<10> field;
    EXPECT_EQ(field.view(), "          ");
    field = "12.";
    EXPECT_EQ(field.view(), "12.       ");
    field = "123456789012";
    EXPECT_EQ(field.view(), "1234567890");
    field = " .5";
    EXPECT_EQ(field.view(), " .5       ");
    EXPECT_EQ(field.trimmed(), " .5");
}

TEST(CardInt, PrintsPlainNumberTextInTenColumns) {
    EXPECT_EQ(CardInt(0).view(), " 0        ");
    EXPECT_EQ(CardInt(5).view(), " 5        ");
    EXPECT_EQ(CardInt(-1).view(), "-1        ");
    EXPECT_EQ(CardInt(12345).view(), " 12345    ");
    EXPECT_EQ(CardInt(32767).view(), " 32767    ");
    EXPECT_EQ(CardInt(-32768).view(), "-32768    ");
}

TEST(CardReal, PrintsAWholeNumberWithAPoint) {
    EXPECT_EQ(CardReal(2000).view(), " 2000.    ");
    EXPECT_EQ(CardReal(30).view(), " 30.      ");
    EXPECT_EQ(CardReal(-1).view(), "-1.       ");
    EXPECT_EQ(CardReal(123456789).view(), " 123456789") << "the point is cut like any eleventh character";
    EXPECT_EQ(CardReal(-2147483647 - 1).view(), "-214748364");
}

TEST(ReadCard8, GivesEightFieldsWithoutTheirLeadingBlanks) {
    CardReader reader("   12.            -3  ab      4         5         6         7                end\n");
    Card8 card;
    ASSERT_TRUE(ReadCard8(reader, card));
    EXPECT_EQ(card.field(1), "12.    ") << "trailing blanks stay";
    EXPECT_EQ(Fixed<10>(card.field(1)).view(), "12.       ") << "and a member holds it left-justified";
    EXPECT_EQ(card.field(2), "-3") << "a field is its ten columns, not its words";
    EXPECT_EQ(card.field(3), "ab      ");
    EXPECT_EQ(card.field(4), "4         ");
    EXPECT_EQ(card.field(8), "end");
}

TEST(ReadCard8, LosesWhatStandsBehindColumn80) {
    const std::string line = std::string(70, ' ') + "1234567890" + std::string(15, 'x');
    ASSERT_EQ(line.size(), 95U);
    CardReader reader(line);
    Card8 card;
    ASSERT_TRUE(ReadCard8(reader, card));
    EXPECT_EQ(card.field(8), "1234567890");
    EXPECT_EQ(card.field(1), "") << "a blank field is empty";
}

TEST(ReadCard8, PadsAShortLineToItsFields) {
    CardReader reader("  7");
    Card8 card;
    ASSERT_TRUE(ReadCard8(reader, card));
    EXPECT_EQ(card.field(1), "7       ") << "the buffer has all columns, so the field has its blanks";
    EXPECT_EQ(card.field(2), "");
}

TEST(ReadCard4, TakesItsFieldsFromTheLineAsRead) {
    CardReader reader("  abc\n");
    Card4 card;
    ASSERT_TRUE(ReadCard4(reader, card));
    EXPECT_EQ(card.field(1), "abc");
    EXPECT_EQ(card.field(2), "");
    EXPECT_EQ(card.field(3), "");
    EXPECT_EQ(card.field(4), "");
}

TEST(ReadCard4, IgnoresColumn41AndOnward) {
    CardReader reader("1         2         3         4         5\n");
    Card4 card;
    ASSERT_TRUE(ReadCard4(reader, card));
    EXPECT_EQ(card.field(4), "4         ");
    EXPECT_THROW(static_cast<void>(card.field(5)), Failure);
}

TEST(CardReaders, FailAtTheEndOfTheFileAndKeepWhatTheyHad) {
    CardReader reader("1\n");
    Card8 full;
    ASSERT_TRUE(ReadCard8(reader, full));
    EXPECT_FALSE(ReadCard8(reader, full));
    EXPECT_EQ(full.field(1), "1         ");
    Card4 shortCard;
    EXPECT_FALSE(ReadCard4(reader, shortCard));
    EXPECT_THROW(static_cast<void>(reader.readLine()), Failure);
}

TEST(CardReader, TakesLinesEndedByLfOrCrLfAndALastOneWithoutEnd) {
    CardReader reader("one\r\ntwo\n\nfour");
    EXPECT_EQ(reader.readLine(), "one");
    EXPECT_EQ(reader.readLine(), "two");
    EXPECT_EQ(reader.readLine(), "");
    EXPECT_EQ(reader.readLine(), "four");
    EXPECT_THROW(static_cast<void>(reader.readLine()), Failure);
}

TEST(CardReader, TellsTheLineEndOfTheFileByItsFirstLine) {
    EXPECT_EQ(CardReader("a\r\nb\n").lineEnd(), "\r\n");
    EXPECT_EQ(CardReader("a\nb\r\n").lineEnd(), "\n");
    EXPECT_EQ(CardReader("a").lineEnd(), "");
    EXPECT_EQ(CardReader("").lineEnd(), "");
}

/// A file that comes in pieces of that many bytes.
CardReader::Source inPieces(std::string text, std::size_t size) {
    return [text = std::move(text), size, at = std::size_t{0}](std::span<char> bytes) mutable {
        const auto count = text.copy(bytes.data(), std::min(size, bytes.size()), at);
        at += count;
        return count;
    };
}

TEST(CardReader, TakesAFileThatComesInPieces) {
    const std::string text = "one\r\n\n" + std::string(200000, 'x') + "\nlast";
    for (const std::size_t size : {std::size_t{1}, std::size_t{3}, std::size_t{40000}, std::size_t{1000000}}) {
        CardReader reader(inPieces(text, size));
        EXPECT_EQ(reader.lineEnd(), "\r\n");
        EXPECT_EQ(reader.readLine(), "one");
        EXPECT_EQ(reader.readLine(), "");
        EXPECT_EQ(reader.readLine(), std::string(200000, 'x'));
        EXPECT_EQ(reader.readLine(), "last");
        EXPECT_THROW(static_cast<void>(reader.readLine()), Failure);
        EXPECT_THROW(static_cast<void>(reader.readLine()), Failure) << "it stays at its end";
    }
    EXPECT_EQ(CardReader(inPieces("", 5)).lineEnd(), "");
    EXPECT_THROW(static_cast<void>(CardReader(inPieces("", 5)).readLine()), Failure);
}

TEST(CardWriter, HandsOnWhatItWroteInPieces) {
    std::string received;
    int pieces = 0;
    CardWriter writer("\n", [&](std::string_view piece) {
        received += piece;
        ++pieces;
    });
    std::string expected;
    for (int i = 0; i < 5000; ++i) {
        writer.text("ab").tabTo(5).integer(7).endCard();
        expected += "ab   7        \n";
    }
    EXPECT_LT(received.size(), expected.size());
    EXPECT_GT(pieces, 1);
    writer.flush();
    EXPECT_EQ(received, expected);
}

TEST(CardWriter, JoinsFieldsWithoutASeparatorAndEndsLines) {
    CardWriter writer("\r\n");
    writer.integer(3).field(Fixed<10>("1.5")).text("x").endCard();
    writer.text("ab").tabTo(5).integer(-1).endCard();
    EXPECT_EQ(writer.content(), " 3        1.5       x\r\nab  -1        \r\n");
}

TEST(CardWriter, ATabBehindItsColumnAddsNothing) {
    CardWriter writer;
    writer.text("abcdef").tabTo(3).text("g").endCard();
    EXPECT_EQ(writer.content(), "abcdefg\n");
}

} // namespace
} // namespace kov
