#include "platform/qt/text_views.hpp"

#include "platform/qt/text_codec.hpp"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextBlock>

#include <algorithm>
#include <limits>
#include <utility>

namespace kov::qt {

TextDifference difference(const QString& before, const QString& after) {
    const auto shorter = std::min(before.size(), after.size());
    qsizetype start = 0;
    while (start < shorter && before[start] == after[start]) {
        ++start;
    }
    qsizetype end = 0;
    while (end < shorter - start && before[before.size() - 1 - end] == after[after.size() - 1 - end]) {
        ++end;
    }
    return {start, before.size() - start - end, after.mid(start, after.size() - start - end)};
}

LineEditMirror::LineEditMirror(Control& control, Ground& ground, QLineEdit& edit)
    : control_(&control), ground_(&ground), edit_(&edit) {
    edit_->setMaxLength(std::numeric_limits<int>::max());
    edit_->setFocusPolicy(Qt::NoFocus);
    QObject::connect(edit_, &QLineEdit::textEdited, edit_, [this] { edited(); });
    QObject::connect(edit_, &QLineEdit::selectionChanged, edit_, [this] { mirrorSelection(); });
    QObject::connect(edit_, &QLineEdit::cursorPositionChanged, edit_, [this] { mirrorSelection(); });
}

void LineEditMirror::edited() {
    ground_->act([this] {
        if (const auto text = fromQt(edit_->text())) {
            ground_->desk.edit(*control_, *text, edit_->cursorPosition());
        } else {
            ground_->desk.beep();
        }
    });
}

void LineEditMirror::mirrorSelection() {
    // A box that the focus has left shows no selection, and keeps the one that it had.
    if (showing_ || ground_->desk.focus() != control_) {
        return;
    }
    if (!edit_->hasFocus()) {
        showSelection(); // the toolkit takes it away when its own focus goes, with the window's for one
        return;
    }
    auto& box = control_->text();
    if (!ground_->syncing && edit_->text() == toQt(box.text)) {
        box.selStart = edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
        box.selLength = edit_->selectionLength();
    }
}

void LineEditMirror::showSelection() {
    const auto& box = control_->text();
    const int start = edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
    const bool showing = std::exchange(showing_, true);
    if (ground_->desk.focus() != control_) {
        edit_->deselect();
        edit_->home(false); // a long text shows its beginning
    } else if (start != box.selStart || edit_->selectionLength() != box.selLength) {
        edit_->deselect();
        edit_->setCursorPosition(box.selStart);
        if (box.selLength > 0) {
            // From its end, so that the beginning of a long text is in sight.
            edit_->setSelection(box.selStart + box.selLength, -box.selLength);
        }
    }
    showing_ = showing;
}

void LineEditMirror::sync() {
    const auto& box = control_->text();
    if (const auto text = toQt(box.text); text != edit_->text()) {
        if (ground_->desk.focus() == control_ && edit_->hasFocus()) {
            // As one edit, so that it can be undone.
            const auto change = difference(edit_->text(), text);
            edit_->setSelection(static_cast<int>(change.start), static_cast<int>(change.oldLength));
            edit_->insert(change.inserted);
        } else {
            edit_->setText(text);
        }
    }
    showSelection();
    if (edit_->isReadOnly() != box.locked) {
        edit_->setReadOnly(box.locked);
    }
}

bool LineEditMirror::pressTakesFocus(Control& control, Ground& ground) {
    if (ground.desk.focus() == &control) {
        return false;
    }
    bool whole = true;
    ground.act([&] {
        ground.desk.focusOn(control);
        whole = ground.desk.focus() != &control || control.text().selLength > 0;
    });
    return whole;
}

namespace {

class LineTextView final : public ControlView {
public:
    LineTextView(Control& control, Ground& ground, QWidget* parent)
        : ControlView(control, ground), edit_(new QLineEdit(parent)), mirror_(control, ground, *edit_) {
        setWidget(edit_);
    }
    [[nodiscard]] bool editsText() const override { return true; }
    bool pressed(const QMouseEvent& event) override {
        return LineEditMirror::pressTakesFocus(control(), ground()) || ControlView::pressed(event);
    }

private:
    void syncContent() override { mirror_.sync(); }
    QLineEdit* edit_;
    LineEditMirror mirror_;
};

class ManyLinesView final : public ControlView {
public:
    ManyLinesView(Control& control, Ground& ground, QWidget* parent)
        : ControlView(control, ground), edit_(new QPlainTextEdit(parent)) {
        setWidget(edit_);
        edit_->setTabChangesFocus(true);
        QObject::connect(edit_, &QPlainTextEdit::textChanged, edit_, [this] { edited(); });
        QObject::connect(edit_, &QPlainTextEdit::selectionChanged, edit_, [this] { mirrorSelection(); });
        QObject::connect(edit_, &QPlainTextEdit::cursorPositionChanged, edit_, [this] { mirrorSelection(); });
    }
    [[nodiscard]] QWidget& surface() const override { return *edit_->viewport(); }
    [[nodiscard]] bool editsText() const override { return true; }
    bool pressed(const QMouseEvent& event) override {
        return LineEditMirror::pressTakesFocus(control(), ground()) || ControlView::pressed(event);
    }

private:
    void edited() {
        if (ground().syncing || edit_->toPlainText() == toQtLines(control().text().text)) {
            return;
        }
        act([this] {
            if (const auto text = fromQtLines(edit_->toPlainText())) {
                desk().edit(control(), *text, fromQtPlace(*text, edit_->textCursor().position()));
            } else {
                desk().beep();
            }
        });
    }
    void mirrorSelection() {
        auto& box = control().text();
        if (!ground().syncing && edit_->toPlainText() == toQtLines(box.text)) {
            const auto cursor = edit_->textCursor();
            box.selStart = fromQtPlace(box.text, cursor.selectionStart());
            box.selLength = fromQtPlace(box.text, cursor.selectionEnd()) - box.selStart;
        }
    }
    void syncContent() override {
        const auto& box = control().text();
        if (const auto text = toQtLines(box.text); text != edit_->toPlainText()) {
            replace(text);
        }
        auto cursor = edit_->textCursor();
        const int start = toQtPlace(box.text, box.selStart);
        const int end = toQtPlace(box.text, box.selStart + box.selLength);
        if (cursor.selectionStart() != start || cursor.selectionEnd() != end) {
            cursor.setPosition(start);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
            edit_->setTextCursor(cursor);
        }
        if (edit_->isReadOnly() != box.locked) {
            edit_->setReadOnly(box.locked);
        }
    }
    void replace(const QString& text) {
        if (desk().focus() != &control()) {
            edit_->setPlainText(text);
            return;
        }
        const auto change = difference(edit_->toPlainText(), text);
        auto cursor = edit_->textCursor();
        cursor.setPosition(static_cast<int>(change.start));
        cursor.setPosition(static_cast<int>(change.start + change.oldLength), QTextCursor::KeepAnchor);
        cursor.insertText(change.inserted);
    }
    QPlainTextEdit* edit_;
};

} // namespace

std::unique_ptr<ControlView> makeTextView(Control& control, Ground& ground, QWidget* parent) {
    if (control.text().multiLine) {
        return std::make_unique<ManyLinesView>(control, ground, parent);
    }
    return std::make_unique<LineTextView>(control, ground, parent);
}

} // namespace kov::qt
