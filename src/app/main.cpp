#include "app/composition/program.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/qt_services.hpp"
#include "platform/qt/renderer.hpp"
#include "platform/qt/text_codec.hpp"

#include <QApplication>
#include <QScreen>

#include <filesystem>
#include <string>

namespace {

/// The command line is one path: its words, joined by one blank.
std::string commandLine(const QApplication& application) {
    const auto words = application.arguments().mid(1).join(QLatin1Char(' '));
    return kov::textOfPath(std::filesystem::path(words.toStdU16String()));
}

std::string programFolder() {
    const std::filesystem::path folder(QCoreApplication::applicationDirPath().toStdU16String());
    return kov::textOfPath(folder);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("kovin"));
    application.setQuitOnLastWindowClosed(false);
    kov::qt::setLook(application, kov::qt::lookOfDesktop(application));

    kov::qt::QtServices surroundings(std::filesystem::current_path());
    kov::Program program(surroundings.services(), programFolder());
    auto& desk = program.desk();
    const auto screen = QApplication::primaryScreen()->availableSize();
    desk.setScreen(kov::Twips::ofPixels(screen.width()), kov::Twips::ofPixels(screen.height()));

    kov::qt::Renderer renderer(desk);
    renderer.onEnded = [] { QCoreApplication::exit(); };
    surroundings.attach(desk, renderer);

    program.start(commandLine(application));
    if (!desk.ended()) {
        QApplication::exec();
    }
    return desk.failure() ? 1 : 0;
}
