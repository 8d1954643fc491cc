#include "unit/drive/playground.hpp"

#include "core/cards/failure.hpp"

#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace kov::drive::test {
namespace {

constexpr int YesNoCancelBox = 35, OkBox = 48;

struct Playground {
    Playground(Services services, std::string folder) : desk(services), appPath(std::move(folder)) {
        desk.registerWindow("test", [this](Window& window) { return build(window); });
        desk.registerWindow("other", [](Window& window) {
            window.add(ControlKind::TextBox, "tbOther");
            return std::make_shared<int>();
        });
        desk.registerWindow("modal", [](Window& window) {
            window.add(ControlKind::Button, "cmdDone", "&Done");
            return std::make_shared<int>();
        });
        desk.onFailure = [this](const std::string&) { return desk.services().files.rescue("unsaved.kov", "kept"); };
    }

    std::shared_ptr<void> build(Window& window) {
        window.caption = "Test " + commandLine;
        window.bounds = {Twips{150}, Twips{300}, Twips{6000}, Twips{4500}};
        window.helpContext = 1234;
        window.resizable = true;
        entries(window);
        grids(window);
        tabs(window);
        menus(window);
        buttons(window);
        surroundings(window);
        window.on.resize = [this] { desk.setPanel(1, "resized"); };
        return std::make_shared<int>();
    }

    void entries(Window& window) {
        auto& box = window.add(ControlKind::TextBox, "tbText");
        box.setText("old");
        box.on.gotFocus = [this, &box] {
            box.selectText(0, static_cast<int>(box.text().text.size()));
            desk.setPanel(2, "A text");
        };
        box.on.lostFocus = [this, &box] {
            desk.setPanel(2, "");
            if (box.text().text == "bad") {
                desk.services().messages.show(OkBox, "", "Bad");
                desk.setFocus(box);
            }
        };
        box.on.change = [this] { dirty = true; };
        auto& notes = window.add(ControlKind::TextBox, "tbNotes");
        notes.text().multiLine = true;
        window.add(ControlKind::Label, "lblHint", "A &hint").bounds = {Twips{120}, Twips{240}, Twips{900}, Twips{255}};
        auto& list = window.add(ControlKind::List, "lbOne");
        auto& many = window.add(ControlKind::List, "lbMany");
        std::get<ListPart>(many.part).multiSelect = true;
        auto& drop = window.add(ControlKind::Combo, "cbDrop");
        auto& typed = window.add(ControlKind::Combo, "cbTyped");
        std::get<ComboPart>(typed.part).dropDownList = false;
        for (auto* control : {&list, &many, &drop, &typed}) {
            control->items().addItem("first");
            control->items().addItem("second ");
            control->items().addItem("third");
        }
        drop.items().setIndex(0);
        list.on.dblClick = [this] { desk.setPanel(1, "list double clicked"); };
        auto& spin = window.add(ControlKind::Spin, "spSteps");
        spin.on.spinUp = [&box] { box.setText("up"); };
        spin.on.spinDown = [&box] { box.setText("down"); };
        std::get<ProgressPart>(window.add(ControlKind::Progress, "prBar").part) = {7, 50};
        window.add(ControlKind::Image, "imPicture");
        auto& timer = window.add(ControlKind::Timer, "tmClock");
        timer.timer() = {1000, true};
        timer.on.tick = [this] { desk.setPanel(1, std::to_string(++ticks)); };
    }

    void grids(Window& window) {
        auto& grid = window.add(ControlKind::Grid, "grData");
        grid.grid().setCols(3);
        grid.grid().setRows(2);
        grid.grid().setText(0, 0, "a");
        grid.grid().setText(0, 1, "b");
        auto& overlay = window.add(ControlKind::TextBox, "gtext");
        overlay.visible = false;
        grid.on.dblClick = [this, &grid, &overlay] {
            overlay.setText(grid.grid().currentText());
            overlay.visible = true;
            desk.setFocus(overlay);
        };
        overlay.on.lostFocus = [&grid, &overlay] {
            grid.grid().setCurrentText(overlay.text().text);
            overlay.visible = false;
        };
        grid.on.rightClick = [this](int row) { desk.setPanel(1, "right on " + std::to_string(row)); };
        grid.on.click = [this] { desk.setPanel(1, "grid clicked"); };
    }

    static void tabs(Window& window) {
        auto& strip = window.add(ControlKind::TabStrip, "tsPages");
        strip.tabs().tabs = {{"&One", true}, {"Two", true}, {"Three", false}};
        auto& second = window.add(ControlKind::TextBox, "tbSecond");
        second.strip = &strip;
        second.page = 1;
        auto& button = window.add(ControlKind::Button, "cmdSecond", "Second");
        button.strip = &strip;
        button.page = 1;
        auto& panel = window.add(ControlKind::Panel, "pnOuter", "Outer");
        auto& inner = window.add(ControlKind::Frame, "pnInner", "Inner");
        inner.parent = &panel;
        auto& deep = window.add(ControlKind::TextBox, "tbDeep");
        deep.parent = &inner;
        window.add(ControlKind::Button, "cmdHide", "Hide").on.click = [&panel] { panel.visible = false; };
        window.add(ControlKind::Button, "cmdOff", "Off").enabled = false;
    }

    void menus(Window& window) {
        auto& popup = window.add(ControlKind::Menu, "MFile", "&File");
        popup.menu().popup = true;
        auto& entry = window.add(ControlKind::Menu, "MF_Open", "&Open...");
        entry.menu().menu = "MFile";
        entry.on.click = [this] { desk.setPanel(1, "menu"); };
        window.add(ControlKind::Menu, "MF_Off", "Off").enabled = false;
        auto& closed = window.add(ControlKind::Menu, "MClosed", "Closed");
        closed.menu().popup = true;
        closed.enabled = false;
        window.add(ControlKind::Menu, "MC_Entry", "Entry").menu().menu = "MClosed";
        window.add(ControlKind::Menu, "MF_Files", "&1 file", 1).checked = true;
    }

    void buttons(Window& window) {
        window.add(ControlKind::CheckBox, "ckMark", "Mark");
        window.add(ControlKind::OptionButton, "obChoice", "A", 0).checked = true;
        window.add(ControlKind::OptionButton, "obChoice", "B", 1);
        onClick(window, "cmdBox", "&Box", [this] {
            const auto answer = desk.services().messages.show(YesNoCancelBox, "T", "Well\r\nthen?");
            desk.setPanel(1, answer == Answer::Yes ? "yes" : answer == Answer::No ? "no" : "cancel");
        });
        onClick(window, "cmdTell", "Tell", [this] { desk.services().messages.show(OkBox, "", "Told"); });
        onClick(window, "cmdFail", "Fail", [] { throw Failure("overflow"); });
        onClick(window, "cmdBeep", "Beep", [this] { desk.beep(); });
        onClick(window, "cmdBusy", "Busy", [this] { desk.setBusy(!desk.busy()); });
        onClick(window, "cmdModal", "Modal", [this] { desk.show("modal", true); });
        onClick(window, "cmdOther", "Other", [this] { desk.show("other"); });
        onClick(window, "cmdEnd", "End", [this] { desk.end(); });
        onClick(window, "cmdHelp", "Help", [this] { desk.services().help.show(HelpContext, 77, ""); });
    }

    static void onClick(Window& window, const char* name, const char* caption, std::function<void()> action) {
        window.add(ControlKind::Button, name, caption).on.click = std::move(action);
    }

    void showDialog(DialogKind kind) {
        DialogRequest request;
        request.kind = kind;
        const auto result = desk.services().dialogs.show(request);
        const bool file = kind == DialogKind::Open || kind == DialogKind::Save;
        std::ostringstream shown;
        shown << result.error << ' ' << (file ? result.fileName + " " + result.fileTitle : result.fontName) << ' '
              << result.fontSize;
        desk.setPanel(1, shown.str());
    }

    void surroundings(Window& window) {
        onClick(window, "cmdOpen", "Open", [this] { showDialog(DialogKind::Open); });
        onClick(window, "cmdFont", "Font", [this] { showDialog(DialogKind::Font); });
        onClick(window, "cmdPrintSetup", "Setup", [this] { showDialog(DialogKind::Print); });
        onClick(window, "cmdRun", "Run", [this] { run(); });
        onClick(window, "cmdPrint", "Print", [this] { print(); });
        onClick(window, "cmdSetting", "Setting", [this] {
            auto& settings = desk.services().settings;
            settings.set("Last", settings.get("Last", "none") + "+");
        });
        onClick(window, "cmdSave", "Save", [this] {
            PlatformError error;
            desk.services().files.setCurrentFolder("/");
            const auto path = desk.services().files.absolute("saved.txt");
            desk.services().files.truncate(path, error);
            if (!error) {
                desk.services().files.write(path, "one  \r\ntwo\r\n", error);
            }
            desk.setPanel(1, std::to_string(error.number) + error.description);
        });
    }

    void run() {
        auto& processes = desk.services().processes;
        PlatformError error;
        const auto process = processes.start(appPath + "\\sim.exe \"x\"", 4, error);
        if (error) {
            desk.setPanel(1, std::to_string(error.number) + error.description);
            return;
        }
        std::int32_t code = StillActive;
        int polls = 0;
        for (; code == StillActive; ++polls) {
            code = processes.exitCode(process);
            processes.wait(100);
        }
        processes.close(process);
        desk.setPanel(1, std::to_string(code) + " after " + std::to_string(polls));
    }

    void print() {
        auto& printer = desk.services().printer;
        printer.begin("Test");
        printer.setFont("Courier New", 10, false);
        printer.print(Twips{0}, printer.textHeight("x"), "line two  ");
        printer.print(Twips{0} + printer.textWidth("1234"), Twips{}, "five");
        printer.newPage();
        printer.print(Twips{}, Twips{}, "second page");
        printer.end();
    }

    Desk desk;
    std::string appPath;
    std::string commandLine;
    bool dirty = false;
    int ticks = 0;
};

} // namespace

std::unique_ptr<DrivenProgram> playground(Services services, const std::string& appPath) {
    auto made = std::make_shared<Playground>(services, appPath);
    auto* program = made.get();
    return std::make_unique<DrivenProgram>(DrivenProgram{.owner = std::move(made),
                                                         .desk = program->desk,
                                                         .start =
                                                             [program](const std::string& commandLine) {
                                                                 program->commandLine = commandLine;
                                                                 program->desk.act([&] { program->desk.show("test"); });
                                                             },
                                                         .fileDirty = [program] { return program->dirty; },
                                                         .hand = handOf(program->desk)});
}

Folder::Folder() {
    std::random_device random;
    path_ = std::filesystem::canonical(std::filesystem::temp_directory_path()) /
            ("kovin-test-" + std::to_string(random()) + std::to_string(random()));
    std::filesystem::create_directory(path_);
}

Folder::~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void Folder::write(const std::string& name, std::string_view content) const {
    std::ofstream(path_ / name, std::ios::binary) << content;
}

std::string Folder::read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string play(const std::string& text, const Folder& folder, bool trace) {
    RunOptions options;
    options.factory = playground;
    options.startFolder = folder.path();
    options.appPath = "/opt/kov";
    options.trace = trace;
    std::ostringstream out;
    const std::array scripts{ScriptText{"s", text}};
    runScripts(scripts, options, out);
    return out.str();
}

} // namespace kov::drive::test
