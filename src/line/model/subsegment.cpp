#include "line/model/subsegment.hpp"

#include "core/cards/all_read.hpp"
#include "core/cards/numbers.hpp"

namespace kov {

void cSubSeg::updateSubSeg(std::string_view wall, std::string_view dryBulb, std::string_view wetBulb) {
    values_.wall = wall;
    values_.dryBulb = dryBulb;
    values_.wetBulb = wetBulb;
}

bool cSubSeg::ReadData(CardReader& reader) {
    return allRead([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        values_.start = fieldInteger(card.field(1));
        values_.stop = fieldInteger(card.field(2));
        updateSubSeg(card.field(3), card.field(4), card.field(5));
        return true;
    });
}

void cSubSeg::WriteData(CardWriter& writer) const {
    writer.integer(values_.start).integer(values_.stop);
    writer.field(values_.wall).field(values_.dryBulb).field(values_.wetBulb);
    writer.endCard();
}

} // namespace kov
