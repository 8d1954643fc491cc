#pragma once

#include "decks/deck.hpp"

namespace kov::decks {

/// Puts the cards of a plan down, Form by Form.
class DeckMaker {
public:
    explicit DeckMaker(const Plan& plan) : plan_(plan), dice_(plan.seed) {}
    [[nodiscard]] Deck make();

private:
    Card card(const char* form) { return {dice_, plan_.hand, form}; }
    void add(Line line) { deck_.lines.push_back(std::move(line)); }
    /// A card of so many reals.
    void reals(const char* form, int count);
    std::string words(std::size_t width);

    void title();
    void general();
    void counts();
    void lineSections();
    void ventSections();
    void segment(int number);
    void fires();
    void shaft(int number);
    void node(int number);
    void fans();
    void route(int number);
    void routeTimetable();
    void train();
    void motor();
    void initialTrains();
    void zones();
    void control();

    struct NodeTypes {
        int aero = 0;
        int thermo = 1;
    };
    Plan plan_;
    Dice dice_;
    Deck deck_;
    std::vector<NodeTypes> nodes_;
};

} // namespace kov::decks
