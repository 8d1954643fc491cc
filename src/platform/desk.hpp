#pragma once

#include "platform/services.hpp"
#include "platform/window.hpp"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// The keys that a person presses which are no characters.
enum class Key : std::uint8_t {
    Enter,
    Tab,
    ShiftTab,
    Up,
    Down,
    Left,
    Right,
    Insert,
    Delete,
    Backspace,
    Escape,
    Home,
    End,
    F1,
    F2,
    CtrlX,
    CtrlC,
    CtrlV
};

/// The open windows, the one focus, the status panels, the pointer and the timers. A person's moves and the program's own go
/// through here, so that their events have one order: the control that loses the focus hears it first; if it takes the focus
/// back, the move ends there; else the new control hears that it got the focus, then the click, key or change comes.
/// A failure that nobody handles inside a person's act ends the program.
class Desk {
public:
    /// Fills a new window and runs its load step; what it returns is the window's logic and lives as long as the window.
    using Factory = std::function<std::shared_ptr<void>(Window&)>;

    explicit Desk(Services services) : services_(services) {}
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    ~Desk() = default;

    [[nodiscard]] Services& services() { return services_; }

    // Windows. A name without a factory is not opened and says nothing.
    void registerWindow(const std::string& name, Factory factory) { factories_[name] = std::move(factory); }
    /// Opens the window, or brings it to the front when it is open; null when nobody makes windows of that name.
    Window* show(const std::string& name, bool modal = false);
    [[nodiscard]] Window* find(std::string_view name) const;
    /// From back to front.
    [[nodiscard]] std::vector<Window*> windows() const;
    [[nodiscard]] Window* front() const;
    void bringToFront(Window& window);
    /// Unloads, and the focus goes on to the window in front then; false when the window's query keeps it open.
    bool unload(Window& window);
    /// The focused control of the window hears that it loses the focus; false when it took it back.
    bool leave(Window& window);
    /// False while a modal window stands before it.
    [[nodiscard]] bool reachable(const Window& window) const;

    // The focus.
    [[nodiscard]] Control* focus() const { return focus_; }
    /// False when it can't have the focus, or another control has it afterwards.
    bool setFocus(Control& control);

    // What a person does. An act that can't be carried out gives false and does nothing.
    bool click(Control& control);
    bool doubleClick(Control& control);
    bool rightClick(Control& control, int row);
    bool cell(Control& grid, int row, int col);
    bool select(Control& list, std::span<const int> entries);
    bool chooseTab(Control& strip, int tab);
    bool spin(Control& button, bool up);
    bool menu(Control& entry);
    bool focusOn(Control& control);
    bool type(std::string_view text);
    bool key(Key key);
    /// The text of a box as a whole, where the view let the toolkit edit it (input methods, undo, drag and drop).
    bool edit(Control& box, std::string_view text, int cursor);
    bool close(Window& window);
    bool resize(Window& window, Twips width, Twips height);
    bool minimize(Window& window);
    void pass(int milliseconds);
    void tick(Control& timer);
    /// Runs whatever came from outside; a failure inside ends the program here, also when a message box or a wait further out
    /// is still open. A view wraps every event of its toolkit in it.
    void act(const std::function<void()>& action);

    // The program's own moves.
    /// Keystrokes to the focused control, at once: "^X", "^C", "^V", "{right}", "{INSERT}", "{DEL}", or characters.
    void sendKeys(std::string_view keystrokes);
    /// Moves a grid to a cell, which is in sight then; it hears of it when that is another cell.
    void moveCell(Control& grid, int row, int col);

    // Shared surroundings.
    /// Status panels 1 to 3.
    void setPanel(int number, std::string_view text);
    [[nodiscard]] const std::string& panel(int number) const;
    void setBusy(bool busy);
    [[nodiscard]] bool busy() const { return busy_; }
    void beep();
    /// A beep has sounded since this was asked the last time.
    [[nodiscard]] bool takeBeep();
    [[nodiscard]] Twips screenWidth() const { return screenWidth_; }
    [[nodiscard]] Twips screenHeight() const { return screenHeight_; }
    void setScreen(Twips width, Twips height);
    /// A view shows what has changed so far (the progress bar in the middle of a long task).
    void repaint();

    // The end.
    /// Closes everything at once; nothing is asked.
    void end();
    [[nodiscard]] bool ended() const { return ended_; }
    /// What failed, when an unhandled failure ended the program.
    [[nodiscard]] const std::optional<std::string>& failure() const { return failure_; }
    /// Called with what failed, before everything closes; gives the rescue copy's path or nothing.
    std::function<std::string(const std::string& what)> onFailure;
    /// Called with the notice of a failure.
    std::function<void(const std::string& notice)> onNotice;
    /// Called when something may look different now.
    std::function<void()> onChanged;
    /// Called when a beep sounds.
    std::function<void()> onBeep;

private:
    struct OpenWindow {
        std::unique_ptr<Window> window;
        std::shared_ptr<void> logic;
    };

    /// Windows that go meanwhile are kept until the last handler has returned.
    class Keep {
    public:
        explicit Keep(Desk& desk) : desk_(desk) { ++desk_.depth_; }
        Keep(const Keep&) = delete;
        Keep& operator=(const Keep&) = delete;
        ~Keep() { desk_.release(); }

    private:
        Desk& desk_;
    };

    bool attempt(const std::function<bool()>& action);
    void release();
    void leaveAct();
    void fail(const std::string& what);
    void focusFirst(Window& window);
    void focusFront();
    void takeAway(Window& window);
    [[nodiscard]] std::vector<OpenWindow>::iterator place(const Window& window);
    void activate(Window& window);
    void choose(Control& list, int entry);
    void check(Control& button);
    bool press(Control& control, int code, int shift);
    void pressCharacter(Control& control, int character);
    void enter(Control& control);
    void editKey(Control& control, Key key);
    void arrow(Control& control, Key key);
    void moveTab(bool backwards);
    /// The page of the window in front, at that control; of a window without a page the contents.
    void helpOn(const Control& control);
    void clipboardKey(Control& control, Key key);

    Services services_;
    std::map<std::string, Factory, std::less<>> factories_;
    std::vector<OpenWindow> open_;      // back to front
    std::vector<OpenWindow> graveyard_; // unloaded while one of their handlers may still run
    Control* focus_ = nullptr;
    bool focusHeard_ = false; // the focused control has heard that it got the focus
    unsigned focusMoves_ = 0;
    std::map<Control*, int> elapsed_; // milliseconds since a timer was switched on or fired
    std::array<std::string, 3> panels_;
    bool busy_ = false;
    bool beeped_ = false;
    bool ended_ = false;
    std::optional<std::string> failure_;
    int depth_ = 0;
    Twips screenWidth_{19200};
    Twips screenHeight_{14400};
};

} // namespace kov
