#pragma once

#include "shell/entry/entry_window.hpp"
#include "shell/entry/field.hpp"

#include <span>

namespace kov {

/// "General Data": the weather of Form 1F and the trackway exhaust system of Form 1G.
class General {
public:
    General(Application& app, Window& window);
    General(const General&) = delete;
    General& operator=(const General&) = delete;

    /// In tab order, which is also the order of storing.
    [[nodiscard]] static std::span<const Field> fields();

private:
    void build();
    void load();
    void assign();

    Application& app_;
    Window& window_;
    EntryWindow entry_;
};

} // namespace kov
