#include "drive/commands.hpp"
#include "drive/stage.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <locale>
#include <sstream>
#include <utility>

namespace kov::drive {
namespace {

/// A property of a control or window: takes the value that a script expects and gives the comparison.
struct Property {
    std::string_view name;
    Act (*parse)(const Target& target, Arguments& arguments);
};

constexpr const char* NoEntry = "nothing there";

Control& controlWith(Stage& stage, const Target& target, bool (*has)(const Control&), const char* property) {
    if (target.control.empty()) {
        throw CannotRun("the window " + target.window + " has no " + property);
    }
    auto& control = stage.control(target);
    if (!has(control)) {
        throw CannotRun(target.text() + " has no " + property);
    }
    return control;
}

bool isList(const Control& control) { return control.kind == ControlKind::List || control.kind == ControlKind::Combo; }
bool isTabStrip(const Control& control) { return control.kind == ControlKind::TabStrip; }
bool isListOrTabs(const Control& control) { return isList(control) || isTabStrip(control); }
bool isGrid(const Control& control) { return control.kind == ControlKind::Grid; }
bool isProgress(const Control& control) { return control.kind == ControlKind::Progress; }
bool isAny(const Control& /*control*/) { return true; }
bool hasTextBox(const Control& control) { return control.hasText(); }
bool hasShownText(const Control& control) { return control.hasText() || isList(control); }
bool hasCaption(const Control& control) {
    switch (control.kind) {
    case ControlKind::Label:
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::Panel:
    case ControlKind::Frame:
    case ControlKind::Menu:
        return true;
    default:
        return false;
    }
}

/// A tab of a strip, or null.
const TabPart::Tab* tabAt(const Control& strip, int tab) {
    const auto& tabs = strip.tabs().tabs;
    return static_cast<std::size_t>(tab) < tabs.size() ? &tabs[static_cast<std::size_t>(tab)] : nullptr;
}

Act text(const Target& target, Arguments& arguments) {
    const auto value = arguments.text("the text");
    return [target, value](Stage& stage) {
        const auto& control = controlWith(stage, target, hasShownText, "text");
        stage.expectText(target.text() + " text", value, control.shownText());
    };
}

Act tabCaption(const Target& target, Arguments& arguments) {
    const int tab = arguments.count("the tab");
    const auto value = arguments.text("the caption");
    return [target, tab, value](Stage& stage) {
        const auto* found = tabAt(controlWith(stage, target, isTabStrip, "tabs"), tab);
        const auto about = target.text() + " caption " + std::to_string(tab) + " " + inQuotes(value);
        stage.expect(found != nullptr && found->caption == value, about, found == nullptr ? NoEntry : inQuotes(found->caption));
    };
}

Act caption(const Target& target, Arguments& arguments) {
    if (!arguments.nextIsText()) {
        return tabCaption(target, arguments);
    }
    const auto value = arguments.text("the caption");
    return [target, value](Stage& stage) {
        const auto& was =
            target.control.empty() ? stage.window(target).caption : controlWith(stage, target, hasCaption, "caption").caption;
        stage.expectText(target.text() + " caption", value, was);
    };
}

Act visible(const Target& target, Arguments& arguments) {
    const bool value = arguments.yesNo();
    return [target, value](Stage& stage) {
        if (target.control.empty()) {
            static_cast<void>(stage.window(target)); // an open window is always visible
        }
        const bool was = target.control.empty() || stage.control(target).shown();
        stage.expectYesNo(target.text() + " visible", value, was);
    };
}

Act tabEnabled(const Target& target, Arguments& arguments) {
    const int tab = arguments.count("the tab");
    const bool value = arguments.yesNo();
    return [target, tab, value](Stage& stage) {
        const auto* found = tabAt(controlWith(stage, target, isTabStrip, "tabs"), tab);
        const auto about = target.text() + " enabled " + std::to_string(tab);
        if (found == nullptr) {
            stage.expect(false, about, NoEntry);
        } else {
            stage.expectYesNo(about, value, found->enabled);
        }
    };
}

Act enabled(const Target& target, Arguments& arguments) {
    if (!arguments.nextIs("yes") && !arguments.nextIs("no")) {
        return tabEnabled(target, arguments);
    }
    const bool value = arguments.yesNo();
    return [target, value](Stage& stage) {
        const bool was = target.control.empty() ? stage.desk().reachable(stage.window(target)) : stage.control(target).enabled;
        stage.expectYesNo(target.text() + " enabled", value, was);
    };
}

Act checked(const Target& target, Arguments& arguments) {
    const bool value = arguments.yesNo();
    return [target, value](Stage& stage) {
        stage.expectYesNo(target.text() + " checked", value, controlWith(stage, target, isAny, "check mark").checked);
    };
}

/// A property that is one whole number.
Act numberProperty(const Target& target, Arguments& arguments, const char* name, bool (*has)(const Control&),
                   int (*get)(const Control&)) {
    const int value = arguments.number(name);
    return [target, value, name, has, get](Stage& stage) {
        stage.expectNumber(target.text() + " " + name, value, get(controlWith(stage, target, has, name)));
    };
}

Act index(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "index", isListOrTabs, [](const Control& control) {
        return isTabStrip(control) ? control.tabs().current : control.items().index();
    });
}

Act count(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "count", isList, [](const Control& list) { return list.items().count(); });
}

Act rows(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "rows", isGrid, [](const Control& grid) { return grid.grid().rows(); });
}

Act cols(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "cols", isGrid, [](const Control& grid) { return grid.grid().cols(); });
}

Act row(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "row", isGrid, [](const Control& grid) { return grid.grid().row(); });
}

Act col(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "col", isGrid, [](const Control& grid) { return grid.grid().col(); });
}

Act barValue(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "value", isProgress,
                          [](const Control& bar) { return std::get<ProgressPart>(bar.part).value; });
}

Act barMax(const Target& target, Arguments& arguments) {
    return numberProperty(target, arguments, "max", isProgress,
                          [](const Control& bar) { return std::get<ProgressPart>(bar.part).max; });
}

Act entry(const Target& target, Arguments& arguments) {
    const int position = arguments.count("the position");
    const auto value = arguments.text("the entry");
    return [target, position, value](Stage& stage) {
        const auto& items = controlWith(stage, target, isList, "entries").items();
        const bool there = position < items.count();
        const auto about = target.text() + " entry " + std::to_string(position) + " " + inQuotes(value);
        stage.expect(there && items.item(position) == value, about, there ? inQuotes(items.item(position)) : NoEntry);
    };
}

Act selected(const Target& target, Arguments& arguments) {
    const int position = arguments.count("the position");
    const bool value = arguments.yesNo();
    return [target, position, value](Stage& stage) {
        const auto& list = controlWith(stage, target, isList, "entries");
        const auto about = target.text() + " selected " + std::to_string(position);
        if (position >= list.items().count()) {
            stage.expect(false, about, NoEntry);
            return;
        }
        const auto* box = std::get_if<ListPart>(&list.part);
        const bool many = box != nullptr && box->multiSelect;
        stage.expectYesNo(about, value, many ? list.items().selected(position) : list.items().index() == position);
    };
}

Act cell(const Target& target, Arguments& arguments) {
    const int row = arguments.count("the row");
    const int col = arguments.count("the column");
    const auto value = arguments.text("the cell's text");
    return [target, row, col, value](Stage& stage) {
        const auto& grid = controlWith(stage, target, isGrid, "cells").grid();
        const bool there = row < grid.rows() && col < grid.cols();
        const auto about = target.text() + " cell " + std::to_string(row) + " " + std::to_string(col) + " " + inQuotes(value);
        stage.expect(there && grid.text(row, col) == value, about, there ? inQuotes(grid.text(row, col)) : NoEntry);
    };
}

Act line(const Target& target, Arguments& arguments) {
    const int row = arguments.count("the row");
    const auto value = arguments.text("the line");
    return [target, row, value](Stage& stage) {
        const auto& grid = controlWith(stage, target, isGrid, "lines").grid();
        const bool there = row < grid.rows();
        const auto about = target.text() + " line " + std::to_string(row) + " " + inQuotes(value);
        stage.expect(there && grid.line(row) == value, about, there ? inQuotes(grid.line(row)) : NoEntry);
    };
}

Act selection(const Target& target, Arguments& arguments) {
    const int start = arguments.count("the selection's start");
    const int length = arguments.count("the selection's length");
    return [target, start, length](Stage& stage) {
        const auto& box = controlWith(stage, target, hasTextBox, "selection").text();
        const auto both = [](int first, int second) { return std::to_string(first) + " " + std::to_string(second); };
        stage.expect(box.selStart == start && box.selLength == length, target.text() + " sel " + both(start, length),
                     both(box.selStart, box.selLength));
    };
}

std::string plain(double number) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << number;
    return text.str();
}

/// Twips, within a pixel.
Act length(const Target& target, Arguments& arguments, const char* name, Twips Bounds::*member) {
    const double value = arguments.length(name);
    return [target, value, name, member](Stage& stage) {
        const auto& bounds = target.control.empty() ? stage.window(target).bounds : stage.control(target).bounds;
        const double was = (bounds.*member).value;
        stage.expect(std::abs(was - value) <= Twips::PerPixel, target.text() + " " + name + " " + plain(value), plain(was));
    };
}

Act left(const Target& target, Arguments& arguments) { return length(target, arguments, "left", &Bounds::left); }
Act top(const Target& target, Arguments& arguments) { return length(target, arguments, "top", &Bounds::top); }
Act width(const Target& target, Arguments& arguments) { return length(target, arguments, "width", &Bounds::width); }
Act height(const Target& target, Arguments& arguments) { return length(target, arguments, "height", &Bounds::height); }

Act context(const Target& target, Arguments& arguments) {
    const int value = arguments.number("the help context");
    if (!target.control.empty()) {
        throw SyntaxError("only a window has a help context");
    }
    return [target, value](Stage& stage) {
        stage.expectNumber(target.text() + " context", value, stage.window(target).helpContext);
    };
}

constexpr std::array Properties{
    Property{"text", text},         Property{"caption", caption}, Property{"visible", visible}, Property{"enabled", enabled},
    Property{"checked", checked},   Property{"index", index},     Property{"count", count},     Property{"entry", entry},
    Property{"selected", selected}, Property{"rows", rows},       Property{"cols", cols},       Property{"row", row},
    Property{"col", col},           Property{"cell", cell},       Property{"line", line},       Property{"sel", selection},
    Property{"value", barValue},    Property{"max", barMax},      Property{"left", left},       Property{"top", top},
    Property{"width", width},       Property{"height", height},   Property{"context", context},
};

} // namespace

Act parseExpectControl(Arguments& arguments) {
    const auto target = arguments.controlOrWindow();
    const auto name = arguments.name("a property");
    const auto* const found =
        std::find_if(Properties.begin(), Properties.end(), [&](const Property& known) { return known.name == name; });
    if (found == Properties.end()) {
        throw SyntaxError("unknown property " + inQuotes(name));
    }
    return found->parse(target, arguments);
}

} // namespace kov::drive
