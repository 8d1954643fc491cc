#include "platform/desk.hpp"

#include <algorithm>
#include <exception>
#include <utility>

namespace kov {

// Acts and failures.

bool Desk::attempt(const std::function<bool()>& action) {
    if (ended_) {
        return false;
    }
    bool done = false;
    ++depth_;
    try {
        done = action();
    } catch (const std::exception& error) {
        if (depth_ > 1) {
            --depth_; // the act around this one is what failed
            throw;
        }
        fail(error.what());
    }
    leaveAct();
    return done;
}

void Desk::act(const std::function<void()>& action) {
    if (ended_) {
        return;
    }
    ++depth_;
    try {
        action();
    } catch (const std::exception& error) {
        fail(error.what());
    }
    leaveAct();
}

void Desk::release() {
    --depth_;
    if (depth_ == 0) {
        graveyard_.clear();
    }
}

void Desk::leaveAct() {
    release();
    if (onChanged) {
        onChanged();
    }
}

void Desk::fail(const std::string& what) {
    if (failure_) {
        return;
    }
    failure_ = what;
    std::string rescued;
    if (onFailure) {
        rescued = onFailure(what);
    }
    if (onNotice) {
        onNotice("The program can't go on: " + what +
                 (rescued.empty() ? "" : "\r\n\r\nThe data in memory was kept in\r\n" + rescued));
    }
    end();
}

void Desk::end() {
    ended_ = true;
    focus_ = nullptr;
    focusHeard_ = false;
    elapsed_.clear();
    std::move(open_.begin(), open_.end(), std::back_inserter(graveyard_));
    open_.clear();
    if (depth_ == 0) {
        graveyard_.clear();
    }
}

// Windows.

std::vector<Desk::OpenWindow>::iterator Desk::place(const Window& window) {
    return std::find_if(open_.begin(), open_.end(), [&](const OpenWindow& open) { return open.window.get() == &window; });
}

Window* Desk::find(std::string_view name) const {
    const auto found =
        std::find_if(open_.begin(), open_.end(), [&](const OpenWindow& open) { return open.window->name() == name; });
    return found == open_.end() ? nullptr : found->window.get();
}

std::vector<Window*> Desk::windows() const {
    std::vector<Window*> all;
    all.reserve(open_.size());
    for (const auto& open : open_) {
        all.push_back(open.window.get());
    }
    return all;
}

Window* Desk::front() const { return open_.empty() ? nullptr : open_.back().window.get(); }

bool Desk::reachable(const Window& window) const {
    const auto modal = std::find_if(open_.rbegin(), open_.rend(), [](const OpenWindow& open) { return open.window->modal; });
    return modal == open_.rend() || modal->window.get() == &window;
}

Window* Desk::show(const std::string& name, bool modal) {
    if (ended_) {
        return nullptr;
    }
    const Keep keep(*this);
    if (auto* window = find(name)) {
        focusFirst(*window);
        return find(name);
    }
    const auto factory = factories_.find(name);
    if (factory == factories_.end()) {
        return nullptr;
    }
    auto owned = std::make_unique<Window>(name);
    auto* window = owned.get();
    window->modal = modal;
    open_.push_back({std::move(owned), nullptr});
    auto logic = factory->second(*window);
    if (const auto self = place(*window); self != open_.end()) {
        self->logic = std::move(logic);
        bringToFront(*window);
        focusFirst(*window);
    }
    return find(name);
}

void Desk::bringToFront(Window& window) {
    window.minimized = false;
    const auto self = place(window);
    if (self == open_.end() || std::next(self) == open_.end()) {
        return;
    }
    std::rotate(self, std::next(self), open_.end());
}

void Desk::activate(Window& window) {
    const bool wasFront = front() == &window;
    bringToFront(window);
    if (!wasFront && window.on.activate) {
        const auto activated = window.on.activate;
        activated();
    }
}

void Desk::focusFirst(Window& window) {
    auto* first = window.activeControl;
    if (first == nullptr || !first->focusable()) {
        first = window.nextInTabOrder(nullptr, false);
    }
    if (first == nullptr) {
        if (focus_ == nullptr || leave(*focus_->window)) {
            activate(window);
        }
    } else if (focus_ == first) {
        activate(window);
    } else {
        setFocus(*first);
    }
}

void Desk::focusFront() {
    if (focus_ == nullptr && front() != nullptr) {
        auto& window = *front();
        if (window.on.activate) {
            const auto activated = window.on.activate;
            activated();
        }
        if (focus_ == nullptr && place(window) != open_.end()) {
            focusFirst(window);
        }
    }
}

bool Desk::leave(Window& window) {
    if (focus_ == nullptr || focus_->window != &window) {
        return true;
    }
    const Keep keep(*this);
    auto* from = focus_;
    const bool heard = focusHeard_;
    focus_ = nullptr;
    focusHeard_ = false;
    ++focusMoves_;
    if (heard && from->on.lostFocus) {
        const auto lost = from->on.lostFocus;
        lost();
    }
    return focus_ == nullptr || focus_->window != &window;
}

bool Desk::unload(Window& window) {
    if (place(window) == open_.end()) {
        return true;
    }
    const Keep keep(*this);
    bool cancel = false;
    if (window.on.queryUnload) {
        const auto query = window.on.queryUnload;
        query(cancel);
    }
    if (place(window) == open_.end()) {
        return true;
    }
    if (cancel) {
        if (focus_ == nullptr) {
            focusFirst(window); // it had been left already
        }
        return false;
    }
    if (window.on.unload) {
        const auto unloaded = window.on.unload;
        unloaded();
    }
    takeAway(window);
    if (!ended_) {
        focusFront();
    }
    return true;
}

void Desk::takeAway(Window& window) {
    const auto self = place(window);
    if (self == open_.end()) {
        return;
    }
    if (focus_ != nullptr && focus_->window == &window) {
        focus_ = nullptr;
        focusHeard_ = false;
    }
    for (const auto& control : window.controls()) {
        elapsed_.erase(control.get());
    }
    graveyard_.push_back(std::move(*self));
    open_.erase(self);
}

// The focus.

bool Desk::setFocus(Control& control) {
    if (focus_ == &control) {
        return true;
    }
    if (!control.focusable() || place(*control.window) == open_.end()) {
        return false;
    }
    const Keep keep(*this);
    auto* from = focus_;
    const bool heard = focusHeard_;
    focus_ = &control;
    focusHeard_ = false;
    const auto move = ++focusMoves_;
    if (from != nullptr && heard && from->on.lostFocus) {
        const auto lost = from->on.lostFocus;
        lost();
    }
    if (move != focusMoves_ || focus_ != &control) {
        return focus_ == &control; // it was given elsewhere, or the window went
    }
    control.window->activeControl = &control;
    activate(*control.window);
    if (move != focusMoves_ || focus_ != &control) {
        return focus_ == &control;
    }
    focusHeard_ = true;
    if (control.kind == ControlKind::Combo && control.hasText()) {
        control.selectText(0, static_cast<int>(control.text().text.size()));
    }
    if (control.on.gotFocus) {
        const auto got = control.on.gotFocus;
        got();
    }
    return focus_ == &control;
}

// Shared surroundings.

void Desk::setPanel(int number, std::string_view text) { panels_.at(static_cast<std::size_t>(number - 1)) = text; }
const std::string& Desk::panel(int number) const { return panels_.at(static_cast<std::size_t>(number - 1)); }

void Desk::setBusy(bool busy) {
    busy_ = busy;
    repaint();
}

void Desk::beep() {
    beeped_ = true;
    if (onBeep) {
        onBeep();
    }
}

bool Desk::takeBeep() { return std::exchange(beeped_, false); }

void Desk::setScreen(Twips width, Twips height) {
    screenWidth_ = width;
    screenHeight_ = height;
}

void Desk::repaint() {
    if (onChanged) {
        onChanged();
    }
}

} // namespace kov
