// Card files made by hand, with the outcome beside them: tests/decks/by-hand/README.md.

#include "unit/dataset/support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace kov {
namespace {

using test::firstDifference;
using test::Reading;
using test::written;

const std::filesystem::path& folder() {
    static const std::filesystem::path path = KOV_SOURCE_DIR "/tests/decks/by-hand";
    return path;
}

std::vector<std::string> names() {
    std::vector<std::string> found;
    for (const auto& file : std::filesystem::directory_iterator(folder())) {
        if (file.path().extension() == ".kov") {
            found.push_back(file.path().stem().string());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

class DeckByHand : public testing::TestWithParam<std::string> {
protected:
    [[nodiscard]] bool has(const char* ending) const { return std::filesystem::exists(folder() / (GetParam() + ending)); }
    [[nodiscard]] std::string content(const char* ending) const {
        std::ifstream file(folder() / (GetParam() + ending), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The Form that a reader has to name; empty where all can be read.
    [[nodiscard]] std::string badForm() const {
        const auto text = has(".form") ? content(".form") : "";
        return text.substr(0, text.find('\n'));
    }
};

TEST_P(DeckByHand, IsReadToItsEndOrToTheFormThatIsBad) {
    const Reading reading(content(".kov"));
    EXPECT_EQ(reading.done, badForm().empty()) << reading.data.CurForm;
    ASSERT_EQ(reading.boxes.shown.size(), reading.done ? 0U : 1U);
    if (!reading.done) {
        EXPECT_EQ(reading.boxes.shown[0].prompt, "Error Reading " + badForm() + "\r\nIn File RUN1.KOV");
    }
}

TEST_P(DeckByHand, IsWrittenAsItIsLaidDown) {
    ASSERT_TRUE(has(".out") || has(".form")) << "nothing says what must come of it";
    if (!has(".out")) {
        return;
    }
    Reading reading(content(".kov"));
    EXPECT_EQ(firstDifference(content(".out"), written(reading.data)), "");
}

TEST_P(DeckByHand, StaysTheSameOnceItHasBeenWritten) {
    if (has(".form") || GetParam().starts_with("lossy-")) {
        return;
    }
    Reading reading(content(".out"));
    EXPECT_TRUE(reading.done) << reading.data.CurForm;
    EXPECT_EQ(firstDifference(content(".out"), written(reading.data)), "");
}

INSTANTIATE_TEST_SUITE_P(ByHand, DeckByHand, testing::ValuesIn(names()), [](const auto& tested) {
    std::string name = tested.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
} // namespace kov
