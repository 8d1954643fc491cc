#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/field_cycle.hpp"

namespace kov {

/// The last page of the route window: sections are picked from those that the route doesn't use, put in the order of travel and
/// turned around by their sign. `RtList` ends with a blank entry that is never moved or removed.
class RouteSections {
public:
    RouteSections(Application& app, Window& window, EntryFlags& flags);
    RouteSections(const RouteSections&) = delete;
    RouteSections& operator=(const RouteSections&) = delete;

private:
    void onAdd(char sign);
    void onRemove();
    void onUp();
    void onDown();
    void onChangeSign();
    /// Exchanges an entry with its neighbour; the current entry is the one that moved.
    void move(int from, int to);
    [[nodiscard]] ItemList& picks() { return window_.control("PickList").items(); }
    [[nodiscard]] ItemList& route() { return window_.control("RtList").items(); }

    Application& app_;
    Window& window_;
    EntryFlags& flags_;
};

} // namespace kov
