#include "shell/entry/layout.hpp"

#include "core/cards/fixed.hpp"
#include "core/cards/numbers.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace kov {
namespace {

// All in twips, for a font of 8 to 9 points.
constexpr double Character = 92, TextLine = 255;
constexpr double Gap = 90, Margin = 60;
constexpr double PanelSide = 105, PanelTitle = 330, PanelBottom = 90;
constexpr double BoxWidth = 1050, BoxHeight = 315, BoxPadding = 90, DropButton = 210, Tick = 330;
constexpr double ButtonWidth = 1200, ButtonHeight = 405, ButtonPadding = 300;
constexpr double CellHeight = 300, TextCellWidth = 1600, ScrollBar = 330, Pixel = 15;
constexpr int HeadingCharacters = 11;

struct Wrapped {
    int lines = 1;
    std::size_t longest = 0;
};

/// How a caption breaks at blanks when a line takes that many characters.
Wrapped wrap(std::string_view caption, int characters) {
    const std::string plain = plainCaption(caption);
    auto rest = trim(plain);
    Wrapped result;
    for (result.lines = 0; !rest.empty(); ++result.lines) {
        auto end = rest.size();
        if (end > static_cast<std::size_t>(characters)) {
            end = rest.rfind(' ', static_cast<std::size_t>(characters));
            end = end == std::string_view::npos ? std::min(rest.find(' '), rest.size()) : end;
        }
        result.longest = std::max(result.longest, trimRight(rest.substr(0, end)).size());
        rest = trimLeft(rest.substr(end));
    }
    result.lines = std::max(result.lines, 1);
    return result;
}

double textWidth(std::size_t characters) { return static_cast<double>(characters) * Character; }
double plainWidth(std::string_view caption) { return textWidth(trim(plainCaption(caption)).size()); }
/// Units are short and often capitals, which are wider than the average that longer texts come close to.
double unitTextWidth(std::string_view unit) {
    constexpr double Capital = 0.4 * Character;
    const auto wide =
        std::count_if(unit.begin(), unit.end(), [](char c) { return (c >= 'A' && c <= 'Z') || c == 'm' || c == '%'; });
    return plainWidth(unit) + static_cast<double>(wide) * Capital;
}
double linesHeight(int lines) { return lines == 1 ? BoxHeight : lines * TextLine; }

void placeAt(Control& control, double left, double top, double width, double height) {
    control.bounds = {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

std::string withoutPrefix(std::string_view control) {
    for (const std::string_view prefix : {"grd", "Grd", "tb", "cb", "ck"}) {
        if (control.starts_with(prefix)) {
            return std::string(control.substr(prefix.size()));
        }
    }
    return std::string(control);
}

/// What a cell of the column may hold: a number of a card never has more than ten characters, one with narrow limits has fewer.
double cellWidth(const Column& column) {
    constexpr std::size_t NarrowestInteger = 6, NarrowestReal = 8, CardColumns = 10;
    const auto narrowest = column.rule.kind == FieldKind::Real ? NarrowestReal : NarrowestInteger;
    if (column.rule.kind == FieldKind::Text) {
        return TextCellWidth;
    }
    const auto widest =
        std::max(bareNumber(std::llround(column.rule.low)).size(), bareNumber(std::llround(column.rule.high)).size());
    return textWidth(std::clamp(widest + 2, narrowest, CardColumns)) + 2 * BoxPadding;
}

/// The longest line of a heading that stands over a column.
double headingWidth(std::string_view caption) { return textWidth(wrap(caption, HeadingCharacters).longest); }

} // namespace

// A panel.

LayoutPanel::LayoutPanel(Window& window, std::string_view name, std::string_view title, int captionCharacters)
    : window_(window), frame_(window.add(ControlKind::Frame, std::string(name), std::string(title))),
      captionCharacters_(captionCharacters) {}

Control& LayoutPanel::add(ControlKind kind, std::string name, std::string_view caption) {
    auto& control = window_.add(kind, std::move(name), std::string(caption));
    control.parent = &frame_;
    return control;
}

Control* LayoutPanel::caption(std::string_view control, std::string_view text) {
    auto& label = add(ControlKind::Label, "lbl" + withoutPrefix(control), text);
    label.alignRight = true;
    captionWidth_ = std::max(captionWidth_, textWidth(wrap(text, captionCharacters_).longest));
    return &label;
}

Control* LayoutPanel::unit(std::string_view control, std::string_view text) {
    if (text.empty()) {
        return nullptr;
    }
    unitWidth_ = std::max(unitWidth_, unitTextWidth(text));
    return &add(ControlKind::Label, "unit" + withoutPrefix(control), text);
}

Control& LayoutPanel::field(const Field& field) {
    Row row;
    row.height = BoxHeight;
    if (field.rule.kind == FieldKind::Check) {
        auto& box = add(ControlKind::CheckBox, std::string(field.control), field.caption);
        row.boxes = {&box};
        row.boxWidth = plainWidth(field.caption) + Tick;
    } else {
        row.caption = caption(field.control, field.caption);
        row.boxes = {&add(ControlKind::TextBox, std::string(field.control), "")};
        row.unit = unit(field.control, field.unit);
        row.boxWidth = BoxWidth;
        row.widest = field.rule.kind == FieldKind::Text;
        row.height = linesHeight(wrap(field.caption, captionCharacters_).lines);
    }
    rows_.push_back(row);
    return *row.boxes.front();
}

Control& LayoutPanel::list(const Field& field, std::span<const std::string_view> entries) {
    Row row;
    row.caption = caption(field.control, field.caption);
    auto& list = add(ControlKind::Combo, std::string(field.control), "");
    std::size_t longest = 0;
    for (const auto& entry : entries) {
        list.items().addItem(entry);
        longest = std::max(longest, entry.size());
    }
    row.boxes = {&list};
    row.boxWidth = textWidth(longest) + BoxPadding + DropButton;
    row.height = linesHeight(wrap(field.caption, captionCharacters_).lines);
    rows_.push_back(row);
    return list;
}

void LayoutPanel::boxes(std::string_view text, std::span<const Field> fields) {
    Row row;
    row.caption = caption(fields.front().control, text);
    for (const auto& field : fields) {
        row.boxes.push_back(&add(ControlKind::TextBox, std::string(field.control), ""));
    }
    row.unit = unit(fields.front().control, fields.front().unit);
    row.boxWidth = BoxWidth;
    row.height = linesHeight(wrap(text, captionCharacters_).lines);
    rows_.push_back(row);
}

void LayoutPanel::headings(std::string_view name, std::initializer_list<std::string_view> captions) {
    Row row;
    row.boxWidth = BoxWidth;
    int lines = 1;
    for (const auto& text : captions) {
        auto& label = add(ControlKind::Label, std::string(name), text);
        label.index = static_cast<int>(row.boxes.size());
        row.boxes.push_back(&label);
        lines = std::max(lines, wrap(text, static_cast<int>(BoxWidth / Character)).lines);
    }
    row.height = linesHeight(lines);
    rows_.push_back(row);
}

Control& LayoutPanel::note(std::string_view name, std::string_view text) {
    Row row;
    row.wholeWidth = true;
    auto& label = add(ControlKind::Label, std::string(name), text);
    placeAt(label, 0, 0, plainWidth(text), BoxHeight);
    row.boxes = {&label};
    row.boxWidth = plainWidth(text);
    row.height = BoxHeight;
    rows_.push_back(row);
    return label;
}

Control& LayoutPanel::area(ControlKind kind, std::string_view name, std::string_view text, double width, double height,
                           std::optional<int> index) {
    Row row;
    row.wholeWidth = true;
    auto& control = add(kind, std::string(name), text);
    control.index = index;
    placeAt(control, 0, 0, width, height);
    row.boxes = {&control};
    row.boxWidth = width;
    row.height = height;
    rows_.push_back(row);
    return control;
}

Control& LayoutPanel::button(std::string_view name, std::string_view text) {
    Row row;
    auto& button = add(ControlKind::Button, std::string(name), text);
    row.boxes = {&button};
    row.boxWidth = std::max(ButtonWidth, plainWidth(text) + ButtonPadding);
    row.height = ButtonHeight;
    rows_.push_back(row);
    return button;
}

GridControls LayoutPanel::grid(std::string_view name, std::span<const Column> columns, int visibleRows,
                               std::string_view overlay, std::string_view dummy) {
    int lines = 1;
    bool units = false;
    for (const auto& column : columns) {
        lines = std::max(lines, wrap(column.caption, HeadingCharacters).lines);
        units = units || !column.unit.empty();
    }
    const double unitTop = linesHeight(lines);
    const double gridTop = unitTop + (units ? TextLine : 0);
    Row row;
    row.wholeWidth = true;
    std::vector<double> widths;
    double left = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto& column = columns[i];
        widths.push_back(
            std::max({cellWidth(column), headingWidth(column.caption) + BoxPadding, plainWidth(column.unit) + BoxPadding}));
        auto& heading = add(ControlKind::Label, "lbl" + withoutPrefix(name), column.caption);
        heading.index = static_cast<int>(i);
        placeAt(heading, left, 0, widths.back(), unitTop);
        row.boxes.push_back(&heading);
        if (!column.unit.empty()) {
            auto& unitLabel = add(ControlKind::Label, "unit" + withoutPrefix(name), column.unit);
            unitLabel.index = static_cast<int>(i);
            placeAt(unitLabel, left, unitTop, widths.back(), TextLine);
            row.boxes.push_back(&unitLabel);
        }
        left += widths.back();
    }
    auto& control = add(ControlKind::Grid, std::string(name), "");
    auto& grid = control.grid();
    grid.setCols(static_cast<int>(columns.size()));
    grid.setRowHeight(Twips{CellHeight});
    for (std::size_t i = 0; i < widths.size(); ++i) {
        grid.setColWidth(static_cast<int>(i), Twips{widths[i]});
    }
    placeAt(control, 0, gridTop, left + ScrollBar, visibleRows * CellHeight + 2 * Pixel);
    auto& box = add(ControlKind::TextBox, std::string(overlay), "");
    box.visible = false;
    placeAt(box, 0, gridTop, widths.front(), CellHeight);
    auto& stop = add(ControlKind::TextBox, std::string(dummy), "");
    placeAt(stop, 0, gridTop, Pixel, Pixel);
    row.boxes.insert(row.boxes.end(), {&control, &box, &stop});
    row.boxWidth = left + ScrollBar;
    row.height = gridTop + visibleRows * CellHeight + 2 * Pixel;
    rows_.push_back(row);
    return {control, box, stop};
}

double LayoutPanel::rowWidth(const Row& row) const {
    if (row.wholeWidth) {
        return row.boxWidth;
    }
    const auto count = static_cast<double>(row.boxes.size());
    const double behind = row.unit == nullptr ? 0 : Gap + unitWidth_;
    const double before = captionWidth_ > 0 ? captionWidth_ + Gap : 0;
    return before + count * row.boxWidth + (count - 1) * Gap + behind;
}

double LayoutPanel::widestBox() const {
    double widest = 0;
    for (const auto& row : rows_) {
        if (!row.wholeWidth && row.boxes.size() == 1) {
            widest = std::max(widest, row.boxWidth);
        }
    }
    return widest;
}

double LayoutPanel::width() const {
    double inner = plainWidth(frame_.caption);
    for (const auto& row : rows_) {
        inner = std::max(inner, rowWidth(row));
    }
    return inner + 2 * PanelSide;
}

double LayoutPanel::height() const {
    double sum = PanelTitle + PanelBottom;
    for (const auto& row : rows_) {
        sum += row.height + Gap;
    }
    return sum - Gap;
}

void LayoutPanel::placeRow(const Row& row, double top, double inner) const {
    if (row.wholeWidth) {
        for (auto* control : row.boxes) {
            control->bounds.left = control->bounds.left + Twips{PanelSide};
            control->bounds.top = control->bounds.top + Twips{top};
        }
        if (row.boxes.size() == 1) {
            row.boxes.front()->bounds.width = Twips{inner};
        }
        return;
    }
    double left = PanelSide;
    if (captionWidth_ > 0) {
        if (row.caption != nullptr) {
            placeAt(*row.caption, left, top, captionWidth_, row.height);
        }
        left += captionWidth_ + Gap;
    }
    for (auto* box : row.boxes) {
        const bool tall = box->kind == ControlKind::Label || box->kind == ControlKind::Button;
        const double height = tall ? row.height : BoxHeight;
        placeAt(*box, left, top + (row.height - height) / 2, row.boxWidth, height);
        left += row.boxWidth + Gap;
    }
    if (row.unit != nullptr) {
        placeAt(*row.unit, left, top, unitWidth_, row.height);
    }
}

void LayoutPanel::place(double left, double top, double width) {
    placeAt(frame_, left, top, width, height());
    double rowTop = PanelTitle;
    const double widest = widestBox();
    for (auto& row : rows_) {
        if (row.widest) {
            row.boxWidth = widest;
        }
        placeRow(row, rowTop, width - 2 * PanelSide);
        rowTop += row.height + Gap;
    }
}

// The window.

LayoutPanel& Layout::panel(std::string_view name, std::string_view title, int captionCharacters) {
    auto& panel = *panels_.emplace_back(std::make_unique<LayoutPanel>(window_, name, title, captionCharacters));
    bands_.back().back().push_back(&panel);
    return panel;
}

void Layout::nextColumn() { bands_.back().emplace_back(); }
void Layout::nextBand() { bands_.emplace_back(1); }

Control& Layout::button(std::string_view name, std::string_view caption) {
    auto& button = window_.add(ControlKind::Button, std::string(name), std::string(caption));
    buttons_.push_back(&button);
    return button;
}

double Layout::widthOf(const PanelColumn& column) {
    double width = 0;
    for (const auto* panel : column) {
        width = std::max(width, panel->width());
    }
    return width;
}

double Layout::widthOf(const Band& band) {
    double width = (static_cast<double>(band.size()) + 1) * Margin;
    for (const auto& column : band) {
        width += widthOf(column);
    }
    return width;
}

double Layout::placeBand(const Band& band, double top, double width) {
    // The columns share what the widest band leaves over.
    const double spare = (width - widthOf(band)) / static_cast<double>(band.size());
    double left = Margin;
    double bottom = top;
    for (const auto& column : band) {
        const double columnWidth = widthOf(column) + spare;
        double panelTop = top;
        for (auto* panel : column) {
            panel->place(left, panelTop, columnWidth);
            panelTop += panel->height() + Margin;
        }
        bottom = std::max(bottom, panelTop);
        left += columnWidth + Margin;
    }
    return bottom;
}

void Layout::placeButtons(double top, double width) const {
    double widest = ButtonWidth;
    for (const auto* button : buttons_) {
        widest = std::max(widest, plainWidth(button->caption) + ButtonPadding);
    }
    const auto count = static_cast<double>(buttons_.size());
    double left = (width - count * widest - (count - 1) * Gap) / 2;
    for (auto* button : buttons_) {
        placeAt(*button, left, top, widest, ButtonHeight);
        left += widest + Gap;
    }
}

void Layout::finish() {
    double width = 0;
    for (const auto& band : bands_) {
        width = std::max(width, widthOf(band));
    }
    double top = Margin;
    for (const auto& band : bands_) {
        top = placeBand(band, top, width);
    }
    if (!buttons_.empty()) {
        placeButtons(top + Gap, width);
        top += ButtonHeight + 2 * Gap + Margin;
    }
    window_.bounds.width = Twips{width};
    window_.bounds.height = Twips{top};
}

} // namespace kov
