#pragma once

#include "decks/card.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kov::decks {

/// What stands in a deck.
struct Plan {
    std::uint32_t seed = 1;
    Hand hand = Hand::Tidy;
    int titleLines = 3;
    int TPOpt = 0;
    int ECLOpt = 0;
    int FWOpt = 1;   ///< of trains with a chopper; 2 only goes round with `TPOpt` 1
    int CtrlOpt = 2; ///< 1 cam, else chopper
    int RstRead = 0;
    int lineSections = 2;
    int segmentsPerSection = 2;
    int subsegmentCards = 2; ///< at most, per segment
    int heatSources = 2;     ///< at most, per segment
    int ventSections = 1;
    int shaftSegments = 2; ///< at most, per shaft
    int fires = 0;
    int nodes = 3;
    int fans = 0;
    int impulseFans = 0;
    int routes = 0;
    int trains = 0;
    int initialTrains = 0;
    int zones = 0;
    int zoneMembers = 9; ///< at most, per zone
    int printGroups = 1;
};

/// A card file line by line.
struct Deck {
    std::vector<Line> lines;
    [[nodiscard]] std::string text(std::string_view lineEnd = "\n", bool lastLineEnds = true) const;
    /// Only the first lines.
    [[nodiscard]] std::string textOf(std::size_t count) const;
};

/// A plan that chance makes: any options, any counts that go together, small enough to read in no time.
[[nodiscard]] Plan randomPlan(std::uint32_t seed, Hand hand);
/// A plan whose deck has about that many lines, with every kind of Form in it.
[[nodiscard]] Plan largePlan(int lines);
[[nodiscard]] Deck makeDeck(const Plan& plan);

/// The text of a deck as an engineer's editor may leave it: CR LF or LF, the last line's end perhaps missing.
[[nodiscard]] std::string handMadeText(const Deck& deck, std::uint32_t seed);

/// A deck that has come to harm, and the Form that a reader has to name; empty where the harm may go unnoticed.
struct BrokenDeck {
    std::string text;
    std::string form;
};
[[nodiscard]] BrokenDeck breakDeck(const Deck& deck, std::uint32_t seed);

} // namespace kov::decks
