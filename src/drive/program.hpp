#pragma once

#include "drive/hand.hpp"
#include "platform/services.hpp"

#include <functional>
#include <memory>
#include <string>

namespace kov::drive {

/// A program under a script: its desk, its start routine, and the hand that works it.
struct DrivenProgram {
    std::shared_ptr<void> owner; ///< keeps the desk alive
    Desk& desk;
    std::function<void(const std::string& commandLine)> start;
    std::function<bool()> fileDirty;
    Hand hand;
};

/// Makes a program that has not been started yet. The services outlive it; `appPath` is its folder, without a separator at its
/// end. A script that starts the program again after its end gets another one, with the same services.
using ProgramFactory = std::function<std::unique_ptr<DrivenProgram>(Services services, const std::string& appPath)>;

/// The whole program, worked on the headless desk.
[[nodiscard]] std::unique_ptr<DrivenProgram> headlessProgram(Services services, const std::string& appPath);

} // namespace kov::drive
