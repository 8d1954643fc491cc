#include "app/composition/program.hpp"

#include "core/dataset/progress.hpp"
#include "shell/general/general.hpp"
#include "shell/general/options.hpp"
#include "shell/general/sim_ctrl.hpp"
#include "shell/main/about.hpp"
#include "shell/main/counts.hpp"
#include "shell/main/main_window.hpp"
#include "vent/editor/fan_table.hpp"
#include "vent/editor/fan_types.hpp"
#include "vent/editor/impulse_fans.hpp"
#include "vent/editor/node_details.hpp"
#include "vent/editor/vent_sections.hpp"
#include "vent/editor/vent_shafts.hpp"

#include <exception>

namespace kov {

Program::Program(Services services, const std::string& appPath) : desk_(services), app_(desk_) {
    app_.AppPath = appPath;
    registerWindows();
    desk_.onFailure = [this](const std::string&) { return rescueData(); };
}

void Program::registerWindows() {
    desk_.registerWindow("About", [this](Window& window) { return std::make_shared<About>(app_, window); });
    desk_.registerWindow("frmVSect", [this](Window& window) { return std::make_shared<VentSections>(app_, window); });
    desk_.registerWindow("vshaft", [this](Window& window) { return std::make_shared<VentShafts>(app_, window); });
    desk_.registerWindow("NodeDtl", [this](Window& window) { return std::make_shared<NodeDetails>(app_, window); });
    desk_.registerWindow("frmXFan", [this](Window& window) { return std::make_shared<FanTypes>(app_, window); });
    desk_.registerWindow("frmIFan", [this](Window& window) { return std::make_shared<ImpulseFans>(app_, window); });
    desk_.registerWindow("FanTable", [this](Window& window) { return std::make_shared<FanTable>(app_, window); });
    desk_.registerWindow("frmMain",
                         [this](Window& window) { return std::make_shared<MainWindow>(app_, window, commandLine_); });
    desk_.registerWindow("General", [this](Window& window) { return std::make_shared<General>(app_, window); });
    desk_.registerWindow("Options", [this](Window& window) { return std::make_shared<Options>(app_, window); });
    desk_.registerWindow("SimCtrl", [this](Window& window) { return std::make_shared<SimCtrl>(app_, window); });
    desk_.registerWindow("frmCounts", [this](Window& window) { return std::make_shared<Counts>(app_, window); });
}

void Program::start(const std::string& commandLine) {
    desk_.act([&] {
        commandLine_ = commandLine.empty() ? commandLine : desk_.services().files.absolute(commandLine);
        auto* splash = desk_.show("About");
        splash->control("Timer1").timer().on = true;
        desk_.repaint();
        app_.DataSet = std::make_unique<KOVDataSet>();
        desk_.show("frmMain");
        desk_.bringToFront(*splash);
        desk_.setFocus(splash->control("cmdOkay"));
    });
}

std::string Program::rescueData() {
    if (!app_.DataSet) {
        return {};
    }
    CardWriter writer;
    NoProgress silent;
    try {
        app_.DataSet->WriteFile(writer, silent);
    } catch (const std::exception&) {
        // As far as it can be written: that much is better than nothing.
    }
    return desk_.services().files.rescue("unsaved.kov", writer.content());
}

} // namespace kov
