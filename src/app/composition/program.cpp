#include "app/composition/program.hpp"

#include "core/dataset/progress.hpp"
#include "fire/editor/fire_editor.hpp"
#include "fire/editor/zone_editor.hpp"
#include "rail/editor/initial_train_editor.hpp"
#include "rail/editor/route_editor.hpp"
#include "rail/editor/train_editor.hpp"
#include "line/editor/line_sections.hpp"
#include "line/editor/line_segments.hpp"
#include "shell/general/general.hpp"
#include "shell/general/options.hpp"
#include "shell/general/sim_ctrl.hpp"
#include "shell/main/about.hpp"
#include "shell/main/counts.hpp"
#include "shell/main/main_window.hpp"

#include <exception>

namespace kov {

Program::Program(Services services, const std::string& appPath) : desk_(services), app_(desk_) {
    app_.AppPath = appPath;
    registerWindows();
    desk_.onFailure = [this](const std::string&) { return rescueData(); };
}

void Program::registerWindows() {
    registerEditor<FireEditor>("frmFires");
    registerEditor<ZoneEditor>("ECZones");
    registerEditor<RouteEditor>("Route1");
    registerEditor<TrainEditor>("Trains");
    registerEditor<InitialTrainEditor>("TrnInit");
    desk_.registerWindow("About", [this](Window& window) { return std::make_shared<About>(app_, window); });
    desk_.registerWindow("frmLSect", [this](Window& window) { return std::make_shared<LineSections>(app_, window); });
    desk_.registerWindow("lseg", [this](Window& window) { return std::make_shared<LineSegments>(app_, window); });
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
