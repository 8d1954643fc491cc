#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kov {

/// A point at which line sections and vent sections meet, or at which one ends. Its aerodynamic type (`AType`: 0 straight
/// through, 1 crossover, 2 dividing wall, 3 "T", 4 angled, 5 "Y", 7 no pressure change; there is no 6) says how the branches
/// join, its thermodynamic type (`TType`: 1 mixing, 2 partial mixing, 3 boundary) how their air mixes. From Form 6: card A
/// with number and types, card B with temperatures (`TType` 3), card C with the branches (`AType` 1 to 5), card D with the
/// sections of the thermal subnodes (`TType` 2), in this order.
class cNode {
public:
    /// Card C of aerodynamic type 1: four branch numbers and the aspect ratio.
    struct A1 {
        std::int16_t i1 = 0;
        std::int16_t i2 = 0;
        std::int16_t i3 = 0;
        std::int16_t i4 = 0;
        Fixed<10> AR;
    };
    /// Card C of type 2: three branch numbers.
    struct A2 {
        std::int16_t i1 = 0;
        std::int16_t i2 = 0;
        std::int16_t i3 = 0;
    };
    /// Card C of type 3: three branch numbers and the aspect ratio.
    struct A3 {
        std::int16_t i1 = 0;
        std::int16_t i2 = 0;
        std::int16_t i3 = 0;
        Fixed<10> AR;
    };
    /// Card C of types 4 and 5: three branch numbers, the aspect ratio and the junction angle in degrees.
    struct A4 {
        std::int16_t i1 = 0;
        std::int16_t i2 = 0;
        std::int16_t i3 = 0;
        Fixed<10> AR;
        Fixed<10> Angle;
    };
    using A5 = A4;
    /// Card D: the sections of thermal subnodes A (three), B (one) and C (three). Cell 1 is element 0.
    using T2 = std::array<Fixed<10>, 7>;
    /// Card B: boundary, morning and evening temperatures, dry-bulb ahead of wet-bulb, degrees Fahrenheit. Cell 1 is element 0.
    using T3 = std::array<Fixed<10>, 6>;

    [[nodiscard]] std::int16_t id() const { return id_; }
    /// Only 1 to 999 is taken; anything else is ignored.
    void setId(std::int16_t value);
    [[nodiscard]] std::int16_t AType() const { return AType_; }
    /// Ignored unless the node now holds 0 to 5 or 7. The new value itself isn't tested.
    void setAType(std::int16_t value);
    [[nodiscard]] std::int16_t TType() const { return TType_; }
    /// Only 1, 2 and 3 are taken; anything else is ignored.
    void setTType(std::int16_t value);
    /// Do branches join here (`AType` 1 or more)?
    [[nodiscard]] bool Branched() const { return AType_ >= 1; }

    [[nodiscard]] A1 GetA1() const { return {i1_, i2_, i3_, i4_, AR_}; }
    [[nodiscard]] A2 GetA2() const { return {i1_, i2_, i3_}; }
    [[nodiscard]] A3 GetA3() const { return {i1_, i2_, i3_, AR_}; }
    [[nodiscard]] A4 GetA4() const { return {i1_, i2_, i3_, AR_, Angle_}; }
    [[nodiscard]] A5 GetA5() const { return GetA4(); }
    void SetA1(const A1& data);
    void SetA2(const A2& data);
    void SetA3(const A3& data);
    void SetA4(const A4& data);
    void SetA5(const A5& data) { SetA4(data); }

    // Both thermodynamic types share the same cells: what one leaves there, the other finds.
    [[nodiscard]] T2 GetT2() const { return TData_; }
    [[nodiscard]] T3 GetT3() const;
    void SetT2(const T2& cells) { TData_ = cells; }
    /// Cell 7 stays as it is.
    void SetT3(const T3& cells);

    /// Reads the cards of one node. Numbers and types are stored as they stand in the file, whatever they are. False when a
    /// card is missing or an integer doesn't fit 16 bits; what was read before stays.
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;
    /// Takes the types of the source and the data that they use; the rest and the number stay.
    void XCopy(const cNode& source);

private:
    [[nodiscard]] bool readCells(CardReader& reader, std::size_t count);
    [[nodiscard]] bool readBranches(CardReader& reader);
    [[nodiscard]] bool readLongBranches(CardReader& reader);
    [[nodiscard]] bool readShortBranches(CardReader& reader);
    void writeCells(CardWriter& writer, std::size_t count) const;
    void writeBranches(CardWriter& writer) const;

    std::int16_t id_ = 0;
    std::int16_t AType_ = 0;
    std::int16_t TType_ = 1;
    std::array<Fixed<10>, 7> TData_ = {"0.", "0.", "0.", "0.", "0.", "0.", "0."};
    std::int16_t i1_ = 0;
    std::int16_t i2_ = 0;
    std::int16_t i3_ = 0;
    std::int16_t i4_ = 0;
    Fixed<10> AR_;
    Fixed<10> Angle_;
};

} // namespace kov
