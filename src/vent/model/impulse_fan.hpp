#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <cstdint>

namespace kov {

/// One impulse fan: a jet that drives the air along the tunnel, told by five plain values. From one card of Form 7, which the
/// editor labels "Form 7C".
class cIFan {
public:
    /// All members in their order, as the editor takes and gives them.
    struct Values {
        Fixed<10> FanQ{"0."};   ///< volumetric flow rate, CFM, columns 1-10
        Fixed<10> Feff{"0."};   ///< ratio of actual to theoretical pressure rise, columns 11-20
        Fixed<10> fVel{"0."};   ///< velocity at the discharge, feet per minute, columns 21-30
        std::int16_t TmOn = 0;  ///< simulation time at which the fan turns on, seconds, columns 31-40
        std::int16_t TmOff = 0; ///< simulation time at which the fan turns off, seconds, columns 41-50
    };

    [[nodiscard]] const Fixed<10>& FanQ() const { return values_.FanQ; }
    [[nodiscard]] const Values& GetIFan() const { return values_; }
    void SetIFan(const Values& values) { values_ = values; }

    /// Reads the card; false when it is missing or a time doesn't fit 16 bits. What was read before stays.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    /// Takes all five members of the source.
    void XCopy(const cIFan& source) { SetIFan(source.GetIFan()); }

private:
    Values values_;
};

} // namespace kov
