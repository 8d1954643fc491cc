#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <cstdint>

namespace kov {

/// What a steady-state heat source says: it heats subsegments `start` to `stop` (counted from 1) of a segment.
struct SSHSValues {
    std::int16_t start = 1;
    std::int16_t stop = 1;
    std::int16_t type = 1;
    Fixed<10> sensible{"100"}; ///< sensible heat
    Fixed<10> latent{"100"};   ///< latent heat
    Fixed<30> identification{"Heat"};
};

/// A steady-state heat source in a line segment. One Form 3D card: five fields of ten columns and the identification in
/// columns 51-80, in the order of `SSHSValues`, all taken by place without trimming.
class cSSHS {
public:
    [[nodiscard]] const SSHSValues& getSSHS() const { return values_; }
    void setSSHS(const SSHSValues& values) { values_ = values; }

    /// False at the end of the file and for a whole number outside 16 bits.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cSSHS& source) { values_ = source.values_; }

private:
    SSHSValues values_;
};

} // namespace kov
