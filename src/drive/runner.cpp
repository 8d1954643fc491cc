#include "drive/runner.hpp"

#include "drive/stage.hpp"
#include "platform/disk_files.hpp"
#include "platform/windows1252.hpp"

#include <exception>

namespace kov::drive {
namespace {

/// One script on its stage.
class Performance {
public:
    Performance(const Script& script, const RunOptions& options, std::ostream& out)
        : script_(script), trace_(options.trace), out_(out),
          stage_(options.factory, options.startFolder, options.appPath, out) {
        if (options.confined) {
            stage_.around.files.confineTo(options.startFolder);
        }
    }

    bool run() {
        for (const auto& step : script_.steps) {
            if (trace_) {
                print(step.line, step.source);
            }
            const bool goesOn = perform(step);
            reportFindings(step.line);
            noteLines(step.line);
            if (!goesOn) {
                reportFailure();
                return false;
            }
        }
        reportBoxes();
        reportFailure();
        return passed_;
    }

private:
    bool perform(const Step& step) {
        try {
            step.act(stage_);
            return true;
        } catch (const std::exception& error) {
            report(step.line, error.what());
            return false;
        }
    }

    void print(int line, const std::string& text) { out_ << script_.name << ':' << line << ": " << text << std::endl; }

    void report(int line, const std::string& text) {
        passed_ = false;
        print(line, text);
    }

    void reportFindings(int line) {
        for (const auto& finding : stage_.takeFindings()) {
            report(line, finding);
        }
    }

    /// What came up in this line, so that the script's end can name it.
    void noteLines(int line) {
        boxLines_.resize(stage_.around.messages.boxes().size(), line);
        if (!stage_.failure) {
            failureLine_ = 0;
        } else if (failureLine_ == 0) {
            failureLine_ = line;
        }
    }

    void reportBoxes() {
        const auto& boxes = stage_.around.messages.boxes();
        for (auto i = stage_.boxesSeen; i < boxes.size(); ++i) {
            report(boxLines_.at(i), "expected no box, was " + describe(boxes[i]));
        }
    }

    void reportFailure() {
        if (stage_.failure) {
            report(failureLine_, "expected no failure, the program ended: " + utf8OfText(*stage_.failure));
        }
    }

    const Script& script_;
    bool trace_;
    std::ostream& out_;
    Stage stage_;
    std::vector<int> boxLines_;
    int failureLine_ = 0;
    bool passed_ = true;
};

} // namespace

Places placesOf(const RunOptions& options) { return {textOfPath(options.startFolder), options.appPath}; }

bool runScript(const Script& script, const RunOptions& options, std::ostream& out) {
    return Performance(script, options, out).run();
}

RunResult runScripts(std::span<const ScriptText> scripts, const RunOptions& options, std::ostream& out) {
    RunResult result;
    const auto places = placesOf(options);
    for (const auto& text : scripts) {
        const auto script = parseScript(text.name, text.text, places);
        for (const auto& finding : script.findings) {
            out << script.name << ':' << finding.line << ": " << finding.what << '\n';
        }
        result.misread = result.misread || !script.findings.empty();
        const bool passed = script.findings.empty() && runScript(script, options, out);
        ++(passed ? result.passed : result.failed);
    }
    out << result.passed << " passed, " << result.failed << " failed\n" << std::flush;
    return result;
}

} // namespace kov::drive
