#pragma once

#include "platform/qt/help/help_window.hpp"
#include "platform/services.hpp"

#include <QString>

#include <functional>
#include <memory>

namespace kov::qt {

/// The help pages in a window of their own. The viewer's library and the compiled collection, which stands for the help file
/// KOVIN.HLP beside the program, are looked for when help is asked for the first time.
class QtHelpViewer final : public HelpViewer {
public:
    QtHelpViewer();
    ~QtHelpViewer() override;
    QtHelpViewer(const QtHelpViewer&) = delete;
    QtHelpViewer& operator=(const QtHelpViewer&) = delete;

    /// For a context call, the key is the control that help is wanted for.
    void show(int command, int context, const std::string& key) override;

    /// Called before a box stands in front of the windows.
    std::function<void()> beforeBox;
    /// The viewer, null until it was asked for or when its parts are missing.
    [[nodiscard]] HelpWindow* window() const { return window_.get(); }

private:
    [[nodiscard]] bool load();

    std::unique_ptr<HelpWindow> window_;
};

} // namespace kov::qt
