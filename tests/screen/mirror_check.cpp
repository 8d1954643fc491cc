#include "mirror_check.hpp"

#include "platform/qt/text_codec.hpp"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace kov::screen {
namespace {

class Faults {
public:
    explicit Faults(const Control& control) : name_(control.window->name() + "." + control.label()) {}
    template <typename Value> void compare(const char* what, const Value& shown, const Value& wanted) {
        if (shown != wanted) {
            found.push_back(name_ + " shows another " + what);
        }
    }
    std::vector<std::string> found;

private:
    std::string name_;
};

void compareText(Faults& faults, const QLineEdit& edit, const TextPart& text, bool focused) {
    faults.compare("text", edit.text(), qt::toQt(text.text));
    if (!focused) {
        faults.compare("selection", edit.hasSelectedText(), false);
        return;
    }
    const int start = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
    faults.compare("cursor", start, text.selStart);
    faults.compare("selection", static_cast<int>(edit.selectionLength()), text.selLength);
}

void compareContent(Faults& faults, QWidget& widget, const Control& control, bool focused) {
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        compareText(faults, *edit, control.text(), focused);
    } else if (auto* many = qobject_cast<QPlainTextEdit*>(&widget)) {
        faults.compare("text", many->toPlainText(), qt::toQtLines(control.text().text));
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        faults.compare("caption", button->text(), qt::toQt(control.caption));
        faults.compare("mark", button->isChecked(), control.checked);
    } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        faults.compare("number of entries", combo->count(), control.items().count());
        faults.compare("entry", combo->currentIndex(), control.items().index());
        if (combo->lineEdit() != nullptr) {
            compareText(faults, *combo->lineEdit(), control.text(), focused);
        }
    }
}

void checkControl(std::vector<std::string>& found, QWidget& window, const Control& control, bool focused) {
    if (control.kind == ControlKind::Menu || control.kind == ControlKind::Timer) {
        return;
    }
    Faults faults(control);
    auto* widget = window.findChild<QWidget*>(qt::toQt(control.label()));
    if (widget == nullptr) {
        found.push_back(control.window->name() + "." + control.label() + " has no widget");
        return;
    }
    faults.compare("visibility", widget->isVisibleTo(&window), control.shown() && control.onCurrentPage());
    faults.compare("enabling", widget->isEnabled(), control.usable());
    compareContent(faults, *widget, control, focused);
    if (focused && !control.window->minimized) {
        const auto* holder = window.focusWidget();
        faults.compare("focus", holder != nullptr && (holder == widget || widget->isAncestorOf(holder)), true);
    }
    found.insert(found.end(), faults.found.begin(), faults.found.end());
}

} // namespace

std::vector<std::string> mirrorFaults(const Desk& desk, const qt::Renderer& renderer) {
    std::vector<std::string> found;
    for (const auto* window : desk.windows()) {
        auto* widget = renderer.widgetOf(*window);
        if (widget == nullptr) {
            found.push_back(window->name() + " isn't shown");
            continue;
        }
        if (widget->windowTitle() != qt::toQt(window->caption)) {
            found.push_back(window->name() + " shows another caption");
        }
        for (const auto& control : window->controls()) {
            checkControl(found, *widget, *control, desk.focus() == control.get());
        }
    }
    return found;
}

} // namespace kov::screen
