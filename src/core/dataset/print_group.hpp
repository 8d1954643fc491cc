#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <cstdint>

namespace kov {

/// The six values of a print control group, in the order of their fields on its card behind Form 12.
struct PGroupValues {
    std::int16_t NIntervals = 0;   ///< field 1: number of intervals in this group; -1 suppresses printing
    Fixed<10> IntLength;           ///< field 2: length of these intervals, seconds
    std::int16_t AbbrevRatio = 0;  ///< field 3: ratio of abbreviated to detailed prints
    std::int16_t SummaryOpt = 0;   ///< field 4: summary option
    std::int16_t AeroCycles = 0;   ///< field 5: cycles per complete aerodynamic evaluation
    std::int16_t ThermoCycles = 0; ///< field 6: cycles per complete thermodynamic evaluation
    friend bool operator==(const PGroupValues&, const PGroupValues&) = default;
};

/// One print control group: how often the simulation prints for a stretch of its time.
class cPGroup {
public:
    [[nodiscard]] const PGroupValues& getPGroup() const { return values_; }
    void setPGroup(const PGroupValues& values) { values_ = values; }
    /// Takes the values of a card. The interval length is the one real that doesn't keep its text: it is read strictly as a
    /// number and stored as plain number text. A value that can't be read is a Failure, and the group then stays as it was.
    void readCard(const Card8& card);
    /// Prints the card, 60 columns.
    void WriteData(CardWriter& writer) const;
    void XCopy(const cPGroup& source) { setPGroup(source.getPGroup()); }

private:
    PGroupValues values_;
};

} // namespace kov
