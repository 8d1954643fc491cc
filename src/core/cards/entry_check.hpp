#pragma once

#include "core/cards/sinks.hpp"

#include <cstdint>
#include <string>

namespace kov {

/// The check of a real entry field, in the unit of its field. True when the field must be corrected, so that the focus goes
/// back to it. An accepted text gets a decimal point if it has none; an empty text is always accepted. A value outside the
/// limits (compared in single precision, inclusive) is put to the person, who may insist on it.
[[nodiscard]] bool CheckReal(std::string& text, double low, double high, MessageSink& messages);

/// The same for an integer field: the text becomes the rounded integer whenever it is a number at all. A number beyond 16 bits
/// is a Failure ("Overflow"), whatever the limits are.
[[nodiscard]] bool CheckInt(std::string& text, std::int32_t low, std::int32_t high, MessageSink& messages);

/// The same, for the few integers that may need 32 bits.
[[nodiscard]] bool CheckLong(std::string& text, std::int32_t low, std::int32_t high, MessageSink& messages);

} // namespace kov
