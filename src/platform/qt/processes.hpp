#pragma once

#include "platform/services.hpp"

#include <functional>
#include <map>
#include <memory>

namespace kov::qt {

class ChildProcess;

/// Programs of the host, started without a shell. They begin in the program's current folder and outlive the program.
class QtProcesses final : public Processes {
public:
    explicit QtProcesses(Files& files);
    ~QtProcesses() override;
    QtProcesses(const QtProcesses&) = delete;
    QtProcesses& operator=(const QtProcesses&) = delete;

    std::int32_t start(const std::string& commandLine, int style, PlatformError& error) override;
    std::int32_t exitCode(std::int32_t process) override;
    void close(std::int32_t process) override;
    void wait(int milliseconds) override;

    /// The program has ended meanwhile: a wait is over.
    std::function<bool()> ended;
    /// Runs the wait; a view lets the person work meanwhile.
    std::function<void(const std::function<void()>&)> during;

private:
    Files* files_;
    std::map<std::int32_t, std::unique_ptr<ChildProcess>> children_; // null for what has no process of its own
    std::int32_t last_ = 0;
};

} // namespace kov::qt
