#include "rail/editor/route_sections.hpp"

#include "core/cards/fixed.hpp"
#include "core/cards/numbers.hpp"

#include <cmath>
#include <string>

namespace kov {
namespace {

bool anySelected(const ItemList& list) {
    for (int i = 0; i < list.count(); ++i) {
        if (list.selected(i)) {
            return true;
        }
    }
    return false;
}

} // namespace

RouteSections::RouteSections(Application& app, Window& window, EntryFlags& flags) : app_(app), window_(window), flags_(flags) {
    bindHint(app_, window_.control("PickList"), "Select sections to be added to the route");
    window_.control("cmdadd", 0).on.click = [this] { onAdd(' '); };
    window_.control("cmdadd", 1).on.click = [this] { onAdd('-'); };
    window_.control("cmdRemove").on.click = [this] { onRemove(); };
    window_.control("cmdUp").on.click = [this] { onUp(); };
    window_.control("cmdDown").on.click = [this] { onDown(); };
    window_.control("cmdChgSign").on.click = [this] { onChangeSign(); };
}

void RouteSections::onAdd(char sign) {
    if (!anySelected(picks())) {
        app_.messages().show(0, "", "No Items are Selected in the Pick From List");
        return;
    }
    int place = route().index() >= 0 ? route().index() : route().count() - 1;
    for (int i = 0; i < picks().count();) {
        if (!picks().selected(i)) {
            ++i;
            continue;
        }
        route().addItem(sign + std::string(trimLeft(picks().item(i))), place);
        route().setSelected(place, false);
        ++place;
        route().setSelected(place, true);
        picks().removeItem(i);
    }
    route().setIndex(place);
    flags_.FormChanged = true;
}

void RouteSections::onRemove() {
    if (!anySelected(route())) {
        app_.messages().show(0, "", "No Items are Selected in the Route List");
        return;
    }
    int last = -1;
    for (int i = route().count() - 2; i >= 0; --i) {
        if (route().selected(i)) {
            picks().addItem(plainNumber(std::abs(fieldValue(route().item(i)))));
            route().removeItem(i);
            last = i;
        }
    }
    if (last >= 0 && !anySelected(route())) {
        route().setIndex(last);
    }
    flags_.FormChanged = true;
}

void RouteSections::move(int from, int to) {
    const std::string moving = route().item(from);
    route().setItem(from, route().item(to));
    route().setItem(to, moving);
    route().setSelected(from, false);
    route().setSelected(to, true);
    route().setIndex(to);
}

void RouteSections::onUp() {
    const int i = route().index();
    if (i > 0 && i < route().count() - 1) {
        move(i, i - 1);
    }
    flags_.FormChanged = true;
}

void RouteSections::onDown() {
    const int i = route().index();
    if (i >= 0 && i < route().count() - 2) {
        move(i, i + 1);
    }
    flags_.FormChanged = true;
}

void RouteSections::onChangeSign() {
    // Of the blank entry it makes a 0, which is not saved.
    if (const int i = route().index(); i >= 0) {
        route().setItem(i, plainNumber(-fieldValue(route().item(i))));
    }
    flags_.FormChanged = true;
}

} // namespace kov
