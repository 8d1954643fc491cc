#include "vent/editor/fan_table.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/fixed.hpp"
#include "shell/entry/layout.hpp"
#include "vent/editor/fan_table_print.hpp"
#include "vent/editor/window_tools.hpp"

#include <array>
#include <utility>

namespace kov {
namespace {

constexpr int TypeColumn = 2, StartColumn = 3, StopColumn = 4, StatusColumn = 5;
constexpr int VisibleRows = 14, HintPanel = 2;
constexpr EntryWindowTraits Traits{"Fan Table", "Fan Table", 1600, {}, {}};

constexpr std::array Columns{
    Column{"Vent", "", text(), "", "Form 2B, columns 1-10, and Form 5 title card, columns 1-10"},
    Column{"Vent Shaft Title", "", text(), "", "Form 5 title card, columns 21-56"},
    Column{"Fan Type", "", text(), "Select Fan Type from the list", "Form 5 fan card, columns 1-10"},
    // Less than the shaft editor allows for the same two.
    Column{"Start Time", "", real(0, 90000), "Simulation Time when Fan Starts:  sec", "Form 5 fan card, columns 11-20"},
    Column{"Stop Time", "", real(0, 90000), "Simulation Time when Fan Stops:  sec", "Form 5 fan card, columns 21-30"},
    Column{"Status", "", text(), "Fan Status: -1 Supply; 0 Off; +1 Exhaust", "Form 5 fan card, columns 31-40"},
};
constexpr std::array<double, Columns.size()> Widths{900, 2100, 1500, 850, 850, 1000};
constexpr std::array<std::string_view, 3> States{"-1  Supply", "0 - Off", "+1 Exhault"};

Control& addList(Window& window, std::string_view name, Control* parent) {
    auto& list = window.add(ControlKind::Combo, std::string(name));
    list.parent = parent;
    list.visible = false;
    list.bounds.height = Twips{315};
    return list;
}

} // namespace

std::span<const Column> FanTable::columns() { return Columns; }

Control& FanTable::buildGrid(Window& window) {
    Layout layout(window);
    const auto parts = layout.panel("pnlFans", "Fans").grid("grdFans", Columns, VisibleRows);
    addList(window, "cbFType", parts.grid.parent);
    auto& states = addList(window, "cbFStat", parts.grid.parent);
    for (const auto& state : States) {
        states.items().addItem(state);
    }
    layout.button("cmdPrint", "Print");
    layout.button("cmdOkay", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.finish();
    setColumnWidths(window, parts.grid, "lblFans", Widths);
    return parts.grid;
}

FanTable::FanTable(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), entry_(app, window, Traits), grid_(buildGrid(window)) {
    wire();
    entry_.loadStep();
    data_->Vents.FanList(grid_.grid(), shafts_, data_->Fans);
    data_->Fans.List(window_.control("cbFType").items());
    putGridOn(grid_.grid(), 0, 0);
}

void FanTable::wire() {
    OverlayRules rules;
    rules.opensOnSelect = false;
    rules.growsByEnter = false;
    rules.blankRowBelow = false;
    rules.accepted = [this](int row, int col, std::string& text) { onTime(row, col, text); };
    rules.openInstead = [this](int row, int col) { return openList(row, col); };
    rules.insertRow = rules.deleteRow = [] {}; // the rows are those of the shafts
    overlay_.emplace(app_, entry_.flags, grid_, window_.control("gtext"), Columns, std::move(rules));
    overlay_->bindDummy(window_.control("Dummy"));
    auto& types = window_.control("cbFType");
    types.on.lostFocus = [this, &types] { leaveFanType(types); };
    auto& states = window_.control("cbFStat");
    states.on.lostFocus = [this, &states] { leaveStatus(states); };
    window_.control("cmdPrint").on.click = [this] { onPrint(); };
    entry_.bindStandardControls();
}

std::shared_ptr<cVShaft> FanTable::shaftOf(int row) const { return shafts_.at(Position{row + 1}); }

bool FanTable::openList(int row, int col) {
    if (row >= shafts_.count()) {
        return true; // the empty row of a table without fans belongs to no shaft
    }
    if (col == StartColumn || col == StopColumn) {
        return false;
    }
    if (col == TypeColumn || col == StatusColumn) {
        auto& list = window_.control(col == TypeColumn ? "cbFType" : "cbFStat");
        const auto shaft = shaftOf(row);
        const int entry = col == TypeColumn ? shaft->FanType : shaft->FanDir + 1;
        chooseEntry(list, entry >= 0 && entry < list.items().count() ? entry : -1);
        LayOverCell(app_, grid_, list);
        app_.desk.setPanel(HintPanel, Columns.at(static_cast<std::size_t>(col)).hint);
        app_.desk.setFocus(list);
    }
    return true;
}

void FanTable::onTime(int row, int col, const std::string& text) {
    const auto shaft = shaftOf(row);
    auto& member = col == StartColumn ? shaft->FanOn : shaft->FanOff;
    if (!(member == Fixed<10>(text))) {
        member = text;
        app_.FileDirty = true;
    }
}

void FanTable::leaveFanType(Control& list) {
    list.visible = false;
    if (const int entry = list.items().index(); entry >= 0) {
        auto& type = shaftOf(app_.GridRow)->FanType;
        if (type != entry) {
            type = static_cast<std::int16_t>(entry);
            app_.FileDirty = true;
        }
        grid_.grid().setText(app_.GridRow, TypeColumn, list.items().item(entry));
    }
}

void FanTable::leaveStatus(Control& list) {
    list.visible = false;
    if (const int entry = list.items().index(); entry >= 0) {
        auto& direction = shaftOf(app_.GridRow)->FanDir;
        if (direction != entry - 1) {
            direction = static_cast<std::int16_t>(entry - 1);
            app_.FileDirty = true;
        }
        grid_.grid().setText(app_.GridRow, StatusColumn, list.items().item(entry));
    }
}

void FanTable::onPrint() {
    auto& grid = grid_.grid();
    printFanTable(app_.desk.services().printer, grid, app_.current.KOVName, data_->Sysid.view());
    overlay_->setGuard(true);
    putGridOn(grid, grid.rows() - 1, grid.cols() - 1);
    overlay_->setGuard(false);
}

} // namespace kov
