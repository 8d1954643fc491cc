// The Form 3 card group of a line segment.
#include "line/model/segment.hpp"

#include "core/cards/all_read.hpp"
#include "core/cards/numbers.hpp"

namespace kov {
namespace {

constexpr std::size_t FieldWidth = 10;

void takeFields(WallTypes& values, std::string_view line) {
    for (int type = 1; type <= WallTypes::Highest; ++type) {
        const auto first = FieldWidth * static_cast<std::size_t>(type - 1) + 1;
        values[type] = columns(line, first, first + FieldWidth - 1);
    }
}

void writeFields(CardWriter& writer, const WallTypes& values) {
    for (int type = 1; type <= WallTypes::Highest; ++type) {
        writer.field(values[type]);
    }
    writer.endCard();
}

} // namespace

bool cSegment::ReadData(CardReader& reader, const DataOptions& options) {
    return allRead([&] { return readCards(reader, options); });
}

bool cSegment::readCards(CardReader& reader, const DataOptions& options) {
    readHeader(reader);
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    sLen = card.field(1);
    XArea = card.field(2);
    Height = card.field(3);
    Fire = fieldInteger(card.field(4));
    readWallTypes(reader);
    if (!ReadCard8(reader, card)) {
        return false;
    }
    HLFP = card.field(1);
    HLFN = card.field(2);
    HLBP = card.field(3);
    HLBN = card.field(4);
    WWS = card.field(5);
    statedSubs_ = fieldInteger(card.field(6));
    NSSHS = fieldInteger(card.field(7));
    if (!readHeatSources(reader) || !readSubsegments(reader)) {
        return false;
    }
    return options.ECLOpt < 1 || readWallAndSoil(reader);
}

void cSegment::readHeader(CardReader& reader) {
    const auto line = reader.readLine();
    id = fieldInteger(columns(line, 1, 10));
    sType = fieldInteger(columns(line, 11, 20));
    Title = columns(line, 21, 56); // narrower than it is written: a longer title is cut
}

void cSegment::readWallTypes(CardReader& reader) {
    takeFields(Perim, reader.readLine());
    takeFields(Rough, reader.readLine());
}

bool cSegment::readHeatSources(CardReader& reader) {
    for (std::int32_t count = 0; count < NSSHS; ++count) {
        auto source = std::make_shared<cSSHS>();
        if (!source->ReadData(reader)) {
            return false;
        }
        heatSources_.append(std::move(source));
    }
    return true;
}

bool cSegment::readSubsegments(CardReader& reader) {
    ClearSubs();
    std::int16_t reached = 0;
    do {
        auto group = std::make_shared<cSubSeg>();
        if (!group->ReadData(reader)) {
            return false;
        }
        reached = group->SStop();
        subs_.append(std::move(group));
    } while (reached < statedSubs_);
    return true;
}

bool cSegment::readWallAndSoil(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    WThk = card.field(1);
    WDist = card.field(2);
    WCond = card.field(3);
    WDiff = card.field(4);
    SCond = card.field(5);
    SDiff = card.field(6);
    TSink = card.field(7);
    return true;
}

void cSegment::WriteData(CardWriter& writer, const DataOptions& options) {
    writeHeader(writer);
    statedSubs_ = NSubs();
    NSSHS = heatSources_.count();
    writeLosses(writer);
    for (const auto& source : heatSources_) {
        source->WriteData(writer);
    }
    for (const auto& group : subs_) {
        group->WriteData(writer);
    }
    if (options.ECLOpt >= 1) {
        writeWallAndSoil(writer);
    }
}

void cSegment::writeHeader(CardWriter& writer) const {
    writer.integer(id).integer(sType).field(Title).endCard();
    writer.field(sLen).field(XArea).field(Height).integer(Fire).endCard();
    writeFields(writer, Perim);
    writeFields(writer, Rough);
}

void cSegment::writeLosses(CardWriter& writer) const {
    writer.field(HLFP).field(HLFN).field(HLBP).field(HLBN).field(WWS);
    writer.integer(statedSubs_).integer(NSSHS).endCard();
}

void cSegment::writeWallAndSoil(CardWriter& writer) const {
    writer.field(WThk).field(WDist).field(WCond).field(WDiff).field(SCond).field(SDiff).field(TSink).endCard();
}

} // namespace kov
