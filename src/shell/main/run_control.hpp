#pragma once

#include "shell/entry/application.hpp"

#include <cstdint>
#include <string>

namespace kov {

/// Starts the simulation on the saved file, waits while the windows stay alive, tells how it ended and shows its listing.
class RunControl {
public:
    explicit RunControl(Application& app) : app_(app) {}

    /// The file must be saved and closed.
    void run();
    /// Starts the batch tool and does not watch it; a failing start is a Failure.
    void startBatch();

private:
    [[nodiscard]] std::int32_t waitFor(std::int32_t process);
    void report(std::int32_t exitCode);
    void showListing(const std::string& inputPath);

    Application& app_;
};

} // namespace kov
