#include "line/editor/line_sections.hpp"

#include "core/cards/numbers.hpp"
#include "line/editor/placing.hpp"

#include <array>
#include <utility>

namespace kov {
namespace {

constexpr int IdColumn = 0, StartColumn = 1, StopColumn = 2, CountColumn = 3, AirColumn = 4;
constexpr int HelpContextNumber = 1200;
constexpr EntryWindowTraits Traits{"Line Sections", "Form 2A", HelpContextNumber, Twips{9000}, Twips{6060}};

constexpr std::array Columns{
    Column{" Sect   No ", "", integer(1, 999), "Section Number: 1 - 999", "Form 2A, 1-10"},
    Column{"Start Node", "", integer(1, 999), "Starting Node Number: 1-999", "Form 2A, 11-20"},
    Column{"End Node", "", integer(1, 999), "Ending Node Number: 1-999", "Form 2A, 21-30"},
    Column{"# Line Segs", "", integer(1, 99), "Number of Line Segments: 1 or greater", "Form 2A, 31-40"},
    Column{"Initial Air Flow", "CFM", integer(-10000000, 10000000), "Initial Air Flow:  +/- 10,000,000 CFM", "Form 2A, 41-50"},
};
constexpr std::array<double, Columns.size()> Widths{1500, 1600, 1600, 1700, 2070};

struct MenuEntry {
    std::string_view name;
    std::string_view caption;
    std::string_view menu;
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

Control& buildGrid(Window& window) {
    const Placer placer{window};
    return placer.grid("grdLSect", "gtext", std::nullopt, Columns, Widths,
                       boundsOf(Placer::Margin, Placer::Margin, 9000 - 2 * Placer::Margin, 5250));
}

/// A section that has no number yet.
std::string newRowText(const cSection& section) {
    std::string row = "0";
    row.append("\t").append(plainNumber(section.StartNode)).append("\t").append(plainNumber(section.StopNode));
    row.append("\t").append(plainNumber(section.nLSegs())).append("\t").append(section.InitAir.view());
    return row;
}

} // namespace

std::span<const Column> LineSections::columns() { return Columns; }

LineSections::LineSections(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), sections_(data_->Sections), entry_(app, window, Traits),
      grid_(buildGrid(window)), rows_(app, window, entry_.flags, grid_) {
    build();
    wire();
    sections_.SectList(grid());
    grid().setRow(0);
    grid().setCol(0);
    grid().select({0, 0, 0, 0});
    entry_.loadStep();
}

void LineSections::build() {
    const Placer placer{window_};
    constexpr double Top = 5520, Width = 1500, Height = 405;
    placer.add(ControlKind::Button, "cmdGoSeg", "&SEGMENTS", boundsOf(Placer::Margin, Top, Width, Height));
    placer.add(ControlKind::Button, "cmdOkay", "OK", boundsOf(5820, Top, Width, Height));
    placer.add(ControlKind::Button, "cmdHelp", "Help", boundsOf(7410, Top, Width, Height));
    for (const auto& entry : Menus) {
        placer.menu(entry.name, entry.caption, entry.menu);
    }
}

OverlayRules LineSections::overlayRules() {
    OverlayRules rules;
    rules.opensOnSelect = false;
    rules.rightWhenStill = true;
    rules.blankRowBelow = false;
    rules.accepted = [this](int row, int col, std::string& text) { store(row, col, text); };
    rules.insertRow = [this] { onInsert(); };
    rules.deleteRow = [this] { onDelete(); };
    return rules;
}

void LineSections::wire() {
    overlay_.emplace(app_, entry_.flags, grid_, window_.control("gtext"), Columns, overlayRules());
    overlay_->bindDummy(window_.control("Dummy"));
    grid_.on.rightClick = [this](int) {
        if (app_.desk.setFocus(grid_)) {
            window_.control("M_Edit").menu().popup = true;
        }
    };
    window_.control("cmdGoSeg").on.click = [this] { onSegments(); };
    wireMenus();
    entry_.bindStandardControls();
    entry_.closing = [this] { onClosing(); };
    window_.on.activate = [this, panel = window_.on.activate] {
        panel();
        onActivate();
    };
}

void LineSections::wireMenus() {
    window_.control("ME_Cut").on.click = [this] { rows_.cut([this](Position position) { sections_.Cut(position); }); };
    window_.control("ME_Copy").on.click = [this] { rows_.copy([this](Position position) { sections_.Copy(position); }); };
    window_.control("ME_Paste").on.click = [this] { rows_.paste([this](const std::string& text) { onPaste(text); }); };
    window_.control("ME_Delete").on.click = [this] { onDelete(); };
    window_.control("ME_Insert").on.click = [this] { onInsert(); };
    window_.control("ME_Default").on.click = [this] { sections_.SetDefault(rows_.current()); };
}

// What a person does with whole sections.

void LineSections::onInsert() {
    const auto section = sections_.Add(rows_.current());
    grid().addItem(newRowText(*section), grid().row());
    entry_.flags.FormChanged = true;
}

void LineSections::onDelete() {
    rows_.remove([this](Position position) { sections_.Delete(position); });
}

void LineSections::onPaste(const std::string& text) {
    grid().addItem(text, grid().row());
    // At the last row the model appends while the grid row goes ahead: the grid shows the last two swapped until it is opened
    // again.
    sections_.Paste(rows_.current());
    grid().setCurrentText("0");
}

// Cells.

void LineSections::store(int row, int col, std::string& text) {
    if (row >= sections_.Count()) {
        const auto added = sections_.Add(Position{0});
        grid().addItem(newRowText(*added), row);
    }
    const auto& section = sections_.Section(Position{row + 1});
    switch (col) {
    case IdColumn:
        section->id = fieldInteger(text);
        break;
    case StartColumn:
        section->StartNode = fieldInteger(text);
        break;
    case StopColumn:
        section->StopNode = fieldInteger(text);
        break;
    case CountColumn:
        section->setNLSegs(fieldInteger(text), app_.messages());
        text = bareNumber(section->nLSegs()); // a lower count may have been refused
        break;
    case AirColumn:
        section->InitAir = text;
        break;
    default:
        break;
    }
}

// To the segments and back.

void LineSections::onSegments() {
    if (grid().row() < sections_.Count()) {
        app_.lineSelection = {sections_.Section(rows_.current())->id, 1};
    }
    refreshWanted_ = true;
    if (sections_.Count() >= 1) {
        app_.desk.show("lseg");
    }
}

void LineSections::onActivate() {
    if (!std::exchange(refreshWanted_, false)) {
        return;
    }
    overlay_->setGuard(true);
    // The last row is left out even when it is no blank one.
    for (int row = 0; row < grid().rows() - 1 && row < sections_.Count(); ++row) {
        grid().setText(row, CountColumn, plainNumber(sections_.Section(Position{row + 1})->nLSegs()));
    }
    overlay_->setGuard(false);
}

void LineSections::onClosing() { app_.lineSelection.SelSect = 0; }

} // namespace kov
