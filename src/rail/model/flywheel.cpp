#include "rail/model/flywheel.hpp"

#include "core/cards/numbers.hpp"
#include "rail/model/reading.hpp"

namespace kov {

cFlyWheel::Texts cFlyWheel::getFlyWheel() const {
    return {FWNumber.text(),        plainNumber(FWInertia), plainNumber(FWMinRPM), plainNumber(FWMaxRPM),
            plainNumber(FWInitRPM), FWEffIn.text(),         FWEffOut.text(),       FWLossA.text(),
            FWLossB.text(),         FWLossC.text(),         FWLossD.text(),        FWLossE.text()};
}

void cFlyWheel::setFlyWheel(const Texts& texts) {
    FWNumber.assign(texts[0]);
    FWInertia = fieldInteger(texts[1]);
    FWMinRPM = fieldInteger(texts[2]);
    FWMaxRPM = fieldInteger(texts[3]);
    FWInitRPM = fieldInteger(texts[4]);
    FWEffIn.assign(texts[5]);
    FWEffOut.assign(texts[6]);
    FWLossA.assign(texts[7]);
    FWLossB.assign(texts[8]);
    FWLossC.assign(texts[9]);
    FWLossD.assign(texts[10]);
    FWLossE.assign(texts[11]);
}

bool cFlyWheel::ReadData(CardReader& reader) {
    return readsWell([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        FWNumber.assign(card.field(1));
        FWInertia = fieldInteger(card.field(2));
        FWMinRPM = fieldInteger(card.field(3));
        FWMaxRPM = fieldInteger(card.field(4));
        FWInitRPM = fieldInteger(card.field(5));
        if (!ReadCard8(reader, card)) {
            return false;
        }
        FWEffIn.assign(card.field(1));
        FWEffOut.assign(card.field(2));
        FWLossA.assign(card.field(3));
        FWLossB.assign(card.field(4));
        FWLossC.assign(card.field(5));
        FWLossD.assign(card.field(6));
        FWLossE.assign(card.field(7));
        return true;
    });
}

void cFlyWheel::WriteData(CardWriter& writer) const {
    writer.field(FWNumber).integer(FWInertia).integer(FWMinRPM).integer(FWMaxRPM).integer(FWInitRPM).endCard();
    writer.field(FWEffIn).field(FWEffOut).field(FWLossA).field(FWLossB).field(FWLossC).field(FWLossD).field(FWLossE).endCard();
}

} // namespace kov
