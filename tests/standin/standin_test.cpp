#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

/// A folder of the test's own with blanks in its name, since that is what engineers' folders have.
class StandIn : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "kov standin XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder_ = pattern;
    }
    void TearDown() override { fs::remove_all(folder_); }

    fs::path copyOfSample(const std::string& lines = {}) {
        const auto path = folder_ / "run 1.kov";
        if (lines.empty()) {
            fs::copy_file(fs::path(KOV_SOURCE_DIR) / "samples" / "two-station-line.kov", path);
        } else {
            std::ofstream(path) << lines;
        }
        return path;
    }
    static int run(const fs::path& input) {
        const auto child = fork();
        if (child == 0) {
            execl(KOV_STANDIN, KOV_STANDIN, input.c_str(), nullptr);
            _exit(127);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WEXITSTATUS(status);
    }
    static std::string contentOf(const fs::path& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    fs::path folder_;
};

TEST_F(StandIn, exitsWith100AndLeavesBothOutputFilesWhenTheFileIsInOrder) {
    const auto input = copyOfSample();
    EXPECT_EQ(run(input), 100);
    EXPECT_TRUE(fs::exists(folder_ / "run 1.tmp"));
    EXPECT_TRUE(fs::exists(folder_ / "run 1.prn"));
}

TEST_F(StandIn, readsTheDeckOfTheWholeMissionAndListsWhatIsInIt) {
    const auto input = folder_ / "harbor.kov";
    fs::copy_file(fs::path(KOV_SOURCE_DIR) / "tests" / "scenarios" / "files" / "harbor-line.kov", input);
    EXPECT_EQ(run(input), 100);
    const auto listing = contentOf(folder_ / "harbor.prn");
    for (const auto* const line :
         {"HARBOR LINE - EVENING RUSH HOUR", "Line sections   5", "Line segments   6", "Vent sections   2", "Nodes           8",
          "Fires           1", "Fans            2", "Impulse fans    1", "Routes          2", "Train types     2",
          "Initial trains  2", "EC zones        2", "Input verification successful"}) {
        EXPECT_NE(listing.find(std::string(line) + "\n"), std::string::npos) << line << "\n" << listing;
    }
}

TEST_F(StandIn, readsTheDeckOfTheLineNetworkWithItsShaftsFansAndNodes) {
    const auto input = folder_ / "network.kov";
    fs::copy_file(fs::path(KOV_SOURCE_DIR) / "tests" / "scenarios" / "files" / "vent-network-deck.kov", input);
    EXPECT_EQ(run(input), 100);
    const auto listing = contentOf(folder_ / "network.prn");
    for (const auto* const line : {"Line sections   20", "Line segments   60", "Vent sections   3", "Nodes           24",
                                   "Fans            2", "Impulse fans    2", "Input verification successful"}) {
        EXPECT_NE(listing.find(std::string(line) + "\n"), std::string::npos) << line << "\n" << listing;
    }
}

TEST_F(StandIn, exitsWithTheNumberOfTheFormThatCannotBeRead) { EXPECT_EQ(run(copyOfSample("only an identification\n")), 1); }

TEST_F(StandIn, exitsWith101WhenThereIsNoInputFile) { EXPECT_EQ(run(folder_ / "none.kov"), 101); }

TEST_F(StandIn, exitsWithTheCodeThatItsSurroundingsAskFor) {
    const auto input = copyOfSample();
    setenv("KOV_STANDIN", "16 10", 1);
    const int code = run(input);
    unsetenv("KOV_STANDIN");
    EXPECT_EQ(code, 16);
}

} // namespace
