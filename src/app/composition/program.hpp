#pragma once

#include "shell/entry/application.hpp"

#include <memory>
#include <string>

namespace kov {

/// The whole program but its screen: the desk, what all windows share, and which name opens which window.
class Program {
public:
    /// `appPath` is the program's folder, without a separator at its end.
    Program(Services services, const std::string& appPath);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    [[nodiscard]] Desk& desk() { return desk_; }
    [[nodiscard]] Application& application() { return app_; }
    /// The start routine: splash, data set, main window, and the file that the command line names (all of it is one path;
    /// a relative one is taken from the folder of the start).
    void start(const std::string& commandLine);

private:
    void registerWindows();
    template <typename Content> void registerWindow(const std::string& name) {
        desk_.registerWindow(name, [this](Window& window) { return std::make_shared<Content>(app_, window); });
    }
    [[nodiscard]] std::string rescueData();

    Desk desk_;
    Application app_;
    std::string commandLine_;
};

} // namespace kov
