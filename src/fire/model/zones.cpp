#include "fire/model/zones.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"

namespace kov {

std::shared_ptr<cECZone> cECZones::Add(Position position) {
    auto zone = std::make_shared<cECZone>();
    if (position == Position{0}) {
        zones_.append(zone);
    } else {
        zones_.insertBefore(position, zone);
    }
    return zone;
}

void cECZones::Copy(Position position) {
    clip_ = std::make_shared<cECZone>();
    clip_->XCopy(*Zone(position));
}

void cECZones::Paste(Position position) {
    if (!clip_) {
        throw Failure("Object variable not set");
    }
    auto zone = std::make_shared<cECZone>();
    zone->XCopy(*clip_);
    zones_.insertBefore(position, std::move(zone));
}

bool cECZones::ReadECZones(CardReader& reader, const DataOptions& options) {
    for (std::int32_t done = 0; done < options.NZones; ++done) {
        auto zone = std::make_shared<cECZone>();
        if (!zone->ReadData(reader, options.NZones)) {
            return false;
        }
        zones_.append(std::move(zone));
    }
    return true;
}

void cECZones::WriteECZones(CardWriter& writer, std::int32_t allSegmentsAndVents) const {
    if (Count() == 1) {
        Zone(Position{1})->writeCard(writer, toInt16(allSegmentsAndVents));
        return;
    }
    for (const auto& zone : zones_) {
        zone->WriteData(writer);
    }
}

} // namespace kov
