#pragma once

#include "platform/qt/control_view.hpp"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>

namespace kov::qt {

class QtWindow;

/// Shows all windows of a desk and hands back what a person does with them. It holds no rule of its own: widgets are set to
/// what the desk says after every act, also those that the toolkit has changed meanwhile.
class Renderer {
public:
    struct Options {
        bool realTimers = true; ///< else only `Desk::pass` lets time go by
    };
    explicit Renderer(Desk& desk) : Renderer(desk, Options{}) {}
    Renderer(Desk& desk, Options options);
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;
    ~Renderer();

    /// Brings all widgets to the state of the desk.
    void sync();
    /// Runs something inside an act while the person may go on working, as a wait for another program.
    void during(const std::function<void()>& wait);
    /// The real window; null when that one isn't shown.
    [[nodiscard]] QWidget* widgetOf(const Window& window) const;
    /// The desk has ended; called once.
    std::function<void()> onEnded;

private:
    void changed();
    void dropClosed();
    void syncOrder();
    void syncPointer();
    void activated();

    Ground ground_;
    Options options_;
    std::map<const Window*, std::unique_ptr<QtWindow>> windows_;
    const Window* front_ = nullptr;
    const Window* awaited_ = nullptr; // asked to come to the front, and not seen there yet
    QElapsedTimer awaiting_;
    QElapsedTimer lastSync_;
    QObject context_;
    QTimer rest_;
    bool syncPending_ = false;
    bool busyShown_ = false;
    bool endTold_ = false;
};

} // namespace kov::qt
