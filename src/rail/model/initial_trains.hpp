#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "platform/grid.hpp"
#include "rail/model/card_text.hpp"

#include <cstdint>
#include <memory>

namespace kov {

/// A train that is on the line when the simulation starts. Form 10, one card of eight fields in the order of the members.
/// Reading gives false at the end of the file or for an integer that is too large.
class cInitTrain {
public:
    /// The texts first, then the integers: not the order of the card.
    struct Values {
        CardText ITLocation;
        CardText ITSpeed;
        CardText ITAccTemp;
        CardText ITDecTemp;
        std::int16_t ITRoute = 0;
        std::int16_t ITType = 0;
        std::int32_t ITDwell = 0;
        std::int16_t ITCoast = 0;
    };

    [[nodiscard]] Values getITrain() const;
    void setITrain(const Values& values);
    [[nodiscard]] bool ReadData(CardReader& reader);
    void WriteData(CardWriter& writer) const;

    CardText ITLocation;      ///< location on the route, ft
    CardText ITSpeed;         ///< speed at the start, MPH
    std::int16_t ITRoute = 0; ///< number of the route it travels
    std::int16_t ITType = 0;  ///< number of its train type
    CardText ITAccTemp;       ///< acceleration grids at the start, deg F
    CardText ITDecTemp;       ///< deceleration grids at the start, deg F
    std::int32_t ITDwell = 0; ///< remaining dwell, whole seconds, though a real on the card; -1 prevents movement
    std::int16_t ITCoast = 0; ///< 1 coasting at the start, 0 not
};

/// All trains on the line at the start, numbered from 1 (Form 10). A position outside the list is a Failure.
class cInitTrains {
public:
    /// A new train at the end.
    std::shared_ptr<cInitTrain> Add();
    void Clear() { trains_.clear(); }
    [[nodiscard]] std::int16_t Count() const { return trains_.count(); }
    void Delete(Position index) { trains_.remove(index); }
    /// One row for each train, cells in the order of the card, and a blank row at the end. The grid needs 8 columns.
    void TrainList(Grid& grid) const;
    /// False as soon as one train can't be read; the ones before it stay.
    [[nodiscard]] bool ReadITrains(CardReader& reader, std::int16_t count);
    void WriteITrains(CardWriter& writer) const;

private:
    Collection<cInitTrain> trains_;
};

} // namespace kov
