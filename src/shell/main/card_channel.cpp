#include "shell/main/card_channel.hpp"

#include "core/cards/split_path.hpp"

namespace kov {

std::string CardChannel::openForInput(const std::string& path, PlatformError& error) {
    close();
    auto content = files_.read(path, error);
    if (!error) {
        state_ = State::Input;
        path_ = path;
    }
    return content;
}

void CardChannel::openForOutput(const std::string& path, PlatformError& error) {
    close();
    PlatformError unreadable;
    const auto old = files_.read(path, unreadable);
    if (!unreadable && !old.empty()) {
        files_.rescue(SplitPath(path).name, old);
    }
    files_.truncate(path, error);
    if (!error) {
        state_ = State::Output;
        path_ = path;
    }
}

void CardChannel::write(std::string_view content, PlatformError& error) { files_.write(path_, content, error); }

} // namespace kov
