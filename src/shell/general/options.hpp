#pragma once

#include "shell/entry/entry_window.hpp"
#include "shell/entry/field.hpp"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace kov {

/// A drop-down list of the options: the value that it sets, and its entries. The position is the value less `first`.
struct OptionList {
    std::string_view control;
    std::int16_t KOVDataSet::*member;
    std::span<const std::string_view> entries;
    std::int16_t first = 0;
};

/// "Options": the switches of Forms 1C, 1E and 1G that decide which Forms there are in the file.
class Options {
public:
    Options(Application& app, Window& window);
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    /// All lists and fields, in tab order.
    [[nodiscard]] static std::span<const Field> fields();
    /// What can be chosen in those of the fields that are lists.
    [[nodiscard]] static std::span<const OptionList> lists();

private:
    /// An option whose 0 takes data out of the file.
    struct Switch;

    void build();
    void bindLists();
    void load();
    void assign();
    void onSwitch(const Switch& option, std::int16_t& old);
    void onRestartInput();
    void onRestartOutput();
    void onBrowse();
    void showRestartInput(bool shown);
    void showRestartOutput(bool shown);
    [[nodiscard]] int chosen(std::string_view list) const { return window_.control(list).items().index(); }

    static const Switch TrainSwitch;
    static const Switch ZoneSwitch;

    Application& app_;
    Window& window_;
    EntryWindow entry_;
    std::int16_t OldTPOpt_ = 0;  ///< at load and after each store
    std::int16_t OldECLOpt_ = 0; ///< at load and after each store
    DialogRequest CmnDlgRst_;    ///< keeps the file name that was chosen last
};

} // namespace kov
