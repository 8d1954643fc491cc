#include "core/dataset/dataset.hpp"

#include "core/cards/collection.hpp"
#include "core/cards/failure.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace kov {

std::int16_t KOVDataSet::NLSec() const { return Sections.Count(); }

DataCounts KOVDataSet::getCounts() const {
    Collection<cSegment> segments;
    Sections.SegCol(segments);
    DataCounts counts;
    counts.segments = static_cast<std::int32_t>(segments.size());
    counts.sections = Sections.Count();
    counts.vents = Vents.Count();
    counts.nodes = Nodes.Count();
    counts.fires = Fires.Count();
    counts.fans = Fans.Count();
    counts.impulseFans = Fans.ICount();
    if (TPOpt >= 1) {
        counts.routes = Routes.Count();
        counts.trains = Trains.Count();
        counts.initialTrains = InitTrains.Count();
    }
    if (ECLOpt >= 1) {
        counts.zones = ECZones.Count();
    }
    return counts;
}

DataOptions KOVDataSet::options() const {
    return {.TPOpt = TPOpt, .ECLOpt = ECLOpt, .NFans = counts_.NFans, .NZones = counts_.NZones};
}

std::shared_ptr<cPGroup>& KOVDataSet::groupSlot(std::int32_t index) {
    if (index < 0 || index > MostPGroups) {
        throw Failure("Subscript out of range");
    }
    return groups_[static_cast<std::size_t>(index)];
}

std::shared_ptr<cPGroup> KOVDataSet::PGroup(std::int32_t index) const {
    if (index < 0 || index > MostPGroups) {
        throw Failure("Subscript out of range");
    }
    return index <= npGroups_ ? groups_[static_cast<std::size_t>(index)] : nullptr;
}

void KOVDataSet::AddPGroup(std::shared_ptr<cPGroup> group) {
    ++npGroups_;
    groupSlot(npGroups_) = std::move(group);
}

void KOVDataSet::ClrPGroup() {
    std::fill(groups_.begin(), groups_.end(), nullptr);
    npGroups_ = 0;
}

NodeTable KOVDataSet::buildNodeTable() const {
    NodeTable table;
    Sections.NodeList(table);
    Vents.NodeList(table);
    return table;
}

void KOVDataSet::BuildNodes() {
    NodeTable table = buildNodeTable();
    Nodes.BuildNodes(table);
}

std::int32_t KOVDataSet::progressMax() const {
    constexpr std::int32_t start = 10;
    constexpr std::int32_t routeWeight = 15;
    constexpr std::int32_t trainWeight = 10;
    const auto& n = counts_;
    return n.NLS + start + n.NSections + n.NVSec + n.NNodes + n.NFans + routeWeight * n.NRoutes + trainWeight * n.NTrainTypes +
           n.NITrains + n.NZones;
}

} // namespace kov
