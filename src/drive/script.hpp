#pragma once

#include "drive/lexer.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kov::drive {

class Stage;

/// What one line of a script does. Throws CannotRun.
using Act = std::function<void(Stage&)>;

/// One line that does something.
struct Step {
    int line = 0;       ///< from 1
    std::string source; ///< as it stands in the script
    Act act;
};

/// A line that can't be understood.
struct SyntaxFinding {
    int line = 0;
    std::string what;
};

/// A script, understood as a whole before its first line runs.
struct Script {
    std::string name;
    std::vector<Step> steps;
    std::vector<SyntaxFinding> findings; ///< when there are any, it can't run
};

/// Parses a script of UTF-8 lines, which end with LF or CR LF.
[[nodiscard]] Script parseScript(std::string name, std::string_view text, const Places& places);

} // namespace kov::drive
