// What can be saved of a data set when the program fails: each piece is tried by itself.

#include "core/cards/collection.hpp"
#include "core/dataset/dataset.hpp"

#include <exception>
#include <vector>

namespace kov {
namespace {

/// A piece that fails leaves what it had printed, with its last line ended, and nothing else suffers from it.
template <typename Piece> void attempt(CardWriter& writer, const Piece& piece) {
    try {
        piece();
    } catch (const std::exception&) {
        writer.endBrokenCard();
    }
}

} // namespace

void KOVDataSet::WriteRescue(CardWriter& writer) {
    attempt(writer, [&] { recount(); });
    attempt(writer, [&] { writeGeneral(writer); });
    attempt(writer, [&] { writeCounts(writer); });
    attempt(writer, [&] { writeWeather(writer); });
    rescueNetwork(writer);
    attempt(writer, [&] { rescuePrintGroups(writer); });
    attempt(writer, [&] { writeTimes(writer); });
}

void KOVDataSet::rescueNetwork(CardWriter& writer) const {
    const auto& n = counts_;
    attempt(writer, [&] { Sections.WriteSections(writer); });
    attempt(writer, [&] { Vents.WriteVents(writer); });
    Collection<cSegment> segments;
    attempt(writer, [&] { Sections.SegCol(segments); });
    for (const auto& segment : segments) {
        attempt(writer, [&] { segment->WriteData(writer, options()); });
    }
    attempt(writer, [&] { Fires.WriteFires(writer); });
    attempt(writer, [&] { Vents.WriteVShafts(writer, options()); });
    attempt(writer, [&] { Nodes.WriteNodes(writer); });
    attempt(writer, [&] { Fans.WriteFans(writer); });
    if (TPOpt > 0) {
        attempt(writer, [&] { Routes.WriteRoutes(writer, options()); });
        attempt(writer, [&] { Trains.WriteTrains(writer, options()); });
        attempt(writer, [&] { InitTrains.WriteITrains(writer); });
    }
    if (ECLOpt > 0) {
        attempt(writer, [&] { ECZones.WriteECZones(writer, n.NLS + n.NVSec); });
    }
}

void KOVDataSet::rescuePrintGroups(CardWriter& writer) const {
    std::vector<const cPGroup*> present;
    for (const auto& group : groups_) {
        if (group) {
            present.push_back(group.get());
        }
    }
    writer.field(TempTabInc).integer(static_cast<std::int16_t>(present.size())).endCard();
    for (const auto* group : present) {
        group->WriteData(writer);
    }
}

} // namespace kov
