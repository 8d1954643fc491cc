#pragma once

#include "core/cards/sinks.hpp"

#include <functional>

namespace kov::qt {

/// Message boxes in real. A box without a title bears the program's name.
class QtMessages final : public MessageSink {
public:
    Answer show(int style, const std::string& title, const std::string& prompt) override;
    /// Called before a box opens, so that the windows below it show what has happened so far.
    std::function<void()> beforeBox;
};

} // namespace kov::qt
