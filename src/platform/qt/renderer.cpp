#include "platform/qt/renderer.hpp"

#include "platform/qt/qt_window.hpp"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace kov::qt {
namespace {

/// While a long task runs, more pictures a second than that only cost time.
constexpr int BusyMilliseconds = 16;
/// The window system tells in bits, and late: first when it has come to rest, what it tells counts.
constexpr int RestMilliseconds = 30;
/// A window system that doesn't bring our window to the front is not waited for any longer.
constexpr int AwaitMilliseconds = 2000;

} // namespace

Renderer::Renderer(Desk& desk, Options options) : ground_{desk}, options_(options) {
    desk.onChanged = [this] { changed(); };
    desk.onBeep = [] { QApplication::beep(); };
    ground_.activated = [this] { rest_.start(); };
    rest_.setSingleShot(true);
    rest_.setInterval(RestMilliseconds);
    QObject::connect(&rest_, &QTimer::timeout, &context_, [this] { activated(); });
}

Renderer::~Renderer() {
    ground_.desk.onChanged = nullptr;
    ground_.desk.onBeep = nullptr;
    ground_.activated = nullptr; // windows that go may bring others to the front
    if (busyShown_) {
        QApplication::restoreOverrideCursor();
    }
}

void Renderer::changed() {
    if (!ground_.desk.busy() || !lastSync_.isValid() || lastSync_.hasExpired(BusyMilliseconds)) {
        sync();
    } else if (!std::exchange(syncPending_, true)) {
        QTimer::singleShot(0, &context_, [this] { sync(); });
    }
}

void Renderer::sync() {
    if (ground_.syncing) {
        return;
    }
    ground_.syncing = true;
    syncPending_ = false;
    dropClosed();
    for (auto* window : ground_.desk.windows()) {
        auto& shown = windows_[window];
        if (!shown) {
            shown = std::make_unique<QtWindow>(*window, ground_, options_.realTimers);
        }
        shown->sync();
    }
    syncOrder();
    syncPointer();
    ground_.syncing = false;
    lastSync_.start();
    if (ground_.desk.ended() && !std::exchange(endTold_, true) && onEnded) {
        onEnded();
    }
}

void Renderer::dropClosed() {
    const auto open = ground_.desk.windows();
    for (auto it = windows_.begin(); it != windows_.end();) {
        if (std::find(open.begin(), open.end(), it->first) != open.end()) {
            ++it;
            continue;
        }
        // One of its widgets may be what has just called.
        it->second->abandon();
        it->second.release()->deleteLater();
        it = windows_.erase(it);
    }
}

void Renderer::syncOrder() {
    const auto* front = ground_.desk.front();
    if (front == nullptr) {
        front_ = nullptr;
        return;
    }
    const auto* focus = ground_.desk.focus();
    if (focus != nullptr) {
        windows_.at(focus->window)->focus(*focus);
    }
    if (front != front_) {
        front_ = front;
        auto& window = *windows_.at(front);
        if (!window.isMinimized()) {
            window.raise();
            awaited_ = front;
            awaiting_.start();
            window.activateWindow();
        }
    }
}

void Renderer::activated() {
    const auto* active = QApplication::activeWindow();
    const auto found =
        std::find_if(windows_.begin(), windows_.end(), [&](const auto& window) { return window.second.get() == active; });
    if (found == windows_.end()) {
        return;
    }
    if (found->first == awaited_ || awaiting_.hasExpired(AwaitMilliseconds)) {
        awaited_ = nullptr;
    }
    // Until the window is there that we have asked for, another one in front is old news.
    if (awaited_ == nullptr) {
        found->second->person();
    }
}

void Renderer::syncPointer() {
    const bool busy = ground_.desk.busy() && !ground_.desk.ended();
    if (busy != busyShown_) {
        busyShown_ = busy;
        busy ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
    }
}

void Renderer::during(const std::function<void()>& wait) {
    const int acting = std::exchange(ground_.acting, 0);
    wait();
    ground_.acting = acting;
}

QWidget* Renderer::widgetOf(const Window& window) const {
    const auto found = windows_.find(&window);
    return found == windows_.end() ? nullptr : found->second.get();
}

} // namespace kov::qt
