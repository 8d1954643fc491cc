#pragma once

#include "platform/desk.hpp"
#include "platform/headless/surroundings.hpp"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kov::test {

/// A desk with surroundings that a test answers, and with windows that tests make up. All events of `watch`ed controls are
/// written down in the order in which they came.
class Workplace {
public:
    Workplace() : surroundings(std::filesystem::temp_directory_path()), desk(surroundings.services()) {}

    /// Opens a window made by the test; it has no logic of its own.
    Window& open(const std::string& name, const std::function<void(Window&)>& fill) {
        desk.registerWindow(name, [fill](Window& window) -> std::shared_ptr<void> {
            fill(window);
            return nullptr;
        });
        return *desk.show(name);
    }

    void watch(Control& control) {
        const auto name = control.label();
        control.on.gotFocus = [this, name] { log.push_back(name + " got focus"); };
        control.on.lostFocus = [this, name] { log.push_back(name + " lost focus"); };
        control.on.change = [this, name] { log.push_back(name + " changed"); };
        control.on.click = [this, name] { log.push_back(name + " clicked"); };
    }

    [[nodiscard]] const std::vector<HeadlessMessages::Box>& boxes() const { return surroundings.messages.boxes(); }

    Surroundings surroundings;
    Desk desk;
    std::vector<std::string> log;
};

using Log = std::vector<std::string>;

} // namespace kov::test
