#include "shell/entry/menus.hpp"

#include <memory>
#include <string>
#include <utility>

namespace kov {
namespace {

void addEntry(Window& window, std::string_view name, std::string_view caption, std::string_view menu) {
    window.add(ControlKind::Menu, std::string(name), std::string(caption)).menu().menu = menu;
}

class GridCommands {
public:
    GridCommands(Application& app, EntryFlags& flags, std::vector<EditedGrid> grids)
        : app_(app), flags_(flags), grids_(std::move(grids)) {}

    void onCut() {
        if (const auto* edited = underFocus()) {
            copyRow(*edited);
            edited->overlay.deleteRow();
        } else {
            app_.desk.sendKeys("^X");
        }
    }

    void onCopy() {
        if (const auto* edited = underFocus()) {
            copyRow(*edited);
        } else {
            app_.desk.sendKeys("^C");
        }
    }

    void onPaste() {
        const auto text = app_.desk.services().clipboard.text();
        if (!text) {
            return;
        }
        if (const auto* edited = underFocus()) {
            auto& grid = edited->grid.grid();
            grid.addItem(*text, grid.row());
            flags_.FormChanged = true;
        } else {
            app_.desk.sendKeys("^V");
        }
    }

    void sendToGrid(std::string_view keystrokes) {
        // An open overlay is left first, so that its cell is in order before the rows move.
        if (app_.desk.setFocus(edited().grid)) {
            app_.desk.sendKeys(keystrokes);
        }
    }

private:
    [[nodiscard]] const EditedGrid* underFocus() const {
        for (const auto& edited : grids_) {
            if (app_.desk.focus() == &edited.grid) {
                return &edited;
            }
        }
        return nullptr;
    }

    [[nodiscard]] const EditedGrid& edited() const {
        for (const auto& edited : grids_) {
            if (app_.desk.focus() == &edited.grid || app_.desk.focus() == &edited.box) {
                return edited;
            }
        }
        return grids_.front();
    }

    void copyRow(const EditedGrid& edited) { app_.desk.services().clipboard.setText(GridRowText(edited.grid.grid())); }

    Application& app_;
    EntryFlags& flags_;
    std::vector<EditedGrid> grids_;
};

} // namespace

void addEditMenu(Window& window, std::initializer_list<EditEntry> further) {
    addEntry(window, "M_Edit", "&Edit", "");
    addEntry(window, "ME_Cut", "Cu&t", "M_Edit");
    addEntry(window, "ME_Copy", "&Copy", "M_Edit");
    addEntry(window, "ME_Paste", "&Paste", "M_Edit");
    for (const auto& entry : further) {
        addEntry(window, entry.name, entry.caption, "M_Edit");
    }
}

void addHelpMenu(Window& window) {
    addEntry(window, "M_Help", "&Help", "");
    addEntry(window, "MH_Contents", "&Contents", "M_Help");
    addEntry(window, "MH_Search", "&Search for Help on...", "M_Help");
}

void bindGridCommands(Application& app, Window& window, EntryFlags& flags, std::vector<EditedGrid> grids) {
    const auto commands = std::make_shared<GridCommands>(app, flags, std::move(grids));
    window.control("ME_Cut").on.click = [commands] { commands->onCut(); };
    window.control("ME_Copy").on.click = [commands] { commands->onCopy(); };
    window.control("ME_Paste").on.click = [commands] { commands->onPaste(); };
    if (auto* entry = window.find("ME_Delete")) {
        entry->on.click = [commands] { commands->sendToGrid("{DEL}"); };
    }
    if (auto* entry = window.find("ME_Insert")) {
        entry->on.click = [commands] { commands->sendToGrid("{INSERT}"); };
    }
}

} // namespace kov
