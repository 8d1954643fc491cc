#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/network.hpp"
#include "fire/model/zone.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// All environmental control zones of a data set in file order, from the Form 11 cards, with a clipboard for one zone. A
/// position outside 1 to `Count()` is a Failure.
class cECZones {
public:
    /// A new zone: at the end when the position is 0, else ahead of it.
    std::shared_ptr<cECZone> Add(Position position);
    [[nodiscard]] const std::shared_ptr<cECZone>& Zone(Position position) const { return zones_.at(position); }
    [[nodiscard]] std::int16_t Count() const { return zones_.count(); }
    /// Keeps a copy, which has no members.
    void Copy(Position position);
    /// Inserts the copied zone ahead of the position. A Failure when nothing was copied.
    void Paste(Position position);
    void Delete(Position position) { zones_.remove(position); }

    /// Reads `NZones` zones; false at the first bad one, those before it stay.
    [[nodiscard]] bool ReadECZones(CardReader& reader, const DataOptions& options);
    /// Writes all zones. The only zone of a data set stands for everything: its card alone, with the number of all line
    /// segments and vent sections; more of them than 16 bits hold is a Failure.
    void WriteECZones(CardWriter& writer, std::int32_t allSegmentsAndVents) const;

private:
    Collection<cECZone> zones_;
    std::shared_ptr<cECZone> clip_;
};

} // namespace kov
