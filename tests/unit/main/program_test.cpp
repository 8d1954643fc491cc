#include "app/composition/program.hpp"
#include "platform/headless/surroundings.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace kov {
namespace {

class TheProgram : public testing::Test {
protected:
    void start() {
        program.start("");
        desk.click(desk.find("About")->control("cmdOkay"));
    }
    Window& main() { return *desk.find("frmMain"); }
    Control& control(const std::string& name) { return main().control(name); }

    Surroundings surroundings{std::filesystem::temp_directory_path()};
    Program program{surroundings.services(), "C:\\KOV"};
    Desk& desk = program.desk();
};

TEST_F(TheProgram, StartsWithTheSplashInFrontUntilItsTime) {
    program.start("");
    EXPECT_EQ(desk.front(), desk.find("About"));
    EXPECT_EQ(desk.focus(), &desk.find("About")->control("cmdOkay"));
    desk.pass(4999);
    EXPECT_NE(desk.find("About"), nullptr);
    desk.pass(1);
    EXPECT_EQ(desk.find("About"), nullptr);
    EXPECT_EQ(desk.front(), &main());
}

TEST_F(TheProgram, SwitchesTheSplashsTimerOffWhenAboutIsAskedFor) {
    program.start("");
    desk.menu(control("MH_About"));
    desk.pass(60000);
    EXPECT_NE(desk.find("About"), nullptr);
    desk.click(desk.find("About")->control("cmdOkay"));
    EXPECT_EQ(desk.find("About"), nullptr);
}

TEST_F(TheProgram, GoesOnWithTheSameFocusWhenTheExitIsCancelled) {
    start();
    desk.focusOn(control("tbDgnMon"));
    program.application().FileDirty = true;
    surroundings.messages.queue(Answer::Cancel);
    desk.menu(control("MF_Exit"));
    EXPECT_FALSE(desk.ended());
    EXPECT_EQ(desk.focus(), &control("tbDgnMon"));
}

TEST_F(TheProgram, EndsAtTheExitWithoutAQuestionWhenNothingWasChanged) {
    start();
    desk.menu(control("MF_Exit"));
    EXPECT_TRUE(desk.ended());
    EXPECT_FALSE(desk.failure().has_value());
    EXPECT_TRUE(surroundings.messages.boxes().empty());
}

TEST_F(TheProgram, HasNothingMarkedAsChangedAfterNewWhileAFieldWasBeingTypedIn) {
    start();
    desk.focusOn(control("tbDgnMon"));
    desk.type("13");
    desk.menu(control("MF_New"));
    desk.focusOn(control("tbDgnYr"));
    EXPECT_FALSE(program.application().FileDirty);
    EXPECT_TRUE(surroundings.messages.boxes().empty());
}

TEST_F(TheProgram, ShowsTheMainWindowInTheChosenFontFromTheStart) {
    surroundings.settings.set("FontName", "Courier New");
    surroundings.settings.set("FontSize", "12");
    start();
    EXPECT_EQ(control("tbDgnHr").fontName, "Courier New");
    EXPECT_EQ(control("tbDgnHr").fontSize, 12);
}

TEST_F(TheProgram, TakesTheDesignFontBackAtTheNextResizeAfterAReset) {
    surroundings.settings.set("FontName", "Courier New");
    surroundings.settings.set("FontSize", "12");
    start();
    desk.menu(control("MV_Reset"));
    desk.resize(main(), Twips{9000}, Twips{7000});
    EXPECT_EQ(control("tbDgnHr").fontName, "");
    EXPECT_EQ(control("tbDgnHr").fontSize, 0);
}

TEST_F(TheProgram, PutsTheWindowBackLowerThanTheMiddle) {
    start();
    desk.resize(main(), Twips{9000}, Twips{7000});
    desk.menu(control("MV_Reset"));
    EXPECT_EQ(main().bounds.left, Twips{(19200.0 - 9495) / 2});
    EXPECT_EQ(main().bounds.top, Twips{(19200.0 - 6870) / 2});
    EXPECT_EQ(main().bounds.width, Twips{9495});
    EXPECT_EQ(main().bounds.height, Twips{6870});
}

TEST_F(TheProgram, LeavesTheRunAloneWhenTheMainWindowIsClosedWhileItRuns) {
    start();
    surroundings.dialogs.queueError(DialogCancelled);
    surroundings.processes.queueExit(100, 5);
    surroundings.processes.onWait = [this](int milliseconds) {
        EXPECT_EQ(milliseconds, 2000);
        program.application().FileDirty = false;
        desk.close(main());
    };
    desk.menu(control("MR_Curr"));
    EXPECT_TRUE(desk.ended());
    EXPECT_FALSE(desk.failure().has_value());
    EXPECT_TRUE(surroundings.messages.boxes().empty());
    ASSERT_EQ(surroundings.processes.starts().size(), 1U);
    EXPECT_EQ(surroundings.processes.starts()[0].commandLine, "C:\\KOV\\kov41.exe \"\"");
}

TEST_F(TheProgram, EndsWhenTheBatchToolDoesNotStart) {
    start();
    surroundings.processes.queueError({53, "File not found"});
    surroundings.files.setRescueFolder(std::filesystem::temp_directory_path() / "kov-program-test");
    desk.menu(control("MR_Batch"));
    EXPECT_TRUE(desk.ended());
    EXPECT_EQ(desk.failure(), "File not found");
}

} // namespace
} // namespace kov
