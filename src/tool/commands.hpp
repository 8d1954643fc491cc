#pragma once

#include <CLI/CLI.hpp>

namespace kov::tool {

/// The exit codes of every command.
constexpr int ExitDone = 0;
constexpr int ExitReadFailed = 1;       ///< a Form could not be read
constexpr int ExitUsage = 2;            ///< wrong usage, or a file that can't be opened or written
constexpr int ExitUnhandledFailure = 3; ///< writing ended in a failure that nobody handles

/// Adds `rewrite [--partial] IN OUT`: reads a card file and writes it as the program does. `exitCode` is set when the command
/// has run.
void addRewriteCommand(CLI::App& app, int& exitCode);
/// Adds `drive [--trace] SCRIPT...`: runs drive scripts on the headless desk.
void addDriveCommand(CLI::App& app, int& exitCode);

} // namespace kov::tool
