#include "shell/entry/field_cycle.hpp"
#include "unit/support/fakes.hpp"

#include <gtest/gtest.h>

namespace kov {
namespace {

using test::Log;

/// A field with limits 0 to 100 and a place to go to; what passes its check goes to a model of one text.
class AField : public testing::Test, protected test::Workplace {
protected:
    AField() {
        open("form", [this](Window& window) {
            other = &window.add(ControlKind::Button, "other");
            field = &window.add(ControlKind::TextBox, "tbField");
            whole = &window.add(ControlKind::TextBox, "tbWhole");
            plain = &window.add(ControlKind::TextBox, "tbPlain");
            check = &window.add(ControlKind::CheckBox, "ck");
            bindField(app, flags, *field, "0 to 100", real(0, 100), [this] { model = field->text().text; });
            bindField(app, flags, *whole, "whole", integer(0, 100));
            bindField(app, flags, *plain, "plain", text());
            bindHint(app, *check, "check hint");
        });
    }
    void enter(const std::string& typed) {
        desk.focusOn(*field);
        desk.type(typed);
    }

    Application app{desk};
    EntryFlags flags;
    std::string model = "200";
    Control* other = nullptr;
    Control* field = nullptr;
    Control* whole = nullptr;
    Control* plain = nullptr;
    Control* check = nullptr;
};

TEST_F(AField, ShowsItsHintAndSelectsItsTextWithoutTrailingBlanksOnFocus) {
    field->setText(" 12   ");
    desk.focusOn(*field);
    EXPECT_EQ(desk.panel(2), "0 to 100");
    EXPECT_EQ(field->text().selStart, 0);
    EXPECT_EQ(field->text().selLength, 3);
    EXPECT_EQ(field->text().text, " 12   ");
}

TEST_F(AField, OnlyMarksItselfAsChangedWhileItIsTypedIn) {
    enter("999x");
    EXPECT_TRUE(flags.FieldChanged);
    EXPECT_FALSE(flags.FormChanged);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(AField, IsNotCheckedWhenItWasNotEdited) {
    field->setText("200");
    desk.focusOn(*field);
    desk.focusOn(*other);
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(field->text().text, "200");
    EXPECT_EQ(model, "200");
    EXPECT_FALSE(flags.FormChanged);
}

TEST_F(AField, ClearsItsHintWhenItIsLeft) {
    desk.focusOn(*field);
    desk.focusOn(*other);
    EXPECT_EQ(desk.panel(2), "");
}

TEST_F(AField, ShowsTheNormalisedTextAndMarksTheWindowWhenItIsLeft) {
    enter("5");
    desk.focusOn(*other);
    EXPECT_EQ(field->text().text, "5.");
    EXPECT_EQ(model, "5.");
    EXPECT_TRUE(flags.FormChanged);
    EXPECT_FALSE(flags.FieldChanged);
    EXPECT_EQ(flags.FieldText, "5.");
    EXPECT_FALSE(app.FileDirty) << "the file is marked by the store routine only";
}

TEST_F(AField, TakesTheFocusBackWhenAnotherTryIsWanted) {
    field->setText("200");
    enter("201");
    surroundings.messages.queue(Answer::Yes);
    desk.focusOn(*other);
    EXPECT_EQ(desk.focus(), field);
    EXPECT_EQ(model, "200");
    EXPECT_EQ(field->text().text, "201");
    EXPECT_EQ(field->text().selLength, 3) << "ready to be typed over";
    EXPECT_EQ(desk.panel(2), "0 to 100");
    EXPECT_TRUE(flags.FormChanged) << "the window was changed all the same";
}

TEST_F(AField, KeepsAValueThatThePersonInsistsOn) {
    enter("201");
    surroundings.messages.queue(Answer::No);
    desk.focusOn(*other);
    EXPECT_EQ(desk.focus(), other);
    EXPECT_EQ(model, "201");
}

TEST_F(AField, IsNotAskedAgainAfterARefusalThatWasNotEdited) {
    enter("x");
    desk.focusOn(*other);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(desk.focus(), field);
    desk.focusOn(*other);
    EXPECT_EQ(boxes().size(), 1U);
    EXPECT_EQ(desk.focus(), other);
    EXPECT_EQ(model, "200") << "what was refused isn't stored";
}

TEST_F(AField, StopsTheClickThatLeftItWithABadText) {
    bool clicked = false;
    other->on.click = [&] { clicked = true; };
    enter("x");
    desk.click(*other);
    EXPECT_FALSE(clicked);
}

TEST_F(AField, MayBeEmptied) {
    field->setText("12");
    desk.focusOn(*field);
    desk.key(Key::Delete);
    desk.focusOn(*other);
    EXPECT_EQ(model, "");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(AField, OfAWholeNumberShowsTheCorrectedOneWhenItIsRefused) {
    desk.focusOn(*whole);
    desk.type("2.5");
    desk.focusOn(*other);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(boxes()[0].prompt, "Integer Value Required");
    EXPECT_EQ(desk.focus(), whole);
    EXPECT_EQ(whole->text().text, "2");
}

TEST_F(AField, OfTextIsNeverRefused) {
    desk.focusOn(*plain);
    desk.type("anything");
    desk.focusOn(*other);
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(plain->text().text, "anything");
    EXPECT_TRUE(flags.FormChanged);
}

TEST_F(AField, LeftByTabIsCheckedAsByAClick) {
    enter("x");
    desk.key(Key::Tab);
    EXPECT_EQ(desk.focus(), field);
    EXPECT_EQ(boxes().size(), 1U);
}

TEST_F(AField, TooLargeForAWholeNumberEndsTheProgram) {
    desk.focusOn(*whole);
    desk.type("40000");
    desk.focusOn(*other);
    EXPECT_TRUE(desk.ended());
    EXPECT_EQ(desk.failure(), "Overflow");
}

TEST_F(AField, BesideItACheckBoxHasOnlyTheHint) {
    desk.click(*check);
    EXPECT_EQ(desk.panel(2), "check hint");
    EXPECT_FALSE(flags.FieldChanged);
    desk.focusOn(*other);
    EXPECT_EQ(desk.panel(2), "");
}

} // namespace
} // namespace kov
