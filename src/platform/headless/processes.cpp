#include "platform/headless/processes.hpp"

#include <utility>

namespace kov {

std::int32_t HeadlessProcesses::start(const std::string& commandLine, int style, PlatformError& error) {
    starts_.push_back({commandLine, style});
    Fate fate;
    if (!queue_.empty()) {
        fate = std::move(queue_.front());
        queue_.pop_front();
    }
    error = fate.error;
    if (error) {
        return 0;
    }
    running_[++last_] = fate;
    return last_;
}

std::int32_t HeadlessProcesses::exitCode(std::int32_t process) {
    const auto found = running_.find(process);
    if (found == running_.end()) {
        return 0;
    }
    auto& fate = found->second;
    if (fate.polls > 0) {
        --fate.polls;
        return StillActive;
    }
    return fate.code;
}

void HeadlessProcesses::wait(int milliseconds) {
    if (onWait) {
        onWait(milliseconds);
    }
}

void HeadlessProcesses::queueExit(std::int32_t code, int polls) { queue_.push_back({{}, code, polls}); }
void HeadlessProcesses::queueError(const PlatformError& error) { queue_.push_back({error, 0, 0}); }

} // namespace kov
