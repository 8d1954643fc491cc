#pragma once

#include "platform/grid.hpp"
#include "platform/item_list.hpp"
#include "platform/units.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kov {

class Window;

/// What a control is to the person in front of it.
enum class ControlKind : std::uint8_t {
    Label,
    TextBox,
    Button,
    CheckBox,
    OptionButton,
    List,
    Combo,
    Grid,
    Panel,
    Frame,
    TabStrip,
    Spin,
    Image,
    Drawing,
    Progress,
    Line,
    Menu,
    Timer
};

/// The text of an edit box, with its selection. Lines of a multi-line box end with CR LF.
struct TextPart {
    std::string text;
    int selStart = 0;
    int selLength = 0;
    bool multiLine = false;
    bool fixedPitch = false;
    bool locked = false; ///< shows text but takes none
};

/// A list box; with `multiSelect` several entries can be chosen at a time.
struct ListPart {
    ItemList items;
    bool multiSelect = false;
};

/// A list that drops down. In the `dropDownList` style the text is always one of its entries, else it can be typed too.
struct ComboPart {
    ItemList items;
    TextPart edit;
    bool dropDownList = true;
};

/// The tabs of a tabbed dialog, counted from 0. A control stands on a page by `Control::strip` and `Control::page`.
struct TabPart {
    struct Tab {
        std::string caption;
        bool enabled = true;
    };
    std::vector<Tab> tabs;
    int current = 0;
};

/// How far a long task is.
struct ProgressPart {
    std::int32_t value = 0;
    std::int32_t max = 100;
};

/// A picture from a file beside the program; an empty path shows nothing.
struct ImagePart {
    std::string path;
};

/// Lines, marks and texts that the program has computed, in twips from the control's upper left corner; a view only paints
/// them, in colours that it picks for each tone, so that they can be told apart on its background.
struct DrawingPart {
    enum class Tone : std::uint8_t { Text, Axis, Faint, First, Second, Limit };
    enum class Anchor : std::uint8_t { Left, Center, Right };
    struct Point {
        Twips x;
        Twips y;
    };
    struct Polyline {
        std::vector<Point> points;
        Tone tone = Tone::Axis;
        bool dashed = false;
    };
    /// A small dot on a point of a curve.
    struct Mark {
        Point at;
        Tone tone = Tone::First;
    };
    /// A text whose left end, middle or right end, at half its height, stands at a point.
    struct Label {
        Point at;
        std::string text;
        Anchor anchor = Anchor::Left;
        Tone tone = Tone::Text;
    };
    std::vector<Polyline> lines;
    std::vector<Mark> marks;
    std::vector<Label> labels;
    std::size_t revision = 0; ///< grows with every change, so that a view knows that it is stale
};

/// An entry of a menu, or a menu of its own when `entries` of it exist. A caption of "-" is a separator.
struct MenuPart {
    std::string menu; ///< name of the menu that it stands in; empty for the bar itself
    bool popup = false;
};

/// Fires every `interval` milliseconds while it is on.
struct TimerPart {
    int interval = 0;
    bool on = false;
};

/// Key codes of `Events::keyDown`.
namespace keys {
inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Escape = 27, Space = 32, End = 35, Home = 36, Left = 37, Up = 38,
                     Right = 39, Down = 40, Insert = 45, Delete = 46, F1 = 112, F2 = 113;
inline constexpr int ShiftMask = 1, CtrlMask = 2;
} // namespace keys

/// What a window wants to hear from one of its controls. Only what a person does, and the program's own moves of the focus, are
/// heard; setting a value from the program raises nothing.
struct Events {
    std::function<void()> gotFocus;
    std::function<void()> lostFocus;
    std::function<void()> change; ///< text typed; entry chosen in a drop-down list that can be typed into
    std::function<void()> click;  ///< also: entry chosen in a list, tab chosen, menu entry chosen
    std::function<void()> dblClick;
    std::function<void(int& code, int shift)> keyDown; ///< a code set to 0 goes no further
    std::function<void(int& character)> keyPress;      ///< a character set to 0 goes no further
    std::function<void()> cellChange;                  ///< the current cell of a grid is another one now
    std::function<void(int row)> rightClick;           ///< row under the pointer
    std::function<void()> spinUp;
    std::function<void()> spinDown;
    std::function<void()> tick;
};

/// One control of a window: its state, and what is to happen when a person uses it.
struct Control {
    using Part = std::variant<std::monostate, TextPart, ListPart, ComboPart, Grid, TabPart, ProgressPart, ImagePart,
                              DrawingPart, MenuPart, TimerPart>;

    ControlKind kind = ControlKind::Label;
    std::string name;
    std::optional<int> index; ///< place in a control array
    std::string caption;      ///< with its `&`
    bool visible = true;
    bool enabled = true;
    bool checked = false; ///< check boxes, option buttons
    bool tabStop = true;
    Bounds bounds;             ///< inside the parent, or inside the window
    Control* parent = nullptr; ///< the panel or frame that it stands on
    Control* strip = nullptr;  ///< the tab strip that shows it only on page `page`
    int page = 0;
    /// The focus may come to it while another page is current: its window then makes its page the current one.
    bool turnsPage = false;
    /// Background as red + 256 green + 65536 blue; below 0: the design's.
    std::int32_t backColor = -1;
    std::string fontName; ///< empty: the design font
    int fontSize = 0;     ///< 0: the design size
    std::string tag;
    bool alignRight = false; ///< captions that stand before a box
    Window* window = nullptr;
    Part part;
    Events on;

    // The part of a kind; asking for the part of another kind is a std::bad_variant_access.
    [[nodiscard]] TextPart& text();
    [[nodiscard]] const TextPart& text() const;
    [[nodiscard]] Grid& grid() { return std::get<Grid>(part); }
    [[nodiscard]] const Grid& grid() const { return std::get<Grid>(part); }
    [[nodiscard]] ItemList& items();
    [[nodiscard]] const ItemList& items() const;
    [[nodiscard]] TabPart& tabs() { return std::get<TabPart>(part); }
    [[nodiscard]] const TabPart& tabs() const { return std::get<TabPart>(part); }
    [[nodiscard]] ProgressPart& progress() { return std::get<ProgressPart>(part); }
    [[nodiscard]] ImagePart& image() { return std::get<ImagePart>(part); }
    [[nodiscard]] const ImagePart& image() const { return std::get<ImagePart>(part); }
    [[nodiscard]] DrawingPart& drawing() { return std::get<DrawingPart>(part); }
    [[nodiscard]] const DrawingPart& drawing() const { return std::get<DrawingPart>(part); }
    [[nodiscard]] MenuPart& menu() { return std::get<MenuPart>(part); }
    [[nodiscard]] const MenuPart& menu() const { return std::get<MenuPart>(part); }
    [[nodiscard]] TimerPart& timer() { return std::get<TimerPart>(part); }
    [[nodiscard]] bool hasText() const; ///< a text box, or a combination list that can be typed into

    /// Sets the text from the program: nothing is raised, the cursor goes to the start.
    void setText(std::string_view value);
    /// What a person reads in it: text of a box, current entry of a list.
    [[nodiscard]] std::string shownText() const;
    void selectText(int start, int length);
    /// Itself and all panels that it stands on are visible. The current tab doesn't count.
    [[nodiscard]] bool shown() const;
    /// Itself and all panels that it stands on are enabled.
    [[nodiscard]] bool usable() const;
    /// A person can put the focus on it: its kind takes it, it is shown, usable and, where it stands on a page, that page is
    /// current, or is brought to the front by it.
    [[nodiscard]] bool focusable() const;
    [[nodiscard]] bool onCurrentPage() const;
    /// It stands on a current page, or on one that it brings to the front.
    [[nodiscard]] bool reachable() const;
    /// "tbDgnHr", "Command1(4)".
    [[nodiscard]] std::string label() const;
};

/// Scrolls a grid so far that its current row is whole in sight; a grid without a height is left alone.
void revealCurrentRow(Control& grid);

/// The caption as a person reads it: without the `&` of its key, "&&" being one.
[[nodiscard]] std::string plainCaption(std::string_view caption);

} // namespace kov
