#include "drive/stage.hpp"

#include "platform/windows1252.hpp"

#include <random>
#include <system_error>
#include <utility>

namespace kov::drive {
namespace {

namespace fs = std::filesystem;

/// A folder of the script's own for rescue copies; it is made with the first of them.
fs::path ownFolder() {
    std::random_device random;
    std::error_code none;
    auto folder = fs::temp_directory_path(none);
    return folder / ("kovin-drive-" + std::to_string(random()) + "-" + std::to_string(random()));
}

std::string yesNo(bool value) { return value ? "yes" : "no"; }

} // namespace

Stage::Stage(ProgramFactory factory, const fs::path& startFolder, std::string appPath, std::ostream& output)
    : around(startFolder), out(output), factory_(std::move(factory)), appPath_(std::move(appPath)), rescueFolder_(ownFolder()) {
    around.files.setRescueFolder(rescueFolder_);
    around.processes.onWait = [this](int milliseconds) {
        if (program_) {
            program_->desk.pass(milliseconds);
        }
    };
}

Stage::~Stage() {
    program_.reset();
    std::error_code ignored;
    fs::remove_all(rescueFolder_, ignored);
}

void Stage::start(const std::string& commandLine) {
    if (failure) {
        findings_.push_back("expected no failure, the program ended: " + utf8OfText(*std::exchange(failure, std::nullopt)));
    }
    failureNoted_ = false;
    program_.reset();
    program_ = factory_(around.services(), appPath_);
    program_->start(commandLine);
    noteFailure();
}

DrivenProgram& Stage::program() {
    if (!program_) {
        throw CannotRun("the program has not been started");
    }
    return *program_;
}

Window* Stage::findWindow(const std::string& name) { return program_ ? program_->desk.find(name) : nullptr; }

Window& Stage::window(const Target& target) {
    static_cast<void>(program());
    auto* found = findWindow(target.window);
    if (found == nullptr) {
        throw CannotRun("no window " + target.window + " is open");
    }
    return *found;
}

Control& Stage::control(const Target& target) {
    auto* found = window(target).find(target.control, target.index);
    if (found == nullptr) {
        throw CannotRun("no control " + target.text());
    }
    return *found;
}

void Stage::noteFailure() {
    if (program_ && program_->desk.failure() && !failureNoted_) {
        failureNoted_ = true;
        failure = program_->desk.failure();
    }
}

void Stage::carriedOut(bool done, const std::string& otherwise) {
    const bool before = failureNoted_;
    noteFailure();
    if (!done && before == failureNoted_) {
        throw CannotRun(otherwise);
    }
}

void Stage::expect(bool met, const std::string& expected, const std::string& was) {
    if (!met) {
        findings_.push_back("expected " + expected + ", was " + was);
    }
}

void Stage::expectText(const std::string& about, const std::string& expected, const std::string& was) {
    expect(expected == was, about + " " + inQuotes(expected), inQuotes(was));
}

void Stage::expectNumber(const std::string& about, long long expected, long long was) {
    expect(expected == was, about + " " + std::to_string(expected), std::to_string(was));
}

void Stage::expectYesNo(const std::string& about, bool expected, bool was) {
    expect(expected == was, about + " " + yesNo(expected), yesNo(was));
}

std::vector<std::string> Stage::takeFindings() {
    for (const auto& complaint : around.messages.takeComplaints()) {
        findings_.push_back(complaint.reason + " " + describe(complaint.box));
    }
    for (auto& complaint : around.dialogs.takeComplaints()) {
        findings_.push_back(std::move(complaint));
    }
    return std::exchange(findings_, {});
}

std::string describe(const HeadlessMessages::Box& box) {
    return "box " + std::to_string(box.style) + " " + inQuotes(box.title) + " " + inQuotes(box.prompt);
}

} // namespace kov::drive
