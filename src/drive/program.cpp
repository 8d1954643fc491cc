#include "drive/program.hpp"

#include "app/composition/program.hpp"

namespace kov::drive {

std::unique_ptr<DrivenProgram> headlessProgram(Services services, const std::string& appPath) {
    auto program = std::make_shared<Program>(services, appPath);
    auto* running = program.get();
    return std::make_unique<DrivenProgram>(
        DrivenProgram{.owner = std::move(program),
                      .desk = running->desk(),
                      .start = [running](const std::string& commandLine) { running->start(commandLine); },
                      .fileDirty = [running] { return running->application().FileDirty; },
                      .hand = handOf(running->desk())});
}

} // namespace kov::drive
