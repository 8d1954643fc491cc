// Forms 2A to 7: sections, segments, fires, shafts, nodes and fans.

#include "decks/forms.hpp"

namespace kov::decks {

void DeckMaker::lineSections() {
    for (int i = 1; i <= plan_.lineSections; ++i) {
        add(card("Form 2A")
                .integer(i)
                .integer(i)
                .integer(i + 1)
                .integer(plan_.segmentsPerSection)
                .real(-900000, 900000)
                .line());
    }
}

void DeckMaker::ventSections() {
    for (int i = 1; i <= plan_.ventSections; ++i) {
        add(card("Form 2B").integer(500 + i).integer(i).integer(i + 2).real(-900000, 900000).line());
    }
}

void DeckMaker::segment(int number) {
    constexpr auto form = "Form 3";
    const int sources = dice_.between(0, plan_.heatSources);
    const int groups = dice_.between(1, plan_.subsegmentCards);
    // The reader takes 36 columns of the title, the writer prints the 50 of the member.
    add(card(form).integer(number).integer(dice_.between(1, 16)).fixed(words(36), 36).blanks(14).line(false));
    add(card(form).real(50000, 2000000).real(100000, 900000).real(-90000, 90000).integer(dice_.between(0, 1)).line());
    reals(form, 8);
    reals(form, 8);
    add(card(form).real().real().real().real().real(0, 100000).integer(2 * groups).integer(sources).line());
    for (int i = 1; i <= sources; ++i) {
        add(card(form).integer(1).integer(2).integer(dice_.between(1, 9)).real().real().fixed(words(30), 30).line());
    }
    for (int i = 1; i <= groups; ++i) {
        add(card(form).integer(2 * i - 1).integer(2 * i).real(40000, 90000).real(40000, 90000).real(40000, 80000).line());
    }
    if (plan_.ECLOpt > 0) {
        reals(form, 7);
    }
}

void DeckMaker::fires() {
    for (int i = 1; i <= plan_.fires; ++i) {
        add(card("Form 4").fixed(words(30), 30).blanks(10).integer(i).integer(1).line());
        reals("Form 4", 6);
    }
}

void DeckMaker::shaft(int number) {
    constexpr auto form = "Form 5";
    const int segments = dice_.between(1, plan_.shaftSegments);
    // The title's 36th character is printed but not read back, so a deck that comes back unchanged has a blank there.
    add(card(form).integer(number).integer(dice_.between(1, 2)).fixed(words(35), 35).blanks(1).line(false));
    add(card(form).integer(segments).integer(1).real().real().real().real().real().real().line());
    if (plan_.fans > 0) {
        static const std::vector<std::string> directions{" 1 ", " 0 ", "-1 "};
        add(card(form).integer(dice_.between(0, plan_.fans)).real().real().plain(dice_.oneOf(directions)).line());
    }
    for (int i = 0; i < segments; ++i) {
        reals(form, 7);
    }
}

void DeckMaker::node(int number) {
    constexpr auto form = "Form 6";
    const auto types = nodes_[static_cast<std::size_t>(number - 1)];
    const auto branches = [&] {
        Card branch = card(form);
        branch.integer(dice_.between(1, 99)).integer(dice_.between(1, 99)).integer(dice_.between(1, 99));
        return branch;
    };
    add(card(form).integer(number).integer(types.aero).integer(types.thermo).line());
    if (types.thermo == 3) {
        reals(form, 6);
    }
    if (types.aero == 1) {
        add(branches().integer(dice_.between(1, 99)).real(0, 10000).line());
    } else if (types.aero == 2) {
        add(branches().line());
    } else if (types.aero == 3) {
        add(branches().real(0, 10000).line());
    } else if (types.aero == 4 || types.aero == 5) {
        add(branches().real(0, 10000).real(10000, 90000).line());
    }
    if (types.thermo == 2) {
        reals(form, 7);
    }
}

void DeckMaker::fans() {
    constexpr auto form = "Form 7";
    for (int i = 1; i <= plan_.fans; ++i) {
        add(card(form).fixed(words(36), 36).blanks(4).real().real().real().real().line());
        reals(form, 8);
        reals(form, 8);
    }
    for (int i = 1; i <= plan_.impulseFans; ++i) {
        add(card(form).real().real(0, 1000).real().integer(dice_.between(0, 900)).integer(dice_.between(900, 9000)).line());
    }
}

} // namespace kov::decks
