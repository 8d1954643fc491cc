#include "rail/model/initial_trains.hpp"

#include "core/cards/numbers.hpp"
#include "rail/model/grid_rows.hpp"
#include "rail/model/reading.hpp"

namespace kov {

cInitTrain::Values cInitTrain::getITrain() const {
    return {ITLocation, ITSpeed, ITAccTemp, ITDecTemp, ITRoute, ITType, ITDwell, ITCoast};
}

void cInitTrain::setITrain(const Values& values) {
    ITLocation = values.ITLocation;
    ITSpeed = values.ITSpeed;
    ITAccTemp = values.ITAccTemp;
    ITDecTemp = values.ITDecTemp;
    ITRoute = values.ITRoute;
    ITType = values.ITType;
    ITDwell = values.ITDwell;
    ITCoast = values.ITCoast;
}

bool cInitTrain::ReadData(CardReader& reader) {
    return readsWell([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        ITLocation.assign(card.field(1));
        ITSpeed.assign(card.field(2));
        ITRoute = fieldInteger(card.field(3));
        ITType = fieldInteger(card.field(4));
        ITAccTemp.assign(card.field(5));
        ITDecTemp.assign(card.field(6));
        ITDwell = toInt32(fieldValue(card.field(7)));
        ITCoast = fieldInteger(card.field(8));
        return true;
    });
}

void cInitTrain::WriteData(CardWriter& writer) const {
    writer.field(ITLocation).field(ITSpeed).integer(ITRoute).integer(ITType);
    writer.field(ITAccTemp).field(ITDecTemp).field(CardReal(ITDwell)).integer(ITCoast).endCard();
}

std::shared_ptr<cInitTrain> cInitTrains::Add() {
    auto train = std::make_shared<cInitTrain>();
    trains_.append(train);
    return train;
}

void cInitTrains::TrainList(Grid& grid) const {
    fillGrid(grid, trains_, [](RowText& row, const cInitTrain& train) {
        row.cell(train.ITLocation).cell(train.ITSpeed).cell(train.ITRoute).cell(train.ITType);
        row.cell(train.ITAccTemp).cell(train.ITDecTemp).cell(train.ITDwell).cell(train.ITCoast);
    });
}

bool cInitTrains::ReadITrains(CardReader& reader, std::int16_t count) { return readObjects(reader, count, trains_); }

void cInitTrains::WriteITrains(CardWriter& writer) const {
    for (const auto& train : trains_) {
        train->WriteData(writer);
    }
}

} // namespace kov
