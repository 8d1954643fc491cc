#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/fixed.hpp"
#include "core/cards/network.hpp"
#include "platform/grid.hpp"
#include "vent/model/vent_segment.hpp"

#include <cstdint>
#include <memory>

namespace kov {

class cVent;

/// The ventilation shaft or stairway of one vent section: its geometry, temperatures, optional fan and segments. From one
/// group of Form 5: title card, data card, fan card (only in a data set with fan types) and segment cards. Every real number
/// stays the text of the card; texts that were never set are blank.
class cVShaft {
public:
    std::weak_ptr<cVent> vent;     ///< the section that it belongs to; none for a shaft that only serves as a model
    Collection<cVentSeg> colVSegs; ///< the segments from one end of the shaft to the other

    std::int16_t id = 0;           ///< shaft number, title card columns 1-10; 0: not numbered yet
    std::int16_t VType = 0;        ///< 1 vent with or without a fan, 2 stairway, title card columns 11-20
    Fixed<36> Title;               ///< description, title card from column 21: 36 columns written, 35 read
    std::int16_t DeclaredSegs = 0; ///< segment count as last read or copied, data card columns 1-10
    std::int16_t NSubSeg = 0;      ///< subsegments in the equivalent shaft, data card columns 11-20
    Fixed<10> Grate;               ///< grate free area, square feet, data card columns 21-30
    Fixed<10> VGrate;              ///< maximum design outflow through the grate, feet per minute, columns 31-40
    Fixed<10> WSTemp;              ///< wall surface temperature, degrees Fahrenheit, columns 41-50
    Fixed<10> TDB0;                ///< initial dry-bulb temperature, degrees Fahrenheit, columns 51-60
    Fixed<10> TWB0;                ///< initial wet-bulb temperature, degrees Fahrenheit, columns 61-70
    Fixed<10> StackHt;             ///< stack height, feet, columns 71-80
    std::int16_t FanType = 0;      ///< position of the fan type in `cFans` (1 = first), 0 none, fan card columns 1-10
    Fixed<10> FanOn;               ///< simulation time at which the fan switches on, fan card columns 11-20
    Fixed<10> FanOff;              ///< simulation time at which the fan switches off, fan card columns 21-30
    std::int16_t FanDir = 0;       ///< -1 supply, 0 off, +1 exhaust, fan card columns 31-40

    /// How many segments there are.
    [[nodiscard]] std::int16_t NSeg() const { return colVSegs.count(); }

    /// Reads one group, adding `DeclaredSegs` segments to those already here. False when a card is missing or an integer
    /// doesn't fit; what was read before stays.
    [[nodiscard]] bool ReadData(CardReader& reader, const DataOptions& options);
    /// Writes one group; the count on the data card is that of the segments written.
    void WriteData(CardWriter& writer, const DataOptions& options) const;

    /// Appends a bare segment; `DeclaredSegs` doesn't change.
    std::shared_ptr<cVentSeg> AddVSeg();
    void ClearVSegs();
    /// Fills a grid with one row a segment and a blank row behind them, on which the engineer starts a new segment.
    void SubList(Grid& grid) const;
    /// Takes everything but `id` and `vent` from the source. A Failure on a shaft that holds two or more segments: clear it
    /// first.
    void XCopy(const cVShaft& source);

private:
    void readTitleCard(CardReader& reader);
    [[nodiscard]] bool readDataCard(CardReader& reader);
    [[nodiscard]] bool readFanCard(CardReader& reader);
    [[nodiscard]] bool readSegments(CardReader& reader);
    void copySegments(const cVShaft& source);
};

} // namespace kov
