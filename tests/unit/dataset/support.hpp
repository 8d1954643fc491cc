#pragma once

#include "core/cards/card_io.hpp"
#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kov::test {

/// Keeps the message boxes that it is shown.
class Boxes final : public MessageSink {
public:
    struct Box {
        int style = 0;
        std::string title;
        std::string prompt;
    };
    Answer show(int style, const std::string& title, const std::string& prompt) override {
        shown.push_back({style, title, prompt});
        return Answer::Ok;
    }
    std::vector<Box> shown;
};

/// Keeps what happens to the progress bar and the pointer, in one line of words.
class BarRecord final : public ProgressSink {
public:
    void setBusy(bool busy) override { words += busy ? "busy " : "ready "; }
    void setVisible(bool visible) override { words += visible ? "shown " : "hidden "; }
    void setMax(std::int32_t value) override {
        max = value;
        words += "max ";
    }
    void setValue(std::int32_t value) override {
        values.push_back(value);
        words += "value ";
    }
    std::string words;
    std::int32_t max = 0;
    std::vector<std::int32_t> values;
};

/// What came of reading a text.
struct Reading {
    KOVDataSet data;
    Boxes boxes;
    BarRecord bar;
    bool done = false;
    explicit Reading(std::string_view text) {
        CardReader reader(text);
        done = data.ReadFile(reader, bar, boxes, "RUN1.KOV");
    }
};

inline std::string written(KOVDataSet& data) {
    CardWriter writer(data.lineEnd.empty() ? "\n" : std::string_view(data.lineEnd));
    NoProgress bar;
    data.WriteFile(writer, bar);
    return writer.take();
}

/// Reads a text and writes it again.
inline std::string rewritten(std::string_view text) {
    Reading reading(text);
    return written(reading.data);
}

/// The lines of a text, without their ends.
inline std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const auto end = std::min(text.find('\n', start), text.size());
        lines.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

/// Where two texts part for the first time, for a test to show; empty when they are equal.
inline std::string firstDifference(const std::string& expected, const std::string& found) {
    const auto want = linesOf(expected);
    const auto got = linesOf(found);
    for (std::size_t i = 0; i < std::max(want.size(), got.size()); ++i) {
        const std::string a = i < want.size() ? want[i] : "(no line)";
        const std::string b = i < got.size() ? got[i] : "(no line)";
        if (a != b) {
            return "line " + std::to_string(i + 1) + "\n[" + a + "]\n[" + b + "]";
        }
    }
    return expected == found ? "" : "the line end of the last line";
}

inline std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) {
        text += line + "\n";
    }
    return text;
}

} // namespace kov::test
