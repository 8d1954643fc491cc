#pragma once

#include "drive/arguments.hpp"
#include "drive/program.hpp"
#include "platform/headless/surroundings.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace kov::drive {

/// A line that can't be carried out: the script stops there.
class CannotRun : public std::runtime_error {
public:
    explicit CannotRun(const std::string& what) : std::runtime_error(what) {}
};

/// Where one script plays: a program that it may start, what surrounds it, and what the script has looked at so far.
class Stage {
public:
    Stage(ProgramFactory factory, const std::filesystem::path& startFolder, std::string appPath, std::ostream& out);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    Surroundings around;
    std::ostream& out;

    /// Ends a program that still runs, with nothing asked.
    void start(const std::string& commandLine);
    [[nodiscard]] DrivenProgram& program();
    [[nodiscard]] Desk& desk() { return program().desk; }
    [[nodiscard]] Hand& hand() { return program().hand; }
    /// Null when it is not open, also before the start.
    [[nodiscard]] Window* findWindow(const std::string& name);
    [[nodiscard]] Window& window(const Target& target);
    [[nodiscard]] Control& control(const Target& target);

    /// An act was carried out, or the program failed in it; else throws CannotRun.
    void carriedOut(bool done, const std::string& otherwise);

    // Expectations.
    void expect(bool met, const std::string& expected, const std::string& was);
    void expectText(const std::string& about, const std::string& expected, const std::string& was);
    void expectNumber(const std::string& about, long long expected, long long was);
    void expectYesNo(const std::string& about, bool expected, bool was);

    /// Message boxes, program starts and rescue copies before these have been expected.
    std::size_t boxesSeen = 0;
    std::size_t startsSeen = 0;
    int rescuesSeen = 0;
    /// What failed, while nothing has expected it.
    std::optional<std::string> failure;

    /// The findings since this was asked the last time.
    [[nodiscard]] std::vector<std::string> takeFindings();

private:
    void noteFailure();

    ProgramFactory factory_;
    std::string appPath_;
    std::filesystem::path rescueFolder_;
    std::vector<std::string> findings_;
    std::unique_ptr<DrivenProgram> program_;
    bool failureNoted_ = false;
};

/// A message box as a script names it.
[[nodiscard]] std::string describe(const HeadlessMessages::Box& box);

} // namespace kov::drive
