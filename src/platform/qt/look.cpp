#include "platform/qt/look.hpp"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

#include <array>

namespace kov::qt {
namespace {

constexpr int DesignPoints = 9, MiddleGrey = 128;

struct Colours {
    QColor window, base, alternate, button, text, dim, accent, light, mid, dark;
};

Colours coloursOf(Look look) {
    if (look == Look::Dark) {
        return {QColor(0x2b2d31), QColor(0x1f2124), QColor(0x26282c), QColor(0x383b40), QColor(0xe6e6e6),
                QColor(0x83878d), QColor(0x3d7edb), QColor(0x33363b), QColor(0x45494f), QColor(0x17181a)};
    }
    return {QColor(0xf3f4f6), QColor(0xffffff), QColor(0xf7f8fa), QColor(0xfafafb), QColor(0x1d2025),
            QColor(0x8d9299), QColor(0x2563c9), QColor(0xffffff), QColor(0xc9cdd3), QColor(0x9aa0a8)};
}

QPalette paletteOf(Look look) {
    const auto colours = coloursOf(look);
    QPalette palette;
    palette.setColor(QPalette::Window, colours.window);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternate);
    palette.setColor(QPalette::Button, colours.button);
    palette.setColor(QPalette::Light, colours.light);
    palette.setColor(QPalette::Midlight, colours.light);
    palette.setColor(QPalette::Mid, colours.mid);
    palette.setColor(QPalette::Dark, colours.dark);
    palette.setColor(QPalette::Shadow, colours.dark);
    palette.setColor(QPalette::Highlight, colours.accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colours.accent);
    palette.setColor(QPalette::ToolTipBase, colours.base);
    palette.setColor(QPalette::ToolTipText, colours.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText}) {
        palette.setColor(role, colours.text);
        palette.setColor(QPalette::Disabled, role, colours.dim);
    }
    palette.setColor(QPalette::PlaceholderText, colours.dim);
    palette.setColor(QPalette::Disabled, QPalette::Base, colours.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.mid);
    // A choice stays readable in a window that isn't in front.
    palette.setColor(QPalette::Inactive, QPalette::Highlight, colours.mid);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, colours.text);
    return palette;
}

} // namespace

void setLook(QApplication& application, Look look) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(paletteOf(look));
    application.setFont(designFont());
}

Look lookOfDesktop(const QApplication& application) {
    return application.palette().color(QPalette::Window).lightness() < MiddleGrey ? Look::Dark : Look::Light;
}

QFont designFont() {
    QFont font(QStringLiteral("Sans Serif"));
    static const std::array<QString, 4> preferred{QStringLiteral("Segoe UI"), QStringLiteral("Liberation Sans"),
                                                  QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")};
    font.setFamilies({preferred.begin(), preferred.end()});
    font.setPointSize(DesignPoints);
    return font;
}

QFont fixedFont() {
    auto font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setFamilies({QStringLiteral("Liberation Mono"), QStringLiteral("Courier New"), font.family()});
    font.setPointSize(DesignPoints);
    font.setFixedPitch(true);
    return font;
}

QColor lineColor(const QPalette& palette) { return palette.color(QPalette::Mid); }

QColor toneColor(DrawingPart::Tone tone, const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < MiddleGrey;
    switch (tone) {
    case DrawingPart::Tone::Axis:
        return palette.color(QPalette::PlaceholderText);
    case DrawingPart::Tone::Faint:
        return palette.color(dark ? QPalette::Button : QPalette::Window);
    case DrawingPart::Tone::First:
        return dark ? QColor(0x6aa8ff) : QColor(0x1f5fbf);
    case DrawingPart::Tone::Second:
        return dark ? QColor(0xffa14a) : QColor(0xb8530a);
    case DrawingPart::Tone::Limit:
        return dark ? QColor(0xff7b72) : QColor(0xb3261e);
    default:
        return palette.color(QPalette::Text);
    }
}

} // namespace kov::qt
