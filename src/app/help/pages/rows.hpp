#pragma once

#include "app/help/pages/topics.hpp"
#include "shell/entry/field.hpp"

#include <span>
#include <string>
#include <string_view>

namespace kov::help {

/// What a check takes: "0 to 24", "whole number, 1 to 999", "text", "on or off".
[[nodiscard]] std::string rangeText(const Rule& rule);
/// "Form 2A, 1-10" as "Form 2A, columns 1-10".
[[nodiscard]] std::string placeText(std::string_view place);

[[nodiscard]] HelpRow rowOf(const Field& field);
[[nodiscard]] HelpTable fieldTable(std::span<const Field> fields, std::string_view title = "Fields");
/// The columns of a grid; `grid` is its name for anchors.
[[nodiscard]] HelpTable gridTable(std::string_view title, std::string_view grid, std::span<const Column> columns);
/// Another name for a row whose caption says too little by itself.
void nameRow(HelpTable& table, std::string_view control, std::string_view caption);
/// In place of the range, the entries of a drop-down list.
void describeList(HelpTable& table, std::string_view control, std::span<const std::string_view> entries);

} // namespace kov::help
