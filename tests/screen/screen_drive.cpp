// Runs drive scripts on the real widgets: kov_screen_drive [--trace] SCRIPT...
// As `kovtool drive`, but a person's acts are key and mouse events, and after each act the widgets must show what the desk
// says.
#include "app/composition/program.hpp"
#include "drive/runner.hpp"
#include "mirror_check.hpp"
#include "platform/disk_files.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/renderer.hpp"
#include "quiet.hpp"
#include "screen_hand.hpp"

#include <QApplication>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// The whole program and its real windows.
struct ScreenProgram {
    ScreenProgram(kov::Services services, const std::string& appPath, int& faults)
        : program(services, appPath), renderer(program.desk(), {.realTimers = false}), faults_(&faults) {}

    void look() {
        for (const auto& fault : kov::screen::mirrorFaults(program.desk(), renderer)) {
            std::cout << "screen: " << fault << '\n';
            ++*faults_;
        }
    }

    kov::Program program;
    kov::qt::Renderer renderer;

private:
    int* faults_;
};

std::unique_ptr<kov::drive::DrivenProgram> screenProgram(kov::Services services, const std::string& appPath, int& faults) {
    auto owned = std::make_shared<ScreenProgram>(services, appPath, faults);
    auto* screen = owned.get();
    auto& desk = screen->program.desk();
    return std::make_unique<kov::drive::DrivenProgram>(
        kov::drive::DrivenProgram{.owner = std::move(owned),
                                  .desk = desk,
                                  .start =
                                      [screen](const std::string& commandLine) {
                                          screen->program.start(commandLine);
                                          QCoreApplication::processEvents();
                                          screen->look();
                                      },
                                  .fileDirty = [screen] { return screen->program.application().FileDirty; },
                                  .hand = kov::screen::screenHand(desk, screen->renderer, [screen] { screen->look(); })});
}

std::vector<kov::drive::ScriptText> readScripts(const std::vector<std::string>& paths) {
    std::vector<kov::drive::ScriptText> scripts;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        if (!file) {
            std::cerr << "can't open " << path << '\n';
            return {};
        }
        scripts.push_back({path, std::string(std::istreambuf_iterator<char>(file), {})});
    }
    return scripts;
}

} // namespace

int main(int argc, char** argv) {
    kov::screen::hideOffscreenRemarks();
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    kov::qt::setLook(application, kov::qt::Look::Light);

    std::vector<std::string> paths(argv + 1, argv + argc);
    if (!paths.empty() && paths.front() == "drive") {
        paths.erase(paths.begin()); // called in the place of kovtool
    }
    const bool trace = !paths.empty() && paths.front() == "--trace";
    paths.erase(paths.begin(), paths.begin() + (trace ? 1 : 0));
    const auto scripts = readScripts(paths);
    if (scripts.empty()) {
        return 2;
    }
    int faults = 0;
    kov::drive::RunOptions options;
    options.factory = [&faults](kov::Services services, const std::string& appPath) {
        return screenProgram(services, appPath, faults);
    };
    options.startFolder = fs::current_path();
    options.appPath = kov::textOfPath(fs::path(QCoreApplication::applicationDirPath().toStdU16String()));
    options.trace = trace;
    const auto result = kov::drive::runScripts(scripts, options, std::cout);
    return result.misread ? 2 : result.failed > 0 || faults > 0 ? 1 : 0;
}
