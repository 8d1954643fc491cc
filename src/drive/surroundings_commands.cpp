#include "drive/commands.hpp"
#include "drive/stage.hpp"

#include <array>
#include <utility>

namespace kov::drive {
namespace {

Act answer(Arguments& arguments) {
    static constexpr std::array<std::pair<std::string_view, Answer>, 4> Answers{
        {{"OK", Answer::Ok}, {"Cancel", Answer::Cancel}, {"Yes", Answer::Yes}, {"No", Answer::No}}};
    for (const auto& [name, value] : Answers) {
        if (arguments.takeIf(name)) {
            return [value = value](Stage& stage) { stage.around.messages.queue(value); };
        }
    }
    throw SyntaxError("expected OK, Cancel, Yes or No");
}

Act dialogError(Arguments& arguments) {
    const int number = arguments.number("the error's number");
    if (number == 0) {
        throw SyntaxError("error number 0 is no error");
    }
    return [number](Stage& stage) { stage.around.dialogs.queueError(number); };
}

Act dialogFont(Arguments& arguments) {
    const auto name = arguments.text("the font's name");
    const double size = arguments.length("the font's size");
    return [name, size](Stage& stage) { stage.around.dialogs.queueFont(name, size); };
}

Act dialog(Arguments& arguments) {
    if (arguments.nextIsText()) {
        const auto path = arguments.text("a path");
        return [path](Stage& stage) { stage.around.dialogs.queueFile(stage.around.files.absolute(path)); };
    }
    if (arguments.takeIf("cancel")) {
        return [](Stage& stage) { stage.around.dialogs.queueError(DialogCancelled); };
    }
    if (arguments.takeIf("error")) {
        return dialogError(arguments);
    }
    if (arguments.takeIf("font")) {
        return dialogFont(arguments);
    }
    if (arguments.takeIf("print")) {
        return [](Stage& stage) { stage.around.dialogs.queuePrint(); };
    }
    throw SyntaxError("expected a path in double quotes, cancel, error, font or print");
}

Act process(Arguments& arguments) {
    if (arguments.takeIf("error")) {
        const int number = arguments.number("the error's number");
        if (number == 0) {
            throw SyntaxError("error number 0 is no error");
        }
        const auto description = arguments.text("the error's description");
        return [number, description](Stage& stage) { stage.around.processes.queueError({number, description}); };
    }
    const int code = arguments.number("the exit code");
    if (code == StillActive) {
        throw SyntaxError("exit code 259 means that the program is still running"); // it would be waited for without end
    }
    const int polls = arguments.empty() ? 0 : arguments.count("how often it is still running");
    return [code, polls](Stage& stage) { stage.around.processes.queueExit(code, polls); };
}

Act setting(Arguments& arguments) {
    const auto key = arguments.key("the setting's key");
    const auto value = arguments.text("the setting's value");
    return [key, value](Stage& stage) { stage.around.settings.set(key, value); };
}

Act clipboard(Arguments& arguments) {
    if (arguments.takeIf("empty")) {
        return [](Stage& stage) { stage.around.clipboard.clear(); };
    }
    const auto text = arguments.text("a text");
    return [text](Stage& stage) { stage.around.clipboard.setText(text); };
}

Act locked(Arguments& arguments) {
    const auto path = arguments.text("a path");
    return [path](Stage& stage) { stage.around.files.lock(stage.around.files.absolute(path)); };
}

Act unlocked(Arguments& arguments) {
    const auto path = arguments.text("a path");
    return [path](Stage& stage) { stage.around.files.unlock(stage.around.files.absolute(path)); };
}

constexpr std::array Commands{
    Command{"answer", answer},       Command{"dialog", dialog}, Command{"process", process},   Command{"setting", setting},
    Command{"clipboard", clipboard}, Command{"locked", locked}, Command{"unlocked", unlocked},
};

} // namespace

std::span<const Command> surroundingsCommands() { return Commands; }

} // namespace kov::drive
