#include "core/cards/split_path.hpp"
#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"
#include "tool/commands.hpp"
#include "tool/store_whole.hpp"

#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <string_view>
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

/// Opens a file for reading; none when it can't be read at all. A folder can be opened like a file, so a first byte is tried.
File openToRead(const std::string& path) {
    File file(std::fopen(path.c_str(), "rb"));
    if (file) {
        static_cast<void>(std::ungetc(std::fgetc(file.get()), file.get()));
        if (std::ferror(file.get()) != 0) {
            file.reset();
        }
    }
    return file;
}

/// Writes the data set, handing each piece to the sink.
void write(KOVDataSet& dataSet, CardWriter::Sink sink) {
    CardWriter writer(dataSet.lineEnd.empty() ? "\n" : std::string_view(dataSet.lineEnd), std::move(sink));
    NoProgress progress;
    dataSet.WriteFile(writer, progress);
    writer.flush();
}

int fail(int code, const std::string& message) {
    std::cerr << "kovtool: " << message << '\n';
    return code;
}

int rewrite(const std::string& in, const std::string& out, bool partial) {
    KOVDataSet dataSet;
    bool done = false;
    {
        const File file = openToRead(in);
        if (!file) {
            return fail(ExitUsage, "can't open " + in);
        }
        CardReader reader([&](std::span<char> bytes) { return std::fread(bytes.data(), 1, bytes.size(), file.get()); });
        NoProgress progress;
        ErrorLines messages;
        done = dataSet.ReadFile(reader, progress, messages, SplitPath(in).name);
        if (std::ferror(file.get()) != 0) {
            return fail(ExitUsage, "can't read " + in);
        }
    }
    if (!done && !partial) {
        return ExitReadFailed;
    }
    // OUT is touched only when it is known that all can be written: it may be IN, and a failure must leave it alone.
    try {
        write(dataSet, [](std::string_view) {});
    } catch (const std::exception& error) {
        return fail(ExitUnhandledFailure, std::string("writing failed: ") + error.what());
    }
    if (!storeWhole(out, [&](const CardWriter::Sink& put) { write(dataSet, put); })) {
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
