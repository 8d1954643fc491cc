// Pictures of the windows, to be looked at: kov_pictures FOLDER draws all of them, light and dark, at 100 and 200 %.
#include "app/composition/program.hpp"
#include "every_control.hpp"
#include "platform/headless/surroundings.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/renderer.hpp"
#include "platform/qt/text_codec.hpp"
#include "quiet.hpp"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QSet>

#include <array>
#include <cstdio>
#include <filesystem>

namespace {

constexpr int FewColours = 8;

/// One folder of pictures in one look and scale.
class Album {
public:
    Album(QString folder, QString mark) : folder_(std::move(folder)), mark_(std::move(mark)) {}

    void add(kov::qt::Renderer& renderer, const kov::Window& window, const QString& name) {
        QCoreApplication::processEvents();
        renderer.sync();
        const auto image = renderer.widgetOf(window)->grab().toImage();
        const auto file = QDir(folder_).filePath(name + QLatin1Char('-') + mark_ + QStringLiteral(".png"));
        if (blank(image) || !image.save(file)) {
            std::fprintf(stderr, "no picture of %s\n", qPrintable(file));
            failed_ = true;
        }
    }
    [[nodiscard]] bool failed() const { return failed_; }

private:
    static bool blank(const QImage& image) {
        QSet<QRgb> colours;
        for (int y = 0; y < image.height() && colours.size() < FewColours; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colours.insert(image.pixel(x, y));
            }
        }
        return colours.size() < FewColours;
    }
    QString folder_;
    QString mark_;
    bool failed_ = false;
};

/// The whole program without a person: nothing is read but the sample, nothing is kept.
struct Stage {
    kov::Surroundings around{std::filesystem::path(KOV_SOURCE_DIR) / "samples"};
    kov::Program program{around.services(), kov::qt::fromQtLossy(QCoreApplication::applicationDirPath())};
    kov::qt::Renderer renderer{program.desk(), {.realTimers = false}};

    /// Starts on a file of the samples; the splash is closed.
    kov::Window* start(const std::string& file) {
        program.start(file);
        if (auto* splash = program.desk().find("About")) {
            program.desk().close(*splash);
        }
        return program.desk().find("frmMain");
    }
    kov::Window* open(const std::string& name) {
        kov::Window* window = nullptr;
        program.desk().act([&] { window = program.desk().show(name); });
        return window;
    }
};

/// The windows of the data, in the order of the main window's buttons, and what has no button.
constexpr std::array Windows{"General",  "Options", "SimCtrl", "frmLSect", "lseg",   "frmVSect", "vshaft",   "frmXFan",
                             "frmFires", "ECZones", "frmIFan", "TrnInit",  "Trains", "Route1",   "FanTable", "frmCounts"};

void drawPages(Album& album, Stage& stage, const kov::Window& window, const QString& name) {
    album.add(stage.renderer, window, name);
    for (const auto& control : window.controls()) {
        if (control->kind != kov::ControlKind::TabStrip) {
            continue;
        }
        for (int page = 0; page < static_cast<int>(control->tabs().tabs.size()); ++page) {
            if (page != control->tabs().current && stage.program.desk().chooseTab(*control, page)) {
                album.add(stage.renderer, window, name + QStringLiteral("-page%1").arg(page));
            }
        }
    }
}

void drawData(Album& album) {
    Stage stage;
    stage.start("two-station-line.kov");
    for (const auto* name : Windows) {
        if (auto* window = stage.open(name)) {
            drawPages(album, stage, *window, QString::fromLatin1(name));
            stage.program.desk().close(*window);
        }
    }
    auto* about = stage.open("About");
    album.add(stage.renderer, *about, QStringLiteral("About"));
}

/// One picture for each pair of types that a node of the sample has.
void drawNodes(Album& album) {
    Stage stage;
    stage.start("ventilation-only.kov");
    auto* window = stage.open("NodeDtl");
    QSet<QString> drawn;
    auto& grid = window->control("Grid1");
    for (int row = 0; row < grid.grid().rows(); ++row) {
        stage.program.desk().cell(grid, row, 0);
        const auto types = QStringLiteral("NodeDtl-aero%1-thermo%2")
                               .arg(window->control("cbAeroType").items().index())
                               .arg(window->control("cbThermoType").items().index());
        if (!drawn.contains(types)) {
            drawn.insert(types);
            album.add(stage.renderer, *window, types);
        }
    }
}

void drawMain(Album& album, const std::string& file, const QString& mark) {
    Stage stage;
    auto* window = stage.start(file);
    stage.program.desk().focusOn(window->control("tbDgnMon"));
    album.add(stage.renderer, *window, QStringLiteral("frmMain-") + mark);
}

void drawEverything(Album& album) {
    kov::screen::Heard heard;
    Stage stage;
    kov::screen::registerEverything(stage.program.desk(), heard);
    auto* window = stage.open("Everything");
    album.add(stage.renderer, *window, QStringLiteral("Everything"));
    auto& box = window->control("gtext");
    stage.program.desk().act([&] {
        stage.program.desk().chooseTab(window->control("Tabs1"), 1);
        stage.program.desk().cell(window->control("grdData"), 4, 2);
        box.bounds = {kov::Twips{150 + 1800 + 30}, kov::Twips{2700 + 1200 + 30}, kov::Twips{1170}, kov::Twips{270}};
        box.visible = true;
        box.setText("30.");
        stage.program.desk().focusOn(box);
        box.selectText(0, 3);
    });
    album.add(stage.renderer, *window, QStringLiteral("Everything-overlay"));
}

int drawAll(QApplication& application, const QString& folder, bool dark, const QString& scale) {
    kov::qt::setLook(application, dark ? kov::qt::Look::Dark : kov::qt::Look::Light);
    QDir().mkpath(folder);
    Album album(folder, scale + (dark ? QStringLiteral("-dark") : QStringLiteral("-light")));
    drawEverything(album);
    drawMain(album, {}, QStringLiteral("empty"));
    drawMain(album, "two-station-line.kov", QStringLiteral("sample"));
    drawData(album);
    drawNodes(album);
    return album.failed() ? 1 : 0;
}

/// The scale is fixed when a program starts, so each scale is drawn by a process of its own.
int drawInProcesses(const QString& folder) {
    int failed = 0;
    for (const auto* scale : {"1", "2"}) {
        for (const auto* look : {"light", "dark"}) {
            QProcess painter;
            auto environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(scale));
            painter.setProcessEnvironment(environment);
            painter.setProcessChannelMode(QProcess::ForwardedChannels);
            painter.start(QCoreApplication::applicationFilePath(),
                          {folder, QString::fromLatin1(look), QString::fromLatin1(scale) + QStringLiteral("00")});
            painter.waitForFinished(-1);
            failed += painter.exitStatus() == QProcess::NormalExit && painter.exitCode() == 0 ? 0 : 1;
        }
    }
    return failed == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    kov::screen::hideOffscreenRemarks();
    QApplication application(argc, argv);
    const auto words = application.arguments();
    if (words.size() == 2) {
        return drawInProcesses(words[1]);
    }
    if (words.size() == 4) {
        return drawAll(application, words[1], words[2] == QStringLiteral("dark"), words[3]);
    }
    std::fprintf(stderr, "usage: kov_pictures FOLDER\n");
    return 2;
}
