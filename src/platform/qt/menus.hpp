#pragma once

#include "platform/qt/control_view.hpp"

#include <map>

class QAction;
class QMenu;
class QMenuBar;

namespace kov::qt {

/// The menus of a window, made from its menu controls and kept alike with them.
class Menus {
public:
    Menus(Ground& ground, QMenuBar& bar) : ground_(&ground), bar_(&bar) {}
    void sync(const Window& window);
    /// Opens a menu at the pointer.
    void popUp(Control& menu);
    [[nodiscard]] bool empty() const { return actions_.empty(); }

private:
    QAction& actionOf(Control& entry);
    QMenu& menuOf(const Window& window, const std::string& name);

    Ground* ground_;
    QMenuBar* bar_;
    std::map<const Control*, QAction*> actions_;
    std::map<std::string, QMenu*> menus_;
};

} // namespace kov::qt
