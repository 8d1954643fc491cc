#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <array>
#include <cstddef>

namespace kov {

/// One fan type of the data set: a supply and exhaust fan with its performance curve. Its place in `cFans`, counted from 1, is
/// what a shaft calls its `FanType`. From a fan group of Form 7: one title card and two curve cards. Every number stays the
/// text of the card.
class cFan {
public:
    static constexpr std::size_t Points = 8;
    /// The eight points of a curve; point 1 is element 0. Points 1 to 4 are the exhaust curve, 5 to 8 the supply curve.
    using Curve = std::array<Fixed<10>, Points>;

    /// All members in their order, as the editor takes and gives them.
    struct Values {
        Fixed<36> id;          ///< description, card 1 columns 1-36; blank means that the fan is absent
        Fixed<10> rho{"0."};   ///< air density of the curve, pounds per cubic foot, columns 41-50
        Fixed<10> runup{"0."}; ///< time to reach full speed, seconds, columns 51-60
        Fixed<10> QLow{"0."};  ///< lower flow limit, CFM, columns 61-70
        Fixed<10> QHi{"0."};   ///< upper flow limit, CFM, columns 71-80
        Curve FanP = zeros();  ///< total pressure rise of each point, inches of water gauge, cards 2 and 3
        Curve FanQ = zeros();  ///< volume flow rate of each point, CFM, cards 2 and 3
    };

    [[nodiscard]] const Fixed<36>& id() const { return values_.id; }
    [[nodiscard]] const Values& getFan() const { return values_; }
    void setFan(const Values& values) { values_ = values; }

    /// Reads the three cards; false when one is missing. What was read before stays.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    /// Takes all members of the source, the description too.
    void XCopy(const cFan& source) { setFan(source.getFan()); }

private:
    static constexpr Curve zeros() {
        Curve curve;
        curve.fill("0.");
        return curve;
    }
    [[nodiscard]] bool readCurveCard(CardReader& reader, std::size_t firstPoint);
    void writeCurveCard(CardWriter& writer, std::size_t firstPoint) const;

    Values values_;
};

} // namespace kov
