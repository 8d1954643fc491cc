#pragma once

#include "rail/editor/train_tables.hpp"
#include "rail/model/train.hpp"
#include "shell/entry/entry_window.hpp"

#include <memory>
#include <span>
#include <string>

namespace kov {

/// "Train Data", `Trains`: the train types of Form 9, one at a time, on seven pages. The train on screen is copied out of the
/// model when it is shown and written back when it is left.
class TrainEditor {
public:
    TrainEditor(Application& app, Window& window);
    TrainEditor(const TrainEditor&) = delete;
    TrainEditor& operator=(const TrainEditor&) = delete;

    [[nodiscard]] static std::span<const TrainField> fields() { return trainFields(); }

private:
    void bindFields();
    void bindCommands();
    void switchOff();
    void setPage(TrainPage page, bool available);

    void LoadTrain();
    void showBody(const cTrain& train);
    void showMotor(const cTrain& train);
    void showController(const cTrain& train);
    void showFlyWheel(const cTrain& train);
    void repeatSpeeds();
    /// True when the train may be left.
    [[nodiscard]] bool SaveTrain();
    void storeBody(cTrain& train);
    void storeMotor(cTrain& train);
    [[nodiscard]] cMotor::CurveTexts curveTexts();
    void storeChopper(cTrain& train);

    void onNext();
    void onPrevious();
    void onInsert();
    void onCopy();
    void onCut();
    void onPaste();
    void onDelete();
    void afterRemoval();
    void onController(int option);
    void onFlyWheel();
    void closing();
    /// Draws the performance curve anew from what the window shows now.
    void redraw();

    void show(std::string_view control, std::string_view value) { window_.control(control).setText(value); }
    void show(std::string_view control, int index, std::string_view value) { window_.control(control, index).setText(value); }
    [[nodiscard]] const std::string& box(std::string_view control) { return window_.control(control).text().text; }
    [[nodiscard]] const std::string& box(std::string_view control, int index) {
        return window_.control(control, index).text().text;
    }
    [[nodiscard]] cTrains& trains() { return data_->Trains; }
    [[nodiscard]] std::int16_t trainOption() const { return data_->TPOpt; }

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    EntryWindow entry_;
    std::int16_t TrnIndex = 1; // counted from 1
    std::shared_ptr<cTrain> train_;
};

/// Makes the controls of the train window and places them.
void buildTrainControls(Window& window);

} // namespace kov
