// Boxes, menus, windows over windows and stored settings, as a person meets them.
#include "every_control.hpp"
#include "platform/headless/surroundings.hpp"
#include "platform/qt/messages.hpp"
#include "platform/qt/renderer.hpp"
#include "platform/qt/stores.hpp"
#include "platform/qt/text_codec.hpp"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kov::screen {
namespace {

/// Does something with the message box as soon as it stands open.
void atBox(const std::function<void(QMessageBox&)>& act) {
    QTimer::singleShot(0, [act] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

TEST(MessageBoxes, WithoutATitleShowTheProgramsName) {
    qt::QtMessages messages;
    QString title;
    atBox([&](QMessageBox& box) {
        title = box.windowTitle();
        box.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(messages.show(0, "", "Line Sections must be defined before segments."), Answer::Ok);
    EXPECT_EQ(title, QStringLiteral("KOV Input Data"));
}

TEST(MessageBoxes, ShowEveryByteOfTheProgramsTextAndItsLines) {
    qt::QtMessages messages;
    QString text;
    QString title;
    atBox([&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(messages.show(52, "Invalid \xC9ntry", "Range:\n 0 to 12 \x80\r\nTry <b>again</b>?"), Answer::No);
    EXPECT_EQ(title, QStringLiteral(u"Invalid \u00C9ntry"));
    EXPECT_EQ(text, QStringLiteral(u"Range:\n 0 to 12 \u20AC\nTry <b>again</b>?"));
}

TEST(MessageBoxes, EscapeIsCancelWhereThereIsOne) {
    qt::QtMessages messages;
    atBox([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(messages.show(3 + 48, "Save", "Save changes?"), Answer::Cancel);
}

TEST(StoredSettings, OutliveTheProgramUnderTheApplicationsName) {
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    qt::QtSettings().set("MRU1", "C:\\d\xE9p\xF4t\\a b.kov");
    EXPECT_EQ(qt::QtSettings().get("MRU1", ""), "C:\\d\xE9p\xF4t\\a b.kov");
    EXPECT_EQ(qt::QtSettings().get("MRU2", "none"), "none");
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("KOVIN/Settings.conf"))));
}

TEST(SystemClipboard, TextOfAnotherProgramComesWithTheProgramsLineEnds) {
    QGuiApplication::clipboard()->setText(QStringLiteral(u"a\tb\nc \u0416"));
    EXPECT_EQ(qt::QtClipboard().text(), "a\tb\r\nc ?");
}

class WithAWindow : public testing::Test {
protected:
    WithAWindow() {
        registerEverything(desk, heard);
        desk.registerWindow("Other", [](Window& other) {
            other.caption = "Other";
            other.bounds = {Twips{600}, Twips{600}, Twips{3000}, Twips{2000}};
            other.add(ControlKind::TextBox, "tbOther").bounds = {Twips{150}, Twips{150}, Twips{1500}, Twips{315}};
            return std::make_shared<int>(0);
        });
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
    QMenuBar& bar() { return *renderer.widgetOf(*window)->findChild<QMenuBar*>(); }
    [[nodiscard]] auto times(const std::string& event) const { return std::count(heard.begin(), heard.end(), event); }
    /// Lets the window system tell what it has to tell.
    static void settle() { QTest::qWait(200); }

    Surroundings around{std::filesystem::temp_directory_path()};
    Heard heard;
    Desk desk{around.services()};
    qt::Renderer renderer{desk, {.realTimers = false}};
    Window* window = nullptr;
};

TEST_F(WithAWindow, AMenuEntryIsChosenByTheLettersOfItsCaptions) {
    EXPECT_EQ(bar().actions().constFirst()->text(), "&Edit");
    auto& menu = widget<QMenu>("M_Edit");
    menu.popup({});
    QTest::keyClick(&menu, Qt::Key_T);
    EXPECT_EQ(times("click ME_Cut"), 1);
}

TEST_F(WithAWindow, APopUpMenuOpensWithTheEntriesOfItsMenuAndTakesTheirLetters) {
    auto& grid = window->control("grdData");
    grid.on.rightClick = [this](int) { window->control("M_Edit").menu().popup = true; };
    desk.rightClick(grid, 1);
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->objectName(), "M_Edit");
    QTest::keyClick(popup, Qt::Key_T);
    EXPECT_EQ(times("click ME_Cut"), 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(window->control("M_Edit").menu().popup);
}

TEST_F(WithAWindow, ADisabledEntryIsGrayAndASeparatorIsALine) {
    EXPECT_FALSE(bar().findChild<QAction*>(QStringLiteral("ME_Gray"))->isEnabled());
    EXPECT_TRUE(bar().findChild<QAction*>(QStringLiteral("ME_Bar"))->isSeparator());
}

TEST_F(WithAWindow, AControlThatTurnsItsPageBringsItToTheFrontWithTheFocus) {
    auto& far = window->control("tbPage1");
    far.turnsPage = true;
    far.on.gotFocus = [this] { window->control("Tabs1").tabs().current = 1; };
    ASSERT_EQ(widget<QTabWidget>("Tabs1").currentIndex(), 0);
    EXPECT_FALSE(widget("tbPage1").isVisible());
    desk.focusOn(far);
    EXPECT_EQ(widget<QTabWidget>("Tabs1").currentIndex(), 1);
    EXPECT_TRUE(widget("tbPage1").isVisible());
    EXPECT_EQ(renderer.widgetOf(*window)->focusWidget(), &widget("tbPage1"));
}

TEST_F(WithAWindow, ABackgroundOfItsOwnIsShownAndTakenBack) {
    auto& check = window->control("ckOn");
    const auto plain = widget("ckOn").palette().color(QPalette::Window);
    check.backColor = 16776960;
    renderer.sync();
    EXPECT_EQ(widget("ckOn").palette().color(QPalette::Window), QColor(0, 255, 255));
    EXPECT_EQ(widget("ckOn").palette().color(QPalette::WindowText), QColor(Qt::black));
    EXPECT_TRUE(widget("ckOn").autoFillBackground());
    check.backColor = 12632256;
    renderer.sync();
    EXPECT_EQ(widget("ckOn").palette().color(QPalette::Window), plain) << "the face of windows is the look's own";
    auto& box = window->control("tbName");
    box.backColor = 255;
    renderer.sync();
    EXPECT_EQ(widget("tbName").palette().color(QPalette::Base), QColor(255, 0, 0));
}

TEST_F(WithAWindow, ABoxShowsItsSelectionOnlyWithTheFocusAndGetsItBack) {
    auto& box = window->control("tbName");
    desk.focusOn(box);
    box.selectText(0, 4);
    renderer.sync();
    EXPECT_EQ(widget<QLineEdit>("tbName").selectedText(), "Deep");
    desk.focusOn(window->control("cmdPush"));
    EXPECT_FALSE(widget<QLineEdit>("tbName").hasSelectedText());
    EXPECT_EQ(box.text().selLength, 4);
    desk.focusOn(box);
    EXPECT_EQ(widget<QLineEdit>("tbName").selectedText(), "Deep");
}

TEST_F(WithAWindow, AValueBeyondTheEndOfAProgressBarIsShownAsFull) {
    auto& part = window->control("Progress1").progress();
    part.max = 10;
    part.value = 25;
    renderer.sync();
    EXPECT_EQ(widget<QProgressBar>("Progress1").maximum(), 10);
    EXPECT_EQ(widget<QProgressBar>("Progress1").value(), 10);
}

TEST_F(WithAWindow, ADropDownListLaidOverACellLiesAboveTheGridAndIsChosenFrom) {
    auto& list = window->control("cbFixed");
    list.bounds = {Twips{2000}, Twips{3300}, Twips{1170}, Twips{300}};
    renderer.sync();
    auto* top = renderer.widgetOf(*window)->childAt(
        widget("cbFixed").mapTo(renderer.widgetOf(*window), widget("cbFixed").rect().center()));
    EXPECT_EQ(top, &widget("cbFixed"));
    desk.select(list, std::array{2});
    EXPECT_EQ(times("click cbFixed"), 1);
    EXPECT_EQ(list.shownText(), "Gamma");
}

TEST_F(WithAWindow, SeveralWindowsOpenedAtOnceComeToRestWithTheLastInFront) {
    // What the window system tells late of the earlier ones is old news.
    desk.act([this] {
        desk.show("Other");
        desk.bringToFront(*window);
        desk.bringToFront(*desk.find("Other"));
    });
    settle();
    EXPECT_EQ(desk.front(), desk.find("Other"));
    EXPECT_EQ(QApplication::activeWindow(), renderer.widgetOf(*desk.find("Other")));
}

TEST_F(WithAWindow, AWindowThatThePersonBringsToTheFrontIsInFront) {
    desk.act([this] { desk.show("Other"); });
    settle();
    renderer.widgetOf(*window)->activateWindow();
    settle();
    EXPECT_EQ(desk.front(), window);
    EXPECT_TRUE(desk.focus() == nullptr || desk.focus()->window == window);
}

TEST_F(WithAWindow, AModalWindowStandsBeforeAllOthers) {
    desk.act([this] { desk.show("Other", true); });
    settle();
    auto* other = renderer.widgetOf(*desk.find("Other"));
    EXPECT_EQ(other->windowModality(), Qt::ApplicationModal);
    QTest::mouseClick(&widget("cmdPush"), Qt::LeftButton);
    EXPECT_EQ(times("click cmdPush"), 0);
    other->close();
    settle();
    QTest::mouseClick(&widget("cmdPush"), Qt::LeftButton);
    EXPECT_EQ(times("click cmdPush"), 1);
}

TEST_F(WithAWindow, TheFunctionKeysReachTheWindow) {
    std::vector<int> codes;
    window->control("tbName").on.keyDown = [&](int& code, int) { codes.push_back(code); };
    desk.focusOn(window->control("tbName"));
    QTest::keyClick(&widget("tbName"), Qt::Key_F2);
    QTest::keyClick(&widget("tbName"), Qt::Key_Insert);
    EXPECT_EQ(codes, (std::vector{keys::F2, keys::Insert}));
}

} // namespace
} // namespace kov::screen
