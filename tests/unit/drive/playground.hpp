#pragma once

#include "drive/runner.hpp"

#include <filesystem>
#include <string>
#include <string_view>

namespace kov::drive::test {

/// A program of the tests' own: a window `test` with every kind of control, `other` beside it and `modal` before it. The
/// command line becomes the caption of `test`. Its buttons: cmdBox shows a box of style 35, cmdFail fails, cmdOpen opens a file
/// of the dialog, cmdRun starts a program and waits for its end, cmdPrint prints, cmdHelp calls help, cmdModal opens `modal`.
[[nodiscard]] std::unique_ptr<DrivenProgram> playground(Services services, const std::string& appPath);

/// A folder that goes with the test.
class Folder {
public:
    Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder();
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    void write(const std::string& name, std::string_view content) const;
    [[nodiscard]] std::string read(const std::string& name) const;

private:
    std::filesystem::path path_;
};

/// Runs a script named "s" on the playground and gives all that was printed.
[[nodiscard]] std::string play(const std::string& text, const Folder& folder = Folder{}, bool trace = false);

inline constexpr const char* Passed = "1 passed, 0 failed\n";

} // namespace kov::drive::test
