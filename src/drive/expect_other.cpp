#include "drive/commands.hpp"
#include "drive/expect_file.hpp"
#include "drive/stage.hpp"
#include "drive/text_lines.hpp"

#include <array>
#include <utility>

namespace kov::drive {
namespace {

Act focus(Arguments& arguments) {
    const auto target = arguments.control();
    return [target](Stage& stage) {
        const auto* control = &stage.control(target);
        const auto* was = stage.desk().focus();
        stage.expect(was == control, "focus " + target.text(),
                     was == nullptr ? "none" : was->window->name() + "." + was->label());
    };
}

Act window(Arguments& arguments) {
    const auto target = arguments.window();
    const bool open = arguments.either("open", "closed");
    return [target, open](Stage& stage) {
        const bool was = stage.findWindow(target.window) != nullptr;
        stage.expect(was == open, "window " + target.window + (open ? " open" : " closed"), was ? "open" : "closed");
    };
}

Act box(Arguments& arguments) {
    const int style = arguments.count("the box's style");
    const auto title = arguments.text("the box's title");
    const auto prompt = arguments.text("the box's prompt");
    return [style, title, prompt](Stage& stage) {
        const auto& boxes = stage.around.messages.boxes();
        const HeadlessMessages::Box expected{style, title, prompt};
        if (stage.boxesSeen >= boxes.size()) {
            stage.expect(false, describe(expected), "no box");
            return;
        }
        const auto& was = boxes[stage.boxesSeen++];
        stage.expect(was.style == style && was.title == title && was.prompt == prompt, describe(expected), describe(was));
    };
}

Act noBox(Arguments& arguments) {
    if (!arguments.takeIf("box")) {
        throw SyntaxError("expected box behind no");
    }
    return [](Stage& stage) {
        const auto& boxes = stage.around.messages.boxes();
        if (stage.boxesSeen < boxes.size()) {
            stage.expect(false, "no box", describe(boxes[stage.boxesSeen]));
        }
    };
}

Act panel(Arguments& arguments) {
    const int number = arguments.ordinal("the panel");
    if (number > 2) {
        throw SyntaxError("the status panels are 1 and 2");
    }
    const auto text = arguments.text("the panel's text");
    return
        [number, text](Stage& stage) { stage.expectText("panel " + std::to_string(number), text, stage.desk().panel(number)); };
}

Act pointer(Arguments& arguments) {
    const bool busy = arguments.either("busy", "normal");
    return [busy](Stage& stage) {
        const auto name = [](bool value) { return std::string(value ? "busy" : "normal"); };
        stage.expect(stage.desk().busy() == busy, "pointer " + name(busy), name(!busy));
    };
}

Act dirty(Arguments& arguments) {
    const bool value = arguments.yesNo();
    return [value](Stage& stage) { stage.expectYesNo("dirty", value, stage.program().fileDirty()); };
}

Act started(Arguments& arguments) {
    const int style = arguments.count("the window's style");
    const auto commandLine = arguments.text("the command line");
    return [style, commandLine](Stage& stage) {
        const auto about = [](int number, const std::string& text) {
            return "started " + std::to_string(number) + " " + inQuotes(text);
        };
        const auto& starts = stage.around.processes.starts();
        if (stage.startsSeen >= starts.size()) {
            stage.expect(false, about(style, commandLine), "nothing started");
            return;
        }
        const auto& was = starts[stage.startsSeen++];
        stage.expect(was.style == style && was.commandLine == commandLine, about(style, commandLine),
                     about(was.style, was.commandLine));
    };
}

Act help(Arguments& arguments) {
    const int command = arguments.number("the help command");
    const int context = arguments.number("the help context");
    return [command, context](Stage& stage) {
        const auto about = [](int first, int second) { return "help " + std::to_string(first) + " " + std::to_string(second); };
        const auto& calls = stage.around.help.calls();
        const bool met = !calls.empty() && calls.back().command == command && calls.back().context == context;
        stage.expect(met, about(command, context),
                     calls.empty() ? "no call" : about(calls.back().command, calls.back().context));
    };
}

Act clipboard(Arguments& arguments) {
    const auto text = arguments.text("the text");
    return [text](Stage& stage) { stage.expectText("clipboard", text, stage.around.clipboard.text().value_or("")); };
}

Act setting(Arguments& arguments) {
    const auto key = arguments.key("the setting's key");
    const auto value = arguments.text("the setting's value");
    return [key, value](Stage& stage) {
        const auto was = stage.around.settings.find(key);
        stage.expect(was == value, "setting " + key + " " + inQuotes(value), was ? inQuotes(*was) : "never set");
    };
}

Act beep(Arguments& /*arguments*/) {
    return [](Stage& stage) { stage.expect(stage.desk().takeBeep(), "a beep", "silence"); };
}

/// The last printed document, or null.
const HeadlessPrinter::Document* printedDocument(Stage& stage) {
    const auto& documents = stage.around.printer.documents();
    return documents.empty() ? nullptr : &documents.back();
}

Act printed(Arguments& arguments) {
    const auto page = static_cast<std::size_t>(arguments.ordinal("the page"));
    const auto line = static_cast<std::size_t>(arguments.ordinal("the line"));
    const auto text = arguments.text("the line's text");
    return [page, line, text](Stage& stage) {
        const auto about = "printed " + std::to_string(page) + " " + std::to_string(line) + " " + inQuotes(text);
        const auto* document = printedDocument(stage);
        if (document == nullptr || page > document->pages.size()) {
            stage.expect(false, about, document == nullptr ? "nothing printed" : "no such page");
            return;
        }
        const auto& lines = document->pages[page - 1].lines;
        const auto was = line > lines.size() ? std::string{} : lines[line - 1];
        stage.expect(was == withoutTrailingBlanks(text), about, inQuotes(was));
    };
}

Act pages(Arguments& arguments) {
    const int count = arguments.count("how many pages");
    return [count](Stage& stage) {
        const auto* document = printedDocument(stage);
        stage.expectNumber("pages", count, document == nullptr ? 0 : static_cast<long long>(document->pages.size()));
    };
}

Act failure(Arguments& /*arguments*/) {
    return [](Stage& stage) {
        const auto was = std::exchange(stage.failure, std::nullopt);
        stage.expect(was.has_value(), "a failure", "none");
    };
}

Act rescued(Arguments& arguments) {
    const bool value = arguments.yesNo();
    return [value](Stage& stage) {
        const int before = std::exchange(stage.rescuesSeen, stage.around.files.rescues());
        stage.expectYesNo("rescued", value, stage.rescuesSeen > before);
    };
}

constexpr std::array Subjects{
    Command{"focus", focus},
    Command{"window", window},
    Command{"box", box},
    Command{"no", noBox},
    Command{"panel", panel},
    Command{"pointer", pointer},
    Command{"dirty", dirty},
    Command{"started", started},
    Command{"help", help},
    Command{"clipboard", clipboard},
    Command{"setting", setting},
    Command{"beep", beep},
    Command{"printed", printed},
    Command{"pages", pages},
    Command{"file", parseExpectFile},
    Command{"failure", failure},
    Command{"rescued", rescued},
};

} // namespace

std::span<const Command> otherSubjects() { return Subjects; }

} // namespace kov::drive
