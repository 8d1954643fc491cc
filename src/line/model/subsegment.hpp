#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <cstdint>
#include <string_view>

namespace kov {

/// What a subsegment group says: subsegments `start` to `stop` (counted from 1) of a segment have these temperatures.
struct SubSegValues {
    std::int16_t start = 1;
    std::int16_t stop = 1;
    Fixed<10> wall{"60."};    ///< wall surface temperature, deg F
    Fixed<10> dryBulb{"60."}; ///< initial dry-bulb temperature, deg F
    Fixed<10> wetBulb{"60."}; ///< initial wet-bulb temperature, deg F
};

/// A group of subsegments of a line segment that start with the same temperatures. One Form 3E card: five fields of ten
/// columns in the order of `SubSegValues`.
class cSubSeg {
public:
    [[nodiscard]] const SubSegValues& getSubSeg() const { return values_; }
    void setSubSeg(const SubSegValues& values) { values_ = values; }
    /// Sets the three temperatures only.
    void updateSubSeg(std::string_view wall, std::string_view dryBulb, std::string_view wetBulb);
    /// The last subsegment of the group.
    [[nodiscard]] std::int16_t SStop() const { return values_.stop; }

    /// False at the end of the file and for a subsegment number outside 16 bits.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cSubSeg& source) { values_ = source.values_; }

private:
    SubSegValues values_;
};

} // namespace kov
