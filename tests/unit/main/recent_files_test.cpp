#include "shell/main/recent_files.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace kov {
namespace {

std::string all(const RecentFiles& files) {
    std::string joined;
    for (std::size_t i = 1; i <= RecentFiles::Most; ++i) {
        joined += files.at(i).empty() ? "-" : files.at(i);
    }
    return joined;
}

RecentFiles six() {
    RecentFiles files;
    for (std::size_t i = 1; i <= 6; ++i) {
        files.set(i, std::string(1, static_cast<char>('a' + i - 1)));
    }
    return files;
}

TEST(RecentFilesList, StartsBlank) { EXPECT_EQ(all(RecentFiles{}), "------"); }

TEST(RecentFilesList, PutsANewFileInFront) {
    RecentFiles files;
    EXPECT_TRUE(files.moveToFront("x"));
    EXPECT_TRUE(files.moveToFront("y"));
    EXPECT_EQ(all(files), "yx----");
}

TEST(RecentFilesList, StaysWhenTheFileIsInFrontAlready) {
    auto files = six();
    EXPECT_FALSE(files.moveToFront("a"));
    EXPECT_EQ(all(files), "abcdef");
}

TEST(RecentFilesList, DropsTheOldestForASeventhFile) {
    auto files = six();
    EXPECT_TRUE(files.moveToFront("g"));
    EXPECT_EQ(all(files), "gabcde");
}

TEST(RecentFilesList, MovesTheThirdToTheFrontAndLeavesTheEntriesBehindIt) {
    auto files = six();
    EXPECT_TRUE(files.moveToFront("c"));
    EXPECT_EQ(all(files), "cabdef");
}

TEST(RecentFilesList, MovesTheSixthToTheFront) {
    auto files = six();
    EXPECT_TRUE(files.moveToFront("f"));
    EXPECT_EQ(all(files), "fabcde");
}

TEST(RecentFilesList, TakesPathsAsDifferentWhenOnlyTheirCaseDiffers) {
    auto files = six();
    EXPECT_TRUE(files.moveToFront("A"));
    EXPECT_EQ(all(files), "Aabcde");
}

TEST(RecentFilesList, FillsABlankEntryAndLeavesWhatStandsBehindIt) {
    auto files = six();
    files.set(3, " ");
    EXPECT_TRUE(files.moveToFront("n"));
    EXPECT_EQ(all(files), "nabdef");
}

TEST(RecentFilesList, HasNoEntryZeroAndNoSeventh) {
    RecentFiles files;
    EXPECT_THROW(static_cast<void>(files.at(0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(files.at(7)), std::out_of_range);
    EXPECT_THROW(files.set(0, "x"), std::out_of_range);
}

} // namespace
} // namespace kov
