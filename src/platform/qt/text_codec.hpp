#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace kov::qt {

/// The program's text is Windows-1252, one byte a character; Qt's is Unicode. Every byte has a character of its own, so that
/// a text comes back unchanged.
[[nodiscard]] QString toQt(std::string_view text);
/// Nothing when a character has no place in Windows-1252.
[[nodiscard]] std::optional<std::string> fromQt(QStringView text);
/// The same with "?" in place of what doesn't fit.
[[nodiscard]] std::string fromQtLossy(QStringView text);

/// The lines of a multi-line box end with CR LF in the program and with LF in Qt.
[[nodiscard]] QString toQtLines(std::string_view text);
[[nodiscard]] std::optional<std::string> fromQtLines(QStringView text);
/// A place in such a text, as counted on the other side.
[[nodiscard]] int toQtPlace(std::string_view text, int place);
[[nodiscard]] int fromQtPlace(std::string_view text, int place);

} // namespace kov::qt
