#pragma once

#include "drive/program.hpp"
#include "drive/script.hpp"

#include <filesystem>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace kov::drive {

/// Where and how scripts run.
struct RunOptions {
    ProgramFactory factory;
    std::filesystem::path startFolder; ///< relative paths of a script are taken from it; `${dir}`
    std::string appPath;               ///< the program's folder, Windows-1252, without a separator at its end; `${app}`
    bool trace = false;                ///< each line is printed before it runs
    bool confined = false;             ///< nothing outside the start folder is opened
};

/// A script's name as findings give it, and its text.
struct ScriptText {
    std::string name;
    std::string text;
};

/// What came of some scripts.
struct RunResult {
    int passed = 0;
    int failed = 0;
    bool misread = false; ///< one of them can't be parsed; it counts as failed
};

/// What the quoted words of these options' scripts may name.
[[nodiscard]] Places placesOf(const RunOptions& options);

/// Runs one script in a fresh program and prints its findings, `SCRIPT:LINE: what was expected, what was there`. True when
/// there were none.
[[nodiscard]] bool runScript(const Script& script, const RunOptions& options, std::ostream& out);

/// Runs all scripts and closes with `N passed, M failed`.
RunResult runScripts(std::span<const ScriptText> scripts, const RunOptions& options, std::ostream& out);

} // namespace kov::drive
