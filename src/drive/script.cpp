#include "drive/script.hpp"

#include "drive/commands.hpp"

#include <algorithm>
#include <utility>

namespace kov::drive {
namespace {

const Command* find(std::span<const Command> commands, std::string_view name) {
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const Command& known) { return known.name == name; });
    return found == commands.end() ? nullptr : &*found;
}

Act parseExpect(Arguments& arguments) {
    for (const auto& subject : otherSubjects()) {
        if (arguments.takeIf(subject.name)) {
            return subject.parse(arguments);
        }
    }
    return parseExpectControl(arguments);
}

Act parseLine(std::span<const Word> words) {
    Arguments arguments(words);
    const auto name = arguments.name("a command");
    Act act;
    if (name == "expect") {
        act = parseExpect(arguments);
    } else if (name == "show") {
        act = parseShow(arguments);
    } else if (const auto* person = find(personCommands(), name)) {
        act = person->parse(arguments);
    } else if (const auto* surroundings = find(surroundingsCommands(), name)) {
        act = surroundings->parse(arguments);
    } else {
        throw SyntaxError("unknown command " + inQuotes(name));
    }
    arguments.end();
    return act;
}

/// Takes one line off the front, without its end.
std::string_view takeLine(std::string_view& text) {
    const auto length = std::min(text.find('\n'), text.size());
    auto line = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

} // namespace

Script parseScript(std::string name, std::string_view text, const Places& places) {
    Script script;
    script.name = std::move(name);
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(ByteOrderMark)) {
        text.remove_prefix(ByteOrderMark.size());
    }
    for (int number = 1; !text.empty(); ++number) {
        const auto line = takeLine(text);
        try {
            if (const auto words = wordsOf(line, places); !words.empty()) {
                script.steps.push_back({number, std::string(line), parseLine(words)});
            }
        } catch (const SyntaxError& error) {
            script.findings.push_back({number, error.what()});
        }
    }
    return script;
}

} // namespace kov::drive
