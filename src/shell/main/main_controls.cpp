#include "shell/main/main_controls.hpp"

#include "shell/main/navigation.hpp"
#include "shell/main/recent_files.hpp"

#include <string>

namespace kov {
namespace {

constexpr double Margin = 180, Gap = 90, Line = 315, Width = DesignWidth.value - 2 * Margin;
constexpr double TitleHeight = 2850, ButtonHeight = 450;
constexpr int ButtonColumns = 5;

struct MenuEntry {
    std::string_view name;
    std::string_view caption;
    std::string_view menu;
};

constexpr std::array FileMenu{
    MenuEntry{"MFile", "&File", ""},
    MenuEntry{"MF_New", "&New", "MFile"},
    MenuEntry{"MF_Open", "&Open ...", "MFile"},
    MenuEntry{"MF_Save", "&Save", "MFile"},
    MenuEntry{"MF_SaveAs", "Save &As...", "MFile"},
    MenuEntry{"MF_Bar1", "-", "MFile"},
    MenuEntry{"MF_Print", "&Print ...", "MFile"},
    MenuEntry{"MF_Bar2", "-", "MFile"},
    MenuEntry{"MF_Exit", "E&xit", "MFile"},
    MenuEntry{"MF_Bar3", "-", "MFile"},
};
constexpr std::array OptionsMenu{
    MenuEntry{"M_Options", "&Options", ""},
    MenuEntry{"MO_Font", "&Font", "M_Options"},
    MenuEntry{"MV_Reset", "Reset  &Size && Font", "M_Options"},
};
constexpr std::array RunAndHelpMenus{
    MenuEntry{"MRun", "&Run", ""},
    MenuEntry{"MR_Curr", "&Current FIle", "MRun"},
    MenuEntry{"MR_Batch", "&Batch Mode ...", "MRun"},
    MenuEntry{"MHelp", "&Help", ""},
    MenuEntry{"MH_Contents", "&Contents", "MHelp"},
    MenuEntry{"MH_Search", "&Search for Help on...", "MHelp"},
    MenuEntry{"MH_Bar1", "-", "MHelp"},
    MenuEntry{"MH_About", "&About", "MHelp"},
};

Control& addMenu(Window& window, const MenuEntry& entry) {
    auto& control = window.add(ControlKind::Menu, std::string(entry.name), std::string(entry.caption));
    control.menu().menu = entry.menu;
    return control;
}

void buildMenus(Window& window) {
    for (const auto& entry : FileMenu) {
        addMenu(window, entry);
    }
    for (std::size_t i = 1; i <= RecentFiles::Most; ++i) {
        auto& recent = window.add(ControlKind::Menu, "MF_Files", "", static_cast<int>(i));
        recent.menu().menu = "MFile";
        recent.visible = false;
    }
    for (const auto& entry : OptionsMenu) {
        addMenu(window, entry);
    }
    addMenu(window, {"MData", "&Data", ""});
    for (const auto& destination : Destinations) {
        addMenu(window, {destination.entry, destination.entryCaption, "MData"});
    }
    for (const auto& entry : RunAndHelpMenus) {
        addMenu(window, entry);
    }
}

Control& place(Control& control, double left, double top, double width, double height) {
    control.bounds = {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
    return control;
}

/// A box under its caption, as wide as the window; returns where the next one begins.
double addWideBox(Window& window, const Field& field, double top, double height) {
    place(window.add(ControlKind::Label, "lbl" + std::string(field.control.substr(2)), std::string(field.caption)), Margin, top,
          Width, Line - Gap);
    auto& box = place(window.add(ControlKind::TextBox, std::string(field.control)), Margin, top + Line - Gap, Width, height);
    box.text().fixedPitch = true;
    return top + Line - Gap + height + Gap;
}

/// Caption and box of the three parts of the design date, side by side, and the check box behind them.
void addDateRow(Window& window, double top) {
    constexpr double CaptionWidth = 1125, BoxWidth = 765, Step = CaptionWidth + BoxWidth + 2 * Gap;
    double left = Margin;
    for (std::size_t i = 2; i <= 4; ++i) {
        const auto& field = MainFields.at(i);
        auto& label = window.add(ControlKind::Label, "lbl" + std::string(field.control.substr(2)), std::string(field.caption));
        place(label, left, top, CaptionWidth, Line).alignRight = true;
        place(window.add(ControlKind::TextBox, std::string(field.control)), left + CaptionWidth + Gap, top, BoxWidth, Line);
        left += Step;
    }
    const auto& check = MainFields.at(5);
    place(window.add(ControlKind::CheckBox, std::string(check.control), std::string(check.caption)), left + Gap, top,
          Margin + Width - left - Gap, Line);
}

void addButtons(Window& window, double top) {
    const double width = (Width - (ButtonColumns - 1) * Gap) / ButtonColumns;
    for (int index = 0; index < ButtonCount; ++index) {
        for (const auto& destination : Destinations) {
            if (destination.button == index) {
                auto& button = window.add(ControlKind::Button, "Command1", std::string(destination.buttonCaption), index);
                const int row = index / ButtonColumns;
                const int column = index % ButtonColumns;
                place(button, Margin + column * (width + Gap), top + row * (ButtonHeight + Gap), width, ButtonHeight);
            }
        }
    }
}

} // namespace

void buildMainControls(Window& window) {
    buildMenus(window);
    double top = addWideBox(window, MainFields[0], Margin / 2, Line);
    top = addWideBox(window, MainFields[1], top, TitleHeight);
    window.control("tbTitle").text().multiLine = true;
    addDateRow(window, top + Gap);
    addButtons(window, top + Gap + Line + 2 * Gap);
    auto& bar = window.add(ControlKind::Progress, "ProgressBar1");
    place(bar, Margin, top + Gap + Line + 2 * Gap + 3 * (ButtonHeight + Gap) + Gap, Width, Line - Gap);
    bar.visible = false;
}

} // namespace kov
