#include "app/help/pages/topics.hpp"

#include "app/help/pages/rows.hpp"
#include "fire/editor/fire_editor.hpp"
#include "fire/editor/zone_editor.hpp"
#include "line/editor/line_sections.hpp"
#include "line/editor/line_segments.hpp"
#include "line/editor/segment_environment.hpp"
#include "line/editor/segment_general.hpp"
#include "line/editor/segment_grids.hpp"
#include "rail/editor/initial_train_editor.hpp"
#include "rail/editor/route_editor.hpp"
#include "rail/editor/train_editor.hpp"
#include "shell/general/general.hpp"
#include "shell/general/options.hpp"
#include "shell/general/sim_ctrl.hpp"
#include "shell/main/counts.hpp"
#include "shell/main/main_controls.hpp"
#include "vent/editor/fan_table.hpp"
#include "vent/editor/fan_types.hpp"
#include "vent/editor/impulse_fans.hpp"
#include "vent/editor/node_details.hpp"
#include "vent/editor/vent_sections.hpp"
#include "vent/editor/vent_shafts.hpp"

#include <algorithm>
#include <array>

namespace kov::help {
namespace {

constexpr std::array Guide{
    GuidePage{"index", "KOV Input Data"},         GuidePage{"entry", "Entering data"}, GuidePage{"files", "Files and saving"},
    GuidePage{"running", "Running a simulation"}, GuidePage{"printing", "Printing"},
};

/// The four percentages stand in a block under and beside headings; on a page each needs a name of its own.
HelpTopic generalTopic() {
    auto table = fieldTable(General::fields());
    nameRow(table, "tbEFMux", "Moving Train, Auxiliaries and Passengers");
    nameRow(table, "tbEFSux", "Stopped Train, Auxiliaries and Passengers");
    nameRow(table, "tbEFAMux", "Moving Train, Propulsion and Braking");
    nameRow(table, "tbEFASux", "Stopped Train, Propulsion and Braking");
    return {"General", "General Data", {1110}, {table}};
}

HelpTopic zonesTopic() {
    auto table = fieldTable(ZoneEditor::fields());
    nameRow(table, "tbAMDB", "Morning Rush Hour, Dry-bulb");
    nameRow(table, "tbAMWB", "Morning Rush Hour, Wet-bulb");
    nameRow(table, "tbPMDB", "Evening Rush Hour, Dry-bulb");
    nameRow(table, "tbPMWB", "Evening Rush Hour, Wet-bulb");
    return {"ECZones", "Environmental Control Zones", {1360}, {table}};
}

HelpTopic optionsTopic() {
    auto table = fieldTable(Options::fields());
    for (const auto& list : Options::lists()) {
        describeList(table, list.control, list.entries);
    }
    return {"Options", "Options", {1101}, {table}};
}

HelpTopic routeTopic() {
    HelpTopic topic{"Route1", "Route Descriptions", {1410, 1420}, {}};
    HelpTable fields{"Fields", "", {}};
    for (const auto& entry : RouteEditor::fields()) {
        fields.rows.push_back(rowOf(entry.field));
    }
    topic.tables.push_back(fields);
    constexpr std::array titles{"Train groups", "Alignment", "Stops", "Performance"};
    const auto grids = RouteEditor::grids();
    for (std::size_t i = 0; i < grids.size(); ++i) {
        topic.tables.push_back(gridTable(titles.at(i), "Grid1(" + std::to_string(i) + ")", grids[i].columns));
    }
    return topic;
}

HelpTopic trainTopic() {
    constexpr std::array pages{"Above the tabs", "General",    "Heat load", "Resistor grids",
                               "Motor",          "Controller", "Rates",     "Flywheel"};
    HelpTopic topic{"Trains", "Train Data", {1500}, {}};
    for (const auto* title : pages) {
        topic.tables.push_back({title, "", {}});
    }
    for (const auto& entry : TrainEditor::fields()) {
        auto& rows = topic.tables.at(static_cast<std::size_t>(entry.page) + 1).rows;
        auto row = rowOf(entry.field);
        // Boxes of one array that are alike (the rows of a curve, the two resistor grids) are told once.
        const auto same = [&](const HelpRow& other) { return other.caption == row.caption && other.hint == row.hint; };
        if (entry.index >= 0) {
            row.anchors.front() += '(' + std::to_string(entry.index) + ')';
        }
        if (const auto told = std::find_if(rows.begin(), rows.end(), same); told != rows.end()) {
            told->anchors.push_back(row.anchors.front());
        } else {
            rows.push_back(row);
        }
    }
    return topic;
}

HelpTopic segmentTopic() {
    return {"lseg",
            "Line Segment Data",
            {1210},
            {gridTable("List of segments", "grdLSeg", LineSegments::columns()), fieldTable(SegmentGeneral::fields(), "General"),
             gridTable("Subsegment temperatures", "grdSubSeg", SegmentGrids::subsegmentColumns()),
             fieldTable(SegmentEnvironment::fields(), "Environmental data"),
             gridTable("Steady-state heat sources", "grdSSHS", SegmentGrids::heatSourceColumns())}};
}

std::vector<HelpTopic> allTopics() {
    return {
        {"frmMain", "The main window", {}, {fieldTable(MainFields)}},
        generalTopic(),
        optionsTopic(),
        {"SimCtrl",
         "Simulation Control",
         {1120},
         {fieldTable(SimCtrl::fields()), gridTable("Print control groups", "grdPGroup", SimCtrl::columns())}},
        {"frmLSect", "Line Sections", {1200}, {gridTable("Line sections", "grdLSect", LineSections::columns())}},
        segmentTopic(),
        {"NodeDtl",
         "Node Details",
         {1230},
         {fieldTable(NodeDetails::fields()), gridTable("Nodes", "Grid1", NodeDetails::columns())}},
        {"frmVSect", "Vent Sections", {1240}, {gridTable("Vent sections", "grdVSect", VentSections::columns())}},
        {"vshaft",
         "Vent Shaft Data",
         {1250},
         {fieldTable(VentShafts::fields()), gridTable("Shafts", "GrdShaft", VentShafts::shaftColumns()),
          gridTable("Segments of the shaft", "grdVSeg", VentShafts::segmentColumns())}},
        {"frmXFan", "Supply/Exhaust Fans", {1300}, {fieldTable(FanTypes::fields())}},
        {"frmIFan", "Impulse Fans", {1310}, {fieldTable(ImpulseFans::fields())}},
        {"FanTable", "Fan Table", {1600}, {gridTable("Fans in shafts", "grdFans", FanTable::columns())}},
        {"frmFires",
         "Fire Data",
         {1350},
         {fieldTable(FireEditor::fields()), gridTable("Fires", "grdFire", FireEditor::columns())}},
        zonesTopic(),
        routeTopic(),
        trainTopic(),
        {"TrnInit", "Train Initialization", {1590}, {gridTable("Trains at the start", "Grid1", InitialTrainEditor::columns())}},
        {"frmCounts", "Data Item Counts", {}, {fieldTable(Counts::fields())}},
    };
}

} // namespace

const std::vector<HelpTopic>& topics() {
    static const std::vector<HelpTopic> all = allTopics();
    return all;
}

std::span<const GuidePage> guide() { return Guide; }

} // namespace kov::help
