#include "app/composition/program.hpp"
#include "core/dataset/progress.hpp"
#include "platform/headless/surroundings.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kov {
namespace {

namespace fs = std::filesystem;

/// The program on a sample, with a rescue folder of its own.
class ARescue : public testing::Test {
protected:
    void SetUp() override {
        fs::remove_all(folder);
        around.files.setRescueFolder(folder);
        program.start(KOV_SOURCE_DIR "/samples/two-station-line.kov");
        desk.click(desk.find("About")->control("cmdOkay"));
        desk.onNotice = [this](const std::string& text) { notice = text; };
    }
    void TearDown() override { fs::remove_all(folder); }

    /// The one file in the rescue folder.
    [[nodiscard]] std::string copy() const {
        for (const auto& entry : fs::directory_iterator(folder)) {
            std::ifstream file(entry.path(), std::ios::binary);
            return {std::istreambuf_iterator<char>(file), {}};
        }
        return {};
    }

    fs::path folder = fs::temp_directory_path() / "kov-rescue-test";
    Surroundings around{fs::temp_directory_path()};
    Program program{around.services(), "C:\\KOV"};
    Desk& desk = program.desk();
    std::string notice;
};

TEST_F(ARescue, HoldsWhatTheModelHeldWhenA26thPrintGroupEndsTheProgram) {
    desk.act([&] { desk.show("SimCtrl"); });
    auto& window = *desk.find("SimCtrl");
    auto& grid = window.control("grdPGroup").grid();
    while (grid.rows() < 26 + 1) {
        grid.addItem("7\t2.5\t1\t0\t0\t0", 0);
    }
    desk.focusOn(window.control("tbTMax"));
    desk.type("4321");
    desk.click(window.control("cmdDone"));
    ASSERT_TRUE(desk.ended());
    EXPECT_EQ(desk.failure(), "Subscript out of range");
    EXPECT_NE(notice.find(folder.string()), std::string::npos) << notice;

    KOVDataSet kept;
    const auto text = copy();
    CardReader reader(text);
    NoProgress silent;
    ASSERT_TRUE(kept.ReadFile(reader, silent, around.messages, "unsaved.kov"));
    EXPECT_EQ(kept.NPGroups(), 25);
    EXPECT_EQ(kept.PGroup(1)->getPGroup().NIntervals, 7);
    EXPECT_EQ(kept.TMax.trimmed(), "4321.") << "Form 13 stands behind the groups";
    EXPECT_EQ(kept.Sections.Count(), program.application().DataSet->Sections.Count());
    EXPECT_EQ(kept.Routes.Count(), 2);
}

} // namespace
} // namespace kov
