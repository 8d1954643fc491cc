#pragma once

#include "platform/disk_files.hpp"
#include "platform/headless/dialogs.hpp"
#include "platform/headless/messages.hpp"
#include "platform/headless/printer.hpp"
#include "platform/headless/processes.hpp"
#include "platform/headless/stores.hpp"

namespace kov {

/// All that a program needs of its surroundings, with no screen and nobody in front of it; a script or a test answers.
struct Surroundings {
    explicit Surroundings(const std::filesystem::path& startFolder) : files(startFolder) {}

    HeadlessMessages messages;
    HeadlessDialogs dialogs;
    HeadlessClipboard clipboard;
    HeadlessSettings settings;
    HeadlessProcesses processes;
    HeadlessPrinter printer;
    HeadlessHelp help;
    DiskFiles files;

    [[nodiscard]] Services services() { return {messages, dialogs, clipboard, settings, processes, printer, help, files}; }
};

} // namespace kov
