#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <array>
#include <cstddef>

namespace kov {

/// One segment of a ventilation shaft or stairway: a stretch of equal cross-section. From a segment card of Form 5. Every
/// number stays the text of the card.
class cVentSeg {
public:
    static constexpr std::size_t Members = 7;
    /// The seven members in card order.
    using Values = std::array<Fixed<10>, Members>;

    Fixed<10> sLen{"0."};  ///< segment length, feet, columns 1-10
    Fixed<10> Area{"0."};  ///< cross-sectional area, square feet, columns 11-20
    Fixed<10> Perim{"0."}; ///< perimeter, feet, columns 21-30
    Fixed<10> FPHL{"0."};  ///< head loss coefficient, forward end, positive flow, columns 31-40
    Fixed<10> FNHL{"0."};  ///< head loss coefficient, forward end, negative flow, columns 41-50
    Fixed<10> BPHL{"0."};  ///< head loss coefficient, backward end, positive flow, columns 51-60
    Fixed<10> BNHL{"0."};  ///< head loss coefficient, backward end, negative flow, columns 61-70

    [[nodiscard]] Values getVSeg() const { return {sLen, Area, Perim, FPHL, FNHL, BPHL, BNHL}; }
    void setVSeg(const Values& values);

    /// Reads one card; false when none is left.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    /// Takes all seven members of the source.
    void XCopy(const cVentSeg& source) { setVSeg(source.getVSeg()); }
};

} // namespace kov
