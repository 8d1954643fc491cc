#pragma once

#include "core/cards/fixed.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kov {

/// The run description, lines 2 to 20 of Form 1A: 19 lines of 80 columns. Element 0 is line 1.
constexpr std::size_t TitleLineCount = 19;
using TitleLines = std::array<Fixed<80>, TitleLineCount>;

/// Cuts the text of the description box, whose lines are parted by CR LF, into title lines. A line of more than 80 characters
/// is wrapped at a blank, which is dropped; one that has no blank to wrap at is a Failure. A last line of a single character
/// and all text beyond line 19 are lost.
[[nodiscard]] TitleLines splitTitle(std::string_view text);

/// The text for the description box: the lines up to the first blank one (line 1 may be blank), parted by CR LF.
[[nodiscard]] std::string joinTitle(const TitleLines& lines);

} // namespace kov
