#pragma once

#include "shell/entry/application.hpp"
#include "shell/main/card_channel.hpp"
#include "shell/main/recent_files.hpp"

#include <functional>
#include <string>

namespace kov {

/// What the file commands need of the main window.
struct MainWindowHooks {
    std::function<void()> showFields;                   ///< the data set to the window
    std::function<void()> storeFields;                  ///< the five main fields to the data set
    std::function<void(const std::string&)> setCaption; ///< of the window
    std::function<void()> showRecent;                   ///< the recent list to the menu
    std::function<void()> saveSettings;
    std::function<ProgressSink&()> progress;
};

/// New, Open, Save, Save As and the recent files: all that works on file number 1 and on which file is the current one.
class FileCommands {
public:
    FileCommands(Application& app, MainWindowHooks hooks);

    void newFile();
    void open();
    void save();
    void saveAs();
    /// Prints the current file as it stands on disc, after saving what was changed. A file that can't be opened is a Failure.
    void print();
    /// A recent file, 1 to 6, by the caption of its menu entry.
    void openRecent(std::size_t number, const std::string& caption);
    /// Reads the current file into the data set; what can't be opened is told, and nothing is loaded.
    void load();
    /// The question of the closing window; false when it is to stay open.
    [[nodiscard]] bool mayClose();
    /// Puts a path in front of the recent list, and makes its folder the current one.
    void mruUpdate(const std::string& path);

    [[nodiscard]] RecentFiles& recent() { return recent_; }
    [[nodiscard]] CardChannel& channel() { return channel_; }
    [[nodiscard]] const std::string& startDir() const { return startDir_; }
    void setStartDir(const std::string& folder) { startDir_ = folder; }

private:
    /// Asks whether a changed file is to be saved; false on Cancel.
    [[nodiscard]] bool changesSettled();
    void startAnew();
    void unloadEditors();
    void writeAll();
    [[nodiscard]] DialogRequest dialog(DialogKind kind) const;
    [[nodiscard]] std::string titled(const std::string& name) const;

    Application& app_;
    MainWindowHooks hooks_;
    CardChannel channel_;
    RecentFiles recent_;
    std::string startDir_;
};

} // namespace kov
