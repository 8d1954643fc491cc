#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/sinks.hpp"
#include "line/model/sections.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kov::test {

/// The text in exactly `width` columns.
inline std::string padded(std::string_view text, std::size_t width) {
    std::string result(text);
    result.resize(width, ' ');
    return result;
}

/// A card: every text in ten columns.
inline std::string card(const std::vector<std::string>& fields) {
    std::string line;
    for (const auto& field : fields) {
        line += padded(field, 10);
    }
    return line + "\n";
}

/// What a test changes in a card group of a segment; the rest is tidy.
struct GroupText {
    std::string header = padded(" 101", 10) + padded(" 1", 10) + padded("North tube", 50) + "\n";
    std::string geometry = card({"1200.", "300.5", "0.", " 1"});
    std::string perimeters = card({"12.5", "12.500", "0.", "0.", "0.", "0.", "0.", "7."});
    std::string roughnesses = card({".01", "0.02", "0.", "0.", "0.", "0.", "0.", ".5"});
    std::string losses = card({"1.", "2.", "3.", "4.", "25.", " 2", " 0"});
    std::string heatSources;
    std::string subsegments = card({" 1", " 2", "61.", "62.", "63."});
    std::string wallAndSoil;

    [[nodiscard]] std::string text() const {
        return header + geometry + perimeters + roughnesses + losses + heatSources + subsegments + wallAndSoil;
    }
};

inline const DataOptions NoControl{};
inline const DataOptions WithControl{.ECLOpt = 1};

inline std::string written(cSegment& segment, const DataOptions& options = NoControl) {
    CardWriter writer;
    segment.WriteData(writer, options);
    return writer.take();
}

inline std::string written(const cSection& section) {
    CardWriter writer;
    section.WriteData(writer);
    return writer.take();
}

using Lines = std::vector<std::string>;

/// The rows of a grid, their cells joined by tabs.
inline Lines linesOf(const Grid& grid) {
    Lines lines;
    lines.reserve(static_cast<std::size_t>(grid.rows()));
    for (int row = 0; row < grid.rows(); ++row) {
        lines.push_back(grid.line(row));
    }
    return lines;
}

/// Notes what it is asked to show.
class NotedMessages : public MessageSink {
public:
    Answer show(int style, const std::string& title, const std::string& prompt) override {
        shown.push_back(std::to_string(style) + "|" + title + "|" + prompt);
        return Answer::Ok;
    }
    std::vector<std::string> shown;
};

} // namespace kov::test
