#pragma once

#include "platform/services.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace kov {

/// File number 1, the one channel of the card file: closed, open for input after a load, open for output after a save.
/// Reading takes the whole content, writing gives it back and syncs it to the disc.
class CardChannel {
public:
    explicit CardChannel(Files& files) : files_(files) {}

    enum class State : std::uint8_t { Closed, Input, Output };
    [[nodiscard]] State state() const { return state_; }

    /// The content of the file; an error leaves the channel closed.
    [[nodiscard]] std::string openForInput(const std::string& path, PlatformError& error);
    /// The old content is kept as a rescue copy, and is gone from the file from this moment.
    void openForOutput(const std::string& path, PlatformError& error);
    void write(std::string_view content, PlatformError& error);
    void close() { state_ = State::Closed; }

private:
    Files& files_;
    State state_ = State::Closed;
    std::string path_;
};

} // namespace kov
