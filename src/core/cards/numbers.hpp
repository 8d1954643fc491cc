#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kov {

/// Plain number text: a leading blank for zero and positive values, a minus sign for negative ones, no zero before the point,
/// no trailing point: 0.5 is " .5", 5 is " 5", -0.25 is "-.25". Integers of any width come through `std::int64_t`.
[[nodiscard]] std::string plainNumber(double value);
[[nodiscard]] std::string plainNumber(std::int64_t value);
[[nodiscard]] inline std::string plainNumber(std::int16_t value) { return plainNumber(std::int64_t{value}); }
[[nodiscard]] inline std::string plainNumber(std::int32_t value) { return plainNumber(std::int64_t{value}); }

/// The number without the leading blank of plain number text ("12", "-3").
[[nodiscard]] std::string bareNumber(std::int64_t value);

/// The numeric test: the text as a whole is a number. Outer blanks, a sign, a point, an exponent (E or D) and digit grouping
/// commas are taken; an empty or blank text fails.
[[nodiscard]] bool isNumeric(std::string_view text);

/// The field value: the number at the start of the text, blanks anywhere skipped, ending at the first character that can't
/// continue it; 0 where no number stands. Exponents with E or D are understood. "12.5 kg" is 12.5, "1,000" is 1. Never fails.
[[nodiscard]] double fieldValue(std::string_view text);

/// The number that the text is as a whole, by the numeric test (grouping commas left out); a text that fails it, or is too
/// large a number, is a Failure.
[[nodiscard]] double strictValue(std::string_view text);

/// Rounds half to even; outside the range of the type is a Failure ("Overflow").
[[nodiscard]] std::int16_t toInt16(double value);
[[nodiscard]] std::int32_t toInt32(double value);

/// The integer of a card field: its field value, rounded half to even to 16 bits.
[[nodiscard]] inline std::int16_t fieldInteger(std::string_view text) { return toInt16(fieldValue(text)); }
/// The same, but a blank or not wholly numeric field is a Failure.
[[nodiscard]] inline std::int16_t strictInteger(std::string_view text) { return toInt16(strictValue(text)); }

} // namespace kov
