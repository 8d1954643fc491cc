#include "vent/editor/fan_list_controls.hpp"

#include "vent/editor/window_tools.hpp"

#include <array>
#include <utility>

namespace kov {
namespace {

constexpr std::array Menus{
    MenuEntry{"MEdit", "&Edit", ""},
    MenuEntry{"ME_Cut", "Cu&t", "MEdit"},
    MenuEntry{"ME_Copy", "&Copy", "MEdit"},
    MenuEntry{"ME_Paste", "&Paste", "MEdit"},
    MenuEntry{"MHelp", "&Help", ""},
    MenuEntry{"MH_Contents", "&Contents", "MHelp"},
    MenuEntry{"MH_Search", "&Search for Help on...", "MHelp"},
};
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> Buttons{
    {{"cmdInsert", "Insert"}, {"cmdCut", "Cut"}, {"cmdCopy", "Copy"}, {"cmdPaste", "Paste"}, {"cmdDelete", "Delete"}}};
constexpr double SpinWidth = 270, SpinGap = 30;

} // namespace

void addFanMenus(Window& window) { addMenus(window, Menus); }

Control& addFanNumber(Window& window, LayoutPanel& panel, const Field& number) {
    auto& box = panel.field(number);
    box.text().locked = true; // it tells which fan is shown
    auto& spin = window.add(ControlKind::Spin, "Spin1");
    spin.parent = &panel.frame();
    return spin;
}

void placeFanSpin(Window& window, Control& spin) {
    const auto& box = window.control("tbFanNo").bounds;
    spin.bounds = {box.left + box.width + Twips{SpinGap}, box.top, Twips{SpinWidth}, box.height};
}

void addFanCommands(LayoutPanel& panel) {
    for (const auto& [name, caption] : Buttons) {
        panel.button(name, caption);
    }
}

void bindFanCommands(Window& window, const FanCommands& commands) {
    auto& spin = window.control("Spin1");
    spin.on.spinUp = [step = commands.spin] { step(true); };
    spin.on.spinDown = [step = commands.spin] { step(false); };
    window.control("tbFanNo").on.keyDown = [step = commands.spin](int& code, int) {
        if (code == keys::Up || code == keys::Down) {
            step(std::exchange(code, 0) == keys::Up);
        }
    };
    window.control("cmdInsert").on.click = commands.insert;
    window.control("cmdCut").on.click = commands.cut;
    window.control("cmdCopy").on.click = commands.copy;
    window.control("cmdPaste").on.click = commands.paste;
    window.control("cmdPaste").enabled = false;
    window.control("cmdDelete").on.click = commands.remove;
}

} // namespace kov
