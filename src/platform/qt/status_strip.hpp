#pragma once

#include <QStatusBar>

#include <array>

class QLabel;

namespace kov {
class Desk;
}

namespace kov::qt {

/// The status bar of the main window: the Form of the window in front, the hint of the field with the focus, and the time.
class StatusStrip final : public QStatusBar {
public:
    /// With `realTimers` the clock goes by itself.
    StatusStrip(const Desk& desk, bool realTimers, QWidget* parent);
    /// Brings the panels to what the desk says. Not called any more once the desk's window is gone.
    void sync();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Desk* desk_;
    std::array<QLabel*, 3> panels_{};
};

} // namespace kov::qt
