#include "app/composition/program.hpp"

#include "fire/editor/fire_editor.hpp"
#include "fire/editor/zone_editor.hpp"
#include "line/editor/line_sections.hpp"
#include "line/editor/line_segments.hpp"
#include "rail/editor/initial_train_editor.hpp"
#include "rail/editor/route_editor.hpp"
#include "rail/editor/train_editor.hpp"
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

namespace kov {

Program::Program(Services services, const std::string& appPath) : desk_(services), app_(desk_) {
    app_.AppPath = appPath;
    registerWindows();
    desk_.onFailure = [this](const std::string&) { return rescueData(); };
}

void Program::registerWindows() {
    desk_.registerWindow("frmMain",
                         [this](Window& window) { return std::make_shared<MainWindow>(app_, window, commandLine_); });
    registerWindow<About>("About");
    registerWindow<Counts>("frmCounts");
    registerWindow<General>("General");
    registerWindow<Options>("Options");
    registerWindow<SimCtrl>("SimCtrl");
    registerWindow<LineSections>("frmLSect");
    registerWindow<LineSegments>("lseg");
    registerWindow<FireEditor>("frmFires");
    registerWindow<ZoneEditor>("ECZones");
    registerWindow<VentSections>("frmVSect");
    registerWindow<VentShafts>("vshaft");
    registerWindow<NodeDetails>("NodeDtl");
    registerWindow<FanTypes>("frmXFan");
    registerWindow<ImpulseFans>("frmIFan");
    registerWindow<FanTable>("FanTable");
    registerWindow<RouteEditor>("Route1");
    registerWindow<TrainEditor>("Trains");
    registerWindow<InitialTrainEditor>("TrnInit");
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
    CardWriter writer(app_.DataSet->lineEnd.empty() ? "\n" : app_.DataSet->lineEnd);
    app_.DataSet->WriteRescue(writer);
    return desk_.services().files.rescue("unsaved.kov", writer.content());
}

} // namespace kov
