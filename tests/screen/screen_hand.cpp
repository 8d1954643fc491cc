#include "screen_hand.hpp"

#include "platform/qt/grid_widget.hpp"
#include "platform/qt/text_codec.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest/QTest>

#include <utility>

namespace kov::screen {
namespace {

std::pair<Qt::Key, Qt::KeyboardModifiers> keyPress(Key key) {
    switch (key) {
    case Key::Enter:
        return {Qt::Key_Return, Qt::NoModifier};
    case Key::Tab:
        return {Qt::Key_Tab, Qt::NoModifier};
    case Key::ShiftTab:
        return {Qt::Key_Backtab, Qt::ShiftModifier};
    case Key::Up:
        return {Qt::Key_Up, Qt::NoModifier};
    case Key::Down:
        return {Qt::Key_Down, Qt::NoModifier};
    case Key::Left:
        return {Qt::Key_Left, Qt::NoModifier};
    case Key::Right:
        return {Qt::Key_Right, Qt::NoModifier};
    case Key::Insert:
        return {Qt::Key_Insert, Qt::NoModifier};
    case Key::Delete:
        return {Qt::Key_Delete, Qt::NoModifier};
    case Key::Backspace:
        return {Qt::Key_Backspace, Qt::NoModifier};
    case Key::Escape:
        return {Qt::Key_Escape, Qt::NoModifier};
    case Key::Home:
        return {Qt::Key_Home, Qt::NoModifier};
    case Key::End:
        return {Qt::Key_End, Qt::NoModifier};
    case Key::F1:
        return {Qt::Key_F1, Qt::NoModifier};
    case Key::F2:
        return {Qt::Key_F2, Qt::NoModifier};
    case Key::CtrlX:
        return {Qt::Key_X, Qt::ControlModifier};
    case Key::CtrlC:
        return {Qt::Key_C, Qt::ControlModifier};
    case Key::CtrlV:
        return {Qt::Key_V, Qt::ControlModifier};
    }
    return {Qt::Key_unknown, Qt::NoModifier};
}

/// Finds widgets and sends them events.
class Fingers {
public:
    Fingers(Desk& desk, qt::Renderer& renderer, std::function<void()> onDone)
        : desk_(&desk), renderer_(&renderer), onDone_(std::move(onDone)) {}

    bool click(Control& control) {
        auto* widget = reach(control);
        if (widget == nullptr) {
            return false;
        }
        // A check box is hit on its mark, which is at its left.
        const bool mark = control.kind == ControlKind::CheckBox || control.kind == ControlKind::OptionButton;
        QTest::mouseClick(widget, Qt::LeftButton, {}, mark ? QPoint(8, widget->height() / 2) : QPoint());
        return done();
    }

    bool doubleClick(Control& control) {
        auto* widget = reach(control);
        if (widget == nullptr) {
            return false;
        }
        QPoint place = widget->rect().center();
        if (auto* grid = dynamic_cast<qt::GridWidget*>(widget)) {
            place = cellPlace(*grid, control.grid().row(), control.grid().col());
            widget = grid->viewport();
        } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
            place = list->visualItemRect(list->currentItem()).center();
            widget = list->viewport();
        }
        // Only its second press: the first one would be a click.
        QMouseEvent press(QEvent::MouseButtonDblClick, place, widget->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(widget, &press);
        return done();
    }

    bool rightClick(Control& control, int row) {
        auto* widget = reach(control);
        if (widget == nullptr) {
            return false;
        }
        if (auto* grid = dynamic_cast<qt::GridWidget*>(widget)) {
            QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, cellPlace(*grid, row, control.grid().col()));
        } else {
            QTest::mouseClick(widget, Qt::RightButton);
        }
        return done();
    }

    bool cell(Control& control, int row, int col) {
        auto* grid = dynamic_cast<qt::GridWidget*>(reach(control));
        if (grid == nullptr) {
            return false;
        }
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellPlace(*grid, row, col));
        return done();
    }

    bool select(Control& control, std::span<const int> entries) {
        auto* widget = reach(control);
        if (auto* list = qobject_cast<QListWidget*>(widget)) {
            Qt::KeyboardModifiers held;
            for (const int entry : entries) {
                list->scrollToItem(list->item(entry));
                QTest::mouseClick(list->viewport(), Qt::LeftButton, held, list->visualItemRect(list->item(entry)).center());
                held = Qt::ControlModifier;
            }
            return done();
        }
        auto* combo = qobject_cast<QComboBox*>(widget);
        if (combo == nullptr || entries.size() != 1) {
            return false;
        }
        QTest::mouseClick(combo, Qt::LeftButton, {}, QPoint(combo->width() - 6, combo->height() / 2));
        if (combo->view()->isVisible()) {
            combo->view()->setCurrentIndex(combo->model()->index(entries.front(), 0));
            QTest::keyClick(combo->view(), Qt::Key_Return);
        }
        return done();
    }

    bool tab(Control& control, int index) {
        auto* tabs = qobject_cast<QTabWidget*>(reach(control));
        if (tabs == nullptr || !tabs->isTabEnabled(index)) {
            return false;
        }
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(index).center());
        return done();
    }

    bool spin(Control& control, bool up) {
        auto* widget = reach(control);
        if (widget == nullptr) {
            return false;
        }
        const auto part = widget->objectName() + (up ? QStringLiteral(".up") : QStringLiteral(".down"));
        QTest::mouseClick(widget->findChild<QWidget*>(part), Qt::LeftButton);
        return done();
    }

    bool menu(Control& entry) {
        auto* window = renderer_->widgetOf(*entry.window);
        if (window == nullptr || !desk_->reachable(*entry.window)) {
            return false;
        }
        auto* bar = window->findChild<QMenuBar*>();
        auto* action = bar->findChild<QAction*>(qt::toQt(entry.label()));
        if (action == nullptr || !action->isEnabled() || !action->isVisible()) {
            return false;
        }
        const auto& owner = entry.menu().menu;
        if (owner.empty()) {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(action).center());
            return done();
        }
        auto* menu = bar->findChild<QMenu*>(qt::toQt(owner));
        if (menu->menuAction() != nullptr && bar->actions().contains(menu->menuAction())) {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
        } else {
            menu->popup(window->pos());
        }
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        return done();
    }

    bool focus(Control& control) {
        if (desk_->focus() == &control) {
            return done();
        }
        if (!control.onCurrentPage() && control.focusable()) {
            desk_->act([&] { desk_->focusOn(control); }); // brings its page to the front; there is nothing to hit before
            return done();
        }
        auto* widget = reach(control);
        if (widget == nullptr || !control.focusable()) {
            return false;
        }
        auto* target = keyTarget(widget);
        if (qobject_cast<QLineEdit*>(target) != nullptr && target == widget) {
            QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(1, target->height() / 2));
        } else {
            QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
            QApplication::sendEvent(target, &event);
        }
        return done();
    }

    bool type(std::string_view text) {
        for (const char c : text) {
            auto* widget = focused();
            if (widget == nullptr) {
                return !text.empty() && &c != text.data();
            }
            const auto typed = qt::toQt(std::string_view(&c, 1));
            const auto key = static_cast<unsigned char>(c) < 0x80 ? QTest::asciiToKey(c) : Qt::Key_unknown;
            QTest::sendKeyEvent(QTest::Press, widget, key, typed, Qt::NoModifier);
            done();
        }
        return true;
    }

    bool key(Key key) {
        auto* widget = focused();
        if (widget == nullptr) {
            return false;
        }
        const auto [code, modifiers] = keyPress(key);
        QTest::sendKeyEvent(QTest::Press, widget, code, QString(), modifiers);
        return done();
    }

    bool close(Window& window) {
        auto* widget = renderer_->widgetOf(window);
        if (widget == nullptr || !desk_->reachable(window)) {
            return false;
        }
        widget->close();
        return done();
    }

    bool resize(Window& window, Twips width, Twips height) {
        auto* widget = renderer_->widgetOf(window);
        if (widget == nullptr) {
            return false;
        }
        const QSize change(qt::pixels(width) - qt::pixels(window.bounds.width),
                           qt::pixels(height) - qt::pixels(window.bounds.height));
        if (window.minimized) {
            widget->showNormal();
        }
        widget->resize(widget->size() + change);
        return done();
    }

    bool minimize(Window& window) {
        auto* widget = renderer_->widgetOf(window);
        if (widget == nullptr) {
            return false;
        }
        widget->showMinimized();
        return done();
    }

    void pass(int milliseconds) {
        desk_->pass(milliseconds);
        done();
    }

private:
    /// The widget of a control that a person could use now.
    QWidget* reach(const Control& control) {
        auto* window = renderer_->widgetOf(*control.window);
        if (window == nullptr || !desk_->reachable(*control.window)) {
            return nullptr;
        }
        auto* widget = window->findChild<QWidget*>(qt::toQt(control.label()));
        return widget != nullptr && widget->isVisibleTo(window) && widget->isEnabled() ? widget : nullptr;
    }
    static QWidget* keyTarget(QWidget* widget) {
        if (auto* combo = qobject_cast<QComboBox*>(widget); combo != nullptr && combo->lineEdit() != nullptr) {
            return combo->lineEdit();
        }
        if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
            return tabs->tabBar();
        }
        return widget;
    }
    QWidget* focused() {
        auto* focus = desk_->focus();
        auto* widget = focus == nullptr ? nullptr : reach(*focus);
        return widget == nullptr ? nullptr : keyTarget(widget);
    }
    /// Scrolls there with the bar, as a person would.
    static QPoint cellPlace(qt::GridWidget& grid, int row, int col) {
        auto rect = grid.cellRect(row, col);
        if (rect.bottom() > grid.viewport()->height() || rect.top() < 0) {
            grid.verticalScrollBar()->setValue(grid.verticalScrollBar()->value() + (rect.top() / rect.height()));
            rect = grid.cellRect(row, col);
        }
        return rect.center();
    }
    bool done() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        onDone_();
        return true;
    }

    Desk* desk_;
    qt::Renderer* renderer_;
    std::function<void()> onDone_;
};

} // namespace

drive::Hand screenHand(Desk& desk, qt::Renderer& renderer, std::function<void()> onDone) {
    auto fingers = std::make_shared<Fingers>(desk, renderer, std::move(onDone));
    return {
        .click = [fingers](Control& control) { return fingers->click(control); },
        .doubleClick = [fingers](Control& control) { return fingers->doubleClick(control); },
        .rightClick = [fingers](Control& grid, int row) { return fingers->rightClick(grid, row); },
        .cell = [fingers](Control& grid, int row, int col) { return fingers->cell(grid, row, col); },
        .select = [fingers](Control& list, std::span<const int> entries) { return fingers->select(list, entries); },
        .tab = [fingers](Control& strip, int tab) { return fingers->tab(strip, tab); },
        .spin = [fingers](Control& button, bool up) { return fingers->spin(button, up); },
        .menu = [fingers](Control& entry) { return fingers->menu(entry); },
        .focus = [fingers](Control& control) { return fingers->focus(control); },
        .type = [fingers](std::string_view text) { return fingers->type(text); },
        .key = [fingers](Key key) { return fingers->key(key); },
        .close = [fingers](Window& window) { return fingers->close(window); },
        .resize = [fingers](Window& window, Twips width, Twips height) { return fingers->resize(window, width, height); },
        .minimize = [fingers](Window& window) { return fingers->minimize(window); },
        .pass = [fingers](int milliseconds) { fingers->pass(milliseconds); },
    };
}

} // namespace kov::screen
