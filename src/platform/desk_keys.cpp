#include "platform/desk.hpp"
#include "platform/text_edit.hpp"

#include <algorithm>
#include <cctype>
#include <utility>

namespace kov {
namespace {

constexpr int CharacterEnter = 13, CharacterEscape = 27, CharacterBackspace = 8;

int codeOf(Key key) {
    switch (key) {
    case Key::Enter:
        return keys::Enter;
    case Key::Tab:
    case Key::ShiftTab:
        return keys::Tab;
    case Key::Up:
        return keys::Up;
    case Key::Down:
        return keys::Down;
    case Key::Left:
        return keys::Left;
    case Key::Right:
        return keys::Right;
    case Key::Insert:
        return keys::Insert;
    case Key::Delete:
        return keys::Delete;
    case Key::Backspace:
        return keys::Backspace;
    case Key::Escape:
        return keys::Escape;
    case Key::Home:
        return keys::Home;
    case Key::End:
        return keys::End;
    case Key::F1:
        return keys::F1;
    case Key::F2:
        return keys::F2;
    case Key::CtrlX:
        return 'X';
    case Key::CtrlC:
        return 'C';
    case Key::CtrlV:
        return 'V';
    }
    return 0;
}

bool isClipboardKey(Key key) { return key == Key::CtrlX || key == Key::CtrlC || key == Key::CtrlV; }

void changed(const Control& control) {
    if (control.on.change) {
        const auto handler = control.on.change;
        handler();
    }
}

/// The entry of a list whose text begins with that character, searched behind the current one first.
int entryBeginningWith(const ItemList& items, int character) {
    const auto same = [&](int index) {
        const auto& text = items.item(index);
        return !text.empty() && std::toupper(static_cast<unsigned char>(text.front())) == std::toupper(character);
    };
    for (int step = 1; step <= items.count(); ++step) {
        const int index = (items.index() + step) % items.count();
        if (same(index)) {
            return index;
        }
    }
    return -1;
}

/// Control characters but Enter and Backspace leave no trace in a text.
bool typeInto(TextPart& box, int character) {
    if (character == CharacterBackspace) {
        return deleteBackward(box);
    }
    if (character == CharacterEnter) {
        return box.multiLine && insertText(box, "\r\n");
    }
    return character >= keys::Space && insertText(box, std::string(1, static_cast<char>(character)));
}

/// What a box takes of a text from the clipboard: a single line ends where the first line ends; in several lines each ends with
/// CR LF, whatever it came with.
std::string pasted(const TextPart& box, std::string_view text) {
    if (!box.multiLine) {
        return std::string(text.substr(0, text.find_first_of("\r\n")));
    }
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            lines += "\r\n";
            i += text.substr(i, 2) == "\r\n" ? 1U : 0U;
        } else {
            lines += text[i];
        }
    }
    return lines;
}

/// Space clicks whatever can be clicked, Enter a button.
bool clicks(ControlKind kind, int character) {
    if (character == CharacterEnter) {
        return kind == ControlKind::Button;
    }
    return character == keys::Space &&
           (kind == ControlKind::Button || kind == ControlKind::CheckBox || kind == ControlKind::OptionButton);
}

} // namespace

bool Desk::press(Control& control, int code, int shift) {
    if (control.on.keyDown) {
        const auto handler = control.on.keyDown;
        handler(code, shift);
    }
    return code != 0 && focus_ == &control;
}

void Desk::pressCharacter(Control& control, int character) {
    if (control.on.keyPress) {
        const auto handler = control.on.keyPress;
        handler(character);
    }
    if (character == 0 || focus_ != &control) {
        return;
    }
    if (control.hasText()) {
        if (typeInto(control.text(), character)) {
            changed(control);
        }
    } else if (clicks(control.kind, character)) {
        click(control);
    } else if (character >= keys::Space && (control.kind == ControlKind::List || control.kind == ControlKind::Combo)) {
        if (const int entry = entryBeginningWith(control.items(), character); entry >= 0) {
            const std::array chosen{entry};
            select(control, chosen);
        }
    }
}

bool Desk::type(std::string_view text) {
    return attempt([&] {
        if (focus_ == nullptr) {
            return false;
        }
        for (std::size_t i = 0; i < text.size() && focus_ != nullptr; ++i) {
            const char c = text[i];
            if (c == '\n' && i > 0 && text[i - 1] == '\r') {
                continue; // a line end of two characters is one press of Enter
            }
            if (c == '\t') {
                moveTab(false);
            } else {
                pressCharacter(*focus_, c == '\n' ? CharacterEnter : static_cast<unsigned char>(c));
            }
        }
        return true;
    });
}

bool Desk::edit(Control& box, std::string_view text, int cursor) {
    return attempt([&] {
        if (!box.hasText() || focus_ != &box || box.text().locked) {
            return false;
        }
        const bool other = box.text().text != text;
        box.text().text = text;
        box.selectText(cursor, 0);
        if (other) {
            changed(box);
        }
        return true;
    });
}

void Desk::moveTab(bool backwards) {
    if (focus_ == nullptr) {
        return;
    }
    if (auto* next = focus_->window->nextInTabOrder(focus_, backwards)) {
        setFocus(*next);
    }
}

bool Desk::key(Key key) {
    return attempt([&] {
        if (focus_ == nullptr) {
            return false;
        }
        if (key == Key::Tab || key == Key::ShiftTab) {
            moveTab(key == Key::ShiftTab);
            return true;
        }
        auto& control = *focus_;
        if (!press(control, codeOf(key), isClipboardKey(key) ? keys::CtrlMask : 0)) {
            return true;
        }
        switch (key) {
        case Key::Enter:
            pressCharacter(control, CharacterEnter);
            break;
        case Key::Escape:
            pressCharacter(control, CharacterEscape);
            break;
        case Key::Backspace:
            pressCharacter(control, CharacterBackspace);
            break;
        case Key::F1:
            helpOn(control);
            break;
        case Key::CtrlX:
        case Key::CtrlC:
        case Key::CtrlV:
            clipboardKey(control, key);
            break;
        default:
            if (control.hasText()) {
                editKey(control, key);
            } else {
                arrow(control, key);
            }
        }
        return true;
    });
}

void Desk::helpOn(const Control& control) {
    const int context = front() == nullptr ? 0 : front()->helpContext;
    services_.help.show(context == 0 ? HelpContents : HelpContext, context, context == 0 ? std::string{} : control.label());
}

void Desk::clipboardKey(Control& control, Key key) {
    if (!control.hasText()) {
        return;
    }
    auto& box = control.text();
    if (key == Key::CtrlV) {
        if (const auto text = services_.clipboard.text(); text && insertText(box, pasted(box, *text))) {
            changed(control);
        }
        return;
    }
    if (box.selLength == 0) {
        return;
    }
    services_.clipboard.setText(std::string(selectedText(box)));
    if (key == Key::CtrlX && deleteForward(box)) {
        changed(control);
    }
}

void Desk::editKey(Control& control, Key key) {
    auto& box = control.text();
    bool other = false;
    switch (key) {
    case Key::Delete:
        other = deleteForward(box);
        break;
    case Key::Left:
        cursorLeft(box);
        break;
    case Key::Right:
        cursorRight(box);
        break;
    case Key::Home:
        cursorHome(box);
        break;
    case Key::End:
        cursorEnd(box);
        break;
    case Key::Up:
    case Key::Down:
        arrow(control, key);
        break;
    default:
        break;
    }
    if (other) {
        changed(control);
    }
}

void Desk::arrow(Control& control, Key key) {
    const bool forward = key == Key::Down || key == Key::Right;
    const bool backward = key == Key::Up || key == Key::Left;
    if (control.kind == ControlKind::Grid) {
        auto& grid = control.grid();
        const int row = grid.row() + (key == Key::Down ? 1 : 0) - (key == Key::Up ? 1 : 0);
        int col = grid.col() + (key == Key::Right ? 1 : 0) - (key == Key::Left ? 1 : 0);
        col = key == Key::Home ? grid.fixedCols() : key == Key::End ? grid.cols() - 1 : col;
        const bool elsewhere = row != grid.row() || col != grid.col();
        if (elsewhere && row >= std::min(grid.fixedRows(), grid.rows() - 1) && row < grid.rows() && col >= grid.fixedCols() &&
            col < grid.cols()) {
            moveCell(control, row, col);
        }
    } else if (control.kind == ControlKind::List || control.kind == ControlKind::Combo) {
        const int last = control.items().count() - 1;
        const int current = control.items().index();
        const int entry = key == Key::Home ? 0 : key == Key::End ? last : forward ? current + 1 : backward ? current - 1 : -1;
        if (entry >= 0 && entry <= last && entry != current) {
            const std::array chosen{entry};
            select(control, chosen);
        }
    } else if (control.kind == ControlKind::TabStrip && (forward || backward)) {
        const int count = static_cast<int>(control.tabs().tabs.size());
        const int step = forward ? 1 : -1;
        for (int tab = control.tabs().current + step; tab >= 0 && tab < count; tab += step) {
            if (control.tabs().tabs[static_cast<std::size_t>(tab)].enabled) {
                chooseTab(control, tab);
                break;
            }
        }
    } else if (control.kind == ControlKind::Spin && (key == Key::Up || key == Key::Down)) {
        spin(control, key == Key::Up);
    }
}

void Desk::sendKeys(std::string_view keystrokes) {
    static constexpr std::array<std::pair<std::string_view, Key>, 6> Named{{{"^X", Key::CtrlX},
                                                                            {"^C", Key::CtrlC},
                                                                            {"^V", Key::CtrlV},
                                                                            {"{right}", Key::Right},
                                                                            {"{INSERT}", Key::Insert},
                                                                            {"{DEL}", Key::Delete}}};
    for (const auto& [name, named] : Named) {
        if (name == keystrokes) {
            key(named);
            return;
        }
    }
    type(keystrokes);
}

} // namespace kov
