#include "platform/text_edit.hpp"

#include <algorithm>

namespace kov {
namespace {

int size(const TextPart& box) { return static_cast<int>(box.text.size()); }

void clampSelection(TextPart& box) {
    box.selStart = std::clamp(box.selStart, 0, size(box));
    box.selLength = std::clamp(box.selLength, 0, size(box) - box.selStart);
}

/// A line end counts as one character for the cursor.
int stepRight(const TextPart& box) { return box.text.compare(static_cast<std::size_t>(box.selStart), 2, "\r\n") == 0 ? 2 : 1; }
int stepLeft(const TextPart& box) {
    return box.selStart >= 2 && box.text.compare(static_cast<std::size_t>(box.selStart) - 2, 2, "\r\n") == 0 ? 2 : 1;
}

bool eraseRange(TextPart& box, int start, int length) {
    if (box.locked || length <= 0) {
        return false;
    }
    box.text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    box.selStart = start;
    box.selLength = 0;
    return true;
}

} // namespace

bool insertText(TextPart& box, std::string_view text) {
    clampSelection(box);
    if (box.locked || (text.empty() && box.selLength == 0)) {
        return false;
    }
    box.text.replace(static_cast<std::size_t>(box.selStart), static_cast<std::size_t>(box.selLength), text);
    box.selStart += static_cast<int>(text.size());
    box.selLength = 0;
    return true;
}

bool deleteForward(TextPart& box) {
    clampSelection(box);
    if (box.selLength > 0) {
        return eraseRange(box, box.selStart, box.selLength);
    }
    return box.selStart < size(box) && eraseRange(box, box.selStart, stepRight(box));
}

bool deleteBackward(TextPart& box) {
    clampSelection(box);
    if (box.selLength > 0) {
        return eraseRange(box, box.selStart, box.selLength);
    }
    const int step = stepLeft(box);
    return box.selStart > 0 && eraseRange(box, box.selStart - step, step);
}

void cursorLeft(TextPart& box) {
    clampSelection(box);
    if (box.selLength == 0 && box.selStart > 0) {
        box.selStart -= stepLeft(box);
    }
    box.selLength = 0;
}

void cursorRight(TextPart& box) {
    clampSelection(box);
    if (box.selLength > 0) {
        box.selStart += box.selLength;
        box.selLength = 0;
    } else if (box.selStart < size(box)) {
        box.selStart += stepRight(box);
    }
}

void cursorHome(TextPart& box) {
    clampSelection(box);
    const auto before =
        box.selStart == 0 ? std::string::npos : box.text.rfind('\n', static_cast<std::size_t>(box.selStart) - 1);
    box.selStart = before == std::string::npos ? 0 : static_cast<int>(before) + 1;
    box.selLength = 0;
}

void cursorEnd(TextPart& box) {
    clampSelection(box);
    const auto from = static_cast<std::size_t>(box.selStart) + static_cast<std::size_t>(box.selLength);
    const auto end = box.text.find("\r\n", from);
    box.selStart = end == std::string::npos ? size(box) : static_cast<int>(end);
    box.selLength = 0;
}

std::string_view selectedText(const TextPart& box) {
    const auto start = std::min(static_cast<std::size_t>(std::max(box.selStart, 0)), box.text.size());
    return std::string_view(box.text).substr(start, static_cast<std::size_t>(std::max(box.selLength, 0)));
}

} // namespace kov
