// The second palette: how far apart any two colours of a row are (CIEDE2000) for all eyes, and how far from black.
#include "simulation/Palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace prismfall {
namespace {

using Triple = std::array<double, 3>;

// Everyone, then those without one of the three kinds of cones (Machado, Oliveira and Fernandes 2009, severity 1).
constexpr std::array<std::array<Triple, 3>, 4> kEyes = {{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}},
}};

Triple Linear(Colour colour) {
    const auto part = [&](int shift) {
        const double share = static_cast<double>(colour >> shift & 0xFF) / 255;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return {part(0), part(8), part(16)};
}

Triple SeenBy(const std::array<Triple, 3>& eye, const Triple& light) {
    Triple seen{};
    for (std::size_t i = 0; i < 3; ++i)
        seen[i] = std::clamp(eye[i][0] * light[0] + eye[i][1] * light[1] + eye[i][2] * light[2], 0.0, 1.0);
    return seen;
}

double Luminance(const Triple& light) { return 0.2126729 * light[0] + 0.7151522 * light[1] + 0.0721750 * light[2]; }

Triple Lab(const Triple& light) {
    const auto f = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
    const double x = f((0.4124564 * light[0] + 0.3575761 * light[1] + 0.1804375 * light[2]) / 0.95047);
    const double y = f(Luminance(light));
    const double z = f((0.0193339 * light[0] + 0.1191920 * light[1] + 0.9503041 * light[2]) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Ciede2000(const Triple& first, const Triple& second) {
    const double degree = std::numbers::pi / 180;
    const auto seventh = [](double c) { return std::sqrt(std::pow(c, 7) / (std::pow(c, 7) + std::pow(25.0, 7))); };
    const double g = 0.5 * (1 - seventh((std::hypot(first[1], first[2]) + std::hypot(second[1], second[2])) / 2));
    const double a1 = first[1] * (1 + g), a2 = second[1] * (1 + g);
    const double c1 = std::hypot(a1, first[2]), c2 = std::hypot(a2, second[2]), c = (c1 + c2) / 2;
    const auto hue = [&](double a, double b) { return std::fmod(std::atan2(b, a) / degree + 360, 360); };
    const double h1 = hue(a1, first[2]), h2 = hue(a2, second[2]);
    const double turn = h2 - h1 > 180 ? h2 - h1 - 360 : h2 - h1 < -180 ? h2 - h1 + 360 : h2 - h1;
    const double h = h1 + turn / 2, l = (first[0] + second[0]) / 2 - 50;
    const auto cosine = [&](double angle) { return std::cos(angle * degree); };
    const double t =
        1 - 0.17 * cosine(h - 30) + 0.24 * cosine(2 * h) + 0.32 * cosine(3 * h + 6) - 0.2 * cosine(4 * h - 63);
    const double dl = (second[0] - first[0]) / (1 + 0.015 * l * l / std::sqrt(20 + l * l));
    const double dc = (c2 - c1) / (1 + 0.045 * c);
    const double dh = 2 * std::sqrt(c1 * c2) * std::sin(turn / 2 * degree) / (1 + 0.015 * c * t);
    const double fromBlue = (std::fmod(h + 360, 360) - 275) / 25;
    const double rotation = -2 * seventh(c) * std::sin(60 * std::exp(-fromBlue * fromBlue) * degree);
    return std::sqrt(dl * dl + dc * dc + dh * dh + rotation * dc * dh);
}

TEST(Palette, IsToldApartByAllEyesAndStandsOutFromBlack) {
    // Of the formula's published examples, two of small and one of a large difference.
    EXPECT_NEAR(Ciede2000({50, 2.6772, -79.7751}, {50, 0, -82.7485}), 2.0425, 1e-4);
    EXPECT_NEAR(Ciede2000({2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}), 0.9082, 1e-4);
    EXPECT_NEAR(Ciede2000({50, 2.5, 0}, {73, 25, -18}), 27.1492, 1e-4);
    for (const auto& row : {kClearColors, kClearColorsUpper, kClearColorsLower}) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            EXPECT_GE((Luminance(Linear(row[i])) + 0.05) / 0.05, 3) << std::hex << row[i];
            for (std::size_t j = 0; j < i; ++j)
                for (const auto& eye : kEyes)
                    EXPECT_GE(Ciede2000(Lab(SeenBy(eye, Linear(row[i]))), Lab(SeenBy(eye, Linear(row[j])))), 20)
                        << std::hex << row[i] << ' ' << row[j];
        }
    }
}

}  // namespace
}  // namespace prismfall
