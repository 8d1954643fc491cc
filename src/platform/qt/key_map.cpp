#include "platform/qt/key_map.hpp"

#include <QKeyEvent>
#include <QKeySequence>

namespace kov::qt {
namespace {

std::optional<Key> plainKey(int key) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Enter;
    case Qt::Key_Tab:
        return Key::Tab;
    case Qt::Key_Up:
        return Key::Up;
    case Qt::Key_Down:
        return Key::Down;
    case Qt::Key_Left:
        return Key::Left;
    case Qt::Key_Right:
        return Key::Right;
    case Qt::Key_Insert:
        return Key::Insert;
    case Qt::Key_Delete:
        return Key::Delete;
    case Qt::Key_Backspace:
        return Key::Backspace;
    case Qt::Key_Escape:
        return Key::Escape;
    case Qt::Key_Home:
        return Key::Home;
    case Qt::Key_End:
        return Key::End;
    case Qt::Key_F1:
        return Key::F1;
    case Qt::Key_F2:
        return Key::F2;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<Key> keyOf(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Cut)) {
        return Key::CtrlX;
    }
    if (event.matches(QKeySequence::Copy)) {
        return Key::CtrlC;
    }
    if (event.matches(QKeySequence::Paste)) {
        return Key::CtrlV;
    }
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_Backtab || (event.key() == Qt::Key_Tab && modifiers == Qt::ShiftModifier)) {
        return Key::ShiftTab;
    }
    return modifiers == Qt::NoModifier ? plainKey(event.key()) : std::nullopt;
}

bool isCharacter(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier | Qt::GroupSwitchModifier);
    // A third-level key (AltGr) arrives as Ctrl and Alt on some systems.
    const bool plain = modifiers == Qt::NoModifier || modifiers == (Qt::ControlModifier | Qt::AltModifier);
    return plain && !event.text().isEmpty() && event.text().front().isPrint();
}

} // namespace kov::qt
