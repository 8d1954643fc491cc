#include "shell/general/options.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/layout.hpp"
#include "shell/entry/menus.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace kov {
namespace {

using namespace std::string_view_literals;

constexpr std::array Fields{
    Field{"cbTPOpt", "Train Performance ", "", text(), "", nullptr, "Form 1C, columns 1-10"},
    Field{"cbTHOpt", "Temperature/Humidity ", "", text(), "", nullptr, "Form 1C, columns 11-20"},
    Field{"cbHDOpt", "Humidity Display ", "", text(), "", nullptr, "Form 1C, columns 21-30"},
    Field{"cbHSOpt", "Heat Sink Summary", "", text(), "", nullptr, "Form 1C, columns 41-50"},
    Field{"cbSupOpt", "Supplemental Output ", "", text(), "", nullptr, "Form 1C, columns 51-60"},
    Field{"cbECOpt", "Environmental Control Load ", "", text(), "", nullptr, "Form 1C, columns 31-40"},
    Field{"tbSimErr", "Simulation Errors", "", real(0, 200), "Allowable number of Simulation Errors", nullptr,
          "Form 1C, columns 61-70"},
    Field{"tbInErr", "Input Errors", "", real(-1, 200), "Allowable number of Input Errors: -1 for input verification only",
          nullptr, "Form 1C, columns 71-80"},
    Field{"cbFireOpt", "Fire Simulation", "", checkBox(), "Check this box if fire heat calculations are to be performed",
          nullptr, "Form 1G, columns 61-70"},
    Field{"cbDKROpt", "Input", "", text(), "Select Type of Restart File to be used as Input", nullptr,
          "Form 1E, columns 71-80"},
    Field{"tbRestartFile", "File Name ", "", text(), "Enter name of Restart file or press Browse to search", nullptr,
          "the line behind Form 13"},
    Field{"cbDKPOpt", "Output", "", text(), "Select Type of Restart File to be Output", nullptr, "Form 1E, columns 61-70"},
};

constexpr std::array TrainEntries{"0 - Bypass"sv, "1 - Implicit"sv, "2 - Explicit (Heat Computed)"sv,
                                  "3 - Explicit (Heat Input)"sv};
constexpr std::array HumidityEntries{"0 - Bypass"sv, "1 - Yes"sv, "2 - Yes - Evaporation"sv};
constexpr std::array DisplayEntries{"1 - Humidity Ratio"sv, "2 - Wet-Bulb Temperature"sv, "3 - Relative Humidity"sv};
constexpr std::array HeatSinkEntries{"0 - Bypass"sv, "1 - Summary Output"sv, "2 - Summary & Arrays"sv};
constexpr std::array SupplementalEntries{"0 - Designer only"sv,    "1 - Input Verification"sv, "2 - Train Simulation"sv,
                                         "3 - Aerodynamic Sim."sv, "4 - Thermodynamic Sim."sv, "5 - All of the above"sv};
constexpr std::array ControlEntries{"0 - Bypass"sv, "1 - Yes - Rush hour"sv, "2 - Off Hour"sv};
constexpr std::array RestartEntries{"0 -None"sv,
                                    "1 - Aerodynamic Only"sv,
                                    "2 - Train Only"sv,
                                    "3 - Thermodynamic Only"sv,
                                    "4 - Aerodynamic and Train"sv,
                                    "5 - Aero, Thermo, and Train"sv};

constexpr std::array Lists{
    OptionList{"cbTPOpt", &KOVDataSet::TPOpt, TrainEntries},
    OptionList{"cbTHOpt", &KOVDataSet::THOpt, HumidityEntries},
    OptionList{"cbHDOpt", &KOVDataSet::HDOpt, DisplayEntries, 1},
    OptionList{"cbHSOpt", &KOVDataSet::HSOpt, HeatSinkEntries},
    OptionList{"cbSupOpt", &KOVDataSet::SupOpt, SupplementalEntries},
    OptionList{"cbECOpt", &KOVDataSet::ECLOpt, ControlEntries},
    OptionList{"cbDKROpt", &KOVDataSet::RstRead, RestartEntries},
    OptionList{"cbDKPOpt", &KOVDataSet::RstWrite, RestartEntries},
};

constexpr std::string_view BrowseHint = "Find Restart Input File";
constexpr EntryWindowTraits Traits{"Options", "Form 1", 1101, {}, {}};
constexpr int OkCancelQuestion = 33;
constexpr double InputVerificationOnly = -1;

const OptionList* listOf(std::string_view control) {
    const auto* found =
        std::find_if(Lists.begin(), Lists.end(), [&](const OptionList& list) { return list.control == control; });
    return found == Lists.end() ? nullptr : found;
}

void addField(LayoutPanel& panel, const Field& field) {
    if (const auto* list = listOf(field.control)) {
        panel.list(field, list->entries);
    } else {
        panel.field(field);
    }
}

const Field& fieldOf(std::string_view control) {
    return *std::find_if(Fields.begin(), Fields.end(), [&](const Field& field) { return field.control == control; });
}

/// The simulation's restart output has the name of its input file up to the first point.
std::string restartName(const std::string& shortName) { return shortName.substr(0, shortName.find('.')) + ".RST"; }

} // namespace

struct Options::Switch {
    std::string_view list;
    std::string_view title;
    std::string_view prompt;
    std::span<const int> buttons;
    std::span<const std::string_view> entries;
};

namespace {

constexpr std::array TrainButtons{12, 13, 14};
constexpr std::array TrainMenu{"ME_Routes"sv, "ME_Trains"sv, "MD_TrainInit"sv};
constexpr std::array ZoneButtons{10};
constexpr std::array ZoneMenu{"MD_ECZones"sv};

} // namespace

const Options::Switch Options::TrainSwitch{
    "cbTPOpt", "Train Performance Option",
    "Setting Train Performance Opt to Zero will delete existing train and route data.\r\nOkay?", TrainButtons, TrainMenu};
const Options::Switch Options::ZoneSwitch{
    "cbECOpt", "Environmental Control Load Option",
    "Setting Environmental Control Opt to Zero will delete existing environmental control "
    "zones and segment EC data.\r\nOkay?",
    ZoneButtons, ZoneMenu};

std::span<const Field> Options::fields() { return Fields; }
std::span<const OptionList> Options::lists() { return Lists; }

Options::Options(Application& app, Window& window) : app_(app), window_(window), entry_(app, window, Traits) {
    CmnDlgRst_.kind = DialogKind::Open;
    CmnDlgRst_.title = "Restart File)";
    CmnDlgRst_.filter = "Restart (*.RST)|*.RST|All Files (*.*)|*.*";
    CmnDlgRst_.defaultExtension = "RST";
    build();
    for (const auto name : {"tbSimErr"sv, "tbInErr"sv, "tbRestartFile"sv}) {
        const auto& field = fieldOf(name);
        bindField(app_, entry_.flags, window_.control(name), field.hint, field.rule);
    }
    bindLists();
    entry_.bindStandardControls();
    entry_.bindNavigation("cmdGoOptions", "SimCtrl");
    entry_.assign = [this] { assign(); };
    entry_.loadStep();
    load();
}

void Options::build() {
    constexpr int listCaption = 14;
    constexpr int restartCaption = 10;
    addEditMenu(window_);
    addHelpMenu(window_);
    Layout layout(window_);
    auto& simulation = layout.panel("pnlSimulation", "Simulation", listCaption);
    for (const auto name : {"cbTPOpt"sv, "cbTHOpt"sv, "cbHDOpt"sv, "cbHSOpt"sv, "cbSupOpt"sv, "cbECOpt"sv}) {
        addField(simulation, fieldOf(name));
    }
    layout.nextColumn();
    auto& errors = layout.panel("pnlErrors", "Allowable Errors");
    addField(errors, fieldOf("tbSimErr"));
    addField(errors, fieldOf("tbInErr"));
    addField(layout.panel("pnlFire", "Fires"), fieldOf("cbFireOpt"));
    auto& restart = layout.panel("pnlRestart", "Restart Files", restartCaption);
    addField(restart, fieldOf("cbDKROpt"));
    addField(restart, fieldOf("tbRestartFile"));
    restart.button("cmdRstBrowse", "Browse ...");
    addField(restart, fieldOf("cbDKPOpt"));
    restart.note("lblRestartOut", "Output will be written to ");
    restart.note("lblRestartOutFile", "KOVFILENAME.RST");
    layout.button("cmdDone", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.button("cmdGoOptions", "CONTROL");
    layout.finish();
}

void Options::bindLists() {
    const auto onClick = [this](std::string_view control, std::function<void()> handler) {
        window_.control(control).on.click = [this, action = std::move(handler)] {
            entry_.flags.FormChanged = true;
            action();
        };
    };
    for (const auto name : {"cbTHOpt"sv, "cbHDOpt"sv, "cbHSOpt"sv, "cbSupOpt"sv, "cbFireOpt"sv}) {
        onClick(name, [] {});
    }
    onClick("cbTPOpt", [this] { onSwitch(TrainSwitch, OldTPOpt_); });
    onClick("cbECOpt", [this] { onSwitch(ZoneSwitch, OldECLOpt_); });
    onClick("cbDKROpt", [this] { onRestartInput(); });
    onClick("cbDKPOpt", [this] { onRestartOutput(); });
    onClick("cmdRstBrowse", [this] { onBrowse(); });
    for (const auto name : {"cbFireOpt"sv, "cbDKROpt"sv, "cbDKPOpt"sv}) {
        bindHint(app_, window_.control(name), fieldOf(name).hint);
    }
    bindHint(app_, window_.control("cmdRstBrowse"), BrowseHint);
}

void Options::load() {
    const auto& data = *app_.DataSet;
    for (const auto& list : Lists) {
        auto& items = window_.control(list.control).items();
        const int position = data.*list.member - list.first;
        items.setIndex(position >= 0 && position < items.count() ? position : -1);
    }
    window_.control("tbSimErr").setText(plainNumber(data.SimErr));
    window_.control("tbInErr").setText(plainNumber(data.InErr));
    window_.control("cbFireOpt").checked = data.FireOpt != 0;
    OldTPOpt_ = data.TPOpt;
    OldECLOpt_ = data.ECLOpt;
    showRestartInput(data.RstRead > 0);
    if (data.RstRead > 0) {
        window_.control("tbRestartFile").setText(data.RstFileName.trimmed());
    }
    showRestartOutput(data.RstWrite > 0);
}

void Options::assign() {
    auto& data = *app_.DataSet;
    for (const auto& list : Lists) {
        data.*list.member = static_cast<std::int16_t>(chosen(list.control) + list.first);
    }
    const auto& inputErrors = window_.control("tbInErr").text().text;
    data.SimErr = fieldInteger(window_.control("tbSimErr").text().text);
    data.InErr = fieldInteger(inputErrors);
    data.FireOpt = window_.control("cbFireOpt").checked ? 1 : 0;
    if (data.RstRead > 0) {
        data.RstFileName = window_.control("tbRestartFile").text().text;
    }
    OldECLOpt_ = data.ECLOpt;
    OldTPOpt_ = data.TPOpt;
    if (auto* main = app_.desk.find("frmMain")) {
        main->control("ckInputVer").checked = fieldValue(inputErrors) == InputVerificationOnly;
    }
}

void Options::onSwitch(const Switch& option, std::int16_t& old) {
    auto& items = window_.control(option.list).items();
    if (items.index() < 1 && old >= 1 &&
        app_.messages().show(OkCancelQuestion, std::string(option.title), std::string(option.prompt)) == Answer::Cancel) {
        items.setIndex(old < items.count() ? old : -1);
        return;
    }
    // At once, before OK; a later Cancel doesn't take it back.
    if (auto* main = app_.desk.find("frmMain")) {
        const bool on = items.index() >= 1;
        for (const int button : option.buttons) {
            main->control("Command1", button).enabled = on;
        }
        for (const auto entry : option.entries) {
            main->control(entry).enabled = on;
        }
    }
}

void Options::onRestartInput() { showRestartInput(chosen("cbDKROpt") > 0); }
void Options::onRestartOutput() { showRestartOutput(chosen("cbDKPOpt") > 0); }

void Options::onBrowse() {
    const auto result = app_.desk.services().dialogs.show(CmnDlgRst_);
    if (result.error == 0) {
        CmnDlgRst_.fileName = result.fileName;
    }
    // A cancelled dialog hands back the name that it held.
    window_.control("tbRestartFile").setText(CmnDlgRst_.fileName);
}

void Options::showRestartInput(bool shown) {
    for (const auto name : {"tbRestartFile"sv, "cmdRstBrowse"sv, "lblRestartFile"sv}) {
        auto& control = window_.control(name);
        control.visible = shown;
        control.enabled = shown;
    }
}

void Options::showRestartOutput(bool shown) {
    window_.control("lblRestartOut").visible = shown;
    auto& file = window_.control("lblRestartOutFile");
    file.visible = shown;
    if (shown && !app_.current.KOVShortName.empty()) {
        file.caption = restartName(app_.current.KOVShortName);
    }
}

} // namespace kov
