#include "platform/headless/surroundings.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/renderer.hpp"

#include <QApplication>
#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QPixmap>

#include <gtest/gtest.h>

#include <string>

namespace kov::screen {
namespace {

constexpr int DesignWidth = 180, DesignHeight = 120;

/// One of the pictures of "Node Details", as it stands beside the program.
class AJunctionDiagram : public testing::TestWithParam<const char*> {
protected:
    [[nodiscard]] static QString path() {
        return QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QString::fromLatin1(GetParam()));
    }
};

TEST_P(AJunctionDiagram, HasFourPixelsForEachOneOfTheDesignSoThatItStaysCrisp) {
    QImageReader reader(path());
    reader.setDecideFormatFromContent(true);
    ASSERT_TRUE(reader.canRead()) << path().toStdString();
    EXPECT_GE(reader.size().width(), 4 * DesignWidth);
    EXPECT_GE(reader.size().height(), 4 * DesignHeight);
}

TEST_P(AJunctionDiagram, BringsItsLightGroundAndDarkWallsAlong) {
    QImageReader reader(path());
    reader.setDecideFormatFromContent(true);
    const auto picture = reader.read();
    ASSERT_FALSE(picture.isNull());
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            dark += picture.pixelColor(x, y).lightness() < 90 ? 1 : 0;
        }
    }
    EXPECT_GT(picture.pixelColor(12, 12).lightness(), 230) << "the ground";
    EXPECT_GT(dark, 1500) << "the walls";
    EXPECT_LT(dark, picture.width() * picture.height() / 5) << "a drawing of lines";
}

TEST_P(AJunctionDiagram, FillsTheImageOfAWindowInTheDark) {
    qt::setLook(*qApp, qt::Look::Dark);
    Surroundings around{std::filesystem::temp_directory_path()};
    Desk desk{around.services()};
    desk.registerWindow("Diagram", [](Window& window) {
        window.bounds = {Twips{}, Twips{}, Twips{6000}, Twips{4000}};
        auto& image = window.add(ControlKind::Image, "Image1");
        image.bounds = {Twips{150}, Twips{150}, Twips::ofPixels(2 * DesignWidth), Twips::ofPixels(2 * DesignHeight)};
        // The window asks for it with the program's folder and a backslash.
        image.image().path = QCoreApplication::applicationDirPath().toStdString() + "\\" + GetParam();
        return std::shared_ptr<void>{};
    });
    qt::Renderer renderer{desk, {.realTimers = false}};
    desk.act([&] { desk.show("Diagram"); });
    QCoreApplication::processEvents();
    auto* label = renderer.widgetOf(*desk.find("Diagram"))->findChild<QLabel*>(QStringLiteral("Image1"));
    ASSERT_NE(label, nullptr);
    const auto shown = label->pixmap(Qt::ReturnByValue);
    EXPECT_EQ(shown.size(), QSize(2 * DesignWidth, 2 * DesignHeight) * label->devicePixelRatioF());
    EXPECT_GT(shown.toImage().pixelColor(8, 8).lightness(), 230);
    qt::setLook(*qApp, qt::Look::Light);
}

INSTANTIATE_TEST_SUITE_P(Of, AJunctionDiagram,
                         testing::Values("aero0.dib", "aero01.dib", "aero03.dib", "aero1.dib", "aero2.dib", "aero3.dib",
                                         "aero4.dib", "aero5.dib"),
                         [](const auto& name) { return std::string(name.param, std::string(name.param).find('.')); });

} // namespace
} // namespace kov::screen
