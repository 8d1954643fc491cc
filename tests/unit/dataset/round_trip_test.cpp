#include "core/cards/failure.hpp"
#include "decks/deck.hpp"
#include "unit/dataset/support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace kov {
namespace {

using decks::Hand;
using decks::makeDeck;
using decks::randomPlan;
using test::firstDifference;
using test::Reading;
using test::rewritten;
using test::written;

constexpr std::uint32_t Seeds = 400;

TEST(ATidyDeck, ComesBackByteForByte) {
    for (std::uint32_t seed = 1; seed <= Seeds; ++seed) {
        const std::string text = makeDeck(randomPlan(seed, Hand::Tidy)).text();
        Reading reading(text);
        ASSERT_TRUE(reading.done) << "seed " << seed << ": " << reading.boxes.shown.back().prompt;
        ASSERT_EQ(firstDifference(text, written(reading.data)), "") << "seed " << seed;
    }
}

TEST(ATidyDeckWithCrLf, ComesBackByteForByte) {
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        const std::string text = makeDeck(randomPlan(seed, Hand::Tidy)).text("\r\n");
        ASSERT_EQ(firstDifference(text, rewritten(text)), "") << "seed " << seed;
    }
}

TEST(ATidyDeckWithoutItsLastLineEnd, GetsIt) {
    const auto deck = makeDeck(randomPlan(3, Hand::Tidy));
    EXPECT_EQ(rewritten(deck.text("\n", false)), deck.text());
}

TEST(ATidyDeck, FillsTheProgressBarExactly) {
    for (std::uint32_t seed = 1; seed <= 50; ++seed) {
        Reading reading(makeDeck(randomPlan(seed, Hand::Tidy)).text());
        ASSERT_EQ(reading.bar.values.front(), 10);
        ASSERT_EQ(reading.bar.values.back(), reading.bar.max) << "seed " << seed;
        test::BarRecord bar;
        CardWriter writer;
        reading.data.WriteFile(writer, bar);
        ASSERT_EQ(bar.values.front(), 10);
        ASSERT_EQ(bar.values.back(), bar.max) << "seed " << seed;
        ASSERT_EQ(bar.max, reading.bar.max);
    }
}

TEST(AHandMadeDeck, IsAFixedPointAfterOneRewrite) {
    for (std::uint32_t seed = 1; seed <= Seeds; ++seed) {
        const std::string text = decks::handMadeText(makeDeck(randomPlan(seed, Hand::Ragged)), seed);
        Reading reading(text);
        ASSERT_TRUE(reading.done) << "seed " << seed << ": " << reading.boxes.shown.back().prompt << "\n" << text;
        const std::string once = written(reading.data);
        Reading again(once);
        ASSERT_TRUE(again.done) << "seed " << seed << ": " << again.boxes.shown.back().prompt << "\n" << once;
        ASSERT_EQ(firstDifference(once, written(again.data)), "") << "seed " << seed;
    }
}

TEST(ABrokenDeck, NamesTheFormThatIsBadAndNeverCrashes) {
    for (std::uint32_t seed = 1; seed <= 3 * Seeds; ++seed) {
        const auto plan = randomPlan(seed, seed % 2 == 0 ? Hand::Tidy : Hand::Ragged);
        const auto broken = decks::breakDeck(makeDeck(plan), seed);
        Reading reading(broken.text);
        if (!broken.form.empty()) {
            ASSERT_FALSE(reading.done) << "seed " << seed;
            ASSERT_EQ(reading.data.CurForm, broken.form) << "seed " << seed;
        }
        ASSERT_EQ(reading.boxes.shown.size(), reading.done ? 0U : 1U);
        try {
            static_cast<void>(written(reading.data));
        } catch (const Failure&) {
            // What a bad card left behind need not be writable; it only must not end in anything worse.
            continue;
        }
    }
}

TEST(EveryTruncation, NamesTheFormOfTheFirstMissingLine) {
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        const auto deck = makeDeck(randomPlan(seed, seed % 2 == 0 ? Hand::Tidy : Hand::Ragged));
        for (std::size_t kept = 0; kept < deck.lines.size(); ++kept) {
            Reading reading(deck.textOf(kept));
            ASSERT_FALSE(reading.done) << "seed " << seed << ", " << kept << " lines";
            ASSERT_EQ(reading.data.CurForm, deck.lines[kept].form) << "seed " << seed << ", " << kept << " lines";
            ASSERT_EQ(reading.boxes.shown.size(), 1U);
            ASSERT_EQ(reading.boxes.shown[0].prompt, "Error Reading " + deck.lines[kept].form + "\r\nIn File RUN1.KOV");
        }
    }
}

TEST(EveryIntegerField, RefusesANumberBeyondSixteenBits) {
    for (std::uint32_t seed = 1; seed <= 12; ++seed) {
        const auto deck = makeDeck(randomPlan(seed, Hand::Tidy));
        for (const auto& line : deck.lines) {
            for (const auto column : line.integers) {
                auto harmed = deck;
                auto& bad = harmed.lines[static_cast<std::size_t>(&line - deck.lines.data())];
                bad.text.replace(column, 10, "40000     ");
                Reading reading(harmed.text());
                ASSERT_FALSE(reading.done) << "seed " << seed << ": " << bad.text;
                ASSERT_EQ(reading.data.CurForm, line.form) << bad.text;
            }
        }
    }
}

class Sample : public testing::TestWithParam<const char*> {
protected:
    Sample() {
        std::ifstream file(std::string(KOV_SOURCE_DIR "/samples/") + GetParam(), std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(file), {});
    }
    std::string text;
};

TEST_P(Sample, IsTidy) {
    ASSERT_FALSE(text.empty());
    Reading reading(text);
    ASSERT_TRUE(reading.done) << reading.boxes.shown.back().prompt;
    EXPECT_EQ(firstDifference(text, written(reading.data)), "");
}

TEST_P(Sample, ReadsAfterEveryTruncationWithoutACrash) {
    static const std::vector<std::string> forms{"Form 1A", "Form 1B", "Form 1C", "Form 1D", "Form 1E", "Form 1F", "Form 1G",
                                                "Form 2A", "Form 2B", "Form 3",  "Form 4",  "Form 5",  "Form 6",  "Form 7",
                                                "Form 8",  "Form 9",  "Form 10", "Form 11", "Form 12", "Form 13"};
    std::ptrdiff_t reached = 0;
    for (std::size_t end = 0; end < text.size(); end = text.find('\n', end) + 1) {
        Reading reading(std::string_view(text).substr(0, end));
        ASSERT_FALSE(reading.done);
        const auto form = std::find(forms.begin(), forms.end(), reading.data.CurForm) - forms.begin();
        ASSERT_LT(form, static_cast<std::ptrdiff_t>(forms.size()));
        ASSERT_GE(form, reached) << "a longer file fails no earlier";
        reached = form;
    }
    EXPECT_EQ(forms[static_cast<std::size_t>(reached)], "Form 13");
}

INSTANTIATE_TEST_SUITE_P(Samples, Sample, testing::Values("two-station-line.kov", "ventilation-only.kov"),
                         [](const auto& tested) {
                             std::string name = tested.param;
                             std::replace_if(
                                 name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
                             return name;
                         });

} // namespace
} // namespace kov
