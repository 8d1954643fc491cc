#include "shell/main/run_outcome.hpp"

#include "core/cards/numbers.hpp"

#include <algorithm>
#include <array>

namespace kov {
namespace {

constexpr int StopIcon = 16;
constexpr std::int32_t LastForm = 14;

struct Row {
    std::int32_t code;
    std::string_view message;
};

constexpr std::array Rows{
    Row{0, "Run Completed\r\nStatus Unknown"},
    Row{15, "Simulation Failed"},
    Row{16, "Heat Sink Analysis Failed"},
    Row{99, "Input Verification Successful"},
    Row{100, "Run Completed Successfully"},
    Row{102, "Error Opening\r\nTemporary Output File"},
    Row{103, "Error Opening\r\nRestart Input File"},
    Row{104, "Error Opening\r\nRestart Output File"},
    Row{105, "Error ReOpening\r\nTemporary Output File\r\nfor Input"},
    Row{106, "Error Opening\r\nFormatted Output File"},
};

constexpr std::int32_t InputNotOpened = 101;

} // namespace

RunOutcome runOutcome(std::int32_t exitCode, std::string_view inputPath) {
    if (exitCode >= 1 && exitCode <= LastForm) {
        return {"Failed Input Verification\r\nIn Form " + plainNumber(exitCode)};
    }
    if (exitCode == InputNotOpened) {
        return {"Error Opening\r\nInput File\r\n" + std::string(inputPath)};
    }
    const auto* row = std::find_if(Rows.begin(), Rows.end(), [&](const Row& known) { return known.code == exitCode; });
    if (row != Rows.end()) {
        return {std::string(row->message)};
    }
    return {"Execution Failed\r\nExit Code: " + plainNumber(exitCode), StopIcon};
}

ListingFiles listingFiles(std::string_view inputPath) {
    const auto size = inputPath.size();
    const bool threeLetters = size >= 4 && inputPath[size - 4] == '.';
    const std::string stem(threeLetters ? inputPath.substr(0, size - 4) : inputPath);
    return {stem + ".tmp", stem + ".prn"};
}

} // namespace kov
