#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/entry_window.hpp"
#include "vent/model/fans.hpp"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace kov {

/// "Impulse Fans" (`frmIFan`): the impulse fans of Form 7C, one at a time. One without a flow rate counts as absent.
class ImpulseFans {
public:
    ImpulseFans(Application& app, Window& window);
    ImpulseFans(const ImpulseFans&) = delete;
    ImpulseFans& operator=(const ImpulseFans&) = delete;

    [[nodiscard]] static std::span<const Field> fields();

private:
    void build();
    void wire();

    void ShowData();
    void SaveData();
    [[nodiscard]] bool flowIsZero() const;
    [[nodiscard]] const std::string& boxText(std::string_view control) const;

    void onSpinUp();
    void onSpinDown();
    void onInsert();
    void onCopy();
    void onCut();
    void onDelete();
    void onPaste();
    void afterRemoval();
    void onClosing();

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    cFans& fans_;
    EntryWindow entry_;
    std::int16_t FanNo_ = 1; ///< place of the shown fan, from 1
    std::shared_ptr<cIFan> ThisFan_;
};

} // namespace kov
