#include "vent/editor/vent_sections.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/layout.hpp"
#include "vent/editor/window_tools.hpp"

#include <array>

namespace kov {
namespace {

constexpr int IdColumn = 0, StartColumn = 1, StopColumn = 2, AirColumn = 3;
constexpr int VisibleRows = 14;
constexpr EntryWindowTraits Traits{"Vent Sections", "Form 2B", 1240, {}, {}};

constexpr std::array Columns{
    Column{" Sect  No ", "", integer(1, 999), "Section Number: 1 - 999", "Form 2B, columns 1-10"},
    Column{"Start Node", "", integer(1, 999), "Starting Node Number: 1-999", "Form 2B, columns 11-20"},
    Column{"End Node", "", integer(1, 999), "Ending Node Number: 1-999", "Form 2B, columns 21-30"},
    // A real on the card, but whole numbers only are taken here.
    Column{"Initial Air Flow", "CFM", longInteger(-10000000, 10000000), "Initial Air Flow:  +/- 10,000,000 CFM",
           "Form 2B, columns 31-40"},
};

constexpr std::array Menus{
    MenuEntry{"M_Edit", "&Edit", ""},
    MenuEntry{"ME_Cut", "Cu&t", "M_Edit"},
    MenuEntry{"ME_Copy", "&Copy", "M_Edit"},
    MenuEntry{"ME_Paste", "&Paste", "M_Edit"},
    MenuEntry{"ME_Delete", "&Delete Section", "M_Edit"},
    MenuEntry{"ME_Insert", "&Insert Section ", "M_Edit"},
    MenuEntry{"ME_Default", "&Set as Default", "M_Edit"},
    MenuEntry{"M_Help", "&Help", ""},
    MenuEntry{"MH_Contents", "&Contents", "M_Help"},
    MenuEntry{"MH_Search", "&Search for Help on...", "M_Help"},
};

/// A section that has no number yet.
std::string newRowText(const cVent& section) {
    std::string row = "0";
    row.append("\t").append(plainNumber(section.StartNode)).append("\t").append(plainNumber(section.StopNode));
    row.append("\t").append(section.InitAir.view());
    return row;
}

} // namespace

std::span<const Column> VentSections::columns() { return Columns; }

Control& VentSections::buildGrid(Window& window) {
    addMenus(window, Menus);
    Layout layout(window);
    const auto parts = layout.panel("pnlSections", "Sections").grid("grdVSect", Columns, VisibleRows);
    layout.button("cmdOkay", "OK");
    layout.button("cmdHelp", "Help");
    layout.button("cmdGoShafts", "&SHAFTS");
    layout.finish();
    return parts.grid;
}

VentSections::VentSections(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), vents_(data_->Vents), entry_(app, window, Traits),
      grid_(buildGrid(window)), rows_(app, window, entry_.flags, grid_) {
    wire();
    vents_.VentList(grid());
    putGridOn(grid(), 0, 0);
    entry_.loadStep();
}

OverlayRules VentSections::overlayRules() {
    OverlayRules rules;
    rules.opensOnSelect = false;
    rules.rightWhenStill = true;
    rules.blankRowBelow = false;
    rules.accepted = [this](int row, int col, std::string& text) { store(row, col, text); };
    rules.insertRow = [this] { onInsert(); };
    rules.deleteRow = [this] { onDelete(); };
    return rules;
}

void VentSections::wire() {
    overlay_.emplace(app_, entry_.flags, grid_, window_.control("gtext"), Columns, overlayRules());
    overlay_->bindDummy(window_.control("Dummy"));
    grid_.on.rightClick = [this](int) { window_.control("M_Edit").menu().popup = true; };
    window_.control("ME_Cut").on.click = [this] { rows_.cut([this](Position position) { vents_.Cut(position); }); };
    window_.control("ME_Copy").on.click = [this] { rows_.copy([this](Position position) { vents_.Copy(position); }); };
    window_.control("ME_Paste").on.click = [this] { rows_.paste([this](const std::string& text) { onPaste(text); }); };
    window_.control("ME_Delete").on.click = [this] { onDelete(); };
    window_.control("ME_Insert").on.click = [this] { onInsert(); };
    window_.control("ME_Default").on.click = [this] { vents_.SetDefault(rows_.current()); };
    window_.control("cmdGoShafts").on.click = [this] { onShafts(); };
    entry_.bindStandardControls();
    entry_.closing = [this] { onClosing(); };
}

// What a person does with whole sections.

void VentSections::onInsert() {
    const auto section = vents_.Add(rows_.current());
    grid().addItem(newRowText(*section), grid().row());
    entry_.flags.FormChanged = true;
}

void VentSections::onDelete() {
    rows_.remove([this](Position position) { vents_.Delete(position); });
}

void VentSections::onPaste(const std::string& text) {
    grid().addItem(text, grid().row());
    // At the last row the model appends while the grid row goes ahead: the grid shows the last two swapped until it is opened
    // again.
    vents_.Paste(rows_.current());
    grid().setCurrentText("0");
}

// Cells.

void VentSections::store(int row, int col, const std::string& text) {
    if (row >= vents_.Count()) {
        const auto added = vents_.Add(Position{0});
        grid().addItem(newRowText(*added), row);
    }
    auto& section = *vents_.vent(Position{row + 1});
    switch (col) {
    case IdColumn:
        section.id = fieldInteger(text);
        break;
    case StartColumn:
        section.StartNode = fieldInteger(text);
        break;
    case StopColumn:
        section.StopNode = fieldInteger(text);
        break;
    case AirColumn:
        section.InitAir = text;
        break;
    default:
        break;
    }
}

void VentSections::onShafts() {
    if (rows_.current().value > vents_.Count()) {
        return;
    }
    app_.CurShaft = static_cast<std::int16_t>(rows_.current().value);
    app_.desk.show("vshaft", true);
    app_.CurShaft = 0; // opened from anywhere else, it begins with the first shaft
}

void VentSections::onClosing() {
    if (auto* shafts = app_.desk.find("vshaft")) {
        app_.desk.unload(*shafts);
    }
}

} // namespace kov
