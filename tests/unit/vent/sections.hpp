#pragma once

#include "vent/model/vents.hpp"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>

namespace kov::test {

/// One section between two nodes.
inline std::shared_ptr<cVent> addVent(cVents& vents, std::int16_t id, std::int16_t start = 1, std::int16_t stop = 2) {
    auto vent = vents.Add(Position(0));
    vent->id = id;
    vent->StartNode = start;
    vent->StopNode = stop;
    return vent;
}

inline std::string numbersOf(const cVents& vents) {
    std::string numbers;
    for (const auto& vent : vents.Vents) {
        numbers += std::to_string(vent->id);
    }
    return numbers;
}

inline cVents threeVents() {
    cVents vents;
    for (const auto id : std::initializer_list<std::int16_t>{1, 2, 3}) {
        addVent(vents, id);
    }
    return vents;
}

} // namespace kov::test
