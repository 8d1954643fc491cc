#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/field_cycle.hpp"

#include <functional>
#include <string>
#include <string_view>

namespace kov {

/// What tells one entry window from another.
struct EntryWindowTraits {
    std::string_view caption;
    std::string_view form; ///< its Form, for panel 1 of the status bar
    int helpContext = 0;
    Twips designWidth;
    Twips designHeight;
};

/// What all entry windows share: OK, Cancel and Help, the edit and help menus, the panels, the scaling, and the moment of
/// storing. The window makes its controls first; those of the usual names (`cmdDone`, `cmdOkay`, `cmdCancel`, `cmdHelp`,
/// `ME_Cut`, `ME_Copy`, `ME_Paste`, `MH_Contents`, `MH_Search`) are wired here when they are there.
class EntryWindow {
public:
    EntryWindow(Application& app, Window& window, const EntryWindowTraits& traits);
    EntryWindow(const EntryWindow&) = delete;
    EntryWindow& operator=(const EntryWindow&) = delete;

    EntryFlags flags;
    /// Assigns the entries to the model. `store` calls it after the flags were seen to.
    std::function<void()> assign;
    /// More to be done when the window goes, before the panels are cleared.
    std::function<void()> closing;

    /// Panel 1, the tags, and the place beside the main window, which scales the controls the first time.
    void loadStep();
    /// Wires the controls of the usual names.
    void bindStandardControls();
    /// A button that acts as OK and opens the next window.
    void bindNavigation(std::string_view button, std::string_view nextWindow);
    /// The store routine: marks the file as changed when the window was, and assigns the entries.
    void store();
    void done();
    void cancel();

private:
    void onUnload();

    Application& app_;
    Window& window_;
    EntryWindowTraits traits_;
};

} // namespace kov
