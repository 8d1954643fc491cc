#include "rail/editor/train_editor.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/scale_form.hpp"

#include <string>

namespace kov {
namespace {

constexpr EntryWindowTraits Traits{"Train Data", "Form 9", 1500, {}, {}};
constexpr int QuestionStyle = 36, WarningStyle = 48, CamButton = 1, ChopperButton = 2;

} // namespace

TrainEditor::TrainEditor(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), entry_(app, window, Traits) {
    buildTrainControls(window_);
    bindFields();
    bindCommands();
    entry_.bindStandardControls();
    window_.on.resize = [this] {
        ScaleForm(app_, window_);
        redraw();
    };
    window_.on.queryUnload = [this](bool& cancel) {
        cancel = entry_.flags.FormChanged && !entry_.flags.Cancelled && !SaveTrain();
    };
    entry_.closing = [this] { closing(); };
    entry_.loadStep();
    if (trains().Count() == 0) {
        trains().Add(Position{0});
    }
    window_.control("cmdPaste").enabled = false;
    switchOff();
    LoadTrain();
}

void TrainEditor::bindFields() {
    auto& strip = window_.control("SSTab1");
    for (const auto& entry : trainFields()) {
        auto& control =
            entry.index < 0 ? window_.control(entry.field.control) : window_.control(entry.field.control, entry.index);
        std::function<void()> accepted = [this] { redraw(); };
        if (entry.field.control == "tbMotorID") {
            accepted = [this] { show("tbMotorID2", box("tbMotorID")); };
        }
        bindField(app_, entry_.flags, control, entry.field.hint, entry.field.rule, std::move(accepted));
        if (!entry.turnsPage) {
            continue;
        }
        control.turnsPage = true;
        control.on.gotFocus = [this, &strip, &control, &entry] {
            strip.tabs().current = entry.page;
            enterField(app_, control, entry.field.hint);
        };
    }
}

void TrainEditor::bindCommands() {
    const auto onClick = [this](std::string_view name, void (TrainEditor::*handler)()) {
        window_.control(name).on.click = [this, handler] { (this->*handler)(); };
    };
    onClick("cmdInsert", &TrainEditor::onInsert);
    onClick("cmdCut", &TrainEditor::onCut);
    onClick("cmdCopy", &TrainEditor::onCopy);
    onClick("cmdPaste", &TrainEditor::onPaste);
    onClick("cmdDelete", &TrainEditor::onDelete);
    onClick("cbFlyWheel", &TrainEditor::onFlyWheel);
    for (const int option : {CamButton, ChopperButton}) {
        window_.control("rbCtrlOpt", option).on.click = [this, option] { onController(option); };
    }
    auto& spin = window_.control("Spin1");
    spin.on.spinUp = [this] { onNext(); };
    spin.on.spinDown = [this] { onPrevious(); };
    window_.control("tbTrnNo").on.keyDown = [this](int& code, int) {
        if (code == keys::Up) {
            onNext();
        } else if (code == keys::Down) {
            onPrevious();
        }
    };
    window_.control("cmdOkay").on.click = [this] { app_.desk.unload(window_); };
}

void TrainEditor::setPage(TrainPage page, bool available) {
    const auto index = static_cast<int>(page);
    window_.control("SSTab1").tabs().tabs.at(static_cast<std::size_t>(index)).enabled = available;
    for (const auto& control : window_.controls()) {
        if (control->strip != nullptr && control->page == index) {
            control->enabled = available;
        }
    }
}

void TrainEditor::switchOff() {
    // What the train performance option has no cards for.
    if (trainOption() == 3) {
        setPage(TrainPage::Motor, false);
        setPage(TrainPage::Controller, false);
    }
    if (trainOption() == 2 || trainOption() == 3) {
        setPage(TrainPage::Rates, false);
        setPage(TrainPage::FlyWheel, false);
    }
}

void TrainEditor::onController(int option) {
    entry_.flags.FormChanged = true;
    window_.control("pnlChopper").visible = option == ChopperButton;
    window_.control("pnlCam").visible = option != ChopperButton;
    repeatSpeeds();
}

void TrainEditor::onFlyWheel() {
    entry_.flags.FormChanged = true;
    setPage(TrainPage::FlyWheel, window_.control("cbFlyWheel").checked);
}

void TrainEditor::closing() {
    const Position last{trains().Count()};
    if (trains().Count() > 0 && trains().Train(last)->id().blank()) {
        trains().Delete(last);
    }
}

// From train to train.

void TrainEditor::onPrevious() {
    if (!SaveTrain()) {
        return;
    }
    if (TrnIndex > 1) {
        --TrnIndex;
    }
    LoadTrain();
}

void TrainEditor::onNext() {
    if (!SaveTrain()) {
        return;
    }
    if (TrnIndex < trains().Count()) {
        ++TrnIndex;
    } else if (!trim(box("tbTrainId")).empty()) {
        trains().Add(Position{0});
        ++TrnIndex;
    } else {
        app_.messages().show(WarningStyle, "", "Must enter a train ID before creating more trains");
    }
    LoadTrain();
}

void TrainEditor::onInsert() {
    if (SaveTrain()) {
        trains().Add(Position{TrnIndex});
        LoadTrain();
        entry_.flags.FormChanged = true;
    }
}

void TrainEditor::onCopy() {
    if (SaveTrain()) {
        trains().Copy(Position{TrnIndex});
        window_.control("cmdPaste").enabled = true;
    }
}

void TrainEditor::onCut() {
    if (SaveTrain()) {
        trains().Cut(Position{TrnIndex});
        window_.control("cmdPaste").enabled = true;
        afterRemoval();
    }
}

void TrainEditor::onPaste() {
    trains().Paste(Position{TrnIndex});
    LoadTrain();
    entry_.flags.FormChanged = true;
}

void TrainEditor::onDelete() {
    trains().Delete(Position{TrnIndex});
    afterRemoval();
}

void TrainEditor::afterRemoval() {
    if (trains().Count() < TrnIndex) {
        if (TrnIndex != 1) {
            --TrnIndex;
        } else {
            trains().Add(Position{0});
        }
    }
    LoadTrain();
    entry_.flags.FormChanged = true;
}

bool TrainEditor::SaveTrain() {
    if (trim(box("tbTrainId")).empty()) {
        const auto answer = app_.messages().show(QuestionStyle, "Train Definition",
                                                 "This train has no ID and will be deleted.\r\nOkay to delete the train?");
        if (answer == Answer::No) {
            app_.desk.setFocus(window_.control("tbTrainId"));
            return false;
        }
    }
    if (entry_.flags.FormChanged) {
        entry_.flags.FormChanged = false;
        app_.FileDirty = true;
    }
    storeBody(*train_);
    train_->Motor.CtrlOpt = window_.control("rbCtrlOpt", CamButton).checked ? 1 : 2;
    if (trainOption() < 3) {
        storeMotor(*train_);
    }
    return true;
}

} // namespace kov
