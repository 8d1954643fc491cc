#include "rail/model/route.hpp"

#include "core/cards/numbers.hpp"
#include "rail/model/reading.hpp"

#include <memory>

namespace kov {
namespace {

template <typename Card> void writeAll(const Collection<Card>& cards, CardWriter& writer) {
    for (const auto& card : cards) {
        card->WriteData(writer);
    }
}

/// Appends the very objects of another list; by count, since the two may be the same list.
template <typename Card> void share(const Collection<Card>& source, Collection<Card>& target) {
    const auto count = static_cast<std::int32_t>(source.size());
    for (std::int32_t i = 1; i <= count; ++i) {
        target.append(source.at(Position{i}));
    }
}

} // namespace

void cRoute::SetRoute(const Values& values) {
    RouteID = values.RouteID;
    RtOrigin = values.RtOrigin;
    Delay = values.Delay;
    VcMin = values.VcMin;
    Dist0 = values.Dist0;
    TType1 = values.TType1;
    CoastOpt = values.CoastOpt;
    Npax0 = values.Npax0;
}

bool cRoute::ReadData(CardReader& reader, const DataOptions& options) {
    return readsWell([&] {
        RouteID.assign(columns(reader.readLine(), 1, 68));
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        readRouteCard(card);
        if (!readObjects(reader, std::int32_t{NGroupCard} - 1, TGroups)) {
            return false;
        }
        if (options.TPOpt != 3 && !readObjects(reader, NTrackCard, Tracks)) {
            return false;
        }
        if (options.TPOpt == 1 && !readStops(reader)) {
            return false;
        }
        if ((options.TPOpt == 2 || options.TPOpt == 3) && !readPerformance(reader)) {
            return false;
        }
        readSections(reader);
        return true;
    });
}

void cRoute::readRouteCard(const Card8& card) {
    RtOrigin.assign(card.field(1));
    NGroupCard = strictInteger(card.field(2));
    NTrackCard = strictInteger(card.field(3));
    Delay.assign(card.field(4));
    TType1 = fieldInteger(card.field(5));
    VcMin.assign(card.field(6));
    CoastOpt = fieldInteger(card.field(7));
}

bool cRoute::readStops(CardReader& reader) {
    const auto line = reader.readLine();
    NStopCard = fieldInteger(columns(line, 1, 10));
    Npax0 = fieldInteger(columns(line, 11, 20));
    return readObjects(reader, NStopCard, TStops);
}

bool cRoute::readPerformance(CardReader& reader) {
    NPerfCard = fieldInteger(reader.readLine());
    return readObjects(reader, NPerfCard, TPerfs);
}

void cRoute::readSections(CardReader& reader) {
    const auto line = reader.readLine();
    NSectCard = fieldInteger(columns(line, 1, 10));
    Dist0.assign(columns(line, 11, 20));
    for (std::int32_t i = 0; i < NSectCard; ++i) {
        TSects.push_back(fieldInteger(reader.readLine()));
    }
}

void cRoute::WriteData(CardWriter& writer, const DataOptions& options) const {
    if (RouteID.blank()) {
        return;
    }
    writer.field(RouteID).endCard();
    writeRouteCard(writer);
    writeAll(TGroups, writer);
    if (options.TPOpt != 3) {
        writeAll(Tracks, writer);
    }
    if (options.TPOpt == 1) {
        writeStops(writer);
    }
    if (options.TPOpt == 2 || options.TPOpt == 3) {
        writePerformance(writer);
    }
    writeSections(writer);
}

void cRoute::writeRouteCard(CardWriter& writer) const {
    // Of all counts only this one is one more than the cards that follow.
    writer.field(RtOrigin).integer(cardCount(TGroups.size() + 1)).integer(cardCount(Tracks.size()));
    writer.field(Delay).integer(TType1).field(VcMin).integer(CoastOpt).endCard();
}

void cRoute::writeStops(CardWriter& writer) const {
    writer.integer(cardCount(TStops.size())).integer(Npax0).endCard();
    writeAll(TStops, writer);
}

void cRoute::writePerformance(CardWriter& writer) const {
    writer.integer(cardCount(TPerfs.size())).endCard();
    writeAll(TPerfs, writer);
}

void cRoute::writeSections(CardWriter& writer) const {
    writer.integer(cardCount(TSects.size())).field(Dist0).endCard();
    for (const auto section : TSects) {
        writer.integer(section).endCard();
    }
}

void cRoute::XCopy(const cRoute& source) {
    SetRoute(source.GetRoute());
    share(source.TGroups, TGroups);
    share(source.Tracks, Tracks);
    share(source.TStops, TStops);
    share(source.TPerfs, TPerfs);
}

} // namespace kov
