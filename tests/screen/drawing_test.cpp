#include "every_control.hpp"
#include "platform/headless/surroundings.hpp"
#include "platform/qt/look.hpp"
#include "platform/qt/renderer.hpp"

#include <QApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kov::screen {
namespace {

using Tone = DrawingPart::Tone;
constexpr std::array AllTones{Tone::Text, Tone::Axis, Tone::Faint, Tone::First, Tone::Second, Tone::Limit};
constexpr std::array ReadTones{Tone::Text, Tone::First, Tone::Second, Tone::Limit};

/// The drawing of the window with every kind of control: a line at half its height, a dot below, a word above.
class ADrawing : public testing::TestWithParam<qt::Look> {
protected:
    ADrawing() {
        qt::setLook(*qApp, GetParam());
        registerEverything(desk, heard);
        desk.act([this] { desk.show("Everything"); });
        drawing = &desk.find("Everything")->control("Curves").drawing();
        QCoreApplication::processEvents();
    }
    ~ADrawing() override { qt::setLook(*qApp, qt::Look::Light); }
    ADrawing(const ADrawing&) = delete;
    ADrawing& operator=(const ADrawing&) = delete;

    [[nodiscard]] QWidget& widget() const {
        return *renderer.widgetOf(*desk.find("Everything"))->findChild<QWidget*>(QStringLiteral("Curves"));
    }
    [[nodiscard]] QColor at(int x, int y) const { return widget().grab().toImage().pixelColor(x, y); }
    [[nodiscard]] QPalette palette() const { return widget().palette(); }

    Surroundings around{std::filesystem::temp_directory_path()};
    Heard heard;
    Desk desk{around.services()};
    qt::Renderer renderer{desk, {.realTimers = false}};
    DrawingPart* drawing = nullptr;
};

/// How far apart two colours look, from 1 (alike) to 21 (black on white).
double contrast(const QColor& a, const QColor& b) {
    const auto brightness = [](const QColor& color) {
        const auto linear = [](double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const double first = brightness(a) + 0.05;
    const double second = brightness(b) + 0.05;
    return first > second ? first / second : second / first;
}

TEST_P(ADrawing, ShowsItsLinesAndMarksInTheColoursOfTheirTones) {
    EXPECT_EQ(at(100, 40), qt::toneColor(Tone::First, palette()));
    EXPECT_EQ(at(100, 60), qt::toneColor(Tone::Second, palette()));
    EXPECT_EQ(at(20, 60), palette().color(QPalette::Base)) << "nothing is drawn there";
}

TEST_P(ADrawing, PutsATextInTheMiddleOfItsPlace) {
    const auto picture = widget().grab().toImage();
    const auto inked = [&](int from, int to) {
        for (int x = from; x < to; ++x) {
            for (int y = 8; y < 24; ++y) {
                if (picture.pixelColor(x, y) != palette().color(QPalette::Base)) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(inked(88, 112));
    EXPECT_FALSE(inked(1, 70));
    EXPECT_FALSE(inked(130, 199));
}

TEST_P(ADrawing, IsPaintedAnewWhenItsRevisionGrows) {
    drawing->lines.clear();
    desk.act([this] { ++drawing->revision; });
    QCoreApplication::processEvents();
    EXPECT_EQ(at(100, 40), palette().color(QPalette::Base));
}

TEST_P(ADrawing, HasTonesThatStandOutFromTheGroundAndFromEachOther) {
    const auto ground = palette().color(QPalette::Base);
    for (const auto tone : ReadTones) {
        EXPECT_GE(contrast(qt::toneColor(tone, palette()), ground), 4.5) << static_cast<int>(tone);
    }
    for (const auto tone : AllTones) {
        for (const auto other : AllTones) {
            if (tone != other) {
                EXPECT_NE(qt::toneColor(tone, palette()), qt::toneColor(other, palette()));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(InBothLooks, ADrawing, testing::Values(qt::Look::Light, qt::Look::Dark),
                         [](const auto& look) { return look.param == qt::Look::Light ? "Light" : "Dark"; });

} // namespace
} // namespace kov::screen
