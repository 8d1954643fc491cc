#include "fire/model/fires.hpp"

#include "core/cards/numbers.hpp"

#include <string>

namespace kov {
namespace {

std::string rowText(const FireValues& fire) {
    std::string row = fire.id.text();
    row.append("\t").append(plainNumber(fire.segment)).append("\t").append(plainNumber(fire.subsegment));
    for (const auto& text : {fire.sensible, fire.latent, fire.start, fire.stop, fire.flameTemperature, fire.radiationArea}) {
        row.append("\t").append(text.view());
    }
    return row;
}

} // namespace

std::shared_ptr<cFire> cFires::Add() {
    auto fire = std::make_shared<cFire>();
    fires_.append(fire);
    return fire;
}

void cFires::FireList(Grid& grid) const {
    grid.addItem(" ", 0);
    grid.setRows(1);
    for (const auto& fire : fires_) {
        grid.addItem(rowText(fire->GetFire()));
    }
    if (grid.rows() > 1) {
        grid.removeItem(0);
        grid.addItem(" ");
    }
}

bool cFires::ReadFires(CardReader& reader, std::int16_t count) {
    for (std::int32_t done = 0; done < count; ++done) {
        auto fire = std::make_shared<cFire>();
        if (!fire->ReadData(reader)) {
            return false;
        }
        fires_.append(std::move(fire));
    }
    return true;
}

void cFires::WriteFires(CardWriter& writer) const {
    for (const auto& fire : fires_) {
        fire->WriteData(writer);
    }
}

} // namespace kov
