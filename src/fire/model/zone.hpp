#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"
#include "core/cards/network.hpp"
#include "platform/item_list.hpp"

#include <cstdint>
#include <vector>

namespace kov {

/// What a zone says of itself, without its members. The temperatures are the design temperatures of the rush hours, deg F.
struct ZoneValues {
    std::int16_t type = 1; ///< 1 controlled, 2 uncontrolled, 3 non-inertial vent shaft
    Fixed<10> morningDryBulb{"0."};
    Fixed<10> morningWetBulb{"0."};
    Fixed<10> eveningDryBulb{"0."};
    Fixed<10> eveningWetBulb{"0."};
};

/// An environmental control zone: line segments and vent sections that the simulation heats and cools alike. Form 11: a zone
/// card (type, number of members, four temperatures in fields of ten columns) and, when the data set has two zones or more,
/// lines of eight member numbers.
class cECZone {
public:
    [[nodiscard]] const ZoneValues& getZone() const { return values_; }
    void setZone(const ZoneValues& values) { values_ = values; }
    /// How many segments and vent sections the zone has.
    [[nodiscard]] std::int32_t NSegs() const { return static_cast<std::int32_t>(members_.size()); }

    /// Lists the members by the `sid` of their records; a member without a record is a Failure.
    void ZSectList(ItemList& list, const ZsectList& zsects) const;
    /// Makes the list's entries the members. Ten columns hold every number that a card can bear.
    void ZSectSave(const ItemList& list);
    /// Marks the members' records as used; a member without a record is a Failure.
    void ZSectStrip(ZsectList& zsects) const;

    /// Reads the zone card and, with two zones or more in the data set, as many members as it states. False at the end of the
    /// file and for a type or count outside 16 bits.
    [[nodiscard]] bool ReadData(CardReader& reader, std::int16_t NZones);
    /// Writes the zone card and the members, eight a line. A member outside 16 bits is a Failure.
    void WriteData(CardWriter& writer) const;
    /// Writes the zone card alone, with the count that it is given.
    void writeCard(CardWriter& writer, std::int16_t count) const;
    /// Takes over type and temperatures, and empties the member list: a segment stands in one zone only.
    void XCopy(const cECZone& source);

private:
    void readMembers(CardReader& reader);
    void writeMembers(CardWriter& writer) const;

    ZoneValues values_;
    std::int16_t declaredMembers_ = 0;
    std::vector<Fixed<10>> members_; // segment numbers as texts, in card order
};

} // namespace kov
