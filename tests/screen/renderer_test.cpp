#include "every_control.hpp"
#include "platform/headless/surroundings.hpp"
#include "platform/qt/grid_widget.hpp"
#include "platform/qt/renderer.hpp"
#include "platform/qt/text_codec.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace kov::screen {
namespace {

/// A person in front of the window with every kind of control.
class AtEveryControl : public testing::Test {
protected:
    AtEveryControl() {
        registerEverything(desk, heard);
        desk.act([this] { desk.show("Everything"); });
        window = desk.find("Everything");
        QCoreApplication::processEvents();
        heard.clear();
    }

    template <typename Widget = QWidget> Widget& widget(const char* name) {
        auto* found = renderer.widgetOf(*window)->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    Control& control(const char* name) { return window->control(name); }
    [[nodiscard]] bool wasHeard(const std::string& event) const {
        return std::find(heard.begin(), heard.end(), event) != heard.end();
    }
    void refuseToLeave(const char* name) {
        control(name).on.lostFocus = [this, name] { desk.setFocus(control(name)); };
    }

    Surroundings around{std::filesystem::temp_directory_path()};
    Heard heard;
    Desk desk{around.services()};
    qt::Renderer renderer{desk, {.realTimers = false}};
    Window* window = nullptr;
};

TEST_F(AtEveryControl, WidgetsBearNamesAndPlainCaptions) {
    EXPECT_EQ(widget("cmdPush").accessibleName(), "Push");
    EXPECT_EQ(widget("rbWay(1)").accessibleName(), "Way 2");
    EXPECT_EQ(widget("lblName").accessibleName(), "Station Name");
}

TEST_F(AtEveryControl, APixelIsFifteenTwips) {
    EXPECT_EQ(widget("tbName").geometry(), QRect(126, 10, 140, 21));
    EXPECT_EQ(widget("cmdPush").pos(), QPoint(12, 24)) << "inside its frame";
}

TEST_F(AtEveryControl, TheDesksFocusIsTheFocusOfTheWindow) {
    desk.focusOn(control("lstOne"));
    EXPECT_EQ(renderer.widgetOf(*window)->focusWidget(), &widget("lstOne"));
}

TEST_F(AtEveryControl, TypedCharactersReachTheDeskOneByOne) {
    desk.focusOn(control("tbName"));
    control("tbName").selectText(0, 4);
    heard.clear();
    QTest::keyClicks(&widget("tbName"), QStringLiteral("Low"));
    EXPECT_EQ(control("tbName").text().text, "Low \xC9"
                                             "ast");
    EXPECT_EQ(widget<QLineEdit>("tbName").text(), QStringLiteral(u"Low \u00C9ast"));
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "change tbName"), 3);
}

TEST_F(AtEveryControl, ACharacterThatTheFileCantHoldIsRefusedWithABeep) {
    desk.focusOn(control("tbName"));
    static_cast<void>(desk.takeBeep());
    QTest::sendKeyEvent(QTest::Press, &widget("tbName"), Qt::Key_unknown, QStringLiteral(u"\u0416"), Qt::NoModifier);
    EXPECT_EQ(control("tbName").text().text, "Deep \xC9"
                                             "ast");
    EXPECT_TRUE(desk.takeBeep());
}

TEST_F(AtEveryControl, TextOfAnInputMethodIsAnEditAndUnfitTextIsTakenBack) {
    desk.focusOn(control("tbName"));
    control("tbName").selectText(0, 10);
    renderer.sync();
    QInputMethodEvent fits;
    fits.setCommitString(QStringLiteral(u"\u00FC"));
    QApplication::sendEvent(&widget("tbName"), &fits);
    EXPECT_EQ(control("tbName").text().text, "\xFC");
    QInputMethodEvent unfit;
    unfit.setCommitString(QStringLiteral(u"\u0416"));
    QApplication::sendEvent(&widget("tbName"), &unfit);
    EXPECT_EQ(control("tbName").text().text, "\xFC");
    EXPECT_EQ(widget<QLineEdit>("tbName").text(), QStringLiteral(u"\u00FC"));
}

TEST_F(AtEveryControl, WhatWasTypedCanBeUndone) {
    desk.focusOn(control("tbName"));
    control("tbName").selectText(0, 0);
    renderer.sync();
    QTest::keyClicks(&widget("tbName"), QStringLiteral("ab"));
    QTest::keyClick(&widget("tbName"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(control("tbName").text().text, qt::fromQt(widget<QLineEdit>("tbName").text()));
    EXPECT_NE(control("tbName").text().text, "abDeep \xC9"
                                             "ast");
}

TEST_F(AtEveryControl, ASelectionMadeWithTheMouseOrShiftIsMirrored) {
    desk.focusOn(control("tbName"));
    control("tbName").selectText(0, 0);
    renderer.sync();
    QTest::keyClick(&widget("tbName"), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&widget("tbName"), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(control("tbName").text().selStart, 0);
    EXPECT_EQ(control("tbName").text().selLength, 2);
}

TEST_F(AtEveryControl, LinesOfABoxEndWithOneEnterKey) {
    desk.focusOn(control("tbMany"));
    control("tbMany").selectText(5, 0);
    renderer.sync();
    QTest::keyClick(&widget("tbMany"), Qt::Key_Return);
    EXPECT_EQ(control("tbMany").text().text, "first\r\n line\r\nsecond line");
    EXPECT_EQ(widget<QPlainTextEdit>("tbMany").toPlainText(), "first\n line\nsecond line");
    EXPECT_EQ(widget<QPlainTextEdit>("tbMany").textCursor().position(), 6);
}

TEST_F(AtEveryControl, TheLinesOfABoxAreWalkedWithTheArrows) {
    desk.focusOn(control("tbMany"));
    control("tbMany").selectText(0, 0);
    renderer.sync();
    QTest::keyClick(&widget("tbMany"), Qt::Key_Down);
    EXPECT_EQ(control("tbMany").text().selStart, 12);
}

TEST_F(AtEveryControl, TheClickThatGivesTheFocusKeepsWhatTheWindowSelects) {
    desk.focusOn(control("cmdPush"));
    control("tbName").on.gotFocus = [this] { control("tbName").selectText(0, 10); };
    QTest::mouseClick(&widget("tbName"), Qt::LeftButton);
    EXPECT_EQ(desk.focus(), &control("tbName"));
    EXPECT_EQ(widget<QLineEdit>("tbName").selectedText().size(), 9) << "all of it";
    QTest::mouseClick(&widget("tbName"), Qt::LeftButton, {}, QPoint(1, 8));
    EXPECT_FALSE(widget<QLineEdit>("tbName").hasSelectedText());
}

TEST_F(AtEveryControl, AClickWhoseFocusIsRefusedDoesNothing) {
    desk.focusOn(control("tbName"));
    refuseToLeave("tbName");
    heard.clear();
    QTest::mouseClick(&widget("cmdPush"), Qt::LeftButton);
    QTest::mouseClick(&widget("ckOn"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseClick(widget<QTabWidget>("Tabs1").tabBar(), Qt::LeftButton, {},
                      widget<QTabWidget>("Tabs1").tabBar()->tabRect(1).center());
    QTest::mouseClick(&widget("cbFixed"), Qt::LeftButton);
    EXPECT_FALSE(wasHeard("click cmdPush"));
    EXPECT_FALSE(widget<QCheckBox>("ckOn").isChecked());
    EXPECT_EQ(widget<QTabWidget>("Tabs1").currentIndex(), 0);
    EXPECT_FALSE(widget<QComboBox>("cbFixed").view()->isVisible());
    EXPECT_EQ(renderer.widgetOf(*window)->focusWidget(), &widget("tbName"));
}

TEST_F(AtEveryControl, ChecksAndOptionsShowWhatTheDeskSays) {
    QTest::mouseClick(&widget("ckOn"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseClick(&widget("rbWay(2)"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseClick(&widget("rbWay(2)"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(control("ckOn").checked);
    EXPECT_TRUE(widget<QCheckBox>("ckOn").isChecked());
    EXPECT_FALSE(widget<QRadioButton>("rbWay(0)").isChecked());
    EXPECT_TRUE(widget<QRadioButton>("rbWay(2)").isChecked());
}

TEST_F(AtEveryControl, AListIsChosenFromWithCtrl) {
    auto& list = widget<QListWidget>("lstMany");
    const auto press = [&](int row, Qt::KeyboardModifiers held) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, held, list.visualItemRect(list.item(row)).center());
    };
    press(1, {});
    press(0, Qt::ControlModifier);
    EXPECT_TRUE(control("lstMany").items().selected(0));
    EXPECT_TRUE(control("lstMany").items().selected(1));
    EXPECT_FALSE(control("lstMany").items().selected(2));
    EXPECT_TRUE(list.item(0)->isSelected());
    EXPECT_FALSE(list.item(2)->isSelected());
}

TEST_F(AtEveryControl, AnEntryOfADropDownListIsChosenFromItsPopUp) {
    auto& combo = widget<QComboBox>("cbFixed");
    QTest::mouseClick(&combo, Qt::LeftButton);
    ASSERT_TRUE(combo.view()->isVisible());
    combo.view()->setCurrentIndex(combo.model()->index(2, 0));
    QTest::keyClick(combo.view(), Qt::Key_Return);
    EXPECT_EQ(control("cbFixed").shownText(), "Gamma");
    EXPECT_TRUE(wasHeard("click cbFixed"));
}

TEST_F(AtEveryControl, ACombinationListTakesTypedText) {
    desk.focusOn(control("cbFree"));
    auto& combo = widget<QComboBox>("cbFree");
    QTest::keyClicks(combo.lineEdit(), QStringLiteral("own"));
    EXPECT_EQ(control("cbFree").text().text, "own");
    EXPECT_EQ(combo.lineEdit()->text(), "own");
    EXPECT_EQ(combo.count(), 4) << "nothing is added to its entries";
}

TEST_F(AtEveryControl, AClickedCellIsTheCurrentOneAlsoFarDown) {
    auto& grid = widget<qt::GridWidget>("grdData");
    grid.verticalScrollBar()->setValue(1500);
    EXPECT_EQ(control("grdData").grid().topRow(), 1500);
    const auto place = grid.cellRect(1505, 2).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(control("grdData").grid().row(), 1505);
    EXPECT_EQ(control("grdData").grid().col(), 2);
    EXPECT_TRUE(wasHeard("cell grdData"));
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, place);
    EXPECT_TRUE(wasHeard("right grdData 1505"));
}

TEST_F(AtEveryControl, CellsLieWhereTheGridSaysThatTheyAre) {
    auto& grid = widget<qt::GridWidget>("grdData");
    const auto& state = control("grdData").grid();
    EXPECT_EQ(grid.cellRect(3, 2).topLeft(), QPoint(qt::pixels(state.colPos(2)), qt::pixels(state.rowPos(3))));
}

TEST_F(AtEveryControl, ScrollingTakesTheFocusFromABoxOverTheGridFirst) {
    auto& box = control("gtext");
    box.bounds = {Twips{2000}, Twips{3600}, Twips{1170}, Twips{270}};
    box.visible = true;
    desk.focusOn(box);
    refuseToLeave("gtext");
    widget<qt::GridWidget>("grdData").verticalScrollBar()->setValue(50);
    EXPECT_EQ(control("grdData").grid().topRow(), 0) << "its check kept the focus";
    EXPECT_EQ(widget<qt::GridWidget>("grdData").verticalScrollBar()->value(), 0);
}

TEST_F(AtEveryControl, PagesShowTheirControls) {
    auto* bar = widget<QTabWidget>("Tabs1").tabBar();
    EXPECT_TRUE(widget("tbPage0").isVisible());
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_FALSE(widget("tbPage0").isVisible());
    EXPECT_TRUE(widget("tbPage1").isVisible());
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(2).center());
    EXPECT_EQ(control("Tabs1").tabs().current, 1) << "the last one is unavailable";
}

TEST_F(AtEveryControl, TabWalksInTheDesksOrder) {
    desk.focusOn(control("tbName"));
    QTest::keyClick(&widget("tbName"), Qt::Key_Tab);
    EXPECT_EQ(desk.focus(), &control("tbLocked"));
    QTest::keyClick(&widget("tbLocked"), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(desk.focus(), &control("tbName"));
}

TEST_F(AtEveryControl, TheFramesCloseButtonAsksTheDesk) {
    window->on.queryUnload = [](bool& cancel) { cancel = true; };
    renderer.widgetOf(*window)->close();
    EXPECT_EQ(desk.find("Everything"), window);
    EXPECT_TRUE(renderer.widgetOf(*window)->isVisible());
    window->on.queryUnload = nullptr;
    renderer.widgetOf(*window)->close();
    EXPECT_EQ(desk.find("Everything"), nullptr);
}

TEST_F(AtEveryControl, AButtonMayCloseItsOwnWindow) {
    control("cmdDone").on.click = [this] { desk.unload(*window); };
    QTest::mouseClick(&widget("cmdDone"), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(desk.find("Everything"), nullptr);
}

TEST_F(AtEveryControl, ANewSizeIsToldToTheWindow) {
    auto* real = renderer.widgetOf(*window);
    int resizes = 0;
    window->on.resize = [&] { ++resizes; };
    real->resize(real->size() + QSize(30, 40));
    QCoreApplication::processEvents();
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(window->bounds.width, Twips{9600 + 450});
    EXPECT_EQ(window->bounds.height, Twips{7200 + 600});
    desk.act([&] { window->moveTo({Twips{600}, Twips{600}, Twips{9000}, Twips{6000}}); });
    QCoreApplication::processEvents();
    EXPECT_EQ(resizes, 2) << "the program's own move comes back as no person's";
    EXPECT_EQ(window->bounds.width, Twips{9000});
}

TEST_F(AtEveryControl, SettingTheWidgetsRaisesNothing) {
    desk.act([&] {
        control("tbName").setText("by program");
        control("ckOn").checked = true;
        control("cbFixed").items().setIndex(2);
        control("Tabs1").tabs().current = 1;
    });
    EXPECT_TRUE(heard.empty());
    EXPECT_EQ(widget<QLineEdit>("tbName").text(), "by program");
    EXPECT_EQ(widget<QComboBox>("cbFixed").currentIndex(), 2);
}

} // namespace
} // namespace kov::screen
