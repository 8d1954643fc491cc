#include "core/cards/entry_check.hpp"
#include "core/cards/failure.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kov {
namespace {

struct Box {
    int style = 0;
    std::string title;
    std::string prompt;
    friend bool operator==(const Box&, const Box&) = default;
};
void PrintTo(const Box& box, std::ostream* out) { *out << box.style << " [" << box.title << "] " << box.prompt; }

/// A person who always answers the same.
class Person final : public MessageSink {
public:
    explicit Person(Answer answer = Answer::Ok) : answer_(answer) {}
    Answer show(int style, const std::string& title, const std::string& prompt) override {
        boxes.push_back({style, title, prompt});
        return answer_;
    }
    std::vector<Box> boxes;

private:
    Answer answer_;
};

class RealField : public testing::Test {
protected:
    bool check(std::string entered, double low = 0, double high = 24) {
        text = std::move(entered);
        return CheckReal(text, low, high, person);
    }
    Person person;
    std::string text;
};

TEST_F(RealField, GetsADecimalPointWhenItHasNone) {
    EXPECT_FALSE(check("5"));
    EXPECT_EQ(text, "5.");
    EXPECT_FALSE(check("5.0"));
    EXPECT_EQ(text, "5.0");
    EXPECT_FALSE(check(" 7   "));
    EXPECT_EQ(text, " 7.") << "only the blanks behind the number go";
    EXPECT_TRUE(person.boxes.empty());
}

TEST_F(RealField, GetsItsPointBehindAnExponentToo) {
    EXPECT_FALSE(check("1E1"));
    EXPECT_EQ(text, "1E1.");
}

TEST_F(RealField, MayBeEmpty) {
    EXPECT_FALSE(check(""));
    EXPECT_EQ(text, "");
    EXPECT_FALSE(check("  ", 5, 24)) << "even where zero is out of range";
    EXPECT_EQ(text, "  ");
    EXPECT_TRUE(person.boxes.empty());
}

TEST_F(RealField, ThatIsNoNumberIsRefused) {
    EXPECT_TRUE(check(" abc"));
    EXPECT_EQ(text, " abc");
    EXPECT_EQ(person.boxes, (std::vector<Box>{{48, "Invalid entry", " abc\nis not numeric"}}));
}

TEST_F(RealField, OutOfRangeAsksForTheRange) {
    EXPECT_FALSE(check("30")) << "the answer wasn't Yes";
    EXPECT_EQ(person.boxes, (std::vector<Box>{{52, "Invalid Entry", "Allowable Range:\n 0 to 24\nTry again?"}}));
}

TEST_F(RealField, ShowsItsLimitsAsPlainNumbers) {
    static_cast<void>(check("2", -50, 0.5));
    EXPECT_EQ(person.boxes.back().prompt, "Allowable Range:\n-50 to .5\nTry again?");
    static_cast<void>(check("-1", 0, 100000000));
    EXPECT_EQ(person.boxes.back().prompt, "Allowable Range:\n 0 to 100000000\nTry again?");
}

TEST(RealFieldAnswers, NoKeepsTheValueAsTyped) {
    Person person(Answer::No);
    std::string text = "30";
    EXPECT_FALSE(CheckReal(text, 0, 24, person));
    EXPECT_EQ(text, "30");
}

TEST(RealFieldAnswers, YesBringsTheFieldBack) {
    Person person(Answer::Yes);
    std::string text = "-1";
    EXPECT_TRUE(CheckReal(text, 0, 24, person));
    EXPECT_EQ(text, "-1");
}

TEST_F(RealField, LimitsBelongToTheRange) {
    EXPECT_FALSE(check("0"));
    EXPECT_FALSE(check("24"));
    EXPECT_TRUE(person.boxes.empty());
}

TEST_F(RealField, IsComparedInSinglePrecision) {
    EXPECT_FALSE(check("0.10000000001", 0, 0.1));
    EXPECT_FALSE(check("0.09999999999", 0.1, 1));
    EXPECT_TRUE(person.boxes.empty()) << "the difference is lost in single precision";
    static_cast<void>(check("0.1001", 0, 0.1));
    EXPECT_EQ(person.boxes.size(), 1U);
}

TEST_F(RealField, TooLargeForSinglePrecisionIsOutOfRange) {
    static_cast<void>(check("1E39", 0, 3E38));
    static_cast<void>(check("-1E39", -3E38, 0));
    static_cast<void>(check("1E999"));
    EXPECT_EQ(person.boxes.size(), 3U);
}

TEST_F(RealField, WithAGroupingCommaCountsOnlyWhatStandsAheadOfIt) {
    EXPECT_FALSE(check("1,000"));
    EXPECT_EQ(text, "1,000.");
    EXPECT_TRUE(person.boxes.empty());
}

class IntegerField : public testing::Test {
protected:
    bool check(std::string entered, std::int32_t low = 0, std::int32_t high = 9) {
        text = std::move(entered);
        return CheckInt(text, low, high, person);
    }
    Person person;
    std::string text;
};

TEST_F(IntegerField, BecomesItsPlainNumber) {
    EXPECT_FALSE(check(" 7 "));
    EXPECT_EQ(text, "7");
    EXPECT_FALSE(check("007"));
    EXPECT_EQ(text, "7");
    EXPECT_FALSE(check("5.0"));
    EXPECT_EQ(text, "5");
    EXPECT_FALSE(check("-3", -5, 9));
    EXPECT_EQ(text, "-3");
    EXPECT_TRUE(person.boxes.empty());
}

TEST_F(IntegerField, MayBeEmpty) {
    EXPECT_FALSE(check("", 1, 9));
    EXPECT_FALSE(check("   ", 1, 9));
    EXPECT_EQ(text, "   ");
    EXPECT_TRUE(person.boxes.empty());
}

TEST_F(IntegerField, WithAFractionIsRefusedAndRounded) {
    EXPECT_TRUE(check("2.5"));
    EXPECT_EQ(text, "2");
    EXPECT_EQ(person.boxes, (std::vector<Box>{{48, "Invalid Entry", "Integer Value Required"}}));
    EXPECT_TRUE(check("3.5"));
    EXPECT_EQ(text, "4");
    EXPECT_TRUE(check("8.7"));
    EXPECT_EQ(text, "9");
}

TEST_F(IntegerField, IsJudgedByItsRoundedValue) {
    EXPECT_TRUE(check("9.4"));
    EXPECT_EQ(person.boxes.back().prompt, "Integer Value Required") << "9.4 rounds into the range";
    EXPECT_TRUE(check("-0.5"));
    EXPECT_EQ(text, "0");
    EXPECT_EQ(person.boxes.back().prompt, "Integer Value Required");
}

TEST_F(IntegerField, ThatIsNoNumberIsRefusedAsItStands) {
    EXPECT_TRUE(check("abc"));
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(person.boxes, (std::vector<Box>{{48, "Invalid entry", "abc\nis not numeric"}}));
}

TEST(IntegerFieldAnswers, NoKeepsTheRoundedValue) {
    Person person(Answer::No);
    std::string text = "12.7";
    EXPECT_FALSE(CheckInt(text, 0, 9, person));
    EXPECT_EQ(text, "13");
    EXPECT_EQ(person.boxes, (std::vector<Box>{{52, "Invalid Entry", "Allowable Range:\n 0 to 9\nTry again?"}}));
}

TEST(IntegerFieldAnswers, YesBringsTheFieldBackRounded) {
    Person person(Answer::Yes);
    std::string text = "12.7";
    EXPECT_TRUE(CheckInt(text, 0, 9, person));
    EXPECT_EQ(text, "13");
    EXPECT_EQ(person.boxes.size(), 1U) << "out of range is told, the fraction is not";
}

TEST_F(IntegerField, BeyondSixteenBitsIsAFailureAheadOfTheRange) {
    EXPECT_THROW(static_cast<void>(check("40000")), Failure);
    EXPECT_EQ(text, "40000");
    EXPECT_THROW(static_cast<void>(check("32767.5", 0, 100000)), Failure);
    EXPECT_TRUE(person.boxes.empty());
    EXPECT_TRUE(check("32767.4", 0, 32767)) << "it rounds to the highest number that there is";
    EXPECT_EQ(text, "32767");
}

} // namespace
} // namespace kov
