#include "platform/qt/qt_window.hpp"

#include "platform/qt/key_map.hpp"
#include "platform/qt/status_strip.hpp"
#include "platform/qt/text_codec.hpp"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTimer>

#include <algorithm>

namespace kov::qt {
namespace {

constexpr int StateMilliseconds = 500;

/// Later ones lie above earlier ones; a box over a grid lies on top.
int layer(ControlKind kind) {
    switch (kind) {
    case ControlKind::TabStrip:
        return 0;
    case ControlKind::Frame:
    case ControlKind::Panel:
        return 1;
    case ControlKind::Image:
    case ControlKind::Drawing:
    case ControlKind::Line:
    case ControlKind::Label:
        return 2;
    case ControlKind::TextBox:
    case ControlKind::Combo:
        return 4;
    case ControlKind::Progress:
        return 5;
    default:
        return 3;
    }
}

int nesting(const Control& control) { return control.parent == nullptr ? 0 : 1 + nesting(*control.parent); }

bool same(const Bounds& a, const Bounds& b) {
    return a.left == b.left && a.top == b.top && a.width == b.width && a.height == b.height;
}

} // namespace

QtWindow::QtWindow(Window& window, Ground& ground, bool realTimers)
    : QWidget(nullptr, Qt::Window), window_(&window), ground_(&ground), realTimers_(realTimers), bar_(new QMenuBar(this)),
      area_(new QWidget(this)), menus_(ground, *bar_) {
    setObjectName(toQt(window.name()));
    setAttribute(Qt::WA_DeleteOnClose, false);
    bar_->setFocusPolicy(Qt::NoFocus);
    if (window.modal) {
        setWindowModality(Qt::ApplicationModal);
    }
    if (window.name() == "frmMain") {
        status_ = new StatusStrip(ground.desk, realTimers, this);
    }
}

// From the state to the widgets.

void QtWindow::addView(Control& control) {
    QWidget* parent = control.parent == nullptr ? area_ : &views_.at(control.parent)->widget();
    auto view = makeView(control, *ground_, parent);
    if (!view) {
        return;
    }
    watch(view->target(), *view);
    watch(view->surface(), *view);
    views_.emplace(&control, std::move(view));
}

void QtWindow::addViews() {
    std::vector<Control*> fresh;
    const auto& controls = window_->controls();
    for (std::size_t i = known_; i < controls.size(); ++i) {
        fresh.push_back(controls[i].get());
    }
    known_ = controls.size();
    std::stable_sort(fresh.begin(), fresh.end(), [](const Control* a, const Control* b) {
        return std::pair(nesting(*a), layer(a->kind)) < std::pair(nesting(*b), layer(b->kind));
    });
    for (auto* control : fresh) {
        addView(*control);
    }
}

void QtWindow::watch(QWidget& widget, ControlView& view) {
    if (watched_.emplace(&widget, &view).second) {
        widget.installEventFilter(this);
    }
}

QPoint QtWindow::shiftOf(const Control& control) const {
    // A box over a grid whose columns are scrolled moves along with them.
    if (control.kind != ControlKind::TextBox && control.kind != ControlKind::Combo) {
        return {};
    }
    for (const auto& [other, view] : views_) {
        const auto& place = other->bounds;
        if (other->kind == ControlKind::Grid && other->parent == control.parent && control.bounds.left >= place.left &&
            control.bounds.top >= place.top && control.bounds.top < place.top + place.height && control.visible &&
            other->strip == control.strip && other->page == control.page) {
            if (const int scrolled = scrolledColumns(*view); scrolled != 0) {
                return {-scrolled, 0};
            }
        }
    }
    return {};
}

void QtWindow::sync() {
    addViews();
    menus_.sync(*window_);
    syncFrame();
    // Grids come first: boxes lie over them.
    for (const auto& [control, view] : views_) {
        if (control->kind == ControlKind::Grid) {
            view->sync({});
        }
    }
    for (const auto& [control, view] : views_) {
        if (control->kind != ControlKind::Grid) {
            view->sync(shiftOf(*control));
        }
    }
    syncTimers();
    if (status_ != nullptr) {
        status_->sync();
    }
    syncPopup();
}

void QtWindow::syncFrame() {
    if (const auto caption = toQt(window_->caption); caption != windowTitle()) {
        setWindowTitle(caption);
    }
    if (topmost_ != window_->topmost) {
        topmost_ = window_->topmost;
        const bool visible = isVisible();
        setWindowFlag(Qt::WindowStaysOnTopHint, topmost_);
        if (visible) {
            show();
        }
    }
    syncPlace();
    if (isHidden()) {
        window_->minimized ? showMinimized() : show();
    } else if (window_->minimized != isMinimized()) {
        window_->minimized ? showMinimized() : showNormal();
    }
}

int QtWindow::extraHeight() const {
    const int menu = menus_.empty() ? 0 : bar_->sizeHint().height();
    return menu + (status_ == nullptr ? 0 : status_->sizeHint().height());
}

void QtWindow::syncPlace() {
    const auto& bounds = window_->bounds;
    if (placed_ && same(applied_, bounds)) {
        return;
    }
    const QSize size(std::max(pixels(bounds.width), 1), std::max(pixels(bounds.height), 1) + extraHeight());
    if (!placed_ || applied_.left != bounds.left || applied_.top != bounds.top) {
        move(pixels(bounds.left), pixels(bounds.top));
    }
    applied_ = bounds;
    placed_ = true;
    if (window_->resizable) {
        setMinimumSize(pixels(Twips{1500}), extraHeight() + 1);
        resize(size);
    } else {
        setFixedSize(size);
    }
    arrange();
}

void QtWindow::arrange() {
    const int menu = menus_.empty() ? 0 : bar_->sizeHint().height();
    const int status = status_ == nullptr ? 0 : status_->sizeHint().height();
    bar_->setVisible(!menus_.empty());
    bar_->setGeometry(0, 0, width(), menu);
    area_->setGeometry(0, menu, width(), std::max(height() - menu - status, 0));
    if (status_ != nullptr) {
        status_->setGeometry(0, height() - status, width(), status);
    }
}

void QtWindow::syncTimers() {
    if (!realTimers_) {
        return;
    }
    for (const auto& control : window_->controls()) {
        if (control->kind != ControlKind::Timer) {
            continue;
        }
        auto*& timer = timers_[control.get()];
        if (timer == nullptr) {
            timer = new QTimer(this);
            QObject::connect(timer, &QTimer::timeout, this, [ground = ground_, ticking = control.get()] {
                ground->act([&] { ground->desk.tick(*ticking); });
            });
        }
        const auto& part = control->timer();
        const bool on = part.on && part.interval > 0;
        if (on && (!timer->isActive() || timer->interval() != part.interval)) {
            timer->start(part.interval);
        } else if (!on) {
            timer->stop();
        }
    }
}

void QtWindow::syncPopup() {
    for (const auto& control : window_->controls()) {
        if (control->kind == ControlKind::Menu && control->menu().popup) {
            control->menu().popup = false;
            menus_.popUp(*control);
        }
    }
}

void QtWindow::focus(const Control& control) {
    const auto found = views_.find(&control);
    if (found == views_.end()) {
        return;
    }
    auto& target = found->second->target();
    if (QWidget::focusWidget() != &target || (isActiveWindow() && !target.hasFocus())) {
        target.setFocus(Qt::OtherFocusReason);
    }
}

void QtWindow::abandon() {
    window_ = nullptr;
    watched_.clear();
    for (auto* child : findChildren<QObject*>()) {
        child->blockSignals(true);
    }
    for (const auto& [control, timer] : timers_) {
        if (timer != nullptr) {
            timer->stop();
        }
    }
    hide();
}

// From the person to the desk.

void QtWindow::person() {
    if (window_ == nullptr || ground_->syncing || ground_->acting > 0 || ground_->desk.front() == window_) {
        return;
    }
    ground_->act([this] {
        auto& desk = ground_->desk;
        auto* control = window_->activeControl;
        if (control == nullptr || !control->focusable()) {
            control = window_->nextInTabOrder(nullptr, false);
        }
        if (control != nullptr) {
            desk.focusOn(*control);
        } else if (desk.reachable(*window_)) {
            desk.bringToFront(*window_);
        }
    });
}

bool QtWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && ground_->activated) {
        ground_->activated();
    }
    return QWidget::event(event);
}

bool QtWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto found = watched_.find(watched);
    if (window_ == nullptr || found == watched_.end()) {
        return QWidget::eventFilter(watched, event);
    }
    auto& view = *found->second;
    auto& control = view.control();
    switch (event->type()) {
    case QEvent::KeyPress:
        return !view.open() && keyPressed(view, static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return watched != &view.surface() && watched != &view.target() ? false
                                                                       : view.pressed(static_cast<QMouseEvent&>(*event));
    case QEvent::FocusIn:
        // Assistive tools move the focus by the toolkit. What comes along with a window to the front is heard of when it rests
        // there.
        if (static_cast<QFocusEvent&>(*event).reason() != Qt::ActiveWindowFocusReason && !ground_->syncing &&
            ground_->acting == 0 && ground_->desk.focus() != &control) {
            ground_->act([&] { ground_->desk.focusOn(control); });
        }
        return false;
    case QEvent::Wheel:
        return control.kind == ControlKind::Combo; // a wheel that passes over it changes nothing
    default:
        return false;
    }
}

bool QtWindow::keyPressed(ControlView& view, const QKeyEvent& event) {
    auto& control = view.control();
    const auto key = keyOf(event);
    if (!key) {
        return typed(view, event);
    }
    ground_->act([&] { ground_->desk.key(*key); });
    // The lines of a box are walked by the toolkit, after the window has heard of the key.
    const bool walks = *key == Key::Up || *key == Key::Down;
    return window_ == nullptr || !walks || control.kind != ControlKind::TextBox || !control.text().multiLine ||
           ground_->desk.focus() != &control;
}

bool QtWindow::typed(const ControlView& view, const QKeyEvent& event) {
    if (!isCharacter(event)) {
        return event.key() == Qt::Key_Space && !view.editsText();
    }
    if (const auto text = fromQt(event.text())) {
        ground_->act([&] { ground_->desk.type(*text); });
    } else {
        ground_->act([this] { ground_->desk.beep(); });
    }
    return true;
}

void QtWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the desk decides
    if (window_ != nullptr) {
        ground_->act([this] { ground_->desk.close(*window_); });
    }
}

void QtWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
    if (window_ == nullptr || ground_->syncing || !placed_ || isMinimized() || !isVisible()) {
        return;
    }
    const auto& bounds = window_->bounds;
    if (area_->width() != pixels(bounds.width) || area_->height() != pixels(bounds.height)) {
        ground_->act([this] {
            ground_->desk.resize(*window_, Twips::ofPixels(area_->width()), Twips::ofPixels(area_->height()));
            if (window_ != nullptr) {
                applied_ = window_->bounds;
            }
        });
    }
}

void QtWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    // While it is an icon, and when it becomes one or comes back, the window system moves it as it likes.
    if (window_ == nullptr || ground_->syncing || !placed_ || isMinimized() || window_->minimized || !isVisible() ||
        (stateChanged_.isValid() && !stateChanged_.hasExpired(StateMilliseconds))) {
        return;
    }
    auto& bounds = window_->bounds;
    // A place that is the same pixel keeps its fraction.
    if (pos().x() != pixels(bounds.left)) {
        bounds.left = applied_.left = Twips::ofPixels(pos().x());
    }
    if (pos().y() != pixels(bounds.top)) {
        bounds.top = applied_.top = Twips::ofPixels(pos().y());
    }
}

void QtWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        stateChanged_.start();
    }
    if (event->type() != QEvent::WindowStateChange || window_ == nullptr || ground_->syncing ||
        isMinimized() == window_->minimized) {
        return;
    }
    ground_->act([this] {
        if (isMinimized()) {
            ground_->desk.minimize(*window_);
        } else {
            ground_->desk.resize(*window_, window_->bounds.width, window_->bounds.height);
        }
    });
}

} // namespace kov::qt
