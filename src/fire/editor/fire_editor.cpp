#include "fire/editor/fire_editor.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/layout.hpp"
#include "shell/entry/menus.hpp"

#include <array>
#include <string>

namespace kov {
namespace {

constexpr std::array Fields{
    Field{"tbEffEmm", "Effective Emmissivity", "", real(0, 1), "Effective Emmissivity of Combustion Products: 0. - 1.0",
          &KOVDataSet::EECPG, "Form 1G, columns 71-80"},
};

constexpr std::array Columns{
    Column{"Source Name", "", text(), "Source Description", "Form 4, line 1, columns 1-30"},
    Column{"Seg", "", real(1, 999), "Segment Number: 1-999", "Form 4, line 1, columns 41-50"},
    Column{"Sub Seg", "", real(1, 199), "Subsegment Number: 1- number of subsegments in the segment",
           "Form 4, line 1, columns 51-60"},
    Column{" Sensible  Heat", "Btu/hr", real(0, 100000000), "Rate of Sensible Heat Release: Btu/Hr",
           "Form 4, line 2, columns 1-10"},
    Column{"Latent Heat", "Btu/hr", real(0, 100000000), "Rate of Latent Heat Release: Btu/Hr", "Form 4, line 2, columns 11-20"},
    Column{"Start Time", "s", real(0, 10000), "Simulation Time Source becomes Active: seconds",
           "Form 4, line 2, columns 21-30"},
    // Whatever the hint says: no stop time is compared with its start time.
    Column{"Stop Time", "s", real(0, 10000), "Simulation Time Source becomes Active: > start time - seconds",
           "Form 4, line 2, columns 31-40"},
    Column{"Flame Temp", "deg F", real(500, 2000), "Effective Flame Temperature: 500-2000 deg F",
           "Form 4, line 2, columns 41-50"},
    Column{"Radiation Area", "sq ft", real(0, 10000), "Effective Area for Radiation: 0 to Max surface of segment - SqFt",
           "Form 4, line 2, columns 51-60"},
};

constexpr EntryWindowTraits Traits{"Fire Data", "Form 4", 1350, {}, {}};
constexpr std::string_view NewRow = "\t1\t1\t0.\t0.\t0.\t0.\t500.\t0.";
constexpr std::string_view Unnamed = "New";
constexpr int FirstFireColumn = 7, VisibleRows = 12;

} // namespace

std::span<const Field> FireEditor::fields() { return Fields; }
std::span<const Column> FireEditor::columns() { return Columns; }

FireEditor::FireEditor(Application& app, Window& window) : app_(app), window_(window), entry_(app, window, Traits) {
    build();
    const auto& field = Fields.front();
    bindField(app_, entry_.flags, window_.control(field.control), field.hint, field.rule);
    bindGrid();
    // Closing decides what is kept, by whatever way the window goes.
    window_.control("cmdOkay").on.click = [this] { app_.desk.unload(window_); };
    entry_.bindStandardControls();
    entry_.closing = [this] { closing(); };
    entry_.loadStep();
    app_.DataSet->Fires.FireList(grid());
    grid().setRow(0);
    grid().setCol(0);
    grid().select({});
    window_.control(field.control).setText(app_.DataSet->EECPG.view());
}

void FireEditor::build() {
    addEditMenu(window_);
    addHelpMenu(window_);
    Layout layout(window_);
    auto& sources = layout.panel("pnlFires", "Sources");
    sources.grid("grdFire", Columns, VisibleRows);
    sources.note("lblMessage", "Only required if Fire Simulation option is selected and this source is in a Fire Segment.")
        .visible = false;
    layout.nextBand();
    layout.panel("pnlEmissivity", "Combustion Products").field(Fields.front());
    layout.button("cmdOkay", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.finish();
}

void FireEditor::bindGrid() {
    auto& control = window_.control("grdFire");
    OverlayRules rules;
    rules.opensOnSelect = false;
    rules.rightWhenStill = true;
    rules.newRow = NewRow;
    rules.deleteRow = [this] { onDeleteRow(); };
    rules.accepted = [this](int, int, std::string&) { entry_.flags.FormChanged = true; };
    overlay_ = std::make_unique<GridOverlay>(app_, entry_.flags, control, window_.control("gtext"), Columns, rules);
    overlay_->bindDummy(window_.control("Dummy"));
    const auto moved = [this, heard = control.on.cellChange] {
        heard();
        window_.control("lblMessage").visible = grid().col() >= FirstFireColumn;
    };
    control.on.cellChange = moved;
    control.on.gotFocus = [this] { overlay_->showHint(); };
    bindGridCommands(app_, window_, entry_.flags, {{control, window_.control("gtext"), *overlay_}});
    window_.control("ME_Cut").on.click = [this] { onCut(); };
}

void FireEditor::onDeleteRow() {
    if (grid().row() + 1 < grid().rows()) {
        grid().removeItem(grid().row());
        entry_.flags.FormChanged = true;
    }
}

void FireEditor::onCut() {
    if (app_.desk.focus() != &window_.control("grdFire")) {
        app_.desk.sendKeys("^X");
        return;
    }
    app_.desk.services().clipboard.setText(GridRowText(grid()));
    grid().removeItem(grid().row());
    entry_.flags.FormChanged = true;
}

void FireEditor::rebuild() {
    auto& fires = app_.DataSet->Fires;
    fires.Clear();
    for (int row = 0; row < grid().rows(); ++row) {
        const auto cell = [&](int col) { return std::string_view(grid().text(row, col)); };
        FireValues values;
        values.id = cell(0);
        values.segment = fieldInteger(cell(1));
        values.subsegment = fieldInteger(cell(2));
        values.sensible = cell(3);
        values.latent = cell(4);
        values.start = cell(5);
        values.stop = cell(6);
        values.flameTemperature = cell(7);
        values.radiationArea = cell(8);
        const auto name = trim(cell(0));
        if (!name.empty() && name != Unnamed) {
            fires.Add()->SetFire(values);
        }
    }
}

void FireEditor::closing() {
    if (entry_.flags.FormChanged) {
        app_.FileDirty = true;
    }
    if (!entry_.flags.Cancelled) {
        rebuild();
        app_.DataSet->EECPG = window_.control("tbEffEmm").text().text;
    }
}

} // namespace kov
