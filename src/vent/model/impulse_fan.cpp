#include "vent/model/impulse_fan.hpp"

#include "core/cards/numbers.hpp"
#include "vent/model/reading.hpp"

namespace kov {

bool cIFan::ReadData(CardReader& reader) {
    return readWithFlag([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        values_.FanQ = card.field(1);
        values_.Feff = card.field(2);
        values_.fVel = card.field(3);
        values_.TmOn = fieldInteger(card.field(4));
        values_.TmOff = fieldInteger(card.field(5));
        return true;
    });
}

void cIFan::WriteData(CardWriter& writer) const {
    writer.field(values_.FanQ).field(values_.Feff).field(values_.fVel);
    writer.integer(values_.TmOn).integer(values_.TmOff);
    writer.endCard();
}

} // namespace kov
