// Forms 8 to 11: routes, trains, initial trains and environmental control zones.

#include "decks/forms.hpp"

#include <algorithm>

namespace kov::decks {

void DeckMaker::route(int number) {
    constexpr auto form = "Form 8";
    const int groups = dice_.between(0, 3);
    // Without train movement no track cards follow, and the count that the program prints is that of the tracks it has.
    const bool noTracks = plan_.TPOpt == 3;
    const int tracks = noTracks && plan_.hand == Hand::Tidy ? 0 : dice_.between(1, 4);
    add(card(form).fixed("Route " + std::to_string(number) + " " + words(50), 68).line());
    add(card(form).real().integer(groups + 1).integer(tracks).real().integer(1).real().integer(dice_.between(0, 1)).line());
    for (int i = 0; i < groups; ++i) {
        add(card(form).integer(dice_.between(1, 20)).integer(1).integer(dice_.between(20, 900)).line());
    }
    for (int i = 0; i < tracks && !noTracks; ++i) {
        add(card(form).real().real().real(-4000, 4000).real().real().integer(1).integer(dice_.between(0, 1)).line());
    }
    routeTimetable();
    add(card(form).integer(plan_.lineSections).real().line());
    for (int i = 1; i <= plan_.lineSections; ++i) {
        add(card(form).integer(dice_.once(2) ? i : -i).line());
    }
}

void DeckMaker::routeTimetable() {
    constexpr auto form = "Form 8";
    const int entries = dice_.between(0, 3);
    if (plan_.TPOpt == 1) {
        add(card(form).integer(entries).integer(dice_.between(0, 900)).line());
        for (int i = 0; i < entries; ++i) {
            reals(form, 3);
        }
        return;
    }
    add(card(form).integer(entries).line());
    for (int i = 0; i < entries; ++i) {
        reals(form, 4);
    }
}

void DeckMaker::train() {
    constexpr auto form = "Form 9";
    add(card(form).fixed(words(36), 36).blanks(4).integer(8).integer(6).real().real().line());
    reals(form, 4);
    reals(form, 6);
    reals(form, 8);
    reals(form, 6);
    add(card(form).real().integer(dice_.between(1, 4)).real().real().real().real().line());
    if (plan_.TPOpt == 3) {
        return;
    }
    motor();
    if (plan_.TPOpt == 1) {
        reals(form, 5);
    }
    if (plan_.CtrlOpt != 1 && plan_.FWOpt == 2) {
        add(card(form).real().integer(100).integer(5000).integer(15000).integer(9000).line());
        reals(form, 7);
    }
}

void DeckMaker::motor() {
    constexpr auto form = "Form 9";
    // The two wheel diameters are the reals that lose a needless point when they are read.
    const auto diameter = std::to_string(dice_.between(20, 40)) + (dice_.once(2) ? ".25" : "");
    add(card(form).fixed(words(36), 36).blanks(4).realText(diameter).realText(diameter).line());
    reals(form, 5);
    reals(form, 4);
    reals(form, 4);
    reals(form, 4);
    add(card(form).integer(plan_.CtrlOpt).line());
    if (plan_.CtrlOpt != 1) {
        reals(form, 5);
        add(card(form).real().real().real().real().integer(plan_.FWOpt).line());
    }
    reals(form, 5);
}

void DeckMaker::initialTrains() {
    for (int i = 0; i < plan_.initialTrains; ++i) {
        add(card("Form 10")
                .real()
                .real(0, 90000)
                .integer(1)
                .integer(1)
                .real()
                .real()
                .wholeReal(dice_.between(-1, 60000))
                .integer(dice_.between(0, 1))
                .line());
    }
}

void DeckMaker::zones() {
    constexpr auto form = "Form 11";
    constexpr int perLine = 8;
    for (int i = 0; i < plan_.zones; ++i) {
        const int everything = plan_.lineSections * plan_.segmentsPerSection + plan_.ventSections;
        const int members = plan_.zones == 1 ? everything : dice_.between(0, plan_.zoneMembers);
        add(card(form).integer(dice_.between(1, 3)).integer(members).real().real().real().real().line());
        for (int from = 0; from < members && plan_.zones > 1; from += perLine) {
            Card line = card(form);
            const int count = std::min(perLine, members - from);
            for (int k = 0; k < count; ++k) {
                line.looseInteger(100 + dice_.between(1, 400));
            }
            add(line.blanks(static_cast<std::size_t>(perLine - count) * 10).line());
        }
    }
}

} // namespace kov::decks
