#include "platform/qt/menus.hpp"

#include "platform/qt/text_codec.hpp"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>

namespace kov::qt {

QMenu& Menus::menuOf(const Window& window, const std::string& name) {
    const auto found = menus_.find(name);
    if (found != menus_.end()) {
        return *found->second;
    }
    auto* menu = new QMenu(bar_);
    menu->setObjectName(toQt(name));
    menus_.emplace(name, menu);
    if (auto* owner = window.find(name)) {
        actionOf(*owner).setMenu(menu);
    }
    return *menu;
}

QAction& Menus::actionOf(Control& entry) {
    const auto found = actions_.find(&entry);
    if (found != actions_.end()) {
        return *found->second;
    }
    auto* action = new QAction(bar_);
    action->setObjectName(controlLabel(entry));
    action->setMenuRole(QAction::NoRole);
    actions_.emplace(&entry, action);
    QObject::connect(action, &QAction::triggered, action,
                     [ground = ground_, control = &entry] { ground->act([&] { ground->desk.menu(*control); }); });
    const auto& menu = entry.menu().menu;
    if (menu.empty()) {
        bar_->addAction(action);
    } else {
        menuOf(*entry.window, menu).addAction(action);
    }
    return *action;
}

void Menus::sync(const Window& window) {
    for (const auto& control : window.controls()) {
        if (control->kind != ControlKind::Menu) {
            continue;
        }
        auto& action = actionOf(*control);
        const auto caption = toQt(control->caption);
        action.setSeparator(control->caption == "-");
        if (action.text() != caption) {
            action.setText(caption);
        }
        action.setEnabled(control->enabled);
        action.setVisible(control->visible);
        action.setChecked(control->checked);
    }
}

void Menus::popUp(Control& menu) {
    if (const auto found = menus_.find(menu.name); found != menus_.end()) {
        found->second->popup(QCursor::pos());
    }
}

} // namespace kov::qt
