#include "shell/general/sim_ctrl.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"
#include "shell/entry/layout.hpp"
#include "shell/entry/menus.hpp"

#include <array>
#include <memory>
#include <string>

namespace kov {
namespace {

constexpr std::array Fields{
    Field{"tbTMax", "&Length of Simulation", "sec", real(1, 1000000), "Maximum simulation time:  up to time of last printout",
          &KOVDataSet::TMax, "Form 13, columns 11-20"},
    Field{"tbDeltaT", "Time Increment", "x1/100th sec", real(1, 1000), "Time Increment per Cycle in 1/100ths sec",
          &KOVDataSet::DeltaT, "Form 13, columns 1-10"},
    Field{"tbTempTabInc", "&Temperature Tabulation Inc", "Deg F", real(-10, 10), "Temperature Tabulation Increment:  -10 to 10",
          &KOVDataSet::TempTabInc, "Form 12, columns 1-10"},
    Field{"tbNCTrain", "Cycles / Train Eval", "", integer(1, 100), "Cycles per Complete Train Evaluation: 1 to 100", nullptr,
          "Form 13, columns 21-30"},
    Field{"tbNCWall", "Thermo Cycles / Wall Eval", "", integer(1, 100),
          "Cycles per Complete Wall Temperature Evaluation: 1 to 100", nullptr, "Form 13, columns 31-40"},
};
constexpr std::size_t TimeFields = 2;

constexpr std::array Groups{
    Column{" # Intervals", "", integer(-1, 1000), "Number of intervals in this group: 1 - 1000 or (-1 to supress print)",
           "Form 12, group card, columns 1-10"},
    Column{"Interval Length", "", real(0.1, 3600), "Length of these intervals: 0.1 to 3600. sec",
           "Form 12, group card, columns 11-20"},
    Column{"Abbrev / Detail Prt", "", integer(0, 1000), "Ratio of Abbreviated to Detailed prints: 0 - 1000",
           "Form 12, group card, columns 21-30"},
    Column{"Summary Option", "", integer(0, 4), "Summary Option: 0-4", "Form 12, group card, columns 31-40"},
    Column{"Cycles / Aero Eval", "", integer(0, 100), "Number of cycles per complete Aerodynamic Evaluation: 0 - 100",
           "Form 12, group card, columns 41-50"},
    Column{"Cycles / Thermo Eval", "", integer(0, 100), "Number of cyles per complete Thermodynamic Evaluation:  0 - 100",
           "Form 12, group card, columns 51-60"},
};

constexpr EntryWindowTraits Traits{"Simulation Control", "Form 12", 1120, {}, {}};
constexpr int VisibleRows = 7;
constexpr std::string_view NewRow = "0.        \t0.        \t0.        \t1\t0\t0";

std::string rowOf(const PGroupValues& group) {
    std::string row = plainNumber(group.NIntervals);
    row += '\t';
    row += group.IntLength.view();
    for (const auto value : {group.AbbrevRatio, group.SummaryOpt, group.AeroCycles, group.ThermoCycles}) {
        row += '\t';
        row += plainNumber(value);
    }
    return row;
}

PGroupValues groupOf(const Grid& grid, int row) {
    const auto number = [&](int col) { return fieldInteger(grid.text(row, col)); };
    return {.NIntervals = number(0),
            .IntLength = grid.text(row, 1),
            .AbbrevRatio = number(2),
            .SummaryOpt = number(3),
            .AeroCycles = number(4),
            .ThermoCycles = number(5)};
}

} // namespace

std::span<const Field> SimCtrl::fields() { return Fields; }
std::span<const Column> SimCtrl::columns() { return Groups; }

SimCtrl::SimCtrl(Application& app, Window& window) : app_(app), window_(window), entry_(app, window, Traits) {
    build();
    for (const auto& field : Fields) {
        bindField(app_, entry_.flags, window_.control(field.control), field.hint, field.rule);
    }
    bindGroups();
    entry_.bindStandardControls();
    entry_.bindNavigation("cmdGoSections", "frmLSect");
    entry_.assign = [this] { assign(); };
    entry_.loadStep();
    load();
}

void SimCtrl::build() {
    addEditMenu(window_, {{"ME_Delete", "&Delete Row"}, {"ME_Insert", "&Insert Row"}});
    addHelpMenu(window_);
    Layout layout(window_);
    auto& time = layout.panel("pnlTime", "Simulation Time");
    for (std::size_t i = 0; i < TimeFields; ++i) {
        time.field(Fields.at(i));
    }
    layout.nextColumn();
    auto& control = layout.panel("pnlControl", "Program Control");
    for (std::size_t i = TimeFields; i < Fields.size(); ++i) {
        control.field(Fields.at(i));
    }
    layout.nextBand();
    layout.panel("pnlPGroup", "&Print Control Groups").grid("grdPGroup", Groups, VisibleRows);
    layout.button("cmdDone", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.button("cmdGoSections", "&SECTIONS");
    layout.finish();
}

void SimCtrl::bindGroups() {
    auto& grid = window_.control("grdPGroup");
    auto& box = window_.control("gtext");
    OverlayRules rules;
    rules.insertRow = [this] { onInsertRow(); };
    rules.deleteRow = [this] { onDeleteRow(); };
    overlay_.emplace(app_, entry_.flags, grid, box, Groups, std::move(rules));
    overlay_->bindDummy(window_.control("Dummy"));
    bindGridCommands(app_, window_, entry_.flags, {{grid, box, *overlay_}});
}

void SimCtrl::load() {
    loadGroups();
    const auto& data = *app_.DataSet;
    for (const auto& field : Fields) {
        if (field.member != nullptr) {
            window_.control(field.control).setText((data.*field.member).view());
        }
    }
    window_.control("tbNCTrain").setText(plainNumber(data.NCTrain));
    window_.control("tbNCWall").setText(plainNumber(data.NCWall));
}

void SimCtrl::loadGroups() {
    const auto& data = *app_.DataSet;
    for (int i = 1; i <= data.NPGroups(); ++i) {
        const auto group = data.PGroup(i);
        if (!group) {
            throw Failure("Object variable not set"); // a failed read counts groups that it didn't make
        }
        // Ahead of the blank last row.
        groups().addItem(rowOf(group->getPGroup()), i - 1);
    }
}

void SimCtrl::assign() {
    auto& data = *app_.DataSet;
    for (const auto& field : Fields) {
        if (field.member != nullptr) {
            data.*field.member = window_.control(field.control).text().text;
        }
    }
    data.NCTrain = fieldInteger(window_.control("tbNCTrain").text().text);
    data.NCWall = fieldInteger(window_.control("tbNCWall").text().text);
    data.ClrPGroup();
    assignGroups();
    overlay_->setGuard(false);
}

void SimCtrl::assignGroups() {
    auto& data = *app_.DataSet;
    const auto& grid = groups();
    for (int row = 0; row < grid.rows(); ++row) {
        if (fieldValue(grid.text(row, 0)) > 0) {
            const auto group = std::make_shared<cPGroup>();
            group->setPGroup(groupOf(grid, row));
            data.AddPGroup(group);
        }
    }
    if (data.NPGroups() == 0) {
        data.AddPGroup(std::make_shared<cPGroup>()); // the file always has one group card
    }
}

void SimCtrl::onInsertRow() {
    groups().addItem(NewRow, groups().row());
    entry_.flags.FormChanged = true;
}

void SimCtrl::onDeleteRow() {
    if (groups().row() + 1 < groups().rows()) {
        groups().removeItem(groups().row());
        entry_.flags.FormChanged = true;
    }
}

} // namespace kov
