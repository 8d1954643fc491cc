#include "shell/entry/menus.hpp"
#include "unit/entry/overlay_window.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kov {
namespace {

/// The window of a grid with the Edit and Help menus that entry windows share.
class TheEditMenu : public testing::Test, protected test::OverlayWindow {
protected:
    TheEditMenu() {
        addEditMenu(*window, {{"ME_Delete", "&Delete Row"}, {"ME_Insert", "&Insert Row"}});
        addHelpMenu(*window);
        bindGridCommands(app, *window, flags, {{*grid, *box, *overlay}});
    }
    void choose(const std::string& entry) { desk.menu(window->control(entry)); }
    [[nodiscard]] std::string clip() const { return surroundings.clipboard.text().value_or("(no text)"); }
};

TEST_F(TheEditMenu, HasItsEntriesByNameAndCaption) {
    EXPECT_EQ(window->control("M_Edit").caption, "&Edit");
    EXPECT_EQ(window->control("ME_Cut").caption, "Cu&t");
    EXPECT_EQ(window->control("ME_Copy").caption, "&Copy");
    EXPECT_EQ(window->control("ME_Paste").caption, "&Paste");
    EXPECT_EQ(window->control("ME_Delete").caption, "&Delete Row");
    EXPECT_EQ(window->control("ME_Insert").menu().menu, "M_Edit");
    EXPECT_EQ(window->control("MH_Contents").caption, "&Contents");
    EXPECT_EQ(window->control("MH_Search").caption, "&Search for Help on...");
}

TEST_F(TheEditMenu, CopiesTheCurrentRowOfTheGrid) {
    desk.focusOn(*grid);
    cells().setCol(2);
    choose("ME_Copy");
    EXPECT_EQ(clip(), "first\t10.\t1");
    EXPECT_EQ(cells().rows(), 2);
    EXPECT_EQ(cells().col(), 2);
    EXPECT_EQ(desk.focus(), grid);
}

TEST_F(TheEditMenu, CutsTheCurrentRowOfTheGrid) {
    desk.focusOn(*grid);
    choose("ME_Cut");
    EXPECT_EQ(clip(), "first\t10.\t1");
    ASSERT_EQ(cells().rows(), 1);
    EXPECT_EQ(cells().text(0, 0), "second");
}

TEST_F(TheEditMenu, PastesARowAheadOfTheCurrentOneTabsPartingItsCells) {
    desk.focusOn(*grid);
    cells().setRow(1);
    surroundings.clipboard.setText("new\t5.\t3");
    choose("ME_Paste");
    ASSERT_EQ(cells().rows(), 3);
    EXPECT_EQ(cells().line(1), "new\t5.\t3");
    EXPECT_EQ(cells().text(2, 0), "second");
    EXPECT_TRUE(flags.FormChanged);
}

TEST_F(TheEditMenu, PastesNothingWithoutTextOnTheClipboard) {
    desk.focusOn(*grid);
    choose("ME_Paste");
    EXPECT_EQ(cells().rows(), 2);
    EXPECT_FALSE(flags.FormChanged);
}

TEST_F(TheEditMenu, WorksOnTheTextInTheOverlay) {
    desk.cell(*grid, 0, 0);
    choose("ME_Cut");
    EXPECT_EQ(clip(), "first");
    EXPECT_EQ(typed(), "");
    EXPECT_EQ(cells().rows(), 2);
    surroundings.clipboard.setText("other");
    choose("ME_Paste");
    EXPECT_EQ(typed(), "other");
    box->selectText(0, 3);
    choose("ME_Copy");
    EXPECT_EQ(clip(), "oth");
    EXPECT_EQ(desk.focus(), box) << "a menu does not move the focus";
}

TEST_F(TheEditMenu, HasTheKeysInsertAndDeleteOfTheGrid) {
    desk.focusOn(*grid);
    choose("ME_Insert");
    EXPECT_EQ(cells().rows(), 3);
    EXPECT_EQ(cells().text(1, 0), "first");
    choose("ME_Delete");
    EXPECT_EQ(cells().rows(), 2);
    EXPECT_EQ(cells().text(0, 0), "first");
}

TEST_F(TheEditMenu, BringsAnOpenCellInOrderBeforeTheRowsMove) {
    desk.cell(*grid, 1, 0);
    replace("changed");
    choose("ME_Insert");
    EXPECT_EQ(cells().text(2, 0), "changed");
    EXPECT_EQ(cells().rows(), 4) << "a blank row follows the changed last one, and one was inserted";
}

TEST_F(TheEditMenu, DeletesNothingWhileTheOpenCellIsBad) {
    desk.cell(*grid, 0, 1);
    replace("bad");
    choose("ME_Delete");
    EXPECT_EQ(cells().rows(), 2);
    EXPECT_EQ(desk.focus(), box);
}

} // namespace
} // namespace kov
