#include "shell/main/run_control.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"
#include "shell/main/run_outcome.hpp"

namespace kov {
namespace {

constexpr int FocusedWindow = 1, UnfocusedWindow = 4;
constexpr int PollMilliseconds = 2000;
constexpr int YesNoButtons = 4;

} // namespace

void RunControl::run() {
    auto& processes = app_.desk.services().processes;
    const std::string path = app_.current.KOVName;
    const std::string commandLine = app_.AppPath + "\\kov41.exe \"" + path + "\"";
    app_.desk.setBusy(true);
    PlatformError error;
    const auto process = processes.start(commandLine, UnfocusedWindow, error);
    if (error) {
        app_.messages().show(0, "",
                             "Error Number" + plainNumber(std::int32_t{error.number}) + "\r\n" + error.description +
                                 "\r\nExecuting \r\n" + commandLine);
    } else {
        const auto code = waitFor(process);
        if (app_.desk.ended()) {
            return; // the main window was closed meanwhile; the run goes on alone
        }
        report(code);
    }
    app_.desk.setBusy(false);
}

std::int32_t RunControl::waitFor(std::int32_t process) {
    auto& processes = app_.desk.services().processes;
    std::int32_t code = StillActive;
    do {
        code = processes.exitCode(process);
        processes.wait(PollMilliseconds);
    } while (code == StillActive && !app_.desk.ended());
    processes.close(process);
    return code;
}

void RunControl::report(std::int32_t exitCode) {
    const std::string path = app_.current.KOVName;
    const auto outcome = runOutcome(exitCode, path);
    if (app_.messages().show(outcome.icon + YesNoButtons, "Run Status", outcome.message + "\r\nReview Listing?") ==
        Answer::Yes) {
        showListing(path);
    }
}

void RunControl::showListing(const std::string& inputPath) {
    const auto names = listingFiles(inputPath);
    auto& services = app_.desk.services();
    // A run that died before formatting its listing leaves the temporary file: that is the one to see.
    const auto& shown = services.files.canOpen(names.temporary) ? names.temporary : names.listing;
    PlatformError ignored;
    services.processes.start("notepad " + shown, FocusedWindow, ignored);
}

void RunControl::startBatch() {
    PlatformError error;
    app_.desk.services().processes.start("kovbatch.exe", FocusedWindow, error);
    if (error) {
        throw Failure(error.description);
    }
}

} // namespace kov
