#include "platform/qt/help_viewer.hpp"
#include "platform/qt/look.hpp"

#include <QAbstractItemModel>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QSet>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeView>

#include <gtest/gtest.h>

#include <map>

namespace kov::qt {
namespace {

/// The compiled pages as an engineer sees them; they lie beside this program, as they do beside kovin.
class HelpPages : public testing::Test {
protected:
    [[nodiscard]] static QWidget* window() {
        for (auto* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == QStringLiteral("HelpViewer")) {
                return widget;
            }
        }
        return nullptr;
    }
    [[nodiscard]] static QTextBrowser& browser() { return *window()->findChild<QTextBrowser*>(QStringLiteral("HelpPage")); }
    [[nodiscard]] static QTabWidget& tabs() { return *window()->findChild<QTabWidget*>(QStringLiteral("HelpTabs")); }
    static bool waitFor(const std::function<bool()>& done) {
        QElapsedTimer time;
        time.start();
        while (!done() && time.elapsed() < 10000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        }
        return done();
    }

    QtHelpViewer viewer;
};

TEST_F(HelpPages, AreNotLoadedBeforeTheyAreAskedFor) {
    EXPECT_EQ(viewer.window(), nullptr);
    EXPECT_EQ(window(), nullptr);
}

TEST_F(HelpPages, AreFoundByEveryContextNumber) {
    const std::map<int, QString> titles{{1110, "General Data"},
                                        {1101, "Options"},
                                        {1120, "Simulation Control"},
                                        {1200, "Line Sections"},
                                        {1210, "Line Segment Data"},
                                        {1230, "Node Details"},
                                        {1240, "Vent Sections"},
                                        {1250, "Vent Shaft Data"},
                                        {1300, "Supply/Exhaust Fans"},
                                        {1310, "Impulse Fans"},
                                        {1350, "Fire Data"},
                                        {1360, "Environmental Control Zones"},
                                        {1410, "Route Descriptions"},
                                        {1420, "Route Descriptions"},
                                        {1500, "Train Data"},
                                        {1590, "Train Initialization"},
                                        {1600, "Fan Table"}};
    for (const auto& [context, title] : titles) {
        viewer.show(HelpContext, context, "");
        ASSERT_NE(window(), nullptr);
        EXPECT_EQ(browser().documentTitle(), title) << context;
        EXPECT_GT(browser().toPlainText().size(), 400) << context;
    }
}

TEST_F(HelpPages, OpenAtTheFieldThatWasAskedAbout) {
    viewer.show(HelpContext, 1110, "tbPAmb");
    EXPECT_EQ(browser().source().fragment(), "tbPAmb");
    viewer.show(HelpContext, 1500, "tbMtrDat(6)");
    EXPECT_EQ(browser().source().fragment(), "tbMtrDat(6)");
    viewer.show(HelpContext, 1120, "gtext");
    EXPECT_EQ(browser().source().fragment(), "") << "a box without a line of its own leads to the top of the page";
}

TEST_F(HelpPages, BeginWithTheContents) {
    viewer.show(HelpContents, 0, "");
    EXPECT_EQ(browser().documentTitle(), "KOV Input Data");
    EXPECT_EQ(tabs().currentIndex(), 0);
    auto* contents = window()->findChild<QTreeView*>(QStringLiteral("HelpContents"));
    ASSERT_TRUE(waitFor([&] { return contents->model()->rowCount() == 1; }));
    const auto top = contents->model()->index(0, 0);
    EXPECT_EQ(top.data().toString(), "KOV Input Data");
    EXPECT_GT(contents->model()->rowCount(top), 20);
}

TEST_F(HelpPages, AreSearchedByKeyword) {
    viewer.show(HelpSearch, 0, "");
    EXPECT_EQ(tabs().currentIndex(), 1);
    auto* index = window()->findChild<QListView*>(QStringLiteral("HelpIndex"));
    ASSERT_TRUE(waitFor([&] { return index->model()->rowCount() > 100; }));
    auto* keyword = window()->findChild<QLineEdit*>(QStringLiteral("HelpKeyword"));
    keyword->setText(QStringLiteral("Barometric"));
    ASSERT_TRUE(waitFor([&] { return index->model()->rowCount() == 1; }));
    EXPECT_EQ(index->model()->index(0, 0).data().toString(), "Barometric Pressure, General Data");
    index->setCurrentIndex(index->model()->index(0, 0));
    emit keyword->returnPressed();
    EXPECT_TRUE(waitFor([&] { return browser().documentTitle() == QStringLiteral("General Data"); }));
    EXPECT_EQ(browser().source().fragment(), "tbPAmb");
}

TEST_F(HelpPages, LeadFromOneToTheNextAndBack) {
    viewer.show(HelpContext, 1110, "");
    viewer.show(HelpContext, 1120, "");
    browser().backward();
    EXPECT_EQ(browser().documentTitle(), "General Data");
}

TEST_F(HelpPages, AreDrawnInLightAndDarkForTheEye) {
    auto& application = *qobject_cast<QApplication*>(QCoreApplication::instance());
    QDir().mkpath(QStringLiteral("pictures"));
    for (const auto look : {Look::Dark, Look::Light}) {
        setLook(application, look);
        viewer.show(HelpContext, 1110, "");
        QCoreApplication::processEvents();
        const auto image = window()->grab().toImage();
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 3) {
            for (int x = 0; x < image.width(); ++x) {
                colours.insert(image.pixel(x, y));
            }
        }
        EXPECT_GT(colours.size(), 8);
        const auto name = look == Look::Dark ? QStringLiteral("dark") : QStringLiteral("light");
        EXPECT_TRUE(image.save(QStringLiteral("pictures/HelpViewer-%1.png").arg(name)));
    }
}

} // namespace
} // namespace kov::qt
