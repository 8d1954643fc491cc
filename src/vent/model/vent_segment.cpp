#include "vent/model/vent_segment.hpp"

namespace kov {

void cVentSeg::setVSeg(const Values& values) {
    sLen = values[0];
    Area = values[1];
    Perim = values[2];
    FPHL = values[3];
    FNHL = values[4];
    BPHL = values[5];
    BNHL = values[6];
}

bool cVentSeg::ReadData(CardReader& reader) {
    Card8 card;
    if (!ReadCard8(reader, card)) {
        return false;
    }
    sLen = card.field(1);
    Area = card.field(2);
    Perim = card.field(3);
    FPHL = card.field(4);
    FNHL = card.field(5);
    BPHL = card.field(6);
    BNHL = card.field(7);
    return true;
}

void cVentSeg::WriteData(CardWriter& writer) const {
    writer.field(sLen).field(Area).field(Perim).field(FPHL).field(FNHL).field(BPHL).field(BNHL);
    writer.endCard();
}

} // namespace kov
