#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/field.hpp"

#include <span>

namespace kov {

/// "Data Item Counts", `frmCounts`: how many items of each kind the data set holds, for information only.
class Counts {
public:
    Counts(Application& app, Window& window);
    Counts(const Counts&) = delete;
    Counts& operator=(const Counts&) = delete;

    [[nodiscard]] static std::span<const Field> fields();

private:
    void build();
    void load();

    Application& app_;
    Window& window_;
};

} // namespace kov
