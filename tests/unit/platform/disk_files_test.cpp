#include "platform/disk_files.hpp"
#include "platform/windows1252.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <string>

namespace kov {
namespace {

namespace fs = std::filesystem;

class DiskFilesTest : public testing::Test {
protected:
    DiskFilesTest() {
        std::random_device random;
        folder = fs::canonical(fs::temp_directory_path()) / ("kovin-files-" + std::to_string(random()));
        fs::create_directories(folder / "sub");
    }
    ~DiskFilesTest() override {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }
    void write(const std::string& name, const std::string& content) const { std::ofstream(folder / name) << content; }

    fs::path folder;
    PlatformError error;
};

TEST_F(DiskFilesTest, ReadsAndWritesWholeContents) {
    DiskFiles files(folder);
    const std::string content("a\r\n\0b\n", 6);
    files.truncate("x.kov", error);
    ASSERT_FALSE(error);
    files.write("x.kov", content, error);
    ASSERT_FALSE(error);
    EXPECT_EQ(files.read("x.kov", error), content);
    files.truncate("x.kov", error);
    EXPECT_EQ(files.read("x.kov", error), "");
    EXPECT_FALSE(error);
}

TEST_F(DiskFilesTest, NumbersItsErrors) {
    DiskFiles files(folder);
    files.read("none.kov", error);
    EXPECT_EQ(error.number, 53);
    EXPECT_EQ(error.description, "File not found");
    files.read("none/x.kov", error);
    EXPECT_EQ(error.number, 76);
    EXPECT_EQ(error.description, "Path not found");
    files.truncate("none\\x.kov", error);
    EXPECT_EQ(error.number, 76);
    files.truncate("sub", error);
    EXPECT_EQ(error.number, 75);
    EXPECT_EQ(error.description, "Path/File access error");
    files.read("", error);
    EXPECT_EQ(error.number, 75);
}

TEST_F(DiskFilesTest, RefusesALockedFileByEveryNameOfIt) {
    DiskFiles files(folder);
    write("x.kov", "kept");
    files.lock("sub/../x.kov");
    files.read("x.kov", error);
    EXPECT_EQ(error.number, 70);
    EXPECT_EQ(error.description, "Permission denied");
    files.truncate((folder / "x.kov").string(), error);
    EXPECT_EQ(error.number, 70);
    EXPECT_FALSE(files.canOpen("x.kov"));
    EXPECT_EQ(files.peek("x.kov"), "kept");
    files.unlock("x.kov");
    EXPECT_TRUE(files.canOpen("x.kov"));
}

TEST_F(DiskFilesTest, TakesABackslashForASeparatorUnlessItIsPartOfAName) {
    DiskFiles files(folder);
    write("sub/x.kov", "below");
    EXPECT_EQ(files.read("sub\\x.kov", error), "below");
    files.write("sub\\new.kov", "made", error);
    EXPECT_TRUE(fs::exists(folder / "sub" / "new.kov"));
    write("sub\\y.kov", "odd name");
    EXPECT_EQ(files.read("sub\\y.kov", error), "odd name");
}

TEST_F(DiskFilesTest, FindsNamesWithCharactersOfWindows1252) {
    DiskFiles files(folder);
    files.write("d\xE9j\xE0 \x80.kov", "x", error);
    ASSERT_FALSE(error);
    EXPECT_TRUE(fs::exists(folder / "d\xC3\xA9j\xC3\xA0 \xE2\x82\xAC.kov"));
    EXPECT_TRUE(files.canOpen("d\xE9j\xE0 \x80.kov"));
}

TEST_F(DiskFilesTest, KeepsACurrentFolderOfItsOwn) {
    DiskFiles files(folder);
    const auto before = fs::current_path();
    files.setCurrentFolder("sub\\");
    EXPECT_EQ(files.currentFolder(), (folder / "sub").string());
    files.setCurrentFolder("nowhere");
    EXPECT_EQ(files.currentFolder(), (folder / "sub").string());
    EXPECT_EQ(fs::current_path(), before);
    files.write("here.kov", "", error);
    EXPECT_TRUE(fs::exists(folder / "sub" / "here.kov"));
    EXPECT_EQ(files.absolute("x.kov"), (folder / "x.kov").string());
    EXPECT_EQ(files.absolute("./sub/../x.kov"), (folder / "x.kov").string());
    EXPECT_EQ(files.absolute("/a/b"), "/a/b");
}

TEST_F(DiskFilesTest, KeepsTheLastTwentyRescueCopies) {
    DiskFiles files(folder);
    const auto state = folder / "state" / "kovin";
    files.setRescueFolder(state);
    for (int i = 1; i <= 23; ++i) {
        const auto copy = files.rescue("job" + std::to_string(i) + ".kov", std::to_string(i));
        ASSERT_FALSE(copy.empty());
        EXPECT_EQ(files.read(copy, error), std::to_string(i));
    }
    write("state/kovin/notes.txt", "the engineer's own");
    files.rescue("job24.kov", "24");
    int copies = 0;
    bool own = false;
    for (const auto& entry : fs::directory_iterator(state)) {
        const auto name = entry.path().filename().string();
        own = own || name == "notes.txt";
        copies += name.find("job") != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(copies, 20);
    EXPECT_TRUE(own);
    EXPECT_EQ(files.rescues(), 24);
}

TEST_F(DiskFilesTest, GivesNoPathWhereARescueCopyCantBeWritten) {
    DiskFiles files(folder);
    write("file", "");
    files.setRescueFolder(folder / "file" / "below");
    EXPECT_EQ(files.rescue("x.kov", "x"), "");
    EXPECT_EQ(files.rescues(), 0);
}

TEST_F(DiskFilesTest, OpensNothingOutsideTheFolderThatItIsConfinedTo) {
    write("out.kov", "x");
    write("sub/in.kov", "x");
    DiskFiles files(folder / "sub");
    files.confineTo(folder / "sub");
    fs::create_symlink(folder, folder / "sub" / "link");
    EXPECT_TRUE(files.canOpen("in.kov"));
    for (const auto* path : {"../out.kov", "..\\out.kov", "link/out.kov", "/etc/passwd"}) {
        files.read(path, error);
        EXPECT_EQ(error.number, 75) << path;
        EXPECT_FALSE(files.canOpen(path)) << path;
    }
    files.truncate("link/new.kov", error);
    EXPECT_EQ(error.number, 75);
    EXPECT_FALSE(fs::exists(folder / "new.kov"));
}

TEST(Windows1252, EveryByteGoesOutAndComesBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(textOfUtf8(utf8OfText(all)), all);
    EXPECT_EQ(utf8OfText("\x80\xE9"), "\xE2\x82\xAC\xC3\xA9");
}

TEST(Windows1252, RefusesWhatDoesNotFitAndWhatIsNoUtf8) {
    for (const auto* utf8 : {"\xE4\xBD\xA0", "\xF0\x9F\x98\x80", "\xFF", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xC2\x80"}) {
        EXPECT_FALSE(textOfUtf8(utf8)) << utf8;
    }
}

} // namespace
} // namespace kov
