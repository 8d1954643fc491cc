#include "rail/editor/number_row.hpp"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace kov {
namespace {

constexpr double LabelWidth = 900, NumberWidth = 700, SpinWidth = 330, CommandWidth = 1000;
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> Commands{
    {{"cmdInsert", "Insert"}, {"cmdCut", "Cut"}, {"cmdCopy", "Copy"}, {"cmdPaste", "Paste"}, {"cmdDelete", "Delete"}}};

} // namespace

void addNumberRow(Window& window, StackedLayout& stack, std::string_view label, std::string_view caption,
                  std::string_view box) {
    auto& number = window.add(ControlKind::Label, std::string(label), std::string(caption));
    number.alignRight = true;
    std::vector<RowItem> row{{number, LabelWidth},
                             {window.add(ControlKind::TextBox, std::string(box)), NumberWidth},
                             {window.add(ControlKind::Spin, "Spin1"), SpinWidth}};
    for (const auto& [name, command] : Commands) {
        row.push_back({window.add(ControlKind::Button, std::string(name), std::string(command)), CommandWidth});
    }
    stack.row(row);
}

} // namespace kov
