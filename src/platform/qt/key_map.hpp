#pragma once

#include "platform/desk.hpp"

#include <optional>

class QKeyEvent;

namespace kov::qt {

/// The desk's key for a key press; nothing for characters and for keys that the desk doesn't know.
[[nodiscard]] std::optional<Key> keyOf(const QKeyEvent& event);
/// The press is a character, to be typed.
[[nodiscard]] bool isCharacter(const QKeyEvent& event);

} // namespace kov::qt
