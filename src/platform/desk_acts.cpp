#include "platform/desk.hpp"

#include <algorithm>

namespace kov {
namespace {

template <typename Handler, typename... Arguments> void raise(const Handler& handler, Arguments&&... arguments) {
    if (handler) {
        const auto copy = handler; // the window may be gone before the handler returns
        copy(std::forward<Arguments>(arguments)...);
    }
}

/// An option button is one of those that stand on the same panel.
void clearSiblings(const Control& button) {
    for (const auto& other : button.window->controls()) {
        if (other->kind == ControlKind::OptionButton && other->parent == button.parent && other.get() != &button) {
            other->checked = false;
        }
    }
}

} // namespace

void Desk::check(Control& button) {
    if (button.kind == ControlKind::CheckBox) {
        button.checked = !button.checked;
    } else if (button.kind == ControlKind::OptionButton) {
        button.checked = true;
        clearSiblings(button);
    }
}

bool Desk::click(Control& control) {
    return attempt([&] {
        if (!control.shown() || !control.usable() || !control.onCurrentPage() || !reachable(*control.window)) {
            return false;
        }
        if (control.focusable() && !setFocus(control)) {
            return true; // the person did click; a check held the focus back
        }
        if (!control.shown() || !control.usable()) {
            return true; // what the old control did on its way out took it from under the pointer
        }
        check(control);
        raise(control.on.click);
        return true;
    });
}

bool Desk::doubleClick(Control& control) {
    return attempt([&] {
        if (!control.focusable() || !reachable(*control.window)) {
            return false;
        }
        if (setFocus(control)) {
            raise(control.on.dblClick);
        }
        return true;
    });
}

bool Desk::rightClick(Control& control, int row) {
    return attempt([&] {
        if (!control.shown() || !control.usable() || !control.onCurrentPage() || !reachable(*control.window)) {
            return false;
        }
        raise(control.on.rightClick, row);
        return true;
    });
}

void Desk::moveCell(Control& control, int row, int col) {
    auto& grid = control.grid();
    const bool moved = grid.row() != row || grid.col() != col;
    grid.setRow(row);
    grid.setCol(col);
    grid.select({row, row, col, col});
    revealCurrentRow(control);
    if (moved) {
        raise(control.on.cellChange);
    }
}

bool Desk::cell(Control& control, int row, int col) {
    return attempt([&] {
        auto& grid = control.grid();
        if (!control.focusable() || !reachable(*control.window) || row < 0 || row >= grid.rows() || col < 0 ||
            col >= grid.cols()) {
            return false;
        }
        if (!setFocus(control)) {
            return true;
        }
        // What the old control's commit removed can't be clicked any more.
        const int lastRow = grid.rows() - 1;
        const int lastCol = grid.cols() - 1;
        moveCell(control, std::clamp(row, std::min(grid.fixedRows(), lastRow), lastRow),
                 std::clamp(col, std::min(grid.fixedCols(), lastCol), lastCol));
        if (focus_ != nullptr && focus_->window == control.window) {
            raise(control.on.click);
        }
        return true;
    });
}

void Desk::choose(Control& list, int entry) {
    list.items().setIndex(entry);
    if (list.hasText()) {
        list.setText(list.items().item(entry));
        list.selectText(0, static_cast<int>(list.text().text.size()));
    }
}

bool Desk::select(Control& list, std::span<const int> entries) {
    return attempt([&] {
        auto& items = list.items();
        const auto inside = [&] {
            return std::all_of(entries.begin(), entries.end(), [&](int i) { return i >= 0 && i < items.count(); });
        };
        if (!inside() || !list.focusable() || !reachable(*list.window)) {
            return false;
        }
        if (!setFocus(list) || !list.shown() || !list.usable() || !inside()) {
            return true; // held back, or what the old control did on its way out took the entry from under the pointer
        }
        const auto* box = std::get_if<ListPart>(&list.part);
        if (box != nullptr && box->multiSelect) {
            for (int i = 0; i < items.count(); ++i) {
                items.setSelected(i, std::find(entries.begin(), entries.end(), i) != entries.end());
            }
            if (!entries.empty()) {
                items.setIndex(entries.back());
            }
        } else if (entries.size() == 1) {
            choose(list, entries.front());
        } else {
            return false;
        }
        if (list.hasText()) {
            raise(list.on.change);
        }
        raise(list.on.click);
        return true;
    });
}

bool Desk::chooseTab(Control& strip, int tab) {
    return attempt([&] {
        auto& tabs = strip.tabs();
        const auto index = static_cast<std::size_t>(tab);
        const auto available = [&] { return tab >= 0 && index < tabs.tabs.size() && tabs.tabs[index].enabled; };
        if (!available() || !strip.focusable() || !reachable(*strip.window)) {
            return false;
        }
        if (!setFocus(strip) || !available()) {
            return true;
        }
        tabs.current = tab;
        raise(strip.on.click);
        return true;
    });
}

bool Desk::spin(Control& button, bool up) {
    return attempt([&] {
        if (!button.focusable() || !reachable(*button.window)) {
            return false;
        }
        if (setFocus(button) && button.shown() && button.usable()) {
            raise(up ? button.on.spinUp : button.on.spinDown);
        }
        return true;
    });
}

bool Desk::menu(Control& entry) {
    return attempt([&] {
        if (!entry.visible || !entry.enabled || !reachable(*entry.window)) {
            return false;
        }
        raise(entry.on.click);
        return true;
    });
}

bool Desk::focusOn(Control& control) {
    return attempt([&] {
        if (!control.focusable() || !reachable(*control.window)) {
            return false;
        }
        setFocus(control);
        return true;
    });
}

bool Desk::close(Window& window) {
    return attempt([&] {
        if (!reachable(window)) {
            return false;
        }
        // The frame's button brings the window to the front first; a check in another window may hold that back.
        if (front() != &window) {
            focusFirst(window);
        }
        if (front() == &window && leave(window)) {
            unload(window);
        }
        return true;
    });
}

bool Desk::resize(Window& window, Twips width, Twips height) {
    return attempt([&] {
        window.minimized = false;
        window.moveTo({window.bounds.left, window.bounds.top, width, height});
        return true;
    });
}

bool Desk::minimize(Window& window) {
    return attempt([&] {
        window.minimized = true;
        raise(window.on.resize);
        return true;
    });
}

void Desk::tick(Control& timer) {
    attempt([&] {
        raise(timer.on.tick);
        return true;
    });
}

void Desk::pass(int milliseconds) {
    // Timers fire in the order of their time; one that is switched on by another starts at that moment.
    int left = milliseconds;
    while (!ended_) {
        Control* next = nullptr;
        int wait = left;
        for (auto* window : windows()) {
            for (const auto& control : window->controls()) {
                if (control->kind != ControlKind::Timer || !control->timer().on || control->timer().interval <= 0) {
                    elapsed_.erase(control.get());
                    continue;
                }
                const int due = std::max(control->timer().interval - elapsed_[control.get()], 0);
                if (due <= wait) {
                    wait = due;
                    next = control.get();
                }
            }
        }
        for (auto& [timer, time] : elapsed_) {
            time += wait;
        }
        left -= wait;
        if (next == nullptr) {
            return;
        }
        elapsed_[next] = 0;
        tick(*next);
    }
}

} // namespace kov
