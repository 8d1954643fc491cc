#include "vent/model/vent.hpp"

#include "core/cards/numbers.hpp"
#include "vent/model/reading.hpp"

namespace kov {

std::shared_ptr<cVent> cVent::make() {
    auto vent = std::make_shared<cVent>(Key());
    vent->uVShaft->vent = vent;
    vent->uVShaft->id = vent->id;
    return vent;
}

bool cVent::ReadFile(CardReader& reader) {
    return readWithFlag([&] {
        Card8 card;
        if (!ReadCard8(reader, card)) {
            return false;
        }
        id = fieldInteger(card.field(1));
        StartNode = fieldInteger(card.field(2));
        StopNode = fieldInteger(card.field(3));
        InitAir = card.field(4);
        return true;
    });
}

void cVent::WriteData(CardWriter& writer) const {
    writer.integer(id).integer(StartNode).integer(StopNode).field(InitAir).endCard();
}

void cVent::XCopy(const cVent& source) {
    StartNode = source.StartNode;
    StopNode = source.StopNode;
    InitAir = source.InitAir;
    uVShaft->XCopy(*source.uVShaft);
}

} // namespace kov
