// The write driver: recomputes the counts from the collections and prints the Forms in the order in which they are read.

#include "core/cards/collection.hpp"
#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"
#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"

namespace kov {

void KOVDataSet::WriteFile(CardWriter& writer, ProgressSink& progress) {
    FileProgress bar(progress);
    bar.setBusy(true);
    recount();
    bar.show();
    bar.setMax(progressMax());
    writeGeneral(writer);
    writeCounts(writer);
    writeWeather(writer);
    writeNetwork(writer, bar);
    writePrintGroups(writer);
    writeTimes(writer);
    bar.setBusy(false);
    bar.hide();
}

void KOVDataSet::recount() {
    const DataCounts now = getCounts();
    auto& n = counts_;
    n.NLS = toInt16(now.segments);
    n.NLSections = now.sections;
    n.NVSec = now.vents;
    n.NSections = toInt16(n.NVSec + n.NLSections);
    n.NNodes = now.nodes;
    n.NBrNodes = Nodes.BrCount();
    n.NFires = now.fires;
    n.NFans = now.fans;
    n.NIFans = now.impulseFans;
    n.NRoutes = now.routes;
    n.NTrainTypes = now.trains;
    n.NZones = now.zones;
    n.NITrains = now.initialTrains;
}

void KOVDataSet::writeGeneral(CardWriter& writer) const {
    writer.field(Sysid).endCard();
    for (const auto& line : title_) {
        if (!line.blank()) {
            writer.text(line.trimmed()).endCard();
        }
    }
    writer.field(DgnHr).field(DgnMon).field(DgnYr).endCard();
    for (const auto option : {TPOpt, THOpt, HDOpt, ECLOpt, HSOpt, SupOpt, SimErr, InErr}) {
        writer.integer(option);
    }
    writer.endCard();
}

void KOVDataSet::writeCounts(CardWriter& writer) const {
    const auto& n = counts_;
    writer.integer(n.NLS).integer(n.NSections).integer(n.NVSec).integer(n.NNodes).integer(n.NBrNodes);
    writer.field(Fixed<10>()).integer(n.NFires).integer(n.NFans).endCard();
    for (const auto value : {n.NRoutes, n.NTrainTypes, n.NZones, FanOpt, n.NITrains, n.NIFans, RstWrite, RstRead}) {
        writer.integer(value);
    }
    writer.endCard();
}

void KOVDataSet::writeWeather(CardWriter& writer) const {
    for (const auto* value : {&TDBAmb, &TWBAmb, &PAmb, &TAmbA, &TWAmbA, &TAmbM, &TWAmbE, &TAnnAmp}) {
        writer.field(*value);
    }
    writer.endCard();
    for (const auto* value : {&PatWht, &EFSux, &EFMux, &EFASux, &EFAMux, &UMaxUx}) {
        writer.field(*value);
    }
    writer.integer(FireOpt).field(EECPG).endCard();
}

void KOVDataSet::writeNetwork(CardWriter& writer, FileProgress& bar) const {
    const auto& n = counts_;
    Sections.WriteSections(writer);
    bar.grow(n.NLSections);
    Vents.WriteVents(writer);
    bar.grow(n.NVSec);
    Collection<cSegment> segments;
    Sections.SegCol(segments);
    for (const auto& segment : segments) {
        segment->WriteData(writer, options());
    }
    bar.grow(n.NLS);
    Fires.WriteFires(writer);
    Vents.WriteVShafts(writer, options());
    bar.grow(n.NVSec);
    Nodes.WriteNodes(writer);
    bar.grow(n.NNodes);
    Fans.WriteFans(writer);
    bar.grow(n.NFans);
    if (TPOpt > 0) {
        Routes.WriteRoutes(writer, options());
        bar.grow(15 * n.NRoutes);
        Trains.WriteTrains(writer, options());
        bar.grow(10 * n.NTrainTypes);
        InitTrains.WriteITrains(writer);
        bar.grow(n.NITrains);
    }
    if (ECLOpt > 0) {
        ECZones.WriteECZones(writer, n.NLS + n.NVSec);
        bar.grow(n.NZones);
    }
}

void KOVDataSet::writePrintGroups(CardWriter& writer) const {
    writer.field(TempTabInc).integer(npGroups_).endCard();
    for (std::int32_t i = 1; i <= npGroups_; ++i) {
        const auto group = PGroup(i);
        if (!group) {
            throw Failure("Object variable not set");
        }
        group->WriteData(writer);
    }
}

void KOVDataSet::writeTimes(CardWriter& writer) const {
    writer.field(DeltaT).field(TMax).integer(NCTrain).integer(NCWall).endCard();
    if (RstRead > 0) {
        writer.field(RstFileName).endCard();
    }
}

} // namespace kov
