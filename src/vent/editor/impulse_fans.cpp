#include "vent/editor/impulse_fans.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/field_cycle.hpp"
#include "shell/entry/layout.hpp"
#include "vent/editor/fan_list_controls.hpp"

#include <array>
#include <utility>

namespace kov {
namespace {

constexpr int Warning = 48;
constexpr EntryWindowTraits Traits{"Impulse Fans", "Form 7C", 1310, {}, {}};

constexpr std::array Fields{
    Field{"tbFanQ", "Flow Rate", "cfm", real(0, 1000000), "Volumetric Flow Rate:  0 to 1000000. cfm", nullptr,
          "Form 7C, columns 1-10"},
    Field{"tbFEff", "Pressure Efficiency ", "", real(0.1, 1), "Ratio of Actual to Theoretical Pressure Rise: 0.1 to 1.0",
          nullptr, "Form 7C, columns 11-20"},
    Field{"tbFVel", "Discharge Velocity ", "fpm", real(-10000, 10000),
          "Velocity of airflow at the discharge:  -10000 to 10000 fpm", nullptr, "Form 7C, columns 21-30"},
    Field{"tbTmOn", "Switch On Time", "sec", integer(0, 10000), "Simulation Time at which fan turns ON:  0 to 10000 sec.",
          nullptr, "Form 7C, columns 31-40"},
    Field{"tbTmOff", "Switch Off Time", "sec", integer(0, 10000), "Simulation Time at which fan turns OFF:  0 to 10000 sec.",
          nullptr, "Form 7C, columns 41-50"},
};
constexpr Field Number{"tbFanNo", "Fan", "", integer(0, 0), "", nullptr, ""}; // shows a number, takes none

} // namespace

std::span<const Field> ImpulseFans::fields() { return Fields; }

ImpulseFans::ImpulseFans(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), fans_(data_->Fans), entry_(app, window, Traits) {
    build();
    wire();
    entry_.loadStep();
    if (fans_.ICount() == 0) {
        fans_.AddI(Position{0});
    }
    ShowData();
}

void ImpulseFans::build() {
    addFanMenus(window_);
    Layout layout(window_);
    auto& fan = layout.panel("pnlFan", "Impulse Fan");
    auto& spin = addFanNumber(window_, fan, Number);
    for (const auto& field : Fields) {
        fan.field(field);
    }
    layout.nextColumn();
    addFanCommands(layout.panel("pnlList", "Fan List"));
    layout.button("cmdOkay", "OK");
    layout.button("cmdCancel", "Cancel");
    layout.button("cmdHelp", "Help");
    layout.finish();
    placeFanSpin(window_, spin);
}

void ImpulseFans::wire() {
    for (const auto& field : Fields) {
        bindField(app_, entry_.flags, window_.control(field.control), field.hint, field.rule);
    }
    bindFanCommands(window_, {.spin = [this](bool up) { up ? onSpinUp() : onSpinDown(); },
                              .insert = [this] { onInsert(); },
                              .cut = [this] { onCut(); },
                              .copy = [this] { onCopy(); },
                              .paste = [this] { onPaste(); },
                              .remove = [this] { onDelete(); }});
    // OK stores only when something was edited, as the frame's button does.
    window_.control("cmdOkay").on.click = [this] { app_.desk.unload(window_); };
    entry_.bindStandardControls();
    window_.on.unload = [this, last = window_.on.unload] {
        onClosing();
        last();
    };
}

// One fan: to the controls and back.

const std::string& ImpulseFans::boxText(std::string_view control) const { return window_.control(control).text().text; }
bool ImpulseFans::flowIsZero() const { return fieldValue(boxText("tbFanQ")) == 0; }

void ImpulseFans::ShowData() {
    if (FanNo_ > fans_.ICount()) {
        return;
    }
    FanNo_ = FanNo_ < 1 ? std::int16_t{1} : FanNo_;
    ThisFan_ = fans_.IFan(Position{FanNo_});
    const auto& values = ThisFan_->GetIFan();
    window_.control("tbFanNo").setText(plainNumber(FanNo_));
    window_.control("tbFanQ").setText(values.FanQ.view());
    window_.control("tbFEff").setText(values.Feff.view());
    window_.control("tbFVel").setText(values.fVel.view());
    window_.control("tbTmOn").setText(plainNumber(values.TmOn));
    window_.control("tbTmOff").setText(plainNumber(values.TmOff));
}

void ImpulseFans::SaveData() {
    if (flowIsZero()) {
        return;
    }
    if (std::exchange(entry_.flags.FormChanged, false)) {
        app_.FileDirty = true;
    }
    ThisFan_->SetIFan({.FanQ = boxText("tbFanQ"),
                       .Feff = boxText("tbFEff"),
                       .fVel = boxText("tbFVel"),
                       .TmOn = fieldInteger(boxText("tbTmOn")),
                       .TmOff = fieldInteger(boxText("tbTmOff"))});
}

// What a person does with the list.

void ImpulseFans::onSpinUp() {
    SaveData();
    if (FanNo_ == fans_.ICount()) {
        if (flowIsZero()) {
            app_.messages().show(Warning, "", "Fan Flow Rate must be entered before another fan can be created.");
            return;
        }
        fans_.AddI(Position{0});
    }
    ++FanNo_;
    ShowData();
}

void ImpulseFans::onSpinDown() {
    SaveData();
    if (FanNo_ > 1) {
        --FanNo_;
    }
    ShowData();
}

void ImpulseFans::onInsert() {
    SaveData();
    fans_.AddI(Position{FanNo_});
    ShowData();
}

void ImpulseFans::onCopy() {
    SaveData();
    fans_.CopyI(Position{FanNo_});
    window_.control("cmdPaste").enabled = true;
}

void ImpulseFans::onCut() {
    SaveData();
    fans_.CutI(Position{FanNo_});
    window_.control("cmdPaste").enabled = true;
    afterRemoval();
}

void ImpulseFans::onDelete() {
    fans_.DeleteI(Position{FanNo_});
    afterRemoval();
}

void ImpulseFans::onPaste() {
    fans_.PasteI(Position{FanNo_});
    ShowData();
    entry_.flags.FormChanged = true;
}

void ImpulseFans::afterRemoval() {
    if (fans_.ICount() < FanNo_) {
        if (FanNo_ != 1) {
            --FanNo_;
        } else {
            fans_.AddI(Position{0}); // there is always a fan to show
        }
    }
    ShowData();
    entry_.flags.FormChanged = true;
}

void ImpulseFans::onClosing() {
    if (entry_.flags.FormChanged) {
        app_.FileDirty = true;
        if (!entry_.flags.Cancelled) {
            SaveData();
        }
    }
    const Position last{fans_.ICount()};
    if (last.value > 0 && fieldValue(fans_.IFan(last)->FanQ().view()) == 0) {
        fans_.DeleteI(last);
    }
}

} // namespace kov
