#include "drive/commands.hpp"
#include "drive/stage.hpp"
#include "platform/windows1252.hpp"

#include <nlohmann/json.hpp>

namespace kov::drive {
namespace {

using Json = nlohmann::ordered_json;

const char* nameOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::Label:
        return "label";
    case ControlKind::TextBox:
        return "text box";
    case ControlKind::Button:
        return "button";
    case ControlKind::CheckBox:
        return "check box";
    case ControlKind::OptionButton:
        return "option button";
    case ControlKind::List:
        return "list";
    case ControlKind::Combo:
        return "drop-down list";
    case ControlKind::Grid:
        return "grid";
    case ControlKind::Panel:
        return "panel";
    case ControlKind::Frame:
        return "frame";
    case ControlKind::TabStrip:
        return "tab strip";
    case ControlKind::Spin:
        return "spin button";
    case ControlKind::Image:
        return "image";
    case ControlKind::Drawing:
        return "drawing";
    case ControlKind::Progress:
        return "progress bar";
    case ControlKind::Line:
        return "line";
    case ControlKind::Menu:
        return "menu entry";
    case ControlKind::Timer:
        break;
    }
    return "timer";
}

void addBounds(Json& json, const Bounds& bounds) {
    json["left"] = bounds.left.value;
    json["top"] = bounds.top.value;
    json["width"] = bounds.width.value;
    json["height"] = bounds.height.value;
}

void addText(Json& json, const Control& control) {
    if (control.hasText()) {
        json["text"] = utf8OfText(control.text().text);
        json["sel"] = {control.text().selStart, control.text().selLength};
        json["locked"] = control.text().locked;
    }
}

void addList(Json& json, const Control& control) {
    const auto& items = control.items();
    json["text"] = utf8OfText(control.shownText());
    json["index"] = items.index();
    auto entries = Json::array();
    auto selected = Json::array();
    for (int i = 0; i < items.count(); ++i) {
        entries.push_back(utf8OfText(items.item(i)));
        if (items.selected(i)) {
            selected.push_back(i);
        }
    }
    json["entries"] = entries;
    if (const auto* box = std::get_if<ListPart>(&control.part); box != nullptr && box->multiSelect) {
        json["selected"] = selected;
    }
}

void addGrid(Json& json, const Grid& grid) {
    json["rows"] = grid.rows();
    json["cols"] = grid.cols();
    json["row"] = grid.row();
    json["col"] = grid.col();
    auto lines = Json::array();
    for (int row = 0; row < grid.rows(); ++row) {
        lines.push_back(utf8OfText(grid.line(row)));
    }
    json["lines"] = lines;
}

void addTabs(Json& json, const TabPart& strip) {
    json["index"] = strip.current;
    auto tabs = Json::array();
    for (const auto& tab : strip.tabs) {
        tabs.push_back({{"caption", utf8OfText(tab.caption)}, {"enabled", tab.enabled}});
    }
    json["tabs"] = tabs;
}

void addPart(Json& json, const Control& control) {
    switch (control.kind) {
    case ControlKind::List:
    case ControlKind::Combo:
        addList(json, control);
        break;
    case ControlKind::Grid:
        addGrid(json, control.grid());
        break;
    case ControlKind::TabStrip:
        addTabs(json, control.tabs());
        break;
    case ControlKind::Progress:
        json["value"] = std::get<ProgressPart>(control.part).value;
        json["max"] = std::get<ProgressPart>(control.part).max;
        break;
    case ControlKind::Image:
        json["path"] = utf8OfText(std::get<ImagePart>(control.part).path);
        break;
    case ControlKind::Timer:
        json["interval"] = std::get<TimerPart>(control.part).interval;
        json["on"] = std::get<TimerPart>(control.part).on;
        break;
    default:
        break;
    }
    addText(json, control);
}

Json stateOf(Desk& desk, const Control& control) {
    Json json;
    json["control"] = utf8OfText(control.window->name() + "." + control.label());
    json["kind"] = nameOf(control.kind);
    json["caption"] = utf8OfText(control.caption);
    json["visible"] = control.shown();
    json["enabled"] = control.enabled;
    json["checked"] = control.checked;
    json["focus"] = desk.focus() == &control;
    addBounds(json, control.bounds);
    addPart(json, control);
    return json;
}

Json stateOf(Desk& desk, const Window& window) {
    Json json;
    json["window"] = utf8OfText(window.name());
    json["caption"] = utf8OfText(window.caption);
    json["front"] = desk.front() == &window;
    json["modal"] = window.modal;
    json["minimized"] = window.minimized;
    json["context"] = window.helpContext;
    addBounds(json, window.bounds);
    const bool focused = desk.focus() != nullptr && desk.focus()->window == &window;
    json["focus"] = focused ? Json(utf8OfText(desk.focus()->label())) : Json(nullptr);
    auto controls = Json::array();
    for (const auto& control : window.controls()) {
        controls.push_back(utf8OfText(control->label()));
    }
    json["controls"] = controls;
    return json;
}

const char* nameOf(Answer answer) {
    switch (answer) {
    case Answer::Ok:
        return "OK";
    case Answer::Cancel:
        return "Cancel";
    case Answer::Yes:
        return "Yes";
    case Answer::No:
        break;
    }
    return "No";
}

void showBoxes(Stage& stage) {
    auto boxes = Json::array();
    for (const auto& box : stage.around.messages.boxes()) {
        boxes.push_back({{"style", box.style},
                         {"title", utf8OfText(box.title)},
                         {"prompt", utf8OfText(box.prompt)},
                         {"answer", nameOf(box.answer)}});
    }
    stage.out << boxes.dump() << '\n';
}

} // namespace

Act parseShow(Arguments& arguments) {
    if (arguments.takeIf("boxes")) {
        return showBoxes;
    }
    const auto target = arguments.controlOrWindow();
    return [target](Stage& stage) {
        const auto json =
            target.control.empty() ? stateOf(stage.desk(), stage.window(target)) : stateOf(stage.desk(), stage.control(target));
        stage.out << json.dump() << '\n';
    };
}

} // namespace kov::drive
