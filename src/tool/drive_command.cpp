#include "drive/runner.hpp"
#include "platform/disk_files.hpp"
#include "tool/commands.hpp"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace kov::tool {
namespace {

namespace fs = std::filesystem;

constexpr const char* StandardInput = "-";
constexpr int ExitScriptFailed = 1;

/// The folder that this program lies in; the simulation and the pictures are looked for beside it.
std::string programFolder() {
    std::error_code unknown;
    const auto self = fs::read_symlink("/proc/self/exe", unknown);
    return textOfPath(unknown ? fs::current_path() : self.parent_path());
}

std::optional<std::string> contentOf(const std::string& path) {
    if (path == StandardInput) {
        return std::string(std::istreambuf_iterator<char>(std::cin), {});
    }
    std::error_code ignored;
    std::ifstream file(path, std::ios::binary);
    if (!file || fs::is_directory(path, ignored)) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

int drive(const std::vector<std::string>& paths, bool trace) {
    std::vector<drive::ScriptText> scripts;
    for (const auto& path : paths) {
        auto content = contentOf(path);
        if (!content) {
            std::cerr << "kovtool: can't open " << path << '\n';
            return ExitUsage;
        }
        scripts.push_back({path, std::move(*content)});
    }
    drive::RunOptions options;
    options.factory = drive::headlessProgram;
    options.startFolder = fs::current_path();
    options.appPath = programFolder();
    options.trace = trace;
    const auto result = drive::runScripts(scripts, options, std::cout);
    if (result.misread) {
        return ExitUsage;
    }
    return result.failed > 0 ? ExitScriptFailed : ExitDone;
}

} // namespace

void addDriveCommand(CLI::App& app, int& exitCode) {
    struct Arguments {
        std::vector<std::string> scripts;
        bool trace = false;
    };
    auto arguments = std::make_shared<Arguments>();
    auto* command = app.add_subcommand("drive", "Run drive scripts on the headless desk");
    command->add_flag("--trace", arguments->trace, "Print every line before it runs");
    command->add_option("SCRIPT", arguments->scripts, "A drive script; - is standard input")->required();
    command->callback([arguments, &exitCode] { exitCode = drive(arguments->scripts, arguments->trace); });
}

} // namespace kov::tool
