#pragma once

#include <compare>

namespace kov {

/// A length on screen: 1440 to the inch, 15 to a pixel at 96 dpi. Whole numbers stay whole; scaling may leave fractions.
struct Twips {
    double value = 0;
    constexpr Twips() = default;
    constexpr explicit Twips(double length) : value(length) {}

    static constexpr double PerPixel = 15;
    [[nodiscard]] static constexpr Twips ofPixels(double pixels) { return Twips{pixels * PerPixel}; }
    [[nodiscard]] constexpr double pixels() const { return value / PerPixel; }

    friend constexpr auto operator<=>(const Twips&, const Twips&) = default;
    friend constexpr Twips operator+(Twips a, Twips b) { return Twips{a.value + b.value}; }
    friend constexpr Twips operator-(Twips a, Twips b) { return Twips{a.value - b.value}; }
    friend constexpr Twips operator*(Twips a, double factor) { return Twips{a.value * factor}; }
};

/// A place and size on screen.
struct Bounds {
    Twips left;
    Twips top;
    Twips width;
    Twips height;
};

} // namespace kov
