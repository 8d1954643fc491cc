// Forms 1A to 1G, 12 and 13, and the order in which all Forms stand.

#include "decks/forms.hpp"

#include <algorithm>

namespace kov::decks {

Deck makeDeck(const Plan& plan) { return DeckMaker(plan).make(); }

Deck DeckMaker::make() {
    static const std::vector<int> aero{0, 1, 2, 3, 4, 5, 7};
    for (int i = 0; i < plan_.nodes; ++i) {
        const auto first = static_cast<std::size_t>(i) % aero.size();
        nodes_.push_back({i < 7 ? aero[first] : dice_.oneOf(aero), dice_.between(1, 3)});
    }
    title();
    general();
    lineSections();
    ventSections();
    for (int i = 1; i <= plan_.lineSections * plan_.segmentsPerSection; ++i) {
        segment(100 + i);
    }
    fires();
    for (int i = 1; i <= plan_.ventSections; ++i) {
        shaft(500 + i);
    }
    for (int i = 1; i <= plan_.nodes; ++i) {
        node(i);
    }
    fans();
    if (plan_.TPOpt > 0) {
        for (int i = 1; i <= plan_.routes; ++i) {
            route(i);
        }
        for (int i = 0; i < plan_.trains; ++i) {
            train();
        }
        initialTrains();
    }
    if (plan_.ECLOpt > 0) {
        zones();
    }
    control();
    return std::move(deck_);
}

void DeckMaker::reals(const char* form, int count) {
    Card line = card(form);
    for (int i = 0; i < count; ++i) {
        line.real();
    }
    add(line.line(count < 8));
}

std::string DeckMaker::words(std::size_t width) {
    static const std::vector<std::string> choices{"North",     "South",      "tunnel",  "portal", "platform", "vent", "shaft",
                                                  "crossover", "station 12", "Exhaust", "(old)",  "caf\xE9",  "#4"};
    std::string text = dice_.oneOf(choices);
    while (!dice_.once(4)) {
        text += " " + dice_.oneOf(choices);
    }
    text.resize(std::min(text.size(), width));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

void DeckMaker::title() {
    add(card("Form 1A").fixed(words(80), 80).line());
    for (int i = 0; i < plan_.titleLines; ++i) {
        std::string text = words(80);
        if (plan_.hand == Hand::Ragged) {
            // Near misses of a design date: one number, or two that don't stand in their fields.
            static const std::vector<std::string> fronts{"   ", "12.       ", "17.       seven ", "1 2 3 "};
            text.insert(0, dice_.once(3) ? dice_.oneOf(fronts) : "");
        }
        Line line = card("Form 1A").plain(text).line(false);
        if (plan_.hand == Hand::Ragged && dice_.once(3)) {
            line.text += "   ";
        }
        add(std::move(line));
    }
}

void DeckMaker::general() {
    // A design date that is missing is looked for in the title.
    if (plan_.hand == Hand::Tidy) {
        add(card("Form 1A").realText("17.5").realText("7.").realText("1998.").line());
    } else {
        static const std::vector<std::string> dates{" 17.5         7.     1998.", "17        7         1998 ", "1,7       7E0"};
        add(card("Form 1A").plain(dice_.oneOf(dates)).line(false));
    }
    add(card("Form 1C")
            .integer(plan_.TPOpt)
            .integer(dice_.between(0, 3))
            .integer(dice_.between(1, 2))
            .integer(plan_.ECLOpt)
            .integer(dice_.between(0, 2))
            .integer(dice_.between(0, 5))
            .integer(dice_.between(0, 99))
            .integer(dice_.between(-1, 9))
            .line());
    counts();
    reals("Form 1F", 8);
    add(card("Form 1G").real().real().real().real().real().real().integer(dice_.between(0, 1)).real(0, 1000).line());
}

void DeckMaker::counts() {
    const auto branched = std::count_if(nodes_.begin(), nodes_.end(), [](const NodeTypes& node) { return node.aero >= 1; });
    add(card("Form 1D")
            .integer(plan_.lineSections * plan_.segmentsPerSection)
            .integer(plan_.lineSections + plan_.ventSections)
            .integer(plan_.ventSections)
            .integer(plan_.nodes)
            .integer(static_cast<int>(branched))
            .fixed(plan_.hand == Hand::Ragged && dice_.once(2) ? "   7" : "", 10)
            .integer(plan_.fires)
            .integer(plan_.fans)
            .line());
    const bool trains = plan_.TPOpt > 0;
    add(card("Form 1E")
            .integer(trains ? plan_.routes : 0)
            .integer(trains ? plan_.trains : 0)
            .integer(plan_.ECLOpt > 0 ? plan_.zones : 0)
            .integer(dice_.between(1, 2))
            .integer(trains ? plan_.initialTrains : 0)
            .integer(plan_.impulseFans)
            .integer(dice_.between(0, 5))
            .integer(plan_.RstRead)
            .line());
}

void DeckMaker::control() {
    add(card("Form 12").real(1000, 20000).integer(plan_.printGroups).line());
    for (int i = 0; i < plan_.printGroups; ++i) {
        Card group = card("Form 12");
        group.integer(dice_.between(-1, 100));
        // The one real that is printed as an integer is.
        if (plan_.hand == Hand::Tidy) {
            group.looseInteger(dice_.between(1, 900));
        } else {
            static const std::vector<std::string> lengths{"300.", "  60.50", "1D2", " 1,200", ".5", "-0"};
            group.fixed(dice_.oneOf(lengths), 10);
        }
        add(group.integer(1).integer(dice_.between(0, 3)).integer(1).integer(dice_.between(1, 9)).line());
    }
    add(card("Form 13")
            .real(1000, 20000)
            .real(60000, 5000000)
            .integer(dice_.between(1, 9))
            .integer(dice_.between(1, 9))
            .line());
    if (plan_.RstRead > 0) {
        Card file = card("Form 13");
        add(file.fixed(R"(C:\runs\)" + words(60) + ".RST", 260).line(false));
    }
}

} // namespace kov::decks
