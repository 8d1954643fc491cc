#pragma once

#include "core/cards/card_io.hpp"
#include "rail/model/card_text.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace kov {

/// The flywheels that a train stores braking energy in. Form 9I, two cards: `FWNumber`, `FWInertia`, `FWMinRPM`, `FWMaxRPM`,
/// `FWInitRPM`, and the seven texts from `FWEffIn` to `FWLossE`, ten columns each.
class cFlyWheel {
public:
    /// All members in their order, indices 0 to 11; integers as plain number text.
    using Texts = std::array<std::string, 12>;

    [[nodiscard]] Texts getFlyWheel() const;
    /// Integers by their field value; one beyond 16 bits is a Failure.
    void setFlyWheel(const Texts& texts);
    /// False at the end of the file or for an integer beyond 16 bits.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cFlyWheel& source) { setFlyWheel(source.getFlyWheel()); }

    CardText FWNumber = ZeroText; ///< flywheels per car
    std::int16_t FWInertia = 0;   ///< polar moment of inertia of the assembly, lb-ft2
    std::int16_t FWMinRPM = 0;    ///< lowest allowable speed
    std::int16_t FWMaxRPM = 0;    ///< highest allowable speed
    std::int16_t FWInitRPM = 0;   ///< speed at the start
    CardText FWEffIn = ZeroText;  ///< efficiency from train to flywheel, %
    CardText FWEffOut = ZeroText; ///< efficiency from flywheel to train, %
    CardText FWLossA = ZeroText;  ///< coefficient A of the internal losses
    CardText FWLossB = ZeroText;  ///< coefficient B
    CardText FWLossC = ZeroText;  ///< coefficient C
    CardText FWLossD = ZeroText;  ///< exponent d
    CardText FWLossE = ZeroText;  ///< exponent e
};

} // namespace kov
