#include "shell/entry/entry_window.hpp"
#include "unit/support/fakes.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace kov {
namespace {

constexpr EntryWindowTraits Traits{"Editor", "Form 7", 42, Twips{6000}, Twips{4000}};

/// An entry window of one field, over a model of one text. It stands beside a main window.
class AnEntryWindow : public testing::Test, protected test::Workplace {
protected:
    struct Editor {
        Editor(AnEntryWindow& test, Window& window) : entry(test.app, window, Traits) {
            auto& field = window.add(ControlKind::TextBox, "tbField");
            for (const auto* button : {"cmdDone", "cmdCancel", "cmdHelp", "cmdGoNext"}) {
                window.add(ControlKind::Button, button);
            }
            for (const auto* menu : {"ME_Cut", "ME_Copy", "ME_Paste", "MH_Contents", "MH_Search"}) {
                window.add(ControlKind::Menu, menu);
            }
            bindField(test.app, entry.flags, field, "hint", real(0, 100));
            entry.bindStandardControls();
            entry.bindNavigation("cmdGoNext", "next");
            entry.assign = [&test, &field] {
                test.model = field.text().text;
                ++test.stored;
            };
            entry.loadStep();
            field.setText(test.model);
        }
        EntryWindow entry;
    };

    AnEntryWindow() {
        open("frmMain", [](Window& window) {
            window.bounds = {Twips{1000}, Twips{500}, Twips{10000}, Twips{7000}};
            window.add(ControlKind::Button, "any");
        });
        desk.registerWindow("next", [](Window&) -> std::shared_ptr<void> { return nullptr; });
        desk.registerWindow("editor", [this](Window& window) { return std::make_shared<Editor>(*this, window); });
        editor = desk.show("editor");
    }
    Control& control(const std::string& name) { return editor->control(name); }
    void type(const std::string& text) {
        desk.focusOn(control("tbField"));
        desk.type(text);
    }
    [[nodiscard]] bool isOpen() const { return desk.find("editor") != nullptr; }

    Application app{desk};
    std::string model = "1.";
    int stored = 0;
    Window* editor = nullptr;
};

TEST_F(AnEntryWindow, StandsBesideTheMainWindow) {
    EXPECT_EQ(editor->bounds.left, Twips{1150});
    EXPECT_EQ(editor->bounds.top, Twips{860});
    EXPECT_DOUBLE_EQ(editor->bounds.width.value, 9700);
    EXPECT_DOUBLE_EQ(editor->bounds.height.value, 6300);
}

TEST_F(AnEntryWindow, IsScaledByThatPlaceTheFirstTime) {
    EXPECT_DOUBLE_EQ(editor->oldW.value, 9700);
    EXPECT_DOUBLE_EQ(editor->oldH.value, 6300);
}

TEST_F(AnEntryWindow, NamesItsFormInPanel1) {
    EXPECT_EQ(desk.panel(1), "Form 7");
    EXPECT_EQ(editor->caption, "Editor");
}

TEST_F(AnEntryWindow, StoresByOkAndMarksTheFile) {
    type("5");
    desk.click(control("cmdDone"));
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(model, "5.");
    EXPECT_TRUE(app.FileDirty);
    EXPECT_EQ(stored, 1) << "once, not again at the unload";
}

TEST_F(AnEntryWindow, LeavesTheFileUnmarkedWhenNothingWasChanged) {
    desk.click(control("cmdDone"));
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(model, "1.");
    EXPECT_FALSE(app.FileDirty);
}

TEST_F(AnEntryWindow, LosesTheEditsByCancel) {
    type("5");
    desk.click(control("cmdCancel"));
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(model, "1.");
    EXPECT_FALSE(app.FileDirty);
}

TEST_F(AnEntryWindow, StoresWhenItsFrameIsClosed) {
    type("5");
    desk.close(*editor);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(model, "5.");
    EXPECT_TRUE(app.FileDirty);
}

TEST_F(AnEntryWindow, StaysOpenWhenTheFieldThatItsFrameLeavesIsRefused) {
    type("bad");
    desk.close(*editor);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(desk.focus(), &control("tbField"));
    EXPECT_EQ(model, "1.");
}

TEST_F(AnEntryWindow, StaysOpenWhenTheFieldThatOkLeavesIsRefused) {
    type("bad");
    desk.click(control("cmdDone"));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(stored, 0);
}

TEST_F(AnEntryWindow, ClearsItsPanelsWhenItGoes) {
    desk.focusOn(control("tbField"));
    ASSERT_EQ(desk.panel(2), "hint");
    desk.close(*editor);
    EXPECT_EQ(desk.panel(1), "");
    EXPECT_EQ(desk.panel(2), "");
}

TEST_F(AnEntryWindow, NamesItsFormAgainWhenItComesBackToTheFront) {
    desk.focusOn(desk.find("frmMain")->control("any"));
    desk.setPanel(1, "Form 3");
    desk.show("editor");
    EXPECT_EQ(desk.panel(1), "Form 7");
    desk.setPanel(1, "Form 3");
    desk.focusOn(desk.find("frmMain")->control("any"));
    desk.focusOn(control("tbField"));
    EXPECT_EQ(desk.panel(1), "Form 7");
}

TEST_F(AnEntryWindow, StoresAndOpensTheNextOneByANavigationButton) {
    type("5");
    desk.click(control("cmdGoNext"));
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(model, "5.");
    EXPECT_TRUE(app.FileDirty);
    EXPECT_EQ(desk.front(), desk.find("next"));
}

TEST_F(AnEntryWindow, ShowsItsHelp) {
    desk.click(control("cmdHelp"));
    desk.menu(control("MH_Contents"));
    desk.menu(control("MH_Search"));
    const auto& calls = surroundings.help.calls();
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[0].command, 1);
    EXPECT_EQ(calls[0].context, 42);
    EXPECT_EQ(calls[1].command, 3);
    EXPECT_EQ(calls[2].command, 257);
    EXPECT_EQ(calls[2].key, "");
    EXPECT_TRUE(isOpen());
}

TEST_F(AnEntryWindow, CutsCopiesAndPastesInTheFocusedBox) {
    desk.focusOn(control("tbField"));
    desk.menu(control("ME_Copy"));
    EXPECT_EQ(surroundings.clipboard.text(), "1.");
    desk.menu(control("ME_Cut"));
    EXPECT_EQ(control("tbField").text().text, "");
    surroundings.clipboard.setText("9");
    desk.menu(control("ME_Paste"));
    EXPECT_EQ(control("tbField").text().text, "9");
}

TEST_F(AnEntryWindow, IsLoadedAnewWhenItIsOpenedAgain) {
    desk.close(*editor);
    model = "77.";
    editor = desk.show("editor");
    EXPECT_EQ(control("tbField").text().text, "77.");
}

TEST_F(AnEntryWindow, TakesTheChosenFontWhenItOpensWhateverItsSize) {
    desk.close(*editor);
    auto& main = *desk.find("frmMain");
    main.bounds.width = Twips{6000 / 0.97};
    main.bounds.height = Twips{4000 / 0.9};
    app.UserFontName = "Arial";
    app.UserFontSize = 11;
    editor = desk.show("editor");
    EXPECT_EQ(control("tbField").fontName, "Arial");
    EXPECT_EQ(control("tbField").fontSize, 11);
}

} // namespace
} // namespace kov
