#pragma once

#include "platform/controls.hpp"

#include <string_view>

namespace kov {

/// How a text box takes what a person types: each of these changes text and selection as any edit box does and tells
/// whether the text is another one now. A locked box takes nothing.
[[nodiscard]] bool insertText(TextPart& box, std::string_view text);
[[nodiscard]] bool deleteForward(TextPart& box);
[[nodiscard]] bool deleteBackward(TextPart& box);

/// Moves of the cursor; a selection collapses to its side.
void cursorLeft(TextPart& box);
void cursorRight(TextPart& box);
void cursorHome(TextPart& box);
void cursorEnd(TextPart& box);

[[nodiscard]] std::string_view selectedText(const TextPart& box);

} // namespace kov
