#pragma once

#include "drive/arguments.hpp"
#include "drive/script.hpp"

#include <span>
#include <string_view>

namespace kov::drive {

/// A word that begins a line, or stands behind `expect`: takes its arguments and gives what is to be done.
struct Command {
    std::string_view name;
    Act (*parse)(Arguments& arguments);
};

/// What a person does.
[[nodiscard]] std::span<const Command> personCommands();
/// What the surroundings answer.
[[nodiscard]] std::span<const Command> surroundingsCommands();
/// The subjects of `expect` that are no controls.
[[nodiscard]] std::span<const Command> otherSubjects();

/// `expect C PROPERTY VALUE`, behind `expect`.
[[nodiscard]] Act parseExpectControl(Arguments& arguments);
/// `show C` and `show boxes`, behind `show`.
[[nodiscard]] Act parseShow(Arguments& arguments);

} // namespace kov::drive
