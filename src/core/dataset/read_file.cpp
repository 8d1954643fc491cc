// The read driver: walks the Forms in their order in the file and hands each group of cards to the collection that owns it.

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"
#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"

#include <cstddef>
#include <exception>
#include <memory>
#include <string>

namespace kov {
namespace {

constexpr int StopBox = 16; // stop icon, OK

void requireRead(bool done) {
    if (!done) {
        throw Failure("Error reading the card");
    }
}

Card8 fullCard(CardReader& reader) {
    Card8 card;
    requireRead(ReadCard8(reader, card));
    return card;
}

Card4 shortCard(CardReader& reader) {
    Card4 card;
    requireRead(ReadCard4(reader, card));
    return card;
}

/// A title has no count and no end mark: the card that follows it is known by the two numbers that it begins with.
bool looksLikeDesignDate(std::string_view line) { return isNumeric(columns(line, 1, 10)) && isNumeric(columns(line, 11, 20)); }

} // namespace

bool KOVDataSet::ReadFile(CardReader& reader, ProgressSink& progress, MessageSink& messages, std::string_view shortName) {
    lineEnd = reader.lineEnd();
    FileProgress bar(progress);
    bar.setBusy(true);
    bar.show();
    bool done = true;
    try {
        readForms(reader, bar);
    } catch (const std::exception&) {
        done = false;
    }
    bar.setBusy(false);
    bar.hide();
    if (!done) {
        messages.show(StopBox, "Open Data File", "Error Reading " + CurForm + "\r\nIn File " + std::string(shortName));
    }
    return done;
}

void KOVDataSet::readForms(CardReader& reader, FileProgress& bar) {
    readTitle(reader);
    readOptions(reader);
    readCounts(reader);
    readWeather(reader);
    readNetwork(reader, bar);
    readPrintGroups(reader);
    readTimes(reader);
}

void KOVDataSet::readTitle(CardReader& reader) {
    CurForm = "Form 1A";
    Sysid = reader.readLine();
    Fixed<80> card;
    std::size_t taken = 0;
    bool found = false;
    while (taken < title_.size() && !found) {
        card = reader.readLine();
        found = looksLikeDesignDate(card.view());
        if (!found) {
            title_[taken++] = card;
        }
    }
    if (found) {
        for (; taken < title_.size(); ++taken) {
            title_[taken] = {};
        }
    } else {
        card = reader.readLine(); // whatever follows a full title is the design date
    }
    CurForm = "Form 1B";
    DgnHr = columns(card.view(), 1, 10);
    DgnMon = columns(card.view(), 11, 20);
    DgnYr = columns(card.view(), 21, 30);
}

void KOVDataSet::readOptions(CardReader& reader) {
    CurForm = "Form 1C";
    const Card8 card = fullCard(reader);
    TPOpt = fieldInteger(card.field(1));
    THOpt = fieldInteger(card.field(2));
    HDOpt = fieldInteger(card.field(3));
    ECLOpt = fieldInteger(card.field(4));
    HSOpt = fieldInteger(card.field(5));
    SupOpt = fieldInteger(card.field(6));
    SimErr = fieldInteger(card.field(7));
    InErr = fieldInteger(card.field(8));
}

void KOVDataSet::readCounts(CardReader& reader) {
    CurForm = "Form 1D";
    const Card8 network = fullCard(reader);
    counts_.NLS = fieldInteger(network.field(1));
    counts_.NSections = fieldInteger(network.field(2));
    counts_.NVSec = fieldInteger(network.field(3));
    counts_.NNodes = fieldInteger(network.field(4));
    counts_.NBrNodes = fieldInteger(network.field(5));
    counts_.NFires = fieldInteger(network.field(7));
    counts_.NFans = fieldInteger(network.field(8));
    counts_.NLSections = toInt16(counts_.NSections - counts_.NVSec);

    CurForm = "Form 1E";
    const Card8 traffic = fullCard(reader);
    counts_.NRoutes = fieldInteger(traffic.field(1));
    counts_.NTrainTypes = fieldInteger(traffic.field(2));
    counts_.NZones = fieldInteger(traffic.field(3));
    FanOpt = fieldInteger(traffic.field(4));
    counts_.NITrains = fieldInteger(traffic.field(5));
    counts_.NIFans = fieldInteger(traffic.field(6));
    RstWrite = fieldInteger(traffic.field(7));
    RstRead = fieldInteger(traffic.field(8));
}

void KOVDataSet::readWeather(CardReader& reader) {
    CurForm = "Form 1F";
    const Card8 weather = fullCard(reader);
    std::size_t number = 0;
    for (auto* member : {&TDBAmb, &TWBAmb, &PAmb, &TAmbA, &TWAmbA, &TAmbM, &TWAmbE, &TAnnAmp}) {
        *member = weather.field(++number);
    }

    CurForm = "Form 1G";
    const Card8 exhaust = fullCard(reader);
    number = 0;
    for (auto* member : {&PatWht, &EFSux, &EFMux, &EFASux, &EFAMux, &UMaxUx}) {
        *member = exhaust.field(++number);
    }
    FireOpt = fieldInteger(exhaust.field(7));
    EECPG = exhaust.field(8);
}

void KOVDataSet::readNetwork(CardReader& reader, FileProgress& bar) {
    const auto& n = counts_;
    bar.setMax(progressMax());
    const auto form = [&](const char* name, std::int32_t weight, const auto& read) {
        CurForm = name;
        requireRead(read());
        bar.grow(weight);
    };
    form("Form 2A", n.NLSections, [&] { return Sections.ReadSections(reader, n.NLSections); });
    form("Form 2B", n.NVSec, [&] { return Vents.ReadVents(reader, n.NVSec); });
    form("Form 3", n.NLS, [&] { return Sections.ReadSegments(reader, options()); });
    if (n.NFires > 0) {
        form("Form 4", 0, [&] { return Fires.ReadFires(reader, n.NFires); });
    }
    form("Form 5", n.NVSec, [&] { return Vents.ReadVShafts(reader, options()); });
    form("Form 6", n.NNodes, [&] { return Nodes.ReadNodes(reader, n.NNodes); });
    form("Form 7", n.NFans, [&] { return Fans.ReadFans(reader, n.NFans, n.NIFans); });
    if (TPOpt > 0) {
        form("Form 8", 15 * n.NRoutes, [&] { return Routes.ReadRoutes(reader, n.NRoutes, options()); });
        form("Form 9", 10 * n.NTrainTypes, [&] { return Trains.ReadTrains(reader, n.NTrainTypes, options()); });
        form("Form 10", n.NITrains, [&] { return InitTrains.ReadITrains(reader, n.NITrains); });
    }
    if (ECLOpt > 0) {
        form("Form 11", n.NZones, [&] { return ECZones.ReadECZones(reader, options()); });
    }
}

void KOVDataSet::readPrintGroups(CardReader& reader) {
    CurForm = "Form 12";
    const Card4 head = shortCard(reader);
    TempTabInc = head.field(1);
    npGroups_ = fieldInteger(head.field(2));
    for (std::int32_t i = 1; i <= npGroups_; ++i) {
        const Card8 card = fullCard(reader);
        auto group = std::make_shared<cPGroup>();
        groupSlot(i) = group;
        group->readCard(card);
    }
}

void KOVDataSet::readTimes(CardReader& reader) {
    CurForm = "Form 13";
    const Card4 card = shortCard(reader);
    DeltaT = card.field(1);
    TMax = card.field(2);
    NCTrain = fieldInteger(card.field(3));
    NCWall = fieldInteger(card.field(4));
    if (RstRead > 0) {
        RstFileName = reader.readLine();
    }
}

} // namespace kov
