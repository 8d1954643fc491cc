#include "shell/entry/entry_window.hpp"

#include "shell/entry/scale_form.hpp"

#include <utility>

namespace kov {
namespace {

// Where an entry window stands beside the main window.
constexpr Twips BesideLeft{150}, BelowTop{360};
constexpr double PartOfWidth = 0.97, PartOfHeight = 0.9;

} // namespace

EntryWindow::EntryWindow(Application& app, Window& window, const EntryWindowTraits& traits)
    : app_(app), window_(window), traits_(traits) {
    window_.caption = traits.caption;
    window_.helpContext = traits.helpContext;
    window_.bounds = {Twips{}, Twips{}, traits.designWidth, traits.designHeight};
    window_.on.resize = [this] { ScaleForm(app_, window_); };
    window_.on.activate = [this] { app_.desk.setPanel(1, traits_.form); };
    window_.on.unload = [this] { onUnload(); };
}

void EntryWindow::loadStep() {
    app_.desk.setPanel(1, traits_.form);
    window_.oldW = window_.bounds.width;
    window_.oldH = window_.bounds.height;
    if (const auto* main = app_.desk.find("frmMain")) {
        const auto& place = main->bounds;
        window_.bounds = {place.left + BesideLeft, place.top + BelowTop, place.width * PartOfWidth,
                          place.height * PartOfHeight};
    }
    // Also at an unchanged size: the chosen font comes with it.
    if (window_.on.resize) {
        window_.on.resize();
    }
}

void EntryWindow::bindStandardControls() {
    const auto onClick = [this](std::string_view name, std::function<void()> handler) {
        if (auto* control = window_.find(name); control != nullptr && !control->on.click) {
            control->on.click = std::move(handler);
        }
    };
    auto& desk = app_.desk;
    onClick("cmdDone", [this] { done(); });
    onClick("cmdOkay", [this] { done(); });
    onClick("cmdCancel", [this] { cancel(); });
    onClick("cmdHelp", [&desk, context = traits_.helpContext] { desk.services().help.show(HelpContext, context, ""); });
    onClick("MH_Contents", [&desk] { desk.services().help.show(HelpContents, 0, ""); });
    onClick("MH_Search", [&desk] { desk.services().help.show(HelpSearch, 0, ""); });
    onClick("ME_Cut", [&desk] { desk.sendKeys("^X"); });
    onClick("ME_Copy", [&desk] { desk.sendKeys("^C"); });
    onClick("ME_Paste", [&desk] { desk.sendKeys("^V"); });
}

void EntryWindow::bindNavigation(std::string_view button, std::string_view nextWindow) {
    window_.control(button).on.click = [this, &desk = app_.desk, next = std::string(nextWindow)] {
        store();
        if (desk.unload(window_)) {
            desk.show(next);
        }
    };
}

void EntryWindow::store() {
    if (std::exchange(flags.FormChanged, false)) {
        app_.FileDirty = true;
    }
    if (assign) {
        assign();
    }
}

void EntryWindow::done() {
    store();
    app_.desk.unload(window_);
}

void EntryWindow::cancel() {
    flags.Cancelled = true;
    app_.desk.unload(window_);
}

void EntryWindow::onUnload() {
    if (!flags.Cancelled && flags.FormChanged) {
        store();
    }
    if (closing) {
        closing();
    }
    app_.desk.setPanel(1, "");
    app_.desk.setPanel(2, "");
}

} // namespace kov
