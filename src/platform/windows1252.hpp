#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kov {

/// The program's text is Windows-1252; these two are its edge to the world's UTF-8. The five bytes without a character of their
/// own stand for the control characters of the same number, so that every byte goes out and comes back.
[[nodiscard]] std::string utf8OfText(std::string_view text);
/// None when the UTF-8 is broken or holds a character that Windows-1252 lacks.
[[nodiscard]] std::optional<std::string> textOfUtf8(std::string_view utf8);

} // namespace kov
