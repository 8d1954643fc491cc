#include "app/help/pages/rows.hpp"

#include "core/cards/fixed.hpp"
#include "platform/controls.hpp"

#include <array>
#include <charconv>

namespace kov::help {
namespace {

std::string number(double value) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed).ptr;
    return {buffer.data(), end};
}

std::string captionText(std::string_view caption) { return std::string(trim(plainCaption(caption))); }

std::string limits(const Rule& rule) { return number(rule.low) + " to " + number(rule.high); }

} // namespace

std::string rangeText(const Rule& rule) {
    switch (rule.kind) {
    case FieldKind::Text:
        return "text";
    case FieldKind::Check:
        return "on or off";
    case FieldKind::Real:
        // Limits that depend on another entry stand in the hint.
        return rule.low < rule.high ? limits(rule) : "see the hint";
    case FieldKind::Integer:
    case FieldKind::LongInteger:
        return "whole number, " + limits(rule);
    }
    return {};
}

std::string placeText(std::string_view place) {
    const auto comma = place.rfind(", ");
    if (comma == std::string_view::npos || comma + 2 >= place.size() || place[comma + 2] < '0' || place[comma + 2] > '9') {
        return std::string(place);
    }
    return std::string(place.substr(0, comma)) + ", columns " + std::string(place.substr(comma + 2));
}

HelpRow rowOf(const Field& field) {
    return {{std::string(field.control)}, captionText(field.caption), std::string(trim(field.unit)),
            rangeText(field.rule),        std::string(field.hint),    placeText(field.place)};
}

HelpTable fieldTable(std::span<const Field> fields, std::string_view title) {
    HelpTable table{std::string(title), "", {}};
    for (const auto& field : fields) {
        table.rows.push_back(rowOf(field));
    }
    return table;
}

HelpTable gridTable(std::string_view title, std::string_view grid, std::span<const Column> columns) {
    HelpTable table{std::string(title), std::string(grid), {}};
    for (const auto& column : columns) {
        const auto anchor = table.anchor + '.' + std::to_string(table.rows.size());
        table.rows.push_back({{anchor},
                              captionText(column.caption),
                              std::string(trim(column.unit)),
                              rangeText(column.rule),
                              std::string(column.hint),
                              placeText(column.place)});
    }
    return table;
}

void nameRow(HelpTable& table, std::string_view control, std::string_view caption) {
    for (auto& row : table.rows) {
        if (row.anchors.front() == control) {
            row.caption = caption;
        }
    }
}

void describeList(HelpTable& table, std::string_view control, std::span<const std::string_view> entries) {
    for (auto& row : table.rows) {
        if (row.anchors.front() == control) {
            row.range.clear();
            for (const auto entry : entries) {
                row.range.append(row.range.empty() ? "" : "; ").append(entry);
            }
        }
    }
}

} // namespace kov::help
