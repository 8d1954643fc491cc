#include "drive/commands.hpp"
#include "drive/stage.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kov::drive {
namespace {

/// Why a person can't use the control now.
std::string whyNot(Stage& stage, const Control& control, const std::string& name) {
    if (!control.shown()) {
        return name + " is hidden";
    }
    if (!control.usable()) {
        return name + " is disabled";
    }
    if (!control.onCurrentPage()) {
        return name + " stands on another page";
    }
    if (!stage.desk().reachable(*control.window)) {
        return "a modal window stands before " + name;
    }
    return name + " can't be used so";
}

Control& controlOfKind(Stage& stage, const Target& target, std::initializer_list<ControlKind> kinds, const char* what) {
    auto& control = stage.control(target);
    if (std::find(kinds.begin(), kinds.end(), control.kind) == kinds.end()) {
        throw CannotRun(target.text() + " is no " + what);
    }
    return control;
}

void click(Stage& stage, Control& control, const std::string& name) {
    if (control.kind == ControlKind::Menu || control.kind == ControlKind::Timer) {
        throw CannotRun(name + " is nothing to click on");
    }
    if (!control.onCurrentPage()) {
        throw CannotRun(whyNot(stage, control, name));
    }
    const auto why = whyNot(stage, control, name); // the click may close its window
    stage.carriedOut(stage.hand().click(control), why);
}

Act startProgram(Arguments& arguments) {
    const auto commandLine = arguments.empty() ? std::string{} : arguments.text("the command line");
    return [commandLine](Stage& stage) { stage.start(commandLine); };
}

Act clickControl(Arguments& arguments) {
    const auto target = arguments.control();
    return [target](Stage& stage) { click(stage, stage.control(target), target.text()); };
}

std::string withoutMnemonic(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

Act press(Arguments& arguments) {
    const auto target = arguments.window();
    const auto caption = withoutMnemonic(arguments.text("the button's caption"));
    return [target, caption](Stage& stage) {
        Control* found = nullptr;
        for (const auto& control : stage.window(target).controls()) {
            if (control->kind == ControlKind::Button && withoutMnemonic(control->caption) == caption &&
                (found == nullptr || !found->focusable())) {
                found = control.get();
            }
        }
        if (found == nullptr) {
            throw CannotRun("no button " + inQuotes(caption) + " in " + target.window);
        }
        click(stage, *found, target.window + "." + found->label());
    };
}

/// A menu entry can't be reached when a menu that it stands in is disabled.
const Control* disabledMenuAround(const Control& entry) {
    const auto* menu = &entry;
    for (int depth = 0; depth < 10 && !menu->menu().menu.empty(); ++depth) {
        menu = entry.window->find(menu->menu().menu);
        if (menu == nullptr || menu->kind != ControlKind::Menu) {
            return nullptr;
        }
        if (!menu->enabled) {
            return menu;
        }
    }
    return nullptr;
}

Act menu(Arguments& arguments) {
    const auto target = arguments.control();
    return [target](Stage& stage) {
        auto& entry = controlOfKind(stage, target, {ControlKind::Menu}, "menu entry");
        if (const auto* around = disabledMenuAround(entry)) {
            throw CannotRun("the menu " + around->label() + " around " + target.text() + " is disabled");
        }
        const auto why = whyNot(stage, entry, target.text());
        stage.carriedOut(stage.hand().menu(entry), why);
    };
}

Act focus(Arguments& arguments) {
    const auto target = arguments.control();
    return [target](Stage& stage) {
        auto& control = stage.control(target);
        const auto why = whyNot(stage, control, target.text());
        stage.carriedOut(stage.hand().focus(control), why);
    };
}

/// A press of Enter or Tab is a key, the rest are characters.
void typeText(Stage& stage, std::string_view text) {
    constexpr const char* NoFocus = "no control has the focus";
    while (!text.empty() && !stage.desk().ended()) {
        const auto length = std::min(text.find_first_of("\r\n\t"), text.size());
        if (length > 0) {
            stage.carriedOut(stage.hand().type(text.substr(0, length)), NoFocus);
            text.remove_prefix(length);
            continue;
        }
        stage.carriedOut(stage.hand().key(text.front() == '\t' ? Key::Tab : Key::Enter), NoFocus);
        text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
    }
}

Act type(Arguments& arguments) {
    const auto text = arguments.text("what to type");
    return [text](Stage& stage) {
        if (stage.desk().focus() == nullptr) {
            throw CannotRun("no control has the focus");
        }
        typeText(stage, text);
    };
}

Act key(Arguments& arguments) {
    static constexpr std::array<std::pair<std::string_view, Key>, 17> Keys{{{"Enter", Key::Enter},
                                                                            {"Tab", Key::Tab},
                                                                            {"ShiftTab", Key::ShiftTab},
                                                                            {"Up", Key::Up},
                                                                            {"Down", Key::Down},
                                                                            {"Left", Key::Left},
                                                                            {"Right", Key::Right},
                                                                            {"Insert", Key::Insert},
                                                                            {"Delete", Key::Delete},
                                                                            {"Backspace", Key::Backspace},
                                                                            {"Escape", Key::Escape},
                                                                            {"Home", Key::Home},
                                                                            {"End", Key::End},
                                                                            {"F2", Key::F2},
                                                                            {"CtrlX", Key::CtrlX},
                                                                            {"CtrlC", Key::CtrlC},
                                                                            {"CtrlV", Key::CtrlV}}};
    const auto name = arguments.name("a key");
    const auto* const found = std::find_if(Keys.begin(), Keys.end(), [&](const auto& known) { return known.first == name; });
    if (found == Keys.end()) {
        throw SyntaxError("unknown key " + inQuotes(name));
    }
    return [pressed = found->second](Stage& stage) { stage.carriedOut(stage.hand().key(pressed), "no control has the focus"); };
}

void requireRow(const Control& grid, int row, const std::string& name) {
    if (row < 0 || row >= grid.grid().rows()) {
        throw CannotRun(name + " has no row " + std::to_string(row));
    }
}

Act cell(Arguments& arguments) {
    const auto target = arguments.control();
    const int row = arguments.count("the row");
    const int col = arguments.count("the column");
    return [target, row, col](Stage& stage) {
        auto& grid = controlOfKind(stage, target, {ControlKind::Grid}, "grid");
        requireRow(grid, row, target.text());
        if (col >= grid.grid().cols()) {
            throw CannotRun(target.text() + " has no column " + std::to_string(col));
        }
        const auto why = whyNot(stage, grid, target.text());
        stage.carriedOut(stage.hand().cell(grid, row, col), why);
    };
}

Act doubleClick(Arguments& arguments) {
    const auto target = arguments.control();
    return [target](Stage& stage) {
        auto& control = stage.control(target);
        const auto why = whyNot(stage, control, target.text());
        stage.carriedOut(stage.hand().doubleClick(control), why);
    };
}

Act rightClick(Arguments& arguments) {
    const auto target = arguments.control();
    const auto row = arguments.empty() ? std::nullopt : std::optional(arguments.count("the row"));
    return [target, row](Stage& stage) {
        auto& grid = controlOfKind(stage, target, {ControlKind::Grid}, "grid");
        const int over = row.value_or(grid.grid().row());
        requireRow(grid, over, target.text());
        if (!grid.onCurrentPage()) {
            throw CannotRun(whyNot(stage, grid, target.text()));
        }
        const auto why = whyNot(stage, grid, target.text());
        stage.carriedOut(stage.hand().rightClick(grid, over), why);
    };
}

Act select(Arguments& arguments) {
    const auto target = arguments.control();
    std::vector<int> entries;
    while (!arguments.empty()) {
        entries.push_back(arguments.count("a position"));
    }
    return [target, entries](Stage& stage) {
        auto& list = controlOfKind(stage, target, {ControlKind::List, ControlKind::Combo}, "list");
        for (const int entry : entries) {
            if (entry >= list.items().count()) {
                throw CannotRun(target.text() + " has no entry " + std::to_string(entry));
            }
        }
        const auto* box = std::get_if<ListPart>(&list.part);
        if (entries.size() != 1 && (box == nullptr || !box->multiSelect)) {
            throw CannotRun("one entry of " + target.text() + " can be selected");
        }
        const auto why = whyNot(stage, list, target.text());
        stage.carriedOut(stage.hand().select(list, entries), why);
    };
}

Act tab(Arguments& arguments) {
    const auto target = arguments.control();
    const int tab = arguments.count("the tab");
    return [target, tab](Stage& stage) {
        auto& strip = controlOfKind(stage, target, {ControlKind::TabStrip}, "tab strip");
        const auto& tabs = strip.tabs().tabs;
        const auto place = static_cast<std::size_t>(tab);
        if (place >= tabs.size() || !tabs[place].enabled) {
            throw CannotRun("tab " + std::to_string(tab) + " of " + target.text() + " is unavailable");
        }
        const auto why = whyNot(stage, strip, target.text());
        stage.carriedOut(stage.hand().tab(strip, tab), why);
    };
}

Act spin(Arguments& arguments) {
    const auto target = arguments.control();
    const bool up = arguments.either("up", "down");
    return [target, up](Stage& stage) {
        auto& button = controlOfKind(stage, target, {ControlKind::Spin}, "spin button");
        const auto why = whyNot(stage, button, target.text());
        stage.carriedOut(stage.hand().spin(button, up), why);
    };
}

Act closeWindow(Arguments& arguments) {
    const auto target = arguments.window();
    return [target](Stage& stage) {
        auto& window = stage.window(target);
        stage.carriedOut(stage.hand().close(window), "a modal window stands before " + target.window);
    };
}

Act resize(Arguments& arguments) {
    const auto target = arguments.window();
    const Twips width{arguments.length("the width")};
    const Twips height{arguments.length("the height")};
    if (width.value < 0 || height.value < 0) {
        throw SyntaxError("a width or height below 0");
    }
    return [target, width, height](Stage& stage) {
        auto& window = stage.window(target);
        if (!window.resizable) {
            throw CannotRun(target.window + " can't be resized");
        }
        stage.carriedOut(stage.hand().resize(window, width, height), target.window + " can't be resized");
    };
}

Act minimize(Arguments& arguments) {
    const auto target = arguments.window();
    return [target](Stage& stage) {
        stage.carriedOut(stage.hand().minimize(stage.window(target)), target.window + " can't be minimized");
    };
}

Act pass(Arguments& arguments) {
    const int milliseconds = arguments.count("milliseconds");
    return [milliseconds](Stage& stage) {
        stage.hand().pass(milliseconds);
        stage.carriedOut(true, {});
    };
}

constexpr std::array Commands{
    Command{"start", startProgram},
    Command{"click", clickControl},
    Command{"press", press},
    Command{"menu", menu},
    Command{"focus", focus},
    Command{"type", type},
    Command{"key", key},
    Command{"cell", cell},
    Command{"dblclick", doubleClick},
    Command{"rightclick", rightClick},
    Command{"select", select},
    Command{"tab", tab},
    Command{"spin", spin},
    Command{"close", closeWindow},
    Command{"resize", resize},
    Command{"minimize", minimize},
    Command{"pass", pass},
};

} // namespace

std::span<const Command> personCommands() { return Commands; }

} // namespace kov::drive
