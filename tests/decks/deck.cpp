#include "decks/deck.hpp"

#include <algorithm>

namespace kov::decks {

std::string Deck::text(std::string_view lineEnd, bool lastLineEnds) const {
    std::string all;
    for (const auto& line : lines) {
        all.append(line.text).append(lineEnd);
    }
    if (!lastLineEnds) {
        all.resize(all.size() - lineEnd.size());
    }
    return all;
}

std::string Deck::textOf(std::size_t count) const {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) {
        all.append(lines[i].text).append("\n");
    }
    return all;
}

Plan randomPlan(std::uint32_t seed, Hand hand) {
    Dice dice(seed);
    Plan plan;
    plan.seed = seed;
    plan.hand = hand;
    plan.titleLines = dice.between(0, 19);
    plan.TPOpt = dice.between(0, 3);
    plan.ECLOpt = dice.between(0, 1);
    plan.CtrlOpt = dice.between(1, 3);
    plan.FWOpt = plan.TPOpt == 1 ? dice.between(1, 2) : 1;
    plan.RstRead = dice.once(3) ? 1 : 0;
    plan.lineSections = dice.between(0, 5);
    plan.segmentsPerSection = dice.between(0, 3);
    plan.ventSections = dice.between(0, 4);
    plan.fires = dice.between(0, 2);
    plan.nodes = dice.between(0, 12);
    plan.fans = dice.between(0, 3);
    plan.impulseFans = dice.between(0, 3);
    plan.routes = dice.between(0, 3);
    plan.trains = dice.between(0, 3);
    plan.initialTrains = dice.between(0, 4);
    plan.zones = dice.between(0, 4);
    plan.zoneMembers = 20;
    plan.printGroups = dice.between(0, 25);
    return plan;
}

Plan largePlan(int lines) {
    Plan plan;
    plan.seed = 7;
    plan.TPOpt = 1;
    plan.ECLOpt = 1;
    plan.lineSections = std::max(1, lines / 178);
    plan.segmentsPerSection = 16; // of ten lines and a half each, on the average
    plan.heatSources = 4;
    plan.subsegmentCards = 4;
    plan.ventSections = std::max(1, lines / 1000);
    plan.fires = 5;
    plan.nodes = std::max(1, lines / 150);
    plan.fans = 10;
    plan.impulseFans = 10;
    plan.routes = 4;
    plan.trains = 4;
    plan.initialTrains = 20;
    plan.zones = 20;
    plan.zoneMembers = 60;
    plan.printGroups = 25;
    return plan;
}

std::string handMadeText(const Deck& deck, std::uint32_t seed) {
    Dice dice(seed);
    const bool lastLineEnds = dice.once(2);
    std::string text = deck.text(dice.once(2) ? "\r\n" : "\n", lastLineEnds);
    if (lastLineEnds && dice.once(2)) {
        text += "notes behind the last Form\n";
    }
    return text;
}

namespace {

/// 40000 in one of the integer fields of the deck.
BrokenDeck overflowing(Deck deck, Dice& dice) {
    std::vector<std::size_t> candidates;
    for (std::size_t i = 0; i < deck.lines.size(); ++i) {
        if (!deck.lines[i].integers.empty()) {
            candidates.push_back(i);
        }
    }
    auto& line = deck.lines[dice.oneOf(candidates)];
    const auto column = dice.oneOf(line.integers);
    line.text.resize(std::max(line.text.size(), column + 10), ' ');
    line.text.replace(column, 10, "40000     ");
    return {deck.text(), line.form};
}

/// A line twice or not at all, or a count that is one off.
BrokenDeck miscounted(Deck deck, Dice& dice) {
    const auto at = static_cast<std::size_t>(dice.between(1, static_cast<int>(deck.lines.size()) - 1));
    auto& line = deck.lines[at];
    if (!line.integers.empty()) {
        line.text.resize(std::max<std::size_t>(line.text.size(), 80), ' ');
        line.text.replace(dice.oneOf(line.integers), 10, std::to_string(dice.between(-2, 40)) + "          ", 0, 10);
    } else if (dice.once(2)) {
        deck.lines.erase(deck.lines.begin() + static_cast<std::ptrdiff_t>(at));
    } else {
        deck.lines.insert(deck.lines.begin() + static_cast<std::ptrdiff_t>(at), Line(line));
    }
    return {deck.text(), ""};
}

BrokenDeck scribbled(const Deck& deck, Dice& dice) {
    std::string text = deck.text();
    for (int i = dice.between(1, 30); i > 0; --i) {
        text[static_cast<std::size_t>(dice.between(0, static_cast<int>(text.size()) - 1))] =
            static_cast<char>(dice.between(0, 255));
    }
    return {text, ""};
}

} // namespace

BrokenDeck breakDeck(const Deck& deck, std::uint32_t seed) {
    Dice dice(seed);
    switch (dice.between(0, 3)) {
    case 0: {
        const auto count = static_cast<std::size_t>(dice.between(0, static_cast<int>(deck.lines.size()) - 1));
        return {deck.textOf(count), deck.lines[count].form};
    }
    case 1:
        return overflowing(deck, dice);
    case 2:
        return miscounted(deck, dice);
    default:
        return scribbled(deck, dice);
    }
}

} // namespace kov::decks
