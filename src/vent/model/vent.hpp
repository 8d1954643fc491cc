#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"
#include "vent/model/shaft.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// One vent section: the branch of the network that joins two nodes through a ventilation shaft or a stairway, together with
/// that shaft. From one card of Form 2B; its shaft comes later in the file, from Form 5.
class cVent {
    /// Keeps the constructor to `make`, so that the shaft can always refer back to its section.
    struct Key {
        explicit Key() = default;
    };

public:
    /// A bare section, numbered 0, with a bare shaft that refers back to it.
    [[nodiscard]] static std::shared_ptr<cVent> make();
    explicit cVent(Key /*key*/) {}

    std::shared_ptr<cVShaft> uVShaft = std::make_shared<cVShaft>(); ///< the shaft of this section, never none

    std::int16_t id = 0;        ///< section number, columns 1-10; 0 until the engineer numbers a new section
    std::int16_t StartNode = 0; ///< node at the start, columns 11-20
    std::int16_t StopNode = 0;  ///< node at the end, columns 21-30
    Fixed<10> InitAir;          ///< initial air flow, CFM, columns 31-40

    /// Reads the card of Form 2B; false when it is missing or an integer doesn't fit 16 bits.
    [[nodiscard]] bool ReadFile(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    /// Takes all of the source and its shaft but the number.
    void XCopy(const cVent& source);
};

} // namespace kov
