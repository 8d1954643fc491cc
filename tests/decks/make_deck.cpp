// make_deck LINES: prints a tidy card file of about that many lines.

#include "decks/deck.hpp"

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
    const int lines = argc == 2 ? std::atoi(argv[1]) : 0; // NOLINT(bugprone-unchecked-string-to-number-conversion)
    if (lines < 1) {
        std::cerr << "usage: make_deck LINES\n";
        return 2;
    }
    std::cout << kov::decks::makeDeck(kov::decks::largePlan(lines)).text();
    return std::cout.good() ? 0 : 1;
}
