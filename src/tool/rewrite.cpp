#include "core/cards/split_path.hpp"
#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"
#include "tool/commands.hpp"
#include "tool/store_whole.hpp"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace kov::tool {
namespace {

/// Message boxes as lines on standard error. Nobody is asked: the answer is the first button.
class ErrorLines final : public MessageSink {
public:
    Answer show(int /*style*/, const std::string& /*title*/, const std::string& prompt) override {
        for (const char c : prompt) {
            if (c != '\r') {
                std::cerr << c;
            }
        }
        std::cerr << '\n';
        return Answer::Ok;
    }
};

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// The content of a file; none when it can't be opened or read.
std::optional<std::string> contentOf(const std::string& path) {
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file) {
        return std::nullopt;
    }
    std::string content;
    std::error_code unknown;
    const auto size = std::filesystem::file_size(path, unknown);
    content.reserve(unknown ? 0 : static_cast<std::size_t>(size));
    std::string block(std::size_t{1} << 16U, '\0');
    for (std::size_t got = block.size(); got == block.size();) {
        got = std::fread(block.data(), 1, block.size(), file.get());
        content.append(block, 0, got);
    }
    return std::ferror(file.get()) == 0 ? std::optional(std::move(content)) : std::nullopt;
}

int fail(int code, const std::string& message) {
    std::cerr << "kovtool: " << message << '\n';
    return code;
}

int rewrite(const std::string& in, const std::string& out, bool partial) {
    KOVDataSet dataSet;
    NoProgress progress;
    std::size_t size = 0;
    bool done = false;
    {
        const auto content = contentOf(in);
        if (!content) {
            return fail(ExitUsage, "can't open " + in);
        }
        size = content->size();
        CardReader reader(*content);
        ErrorLines messages;
        done = dataSet.ReadFile(reader, progress, messages, SplitPath(in).name);
    } // the text goes before the new one comes, so that a large file isn't held twice beside its model
    if (!done && !partial) {
        return ExitReadFailed;
    }
    // OUT is touched only when its whole content stands: it may be IN, and a failure must leave it alone.
    CardWriter writer(dataSet.lineEnd.empty() ? "\n" : std::string_view(dataSet.lineEnd));
    writer.reserve(2 * size);
    try {
        dataSet.WriteFile(writer, progress);
    } catch (const std::exception& error) {
        return fail(ExitUnhandledFailure, std::string("writing failed: ") + error.what());
    }
    if (!storeWhole(out, writer.content())) {
        return fail(ExitUsage, "can't write " + out);
    }
    return done ? ExitDone : ExitReadFailed;
}

} // namespace

void addRewriteCommand(CLI::App& app, int& exitCode) {
    struct Arguments {
        std::string in;
        std::string out;
        bool partial = false;
    };
    auto arguments = std::make_shared<Arguments>();
    auto* command = app.add_subcommand("rewrite", "Read a card file and write it as the program does");
    command->add_flag("--partial", arguments->partial, "Write what could be read, even when a Form could not");
    command->add_option("IN", arguments->in, "The card file to read")->required();
    command->add_option("OUT", arguments->out, "The card file to write; may be IN")->required();
    command->callback([arguments, &exitCode] { exitCode = rewrite(arguments->in, arguments->out, arguments->partial); });
}

} // namespace kov::tool
