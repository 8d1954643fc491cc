#pragma once

#include "platform/controls.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// What a window's logic wants to hear about the window as a whole.
struct WindowEvents {
    std::function<void(bool& cancel)> queryUnload; ///< the window is about to go; setting `cancel` keeps it
    std::function<void()> unload;                  ///< it goes
    std::function<void()> resize;                  ///< it has another size now (or was moved by its load step)
    std::function<void()> activate;                ///< it has come to the front
};

/// A top-level window: its controls in tab order, its place, and two tags that hold the size it was last scaled to.
class Window {
public:
    explicit Window(std::string name) : name_(std::move(name)) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }

    std::string caption;
    Bounds bounds;
    bool minimized = false;
    bool topmost = false; ///< above all others, neither moved nor resized
    bool resizable = true;
    bool modal = false;
    int helpContext = 0;
    Twips oldW;
    Twips oldH;
    Control* activeControl = nullptr; ///< has the focus while the window is in front
    WindowEvents on;

    /// Adds a control at the end of the tab order, with the part that its kind needs.
    Control& add(ControlKind kind, std::string controlName, std::string controlCaption = {},
                 std::optional<int> index = std::nullopt);
    /// None of that name is a null pointer; the name of a control array without an index finds its first element.
    [[nodiscard]] Control* find(std::string_view controlName, std::optional<int> index = std::nullopt) const;
    /// The same, but a control that isn't there is a std::out_of_range.
    [[nodiscard]] Control& control(std::string_view controlName, std::optional<int> index = std::nullopt) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
    /// Changes the place and size and tells the window when the size is another one.
    void moveTo(const Bounds& place);
    /// The control that Tab, or Shift Tab, goes to; null when none can have the focus.
    [[nodiscard]] Control* nextInTabOrder(const Control* from, bool backwards) const;

private:
    std::string name_;
    std::vector<std::unique_ptr<Control>> controls_;
};

} // namespace kov
