#include "core/cards/numbers.hpp"
#include "rail/model/grid_rows.hpp"
#include "rail/model/route.hpp"

#include <memory>
#include <utility>

namespace kov {
namespace {

bool aboveZero(const Grid& grid, int row) {
    const auto first = trim(grid.text(row, 0));
    return !first.empty() && fieldValue(first) > 0;
}

} // namespace

void cRoute::TGroupList(Grid& grid) const {
    fillGrid(grid, TGroups,
             [](RowText& row, const cRtGroup& group) { row.cell(group.Trains).cell(group.TrainType).cell(group.Headway); });
}

void cRoute::TStopList(Grid& grid) const {
    fillGrid(grid, TStops,
             [](RowText& row, const cRtStop& stop) { row.cell(stop.StopAt).cell(stop.Dwell).cell(stop.Persons); });
}

void cRoute::TPerfList(Grid& grid) const {
    fillGrid(grid, TPerfs, [](RowText& row, const cRtTPerf& point) {
        row.cell(point.PerfTime).cell(point.PerfSpeed).cell(point.PwrAccel).cell(point.PwrDecel);
    });
}

void cRoute::TrackList(Grid& grid) const {
    fillGrid(grid, Tracks, [](RowText& row, const cRtTrack& track) {
        row.cell(track.ForwardEnd).cell(track.Radius).cell(track.Grade).cell(track.Elevation).cell(track.MaxSpeed);
        row.cell(track.EnergySector).cell(track.CoastParam);
    });
}

void cRoute::TGroupSave(const Grid& grid) {
    TGroups.clear();
    for (int row = 0; row < grid.rows(); ++row) {
        const auto trains = fieldInteger(grid.text(row, 0));
        if (trains <= 0) {
            continue;
        }
        auto group = std::make_shared<cRtGroup>();
        group->setRtGroup({trains, fieldInteger(grid.text(row, 1)), fieldInteger(grid.text(row, 2))});
        TGroups.append(std::move(group));
    }
}

void cRoute::TStopSave(const Grid& grid) {
    TStops.clear();
    for (int row = 0; row < grid.rows(); ++row) {
        if (!aboveZero(grid, row)) {
            continue;
        }
        auto stop = std::make_shared<cRtStop>();
        stop->setRtStop({grid.text(row, 0), grid.text(row, 1), grid.text(row, 2)});
        TStops.append(std::move(stop));
    }
}

void cRoute::TPerfSave(const Grid& grid) {
    TPerfs.clear();
    for (int row = 0; row < grid.rows(); ++row) {
        if (!aboveZero(grid, row)) {
            continue;
        }
        auto point = std::make_shared<cRtTPerf>();
        point->setRtTPerf({grid.text(row, 0), grid.text(row, 1), grid.text(row, 2), grid.text(row, 3)});
        TPerfs.append(std::move(point));
    }
}

void cRoute::TrackSave(const Grid& grid) {
    Tracks.clear();
    for (int row = 0; row < grid.rows(); ++row) {
        if (!aboveZero(grid, row)) {
            continue;
        }
        auto track = std::make_shared<cRtTrack>();
        track->setRtTrack({grid.text(row, 0), grid.text(row, 1), grid.text(row, 2), grid.text(row, 3), grid.text(row, 4),
                           fieldInteger(grid.text(row, 5)), fieldInteger(grid.text(row, 6))});
        Tracks.append(std::move(track));
    }
}

void cRoute::TSectList(ItemList& list) const {
    list.clear();
    for (const auto section : TSects) {
        list.addItem(plainNumber(section));
    }
    // The editor moves and removes entries up to this blank one.
    list.addItem(" ");
}

void cRoute::TSectSave(const ItemList& list) {
    TSects.clear();
    for (int i = 0; i + 1 < list.count(); ++i) {
        if (const auto section = fieldInteger(list.item(i)); section != 0) {
            TSects.push_back(section);
        }
    }
}

} // namespace kov
