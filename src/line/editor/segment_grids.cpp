#include "line/editor/segment_grids.hpp"

#include "core/cards/numbers.hpp"

#include <array>

namespace kov {
namespace {

constexpr std::array SubsegmentColumns{
    Column{"Start SubSeg", "", real(1, 999), "Starting Subsegment # where these temperatures apply", "Form 3E, 1-10"},
    Column{"End SubSeg", "", real(1, 999), "Ending Subsegment # where these temperatures apply", "Form 3E, 11-20"},
    Column{"Wall Surface Temp", "deg F", real(0, 130), "Wall Surface Temperature: 0 to 130 Deg F", "Form 3E, 21-30"},
    Column{"Initial Dry-bulb ", "deg F", real(0, 130), "Initial Dry-bulb Temperature: 0 to 130 Deg F", "Form 3E, 31-40"},
    Column{"Initial Wet-bulb", "deg F", real(0, 130), "Initial Wet-bulb Temperature: 0 to 130 Deg F", "Form 3E, 41-50"},
};

constexpr std::array HeatSourceColumns{
    Column{"Identification", "", text(), "Heat Source Description", "Form 3D, 51-80"},
    Column{"Start SubSeg", "", real(1, 999), "Starting Subsegment # where this heat source occurs", "Form 3D, 1-10"},
    Column{"Ending SubSeg", "", real(1, 999), "Ending Subsegment # where this heat source occurs", "Form 3D, 11-20"},
    Column{"Type", "", real(1, 2), "Type of Heat Source: 1 = Misc Source;  2 = Heating or Cooling source", "Form 3D, 21-30"},
    Column{"Sensible Heat", "Btu/hr", real(-9000000, 9000000), "Sensible Heat Addition or Removal:  Btu/hr", "Form 3D, 31-40"},
    Column{"Latent Heat", "Btu/hr", real(-9000000, 9000000), "Latent Heat Addition or Removal:  Btu/hr", "Form 3D, 41-50"},
};

// The labels stand the opposite way round from the cards'.
constexpr std::string_view SubsegmentForm = "Form 3D", HeatSourceForm = "Form 3E";
constexpr std::string_view NewSubsegment = "1.\t1.\t60.\t60.\t60.";
// The last cell is wanted as it stands; read as a number it is 1000.
constexpr std::string_view NewHeatSource = "New\t1.\t1.\t1.\t1000.\t1000., i%";

void selectFirstCell(Grid& grid) {
    grid.setRow(0);
    grid.setCol(0);
    grid.setTopRow(0);
    grid.select({0, 0, 0, 0});
}

} // namespace

std::span<const Column> SegmentGrids::subsegmentColumns() { return SubsegmentColumns; }
std::span<const Column> SegmentGrids::heatSourceColumns() { return HeatSourceColumns; }

SegmentGrids::SegmentGrids(Window& window, SegmentEditing& editing)
    : window_(window), editing_(editing), subsegments_(window.control("grdSubSeg")), heatSources_(window.control("grdSSHS")) {
    auto subsegmentRules = rules(subsegments_);
    subsegmentRules.newRow = NewSubsegment;
    subsegmentOverlay_.emplace(editing_.app, editing_.flags, subsegments_, window.control("gtext2"), SubsegmentColumns,
                               std::move(subsegmentRules));
    auto heatSourceRules = rules(heatSources_);
    // A new one goes to the end, behind the blank row.
    heatSourceRules.insertRow = [this] { heatSources_.grid().addItem(NewHeatSource); };
    heatSourceOverlay_.emplace(editing_.app, editing_.flags, heatSources_, window.control("gtext3"), HeatSourceColumns,
                               std::move(heatSourceRules));
    subsegmentOverlay_->bindDummy(window.control("Dummy", 1));
    heatSourceOverlay_->bindDummy(window.control("Dummy", 2));
    wire(subsegments_, *subsegmentOverlay_, SubsegmentForm);
    wire(heatSources_, *heatSourceOverlay_, HeatSourceForm);
}

OverlayRules SegmentGrids::rules(Control& grid) {
    OverlayRules made;
    made.opensOnSelect = false;
    made.rightWhenStill = true;
    made.blankRow = " ";
    made.accepted = [this](int, int, std::string&) { editing_.dataChanged = true; };
    made.closed = [this] { left(); };
    made.refused = [this](int, int) { refused(); };
    made.deleteRow = [this, &grid] { deleteRow(grid.grid()); };
    return made;
}

void SegmentGrids::wire(Control& grid, GridOverlay& overlay, std::string_view form) {
    grid.turnsPage = true;
    grid.on.gotFocus = [this, &grid, &overlay, form] {
        window_.control("SSTab1").tabs().current = grid.page;
        editing_.app.desk.setPanel(1, form);
        editing_.ActiveGrid = &grid;
        overlay.showHint();
    };
    grid.on.lostFocus = [this] { editing_.ActiveGrid = nullptr; };
    grid.on.rightClick = [this, &grid](int) {
        if (editing_.app.desk.setFocus(grid)) {
            window_.control("M_Edit").menu().popup = true;
        }
    };
}

void SegmentGrids::deleteRow(Grid& grid) {
    if (grid.row() + 1 < grid.rows()) { // the blank row stays
        grid.removeItem(grid.row());
        editing_.dataChanged = true;
    }
}

// Between the grids and the segment.

void SegmentGrids::show(const cSegment& segment) {
    segment.SubList(subsegments_.grid());
    selectFirstCell(subsegments_.grid());
    segment.SSHSList(heatSources_.grid());
    selectFirstCell(heatSources_.grid());
}

void SegmentGrids::save(cSegment& segment) const {
    saveSubsegments(segment);
    saveHeatSources(segment);
}

void SegmentGrids::saveSubsegments(cSegment& segment) const {
    const auto& grid = subsegments_.grid();
    segment.ClearSubs();
    for (int row = 0; row < grid.rows(); ++row) {
        const auto start = fieldInteger(grid.text(row, 0));
        if (start > 0) {
            segment.AddSubSeg()->setSubSeg({.start = start,
                                            .stop = fieldInteger(grid.text(row, 1)),
                                            .wall = grid.text(row, 2),
                                            .dryBulb = grid.text(row, 3),
                                            .wetBulb = grid.text(row, 4)});
        }
    }
}

void SegmentGrids::saveHeatSources(cSegment& segment) const {
    const auto& grid = heatSources_.grid();
    segment.ClearSSHS();
    for (int row = 0; row < grid.rows(); ++row) {
        const SSHSValues values{.start = fieldInteger(grid.text(row, 1)),
                                .stop = fieldInteger(grid.text(row, 2)),
                                .type = fieldInteger(grid.text(row, 3)),
                                .sensible = grid.text(row, 4),
                                .latent = grid.text(row, 5),
                                .identification = grid.text(row, 0)};
        if (values.type > 0) {
            segment.AddSSHS()->setSSHS(values);
        }
    }
}

} // namespace kov
