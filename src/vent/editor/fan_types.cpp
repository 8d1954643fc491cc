#include "vent/editor/fan_types.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/field_cycle.hpp"
#include "shell/entry/layout.hpp"
#include "shell/entry/scale_form.hpp"
#include "vent/editor/fan_chart.hpp"
#include "vent/editor/fan_list_controls.hpp"
#include "vent/editor/window_tools.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kov {
namespace {

constexpr int Question = 36;
constexpr int StopSimulation = 1, TurnOff = 2;
constexpr int Points = static_cast<int>(cFan::Points), PointsOfCurve = Points / 2;
constexpr EntryWindowTraits Traits{"Supply/Exhaust Fans", "Form 7", 1300, {}, {}};

constexpr std::array Fields{
    Field{"tbFanId", "Fan ID", "", text(), "Fan Description", nullptr, "Form 7 card 1, columns 1-36"},
    Field{"tbRhoAir", "Air Density", "lb/ft3", real(0.04, 0.085), "Fan Performance Curve Air Density: 0.040 to 0.085 lb/cuft",
          nullptr, "Form 7 card 1, columns 41-50"},
    Field{"tbRunUp", "Run Up Time", "sec", real(0, 300), "Time Required for Fan to Reach Full Speed: 0 to 300 Sec", nullptr,
          "Form 7 card 1, columns 51-60"},
    Field{"tbQlo", "Lower Flow Limit ", "cfm", real(-100000, 0), "Fan Lower Flow Limit: -100,000 to 0 CFM", nullptr,
          "Form 7 card 1, columns 61-70"},
    Field{"tbQhi", "Upper Flow Limit ", "cfm", real(1000, 2000000), "Fan Upper Flow Limit: 1000 to 2,000,000 CFM", nullptr,
          "Form 7 card 1, columns 71-80"},
    Field{"tbFanP", "Total Pressure Rise", "(in. wg)", real(-15, 50), "Total Pressure Rise: -15. to 50. In. wg", nullptr,
          "Form 7 cards 2 and 3, columns 1-10, 21-30, 41-50, 61-70"},
    Field{"tbFanQ", "Flow Rate", "(cfm)", real(0, 2000000), "Fan Volume Flow Rate: 0 to 2,000,000 CFM", nullptr,
          "Form 7 cards 2 and 3, columns 11-20, 31-40, 51-60, 71-80"},
};
constexpr std::span<const Field> All{Fields};
constexpr const Field& Pressure = Fields[5];
constexpr const Field& Flow = Fields[6];
constexpr Field Number{"tbFanNo", "Fan", "", integer(0, 0), "", nullptr, ""}; // shows a number, takes none

struct Member {
    std::string_view control;
    Fixed<10> cFan::Values::*value;
};
constexpr std::array Members{
    Member{"tbRhoAir", &cFan::Values::rho},
    Member{"tbRunUp", &cFan::Values::runup},
    Member{"tbQlo", &cFan::Values::QLow},
    Member{"tbQhi", &cFan::Values::QHi},
};

// Both options give the hint that belongs to the first.
constexpr std::string_view OptionHint = "Choose this Option to stop the simulation if any fan exceeds its operating limits";

constexpr double OptionWidth = 1800, OptionHeight = 285, ChartWidth = 3300, ChartHeight = 2010, IdWidth = 3000, Edge = 150;

/// A curve panel's boxes: pressure and flow of four points.
void addCurve(LayoutPanel& panel, std::string_view headings) {
    panel.headings(headings, {"Total Pressure Rise (in. wg)", "Flow Rate (cfm)"});
    constexpr std::array Pair{Field{Pressure.control, "", "", {}, "", nullptr, ""},
                              Field{Flow.control, "", "", {}, "", nullptr, ""}};
    for (int point = 0; point < PointsOfCurve; ++point) {
        panel.boxes("", Pair);
    }
}

} // namespace

std::span<const Field> FanTypes::fields() { return All; }

FanTypes::FanTypes(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), fans_(data_->Fans), entry_(app, window, Traits) {
    build();
    wireFields();
    wireCommands();
    entry_.loadStep();
    if (fans_.Count() == 0) {
        fans_.Add(Position{0});
    }
    // What the file said is not looked at: the option is written only.
    chooseOption(window_, "rbFanOpt", TurnOff);
    ShowData();
}

void FanTypes::build() {
    addFanMenus(window_);
    Layout layout(window_);
    auto& fan = layout.panel("pnlFan", "Fan");
    auto& spin = addFanNumber(window_, fan, Number);
    for (const auto& field : All.first(Members.size() + 1)) {
        fan.field(field);
    }
    layout.nextColumn();
    auto& fail = layout.panel("pnlFanOpt", "If Fans Fail:");
    fail.note("lblFanOpt", "For ALL Fans");
    fail.area(ControlKind::OptionButton, "rbFanOpt", "Stop Simulation", OptionWidth, OptionHeight, StopSimulation);
    fail.area(ControlKind::OptionButton, "rbFanOpt", "Turn Off Fan", OptionWidth, OptionHeight, TurnOff);
    layout.nextColumn();
    addFanCommands(layout.panel("pnlList", "Fan List"));
    layout.nextBand();
    addCurve(layout.panel("pnlExhaust", "Exhaust Curve"), "lblExhaust");
    layout.nextColumn();
    addCurve(layout.panel("pnlSupply", "Supply Curve"), "lblSupply");
    layout.nextColumn();
    layout.panel("pnlCurves", "Curves").area(ControlKind::Drawing, "Curves", "", ChartWidth, ChartHeight);
    layout.button("cmdOkay", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.finish();
    placeFanSpin(window_, spin);
    auto& id = window_.control("tbFanId");
    id.bounds.width = Twips{std::min(IdWidth, id.parent->bounds.width.value - id.bounds.left.value - Edge)};
    numberControls(window_, Pressure.control);
    numberControls(window_, Flow.control);
    numberControls(window_, "lblFanP");
}

void FanTypes::wireFields() {
    const auto redraw = [this] { drawCurves(); };
    for (const auto& field : All.first(Members.size() + 1)) {
        bindField(app_, entry_.flags, window_.control(field.control), field.hint, field.rule, redraw);
    }
    for (int point = 0; point < Points; ++point) {
        for (const auto* field : {&Pressure, &Flow}) {
            bindField(app_, entry_.flags, window_.control(field->control, point), field->hint, field->rule, redraw);
        }
    }
    for (const int option : {StopSimulation, TurnOff}) {
        auto& button = window_.control("rbFanOpt", option);
        bindHint(app_, button, OptionHint);
        button.on.click = [this] { entry_.flags.FormChanged = true; };
    }
}

void FanTypes::wireCommands() {
    bindFanCommands(window_, {.spin = [this](bool up) { onSpin(up); },
                              .insert = [this] { onInsert(); },
                              .cut = [this] { onCut(); },
                              .copy = [this] { onCopy(); },
                              .paste = [this] { onPaste(); },
                              .remove = [this] { onDelete(); }});
    // OK stores only when something was edited, as the frame's button does.
    window_.control("cmdOkay").on.click = [this] { app_.desk.unload(window_); };
    entry_.bindStandardControls();
    window_.on.resize = [this] {
        ScaleForm(app_, window_);
        drawCurves();
    };
    window_.on.queryUnload = [this](bool& cancel) { onQueryUnload(cancel); };
    entry_.closing = [this] {
        // Only the last one: a fan without a description that stands further ahead stays.
        if (const auto last = fans_.Fan(Position{fans_.Count()}); fans_.Count() > 0 && last->id().blank()) {
            fans_.Delete(Position{fans_.Count()});
        }
    };
}

// One fan: to the controls and back.

void FanTypes::ShowData() {
    if (FanNo_ > fans_.Count()) {
        return;
    }
    FanNo_ = FanNo_ < 1 ? std::int16_t{1} : FanNo_;
    ThisFan_ = fans_.Fan(Position{FanNo_});
    const auto& values = ThisFan_->getFan();
    window_.control("tbFanNo").setText(plainNumber(FanNo_));
    window_.control("tbFanId").setText(values.id.view());
    for (const auto& member : Members) {
        window_.control(member.control).setText((values.*member.value).view());
    }
    for (int point = 0; point < Points; ++point) {
        const auto i = static_cast<std::size_t>(point);
        window_.control(Pressure.control, point).setText(values.FanP.at(i).view());
        window_.control(Flow.control, point).setText(values.FanQ.at(i).view());
    }
    drawCurves();
}

cFan::Values FanTypes::shown() const {
    cFan::Values values;
    values.id = window_.control("tbFanId").text().text;
    for (const auto& member : Members) {
        values.*member.value = window_.control(member.control).text().text;
    }
    for (int point = 0; point < Points; ++point) {
        const auto i = static_cast<std::size_t>(point);
        values.FanP.at(i) = window_.control(Pressure.control, point).text().text;
        values.FanQ.at(i) = window_.control(Flow.control, point).text().text;
    }
    return values;
}

bool FanTypes::SaveData() {
    auto& id = window_.control("tbFanId");
    if (trim(id.text().text).empty()) {
        const auto answer = app_.messages().show(Question, "Fan Definition",
                                                 "This fan has no ID and will be deleted.\r\nOkay to delete the fan?");
        if (answer == Answer::No) {
            app_.desk.setFocus(id);
            return false;
        }
    }
    if (std::exchange(entry_.flags.FormChanged, false)) {
        app_.FileDirty = true;
    }
    ThisFan_->setFan(shown());
    data_->FanOpt = window_.control("rbFanOpt", StopSimulation).checked ? StopSimulation : TurnOff;
    return true;
}

void FanTypes::drawCurves() {
    auto& control = window_.control("Curves");
    const auto revision = control.drawing().revision;
    control.drawing() = drawFanChart(fanChartOf(shown()), control.bounds.width, control.bounds.height);
    control.drawing().revision = revision + 1;
}

// What a person does with the list.

void FanTypes::onSpin(bool up) {
    if (!SaveData()) {
        return;
    }
    if (up) {
        if (FanNo_ == fans_.Count()) {
            fans_.Add(Position{0});
        }
        ++FanNo_;
    } else if (FanNo_ > 1) {
        --FanNo_;
    }
    ShowData();
}

void FanTypes::onInsert() {
    static_cast<void>(SaveData());
    fans_.Add(Position{FanNo_});
    ShowData();
}

void FanTypes::onCopy() {
    static_cast<void>(SaveData());
    fans_.Copy(Position{FanNo_});
    window_.control("cmdPaste").enabled = true;
}

void FanTypes::onCut() {
    static_cast<void>(SaveData());
    fans_.Cut(Position{FanNo_});
    window_.control("cmdPaste").enabled = true;
    afterRemoval();
}

void FanTypes::onDelete() {
    fans_.Delete(Position{FanNo_});
    afterRemoval();
}

void FanTypes::onPaste() {
    fans_.Paste(Position{FanNo_});
    ShowData();
    entry_.flags.FormChanged = true;
}

void FanTypes::afterRemoval() {
    if (fans_.Count() < FanNo_) {
        if (FanNo_ != 1) {
            --FanNo_;
        } else {
            fans_.Add(Position{0}); // there is always a fan to show
        }
    }
    ShowData();
    entry_.flags.FormChanged = true;
}

void FanTypes::onQueryUnload(bool& cancel) {
    if (!entry_.flags.FormChanged) {
        return;
    }
    app_.FileDirty = true;
    if (!entry_.flags.Cancelled && !SaveData()) {
        cancel = true;
    }
}

} // namespace kov
