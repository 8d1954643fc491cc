#pragma once

#include "platform/services.hpp"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kov {

/// Programs that are never really started: a queue says what becomes of each. One that nothing is queued for succeeds and has
/// exited with code 0.
class HeadlessProcesses final : public Processes {
public:
    struct Start {
        std::string commandLine; ///< as the logic put it together
        int style = 0;
    };

    std::int32_t start(const std::string& commandLine, int style, PlatformError& error) override;
    std::int32_t exitCode(std::int32_t process) override;
    void close(std::int32_t process) override { running_.erase(process); }
    void wait(int milliseconds) override;

    /// The next started program is still running for so many polls, then it has exited with that code.
    void queueExit(std::int32_t code, int polls);
    /// The next start records that error.
    void queueError(const PlatformError& error);

    /// All starts so far, also failed ones, the oldest first.
    [[nodiscard]] const std::vector<Start>& starts() const { return starts_; }
    /// Lets simulated time go by.
    std::function<void(int milliseconds)> onWait;

private:
    struct Fate {
        PlatformError error;
        std::int32_t code = 0;
        int polls = 0;
    };
    std::deque<Fate> queue_;
    std::map<std::int32_t, Fate> running_;
    std::vector<Start> starts_;
    std::int32_t last_ = 0;
};

} // namespace kov
