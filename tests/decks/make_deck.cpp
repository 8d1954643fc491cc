// make_deck LINES: prints a tidy card file of about that many lines.
// make_deck tidy SEED, make_deck ragged SEED: prints a small one that chance makes.

#include "decks/deck.hpp"

#include <charconv>
#include <iostream>
#include <optional>
#include <string_view>

namespace {

using kov::decks::Hand;

std::optional<int> positive(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() && number > 0 ? std::optional(number) : std::nullopt;
}

std::optional<kov::decks::Plan> planned(int argc, char** argv) {
    const auto number = argc > 1 ? positive(argv[argc - 1]) : std::nullopt;
    const std::string_view look = argc == 3 ? argv[1] : "";
    if (number && argc == 2) {
        return kov::decks::largePlan(*number);
    }
    if (number && (look == "tidy" || look == "ragged")) {
        return kov::decks::randomPlan(static_cast<std::uint32_t>(*number), look == "tidy" ? Hand::Tidy : Hand::Ragged);
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv) {
    const auto plan = planned(argc, argv);
    if (!plan) {
        std::cerr << "usage: make_deck LINES | make_deck tidy SEED | make_deck ragged SEED\n";
        return 2;
    }
    std::cout << kov::decks::makeDeck(*plan).text();
    return std::cout.good() ? 0 : 1;
}
