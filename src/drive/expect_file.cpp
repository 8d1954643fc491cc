#include "drive/expect_file.hpp"

#include "drive/stage.hpp"
#include "drive/text_lines.hpp"

#include <algorithm>

namespace kov::drive {
namespace {

/// The content of a file on disc; a missing one is a finding.
std::optional<std::string> contentOf(Stage& stage, const std::string& path) {
    auto content = stage.around.files.peek(stage.around.files.absolute(path));
    stage.expect(content.has_value(), "a file " + inQuotes(path), "nothing there");
    return content;
}

Act sameFile(const std::string& path, const std::string& other) {
    return [path, other](Stage& stage) {
        const auto content = contentOf(stage, path);
        const auto otherContent = contentOf(stage, other);
        if (!content || !otherContent) {
            return;
        }
        const auto lines = linesOf(*content);
        const auto otherLines = linesOf(*otherContent);
        const auto about = "file " + inQuotes(path) + " same " + inQuotes(other);
        for (std::size_t i = 0; i < std::min(lines.size(), otherLines.size()); ++i) {
            if (lines[i] != otherLines[i]) {
                auto line = about;
                line.append(", line ").append(std::to_string(i + 1)).append(" ").append(inQuotes(otherLines[i]));
                stage.expect(false, line, inQuotes(lines[i]));
                return;
            }
        }
        stage.expectNumber(about + ", lines", static_cast<long long>(otherLines.size()), static_cast<long long>(lines.size()));
    };
}

Act lineCount(const std::string& path, int count) {
    return [path, count](Stage& stage) {
        if (const auto content = contentOf(stage, path)) {
            stage.expectNumber("file " + inQuotes(path) + " lines", count, static_cast<long long>(linesOf(*content).size()));
        }
    };
}

Act fileLine(const std::string& path, int number, const std::string& text) {
    return [path, number, text](Stage& stage) {
        const auto content = contentOf(stage, path);
        if (!content) {
            return;
        }
        const auto lines = linesOf(*content);
        const auto place = static_cast<std::size_t>(number) - 1;
        const auto about = "file " + inQuotes(path) + " " + std::to_string(number) + " " + inQuotes(text);
        if (place >= lines.size()) {
            stage.expect(false, about, std::to_string(lines.size()) + " lines");
            return;
        }
        stage.expect(withoutTrailingBlanks(lines[place]) == withoutTrailingBlanks(text), about, inQuotes(lines[place]));
    };
}

} // namespace

Act parseExpectFile(Arguments& arguments) {
    const auto path = arguments.text("a path");
    if (arguments.takeIf("lines")) {
        return lineCount(path, arguments.count("how many lines"));
    }
    if (arguments.takeIf("same")) {
        return sameFile(path, arguments.text("the other path"));
    }
    const int number = arguments.ordinal("the line");
    return fileLine(path, number, arguments.text("the line's text"));
}

} // namespace kov::drive
