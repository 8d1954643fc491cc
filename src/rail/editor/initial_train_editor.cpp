#include "rail/editor/initial_train_editor.hpp"

#include "core/cards/numbers.hpp"
#include "rail/editor/segment_window.hpp"
#include "shell/entry/layout.hpp"
#include "shell/entry/menus.hpp"

#include <array>
#include <string>

namespace kov {
namespace {

constexpr std::array Columns{
    // Any text stands as a location: it is never checked.
    Column{"Train Location", "ft", text(), "Train Location on the Route: Ft", "Form 10, columns 1-10"},
    Column{"Speed", "MPH", real(0, 250), "Train Speed at the beginning of the simulation: 0 to 250 MPH",
           "Form 10, columns 11-20"},
    Column{"Route #", "", integer(1, 10), "Route number on which this train is operating.", "Form 10, columns 21-30"},
    Column{"Train Type", "", integer(1, 10), "Train Type identification number of this train.", "Form 10, columns 31-40"},
    Column{"Acceleration Grid Temp", "deg F", real(0, 1000),
           "Temperature of the Acceleration grids at the start of the simulation: Deg F", "Form 10, columns 41-50"},
    Column{"Deceleration Grid Temp", "deg F", real(0, 1000),
           "Temperature of the Deceleration grids at the start of the simulation: Deg F", "Form 10, columns 51-60"},
    Column{"Remaining Dwell", "sec", real(-1, 900),
           "Remaining Dwell time (for stopped trains): 0 to 900 seconds.  -1 to prevent movement.", "Form 10, columns 61-70"},
    Column{"Coast", "", integer(0, 1),
           "Enter 1 if the train is coasting at the beginning of the simulation;  0 if not coasting.",
           "Form 10, columns 71-80"},
};

constexpr EntryWindowTraits Traits{"Train Initialization", "Form 10", 1590, {}, {}};
constexpr std::string_view NewRow = "\t0.\t1\t1\t0.\t0.\t0\t0";
constexpr int VisibleRows = 15;

} // namespace

std::span<const Column> InitialTrainEditor::columns() { return Columns; }

InitialTrainEditor::InitialTrainEditor(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), entry_(app, window, Traits) {
    build();
    bindGrid();
    window_.control("cmdOkay").on.click = [this] { app_.desk.unload(window_); };
    entry_.bindStandardControls();
    entry_.assign = [this] { save(); };
    entry_.loadStep();
    data_->InitTrains.TrainList(grid());
}

void InitialTrainEditor::build() {
    addEditMenu(window_);
    addHelpMenu(window_);
    Layout layout(window_);
    layout.panel("pnlTrains", "Trains at the Start").grid("Grid1", Columns, VisibleRows, "gtext", "Text1");
    layout.button("cmdOkay", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.finish();
}

void InitialTrainEditor::bindGrid() {
    auto& control = window_.control("Grid1");
    auto& box = window_.control("gtext");
    OverlayRules rules;
    rules.rightWhenStill = true;
    rules.editedOnly = true;
    rules.blankRow = " ";
    rules.newRow = NewRow;
    rules.deleteRow = [this] { onDeleteRow(); };
    overlay_ = std::make_unique<GridOverlay>(app_, entry_.flags, control, box, Columns, rules);
    overlay_->bindDummy(window_.control("Text1"));
    control.on.gotFocus = [this] { overlay_->showHint(); };
    bindGridCommands(app_, window_, entry_.flags, {{control, box, *overlay_}});
    window_.control("ME_Cut").on.click = [this] { onCut(); };
}

void InitialTrainEditor::onDeleteRow() {
    if (grid().row() + 1 < grid().rows()) {
        grid().removeItem(grid().row());
        entry_.flags.FormChanged = true;
    }
}

void InitialTrainEditor::onCut() {
    if (!segmentGridActive(app_.desk)) {
        app_.desk.sendKeys("^X");
        return;
    }
    app_.desk.services().clipboard.setText(GridRowText(grid()));
    grid().removeItem(grid().row());
    entry_.flags.FormChanged = true;
}

void InitialTrainEditor::save() {
    auto& trains = data_->InitTrains;
    trains.Clear();
    for (int row = 0; row < grid().rows(); ++row) {
        const auto cell = [&](int col) { return std::string_view(grid().text(row, col)); };
        cInitTrain::Values values;
        values.ITLocation = cell(0);
        values.ITSpeed = cell(1);
        values.ITRoute = fieldInteger(cell(2));
        values.ITType = fieldInteger(cell(3));
        values.ITAccTemp = cell(4);
        values.ITDecTemp = cell(5);
        values.ITDwell = toInt32(fieldValue(cell(6)));
        values.ITCoast = fieldInteger(cell(7));
        if (!trim(cell(0)).empty()) {
            trains.Add()->setITrain(values);
        }
    }
}

} // namespace kov
