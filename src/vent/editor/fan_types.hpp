#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/entry_window.hpp"
#include "vent/model/fans.hpp"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace kov {

/// "Supply/Exhaust Fans" (`frmXFan`): the fan types of Form 7, one at a time, with a drawing of their curves. None of its
/// commands touches the shafts, which call a fan by its place: after one of them a shaft may name another fan than before.
class FanTypes {
public:
    FanTypes(Application& app, Window& window);
    FanTypes(const FanTypes&) = delete;
    FanTypes& operator=(const FanTypes&) = delete;

    /// The fields in tab order; `tbFanP` and `tbFanQ` stand for eight boxes each.
    [[nodiscard]] static std::span<const Field> fields();

private:
    void build();
    void wireFields();
    void wireCommands();

    void ShowData();
    /// False when the person doesn't want a fan without a description; nothing is stored then.
    [[nodiscard]] bool SaveData();
    [[nodiscard]] cFan::Values shown() const;
    void drawCurves();

    void onSpin(bool up);
    void onInsert();
    void onCopy();
    void onCut();
    void onDelete();
    void onPaste();
    void onQueryUnload(bool& cancel);
    void afterRemoval();

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    cFans& fans_;
    EntryWindow entry_;
    std::int16_t FanNo_ = 1; ///< place of the shown fan, from 1
    std::shared_ptr<cFan> ThisFan_;
};

} // namespace kov
