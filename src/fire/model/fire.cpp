#include "fire/model/fire.hpp"

#include "core/cards/all_read.hpp"
#include "core/cards/numbers.hpp"

namespace kov {

bool cFire::ReadData(CardReader& reader) {
    return allRead([&] {
        readPlace(reader);
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        values_.sensible = card.field(1);
        values_.latent = card.field(2);
        values_.start = card.field(3);
        values_.stop = card.field(4);
        values_.flameTemperature = card.field(5);
        values_.radiationArea = card.field(6);
        return true;
    });
}

void cFire::readPlace(CardReader& reader) {
    const auto line = reader.readLine();
    values_.id = columns(line, 1, 36);
    values_.segment = fieldInteger(columns(line, 41, 50));
    values_.subsegment = fieldInteger(columns(line, 51, 60));
}

void cFire::WriteData(CardWriter& writer) const {
    writer.field(values_.id).tabTo(41).integer(values_.segment).integer(values_.subsegment).endCard();
    writer.field(values_.sensible).field(values_.latent).field(values_.start).field(values_.stop);
    writer.field(values_.flameTemperature).field(values_.radiationArea).endCard();
}

} // namespace kov
