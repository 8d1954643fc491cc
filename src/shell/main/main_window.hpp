#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/field_cycle.hpp"
#include "shell/main/file_commands.hpp"
#include "shell/main/navigation.hpp"
#include "shell/main/run_control.hpp"

#include <string>

namespace kov {

/// The main window, `frmMain`: identification and design date of the run, a button and a menu entry for each editor, the file
/// and run commands. It lives as long as the program; closing it ends the program.
class MainWindow {
public:
    /// Fills the window, reads the settings and loads the file that the command line names, if any.
    MainWindow(Application& app, Window& window, const std::string& commandLine);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// The data set to the window, with the buttons and entries that the options allow.
    void Showflds();

private:
    /// The progress bar and the busy pointer as the drivers of the card file see them.
    class Progress final : public ProgressSink {
    public:
        Progress(Application& app, Window& window) : app_(app), window_(window) {}
        void setBusy(bool busy) override;
        void setVisible(bool visible) override;
        void setMax(std::int32_t max) override;
        void setValue(std::int32_t value) override;

    private:
        Application& app_;
        Window& window_;
    };

    void load(const std::string& commandLine);
    void bindFields();
    void bindCommands();
    void bindNavigation();
    void onMenu(std::string_view entry, std::function<void()> command);
    void go(const Destination& destination);
    [[nodiscard]] bool refused(Needs needs) const;
    void storeFields();
    void onInputVerification();
    void onRun();
    void onFont();
    void onReset();
    void onAbout();
    void mruShow();
    void SaveSettings();
    void LoadSettings();
    [[nodiscard]] std::string& boxText(std::string_view control) { return window_.control(control).text().text; }

    Application& app_;
    Window& window_;
    EntryFlags flags_;
    Progress progress_;
    FileCommands files_;
    RunControl run_;
    Bounds start_; // place and size from the settings
};

} // namespace kov
