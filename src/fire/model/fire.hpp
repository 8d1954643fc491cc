#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <cstdint>
#include <string_view>

namespace kov {

/// What an unsteady heat source says, in the order of the editor's columns.
struct FireValues {
    Fixed<30> id{"New"}; ///< source name
    std::int16_t segment = 0;
    std::int16_t subsegment = 0;
    Fixed<10> sensible{"0."};         ///< rate of sensible heat release, Btu/hr
    Fixed<10> latent{"0."};           ///< rate of latent heat release, Btu/hr
    Fixed<10> start{"0."};            ///< simulation time at which it becomes active, s
    Fixed<10> stop{"0."};             ///< simulation time at which it ends, s
    Fixed<10> flameTemperature{"0."}; ///< effective flame temperature, deg F
    Fixed<10> radiationArea{"0."};    ///< effective area for radiation, sq ft
};

/// An unsteady heat source, called a fire, in one subsegment of a line segment. Two Form 4 cards: the name with segment and
/// subsegment in columns 41 and 51, then the six texts in fields of ten columns.
class cFire {
public:
    [[nodiscard]] const Fixed<30>& id() const { return values_.id; }
    void setId(std::string_view name) { values_.id = name; }
    [[nodiscard]] const FireValues& GetFire() const { return values_; }
    void SetFire(const FireValues& values) { values_ = values; }

    /// False at the end of the file and for a segment or subsegment number outside 16 bits.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    void XCopy(const cFire& source) { values_ = source.values_; }

private:
    void readPlace(CardReader& reader);

    FireValues values_;
};

} // namespace kov
