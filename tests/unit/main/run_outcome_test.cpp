#include "shell/main/run_outcome.hpp"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace kov {
namespace {

constexpr int Information = 64, Stop = 16;

TEST(AnExitCodeOfAForm, NamesTheFormWithTheBlankOfItsNumber) {
    for (int form = 1; form <= 14; ++form) {
        const auto outcome = runOutcome(form, "run.kov");
        EXPECT_EQ(outcome.message, "Failed Input Verification\r\nIn Form  " + std::to_string(form));
        EXPECT_EQ(outcome.icon, Information);
    }
}

TEST(AnExitCode, HasItsMessage) {
    const std::vector<std::pair<std::int32_t, std::string>> rows{
        {0, "Run Completed\r\nStatus Unknown"},
        {15, "Simulation Failed"},
        {16, "Heat Sink Analysis Failed"},
        {99, "Input Verification Successful"},
        {100, "Run Completed Successfully"},
        {101, "Error Opening\r\nInput File\r\nC:\\data\\run.kov"},
        {102, "Error Opening\r\nTemporary Output File"},
        {103, "Error Opening\r\nRestart Input File"},
        {104, "Error Opening\r\nRestart Output File"},
        {105, "Error ReOpening\r\nTemporary Output File\r\nfor Input"},
        {106, "Error Opening\r\nFormatted Output File"},
    };
    for (const auto& [code, message] : rows) {
        const auto outcome = runOutcome(code, "C:\\data\\run.kov");
        EXPECT_EQ(outcome.message, message) << code;
        EXPECT_EQ(outcome.icon, Information) << code;
    }
}

TEST(AnExitCodeThatIsInNoRow, IsTheFailureOfTheExecution) {
    const std::vector<std::pair<std::int32_t, std::string>> rows{
        {17, " 17"}, {98, " 98"}, {107, " 107"}, {200, " 200"}, {258, " 258"}, {-1, "-1"}, {-11, "-11"}, {70000, " 70000"},
    };
    for (const auto& [code, number] : rows) {
        const auto outcome = runOutcome(code, "run.kov");
        EXPECT_EQ(outcome.message, "Execution Failed\r\nExit Code: " + number);
        EXPECT_EQ(outcome.icon, Stop);
    }
}

void expectFiles(const std::string& input, const std::string& temporary, const std::string& listing) {
    const auto files = listingFiles(input);
    EXPECT_EQ(files.temporary, temporary) << input;
    EXPECT_EQ(files.listing, listing) << input;
}

TEST(TheFilesOfARun, ReplaceAThreeLetterExtension) {
    expectFiles("run.kov", "run.tmp", "run.prn");
    expectFiles("a.b.kov", "a.b.tmp", "a.b.prn");
    expectFiles("C:\\my data\\run.INP", "C:\\my data\\run.tmp", "C:\\my data\\run.prn");
    expectFiles(".kov", ".tmp", ".prn");
}

TEST(TheFilesOfARun, AddToAnyOtherName) {
    expectFiles("RUNFILE", "RUNFILE.tmp", "RUNFILE.prn");
    expectFiles("RUN.KO", "RUN.KO.tmp", "RUN.KO.prn");
    expectFiles("RUN.KOVX", "RUN.KOVX.tmp", "RUN.KOVX.prn");
    expectFiles("kov", "kov.tmp", "kov.prn");
    expectFiles("", ".tmp", ".prn");
}

} // namespace
} // namespace kov
