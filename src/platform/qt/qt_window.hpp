#pragma once

#include "platform/qt/control_view.hpp"
#include "platform/qt/menus.hpp"

#include <QElapsedTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <unordered_map>

class QKeyEvent;
class QMenuBar;
class QTimer;

namespace kov::qt {

class StatusStrip;

/// The real window of one window of the desk: menu bar, the controls on an area as large as the window's bounds, and for the
/// main window the status bar.
class QtWindow final : public QWidget {
public:
    QtWindow(Window& window, Ground& ground, bool realTimers);

    /// Brings the widgets to the state of the window.
    void sync();
    /// The desk's window is gone; nothing of it is touched any more.
    void abandon();
    /// A person has brought it to the front by the window system.
    void person();
    /// The focus goes to that control's widget.
    void focus(const Control& control);
    [[nodiscard]] Window* window() const { return window_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void addViews();
    void addView(Control& control);
    void watch(QWidget& widget, ControlView& view);
    void syncFrame();
    void syncPlace();
    void syncPopup();
    void syncTimers();
    void arrange();
    [[nodiscard]] int extraHeight() const;
    [[nodiscard]] QPoint shiftOf(const Control& control) const;
    [[nodiscard]] bool keyPressed(ControlView& view, const QKeyEvent& event);
    [[nodiscard]] bool typed(const ControlView& view, const QKeyEvent& event);

    Window* window_;
    Ground* ground_;
    bool realTimers_;
    QMenuBar* bar_;
    QWidget* area_;
    StatusStrip* status_ = nullptr;
    Menus menus_;
    std::map<const Control*, std::unique_ptr<ControlView>> views_;
    std::unordered_map<const QObject*, ControlView*> watched_;
    std::map<const Control*, QTimer*> timers_;
    std::size_t known_ = 0; // controls of the window that have their view
    Bounds applied_;
    QElapsedTimer stateChanged_;
    bool placed_ = false;
    bool topmost_ = false;
};

} // namespace kov::qt
