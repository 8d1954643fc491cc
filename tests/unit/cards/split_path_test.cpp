#include "core/cards/split_path.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace kov {
namespace {

TEST(SplitPath, PartsAtTheLastBackslash) {
    const auto parts = SplitPath(R"(C:\data\run1.kov)");
    EXPECT_EQ(parts.folder, R"(C:\data\)");
    EXPECT_EQ(parts.name, "run1.kov");
}

TEST(SplitPath, KnowsTheHostsOwnSeparator) {
    if (std::filesystem::path::preferred_separator != '/') {
        GTEST_SKIP() << "this host parts folders with a backslash only";
    }
    const auto parts = SplitPath("/home/ann/run 1.kov");
    EXPECT_EQ(parts.folder, "/home/ann/");
    EXPECT_EQ(parts.name, "run 1.kov");
    EXPECT_EQ(SplitPath(R"(/mnt/c\run.kov)").name, "run.kov");
}

TEST(SplitPath, HasAnEmptyFolderWithoutASeparator) {
    EXPECT_EQ(SplitPath("run1.kov").folder, "");
    EXPECT_EQ(SplitPath("run1.kov").name, "run1.kov");
    EXPECT_EQ(SplitPath("").name, "");
}

TEST(SplitPath, HasAnEmptyNameForAFolder) {
    EXPECT_EQ(SplitPath(R"(C:\data\)").folder, R"(C:\data\)");
    EXPECT_EQ(SplitPath(R"(C:\data\)").name, "");
}

} // namespace
} // namespace kov
