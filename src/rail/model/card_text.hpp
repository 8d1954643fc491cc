#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"
#include "core/cards/numbers.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace kov {

/// A real number of routes and trains: the ten columns as the card or the engineer wrote them, never converted here.
using CardText = Fixed<10>;
inline constexpr CardText ZeroText{"0."};

template <std::size_t N> [[nodiscard]] constexpr std::array<CardText, N> zeroTexts() {
    std::array<CardText, N> texts;
    texts.fill(ZeroText);
    return texts;
}

/// Takes the fields of a card, from field 1 on, into texts.
template <typename Card> void takeFields(const Card& card, std::span<CardText> texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i].assign(card.field(i + 1));
    }
}

/// Puts texts on the card, one field after the other.
inline CardWriter& putFields(CardWriter& writer, std::span<const CardText> texts) {
    for (const auto& text : texts) {
        writer.field(text);
    }
    return writer;
}

/// How many cards follow, as a card integer; more than it can hold is a Failure.
[[nodiscard]] inline std::int16_t cardCount(std::size_t count) { return toInt16(static_cast<double>(count)); }

} // namespace kov
