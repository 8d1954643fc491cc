#pragma once

#include "platform/desk.hpp"

#include <QColor>
#include <QFont>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>

class QMouseEvent;

namespace kov::qt {

/// What every view of a renderer shares: the desk that hears what a person does, and whether a person can have done it.
struct Ground {
    Desk& desk;
    bool syncing = false; ///< the widgets are being set from the state: what they report is no person's doing
    int acting = 0;       ///< acts under way; the focus moves of the toolkit inside them are only their consequence
    /// The window system has put one of our windows in front.
    std::function<void()> activated{};

    /// Carries out a person's act; a failure inside ends the program and never crosses the toolkit.
    void act(const std::function<void()>& action) {
        if (!syncing) {
            ++acting;
            desk.act(action);
            --acting;
        }
    }
};

/// The widget of one control. It mirrors the control's state and forwards what a person does with it.
class ControlView {
public:
    ControlView(Control& control, Ground& ground) : control_(&control), ground_(&ground) {}
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    [[nodiscard]] Control& control() const { return *control_; }
    [[nodiscard]] QWidget& widget() const { return *widget_; }
    /// The widget that takes the keys.
    [[nodiscard]] virtual QWidget& target() const { return *widget_; }
    /// The widget that takes the mouse; another one than `target` where an area scrolls.
    [[nodiscard]] virtual QWidget& surface() const { return target(); }
    /// Place, visibility, font and contents.
    void sync(const QPoint& shift);

    /// A mouse button goes down or is pressed twice on the surface; true when the toolkit has nothing more to do with it.
    [[nodiscard]] virtual bool pressed(const QMouseEvent& event);
    /// The toolkit edits texts: it keeps the keys that the desk doesn't know.
    [[nodiscard]] virtual bool editsText() const { return false; }
    /// A list hangs open under the control and takes the keys itself.
    [[nodiscard]] virtual bool open() const { return false; }

protected:
    void setWidget(QWidget* widget);
    virtual void syncContent() {}
    /// Where the widget lies, when that is another place than the control's own.
    [[nodiscard]] virtual QRect placeOf(const QRect& own) { return own; }
    [[nodiscard]] Ground& ground() const { return *ground_; }
    [[nodiscard]] Desk& desk() const { return ground_->desk; }
    void act(const std::function<void()>& action) const { ground_->act(action); }

private:
    void syncFont();
    void syncColour();

    Control* control_;
    Ground* ground_;
    QWidget* widget_ = nullptr;
    std::int32_t backColor_ = -1;
};

/// The view of a control's kind; null for menus and timers, which have no place in the window.
[[nodiscard]] std::unique_ptr<ControlView> makeView(Control& control, Ground& ground, QWidget* parent);

// One maker for each group of kinds.
[[nodiscard]] std::unique_ptr<ControlView> makePlainView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeImageView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeTextView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeButtonView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeListView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeComboView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeGridView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeTabView(Control& control, Ground& ground, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> makeDrawingView(Control& control, Ground& ground, QWidget* parent);

/// How far a grid's columns are scrolled to the left, in pixels; 0 for other views.
[[nodiscard]] int scrolledColumns(const ControlView& view);

/// A background of the logic, red + 256 green + 65536 blue.
[[nodiscard]] QColor colourOf(std::int32_t backColor);
/// Twips as logical pixels.
[[nodiscard]] int pixels(Twips length);
[[nodiscard]] QRect pixels(const Bounds& bounds);
[[nodiscard]] QString controlLabel(const Control& control);

} // namespace kov::qt
