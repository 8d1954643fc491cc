#pragma once

#include "platform/window.hpp"
#include "shell/entry/field.hpp"

#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// A grid with the two boxes that belong to it, in tab order.
struct GridControls {
    Control& grid;
    Control& overlay; ///< laid over the cell that is being edited
    Control& dummy;   ///< tiny stop behind the overlay in the tab order
};

/// One framed panel of a window: rows of caption, box and unit, one below the other. Captions stand right-aligned before their
/// boxes and are called "lbl" and the name of the box without its prefix (`lblDBAmb` of `tbDBAmb`); a unit is called "unit"
/// and the same. Places are known when the layout is finished.
class LayoutPanel {
public:
    LayoutPanel(Window& window, std::string_view name, std::string_view title, int captionCharacters);

    [[nodiscard]] Control& frame() { return frame_; }
    /// Caption, box and unit of a field; a check box bears its caption itself. A number's box takes its ten columns, a text's
    /// is as wide as the widest box of the panel.
    Control& field(const Field& field);
    /// Caption and drop-down list, as wide as its longest entry.
    Control& list(const Field& field, std::span<const std::string_view> entries);
    /// Several boxes side by side behind one caption; their own captions are not shown, the unit is that of the first.
    void boxes(std::string_view caption, std::span<const Field> fields);
    /// Headings over the boxes of the rows below, called `name`(0) and so on.
    void headings(std::string_view name, std::initializer_list<std::string_view> captions);
    /// A text as wide as the panel.
    Control& note(std::string_view name, std::string_view text);
    /// A button of its own, where the boxes begin.
    Control& button(std::string_view name, std::string_view caption);
    /// A control that spans the panel: an option button, a picture, a drawing.
    Control& area(ControlKind kind, std::string_view name, std::string_view caption, double width, double height,
                  std::optional<int> index = std::nullopt);
    /// A grid under one caption for each column ("lbl" and its name without the prefix, from 0), with an overlay and `Dummy`.
    GridControls grid(std::string_view name, std::span<const Column> columns, int visibleRows,
                      std::string_view overlay = "gtext", std::string_view dummy = "Dummy");

    // For the layout: the least size, and the place with a width that may be larger.
    [[nodiscard]] double width() const;
    [[nodiscard]] double height() const;
    void place(double left, double top, double width);

private:
    struct Row {
        Control* caption = nullptr;
        std::vector<Control*> boxes;
        Control* unit = nullptr;
        double boxWidth = 0;
        double height = 0;
        bool widest = false;     ///< as wide as the widest box of the panel
        bool wholeWidth = false; ///< what stands in `boxes` has its place in the row already, and spans the panel
    };

    Control& add(ControlKind kind, std::string name, std::string_view caption);
    Control* caption(std::string_view control, std::string_view text);
    Control* unit(std::string_view control, std::string_view text);
    [[nodiscard]] double rowWidth(const Row& row) const;
    [[nodiscard]] double widestBox() const;
    void placeRow(const Row& row, double top, double inner) const;

    Window& window_;
    Control& frame_;
    int captionCharacters_;
    double captionWidth_ = 0;
    double unitWidth_ = 0;
    std::vector<Row> rows_;
};

/// Places all controls of an entry window, in twips: panels one below the other in columns, columns side by side in bands,
/// bands one below the other, a row of buttons at the bottom. Controls are made on the way, so the order of the calls is the
/// tab order. The design size should stay below 9210 by 6180, the size that an entry window opens with: then its controls only
/// grow.
class Layout {
public:
    explicit Layout(Window& window) : window_(window) {}
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;

    /// Captions longer than `captionCharacters` take several lines.
    LayoutPanel& panel(std::string_view name, std::string_view title, int captionCharacters = 24);
    /// The next panel begins a column to the right.
    void nextColumn();
    /// The next panel begins below everything so far.
    void nextBand();
    /// A button of the bottom row.
    Control& button(std::string_view name, std::string_view caption);
    /// Places everything and gives the window its design size.
    void finish();

private:
    using PanelColumn = std::vector<LayoutPanel*>;
    using Band = std::vector<PanelColumn>;

    [[nodiscard]] static double widthOf(const PanelColumn& column);
    [[nodiscard]] static double widthOf(const Band& band);
    [[nodiscard]] static double placeBand(const Band& band, double top, double width);
    void placeButtons(double top, double width) const;

    Window& window_;
    std::vector<std::unique_ptr<LayoutPanel>> panels_;
    std::vector<Band> bands_{Band(1)};
    std::vector<Control*> buttons_;
};

} // namespace kov
