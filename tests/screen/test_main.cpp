#include "quiet.hpp"

#include "platform/qt/look.hpp"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // ctest asks for the tests' names also where there is no screen.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    kov::screen::hideOffscreenRemarks();
    QApplication application(argc, argv);
    kov::qt::setLook(application, kov::qt::Look::Light);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
