// The painter against a plain distance test for every pixel, and its damage boxes against what really changed.
#include "platform/Surface.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

namespace prismfall {
namespace {

constexpr Colour kOrange = 0x1080F0;  // 0xBBGGRR
constexpr std::uint32_t kOrangePixel = 0xFFF08010;

struct Segment {
    std::int64_t x1, y1, x2, y2;
};

std::ostream& operator<<(std::ostream& out, const Segment& s) {
    return out << s.x1 << ',' << s.y1 << " to " << s.x2 << ',' << s.y2;
}

// 4 (x² + y²) <= width², by squares of numbers that are small enough to be squared.
bool IsWithin(std::int64_t x, std::int64_t y, std::int64_t width) {
    return std::abs(x) < width && std::abs(y) < width && 4 * (x * x + y * y) <= width * width;
}

bool IsCovered(const Segment& s, std::int64_t width, std::int64_t x, std::int64_t y) {
    if (IsWithin(x - s.x1, y - s.y1, width) || IsWithin(x - s.x2, y - s.y2, width)) return true;
    const std::int64_t dx = s.x2 - s.x1, dy = s.y2 - s.y1;
    const std::int64_t along = (x - s.x1) * dx + (y - s.y1) * dy, length2 = dx * dx + dy * dy;
    const std::int64_t across = 2 * std::abs((x - s.x1) * dy - (y - s.y1) * dx);
    if (length2 == 0 || along < 0 || along > length2) return false;
    if (across > 1'000'000) return false;  // the longest segment is shorter than 100,000
    return across * across <= width * width * length2;
}

// Tells the first pixel that differs from the expectation; empty if none does.
template <typename Expected>
std::string Difference(const Surface& surface, Expected expected) {
    for (int y = 0; y < Surface::kHeight; ++y)
        for (int x = 0; x < Surface::kWidth; ++x)
            if (surface.PixelAt(x, y) != expected(x, y))
                return "at " + std::to_string(x) + ',' + std::to_string(y) + " stands " +
                       std::to_string(surface.PixelAt(x, y));
    return {};
}

std::string DifferenceFromLine(const Segment& s, int width) {
    Surface surface;
    surface.Line(static_cast<int>(s.x1), static_cast<int>(s.y1), static_cast<int>(s.x2), static_cast<int>(s.y2),
                 kOrange, width);
    return Difference(surface, [&](int x, int y) {
        return width > 0 && IsCovered(s, width, x, y) ? kOrangePixel : Surface::kUnpainted;
    });
}

TEST(Surface, LinesCoverWhatLiesWithinHalfTheirWidth) {
    constexpr Segment kSegments[] = {{100, 100, 140, 140},
                                     {140, 100, 100, 140},
                                     {30, 300, 30, 300},
                                     {50, 50, 90, 50},
                                     {90, 60, 90, 20},
                                     {100, 100, 161, 117},
                                     {300, 200, 307, 290},
                                     {0, 0, 801, 601},
                                     {-3, -3, 5, 5},
                                     {799, 599, 810, 610},
                                     {-50, 300, 900, 310},
                                     {-32768, -32768, 32767, 32767},
                                     {32767, -32768, -32768, 32767},
                                     {-32768, 300, 32767, 301},
                                     {400, -32768, 401, 32767},
                                     {-32768, 0, 32767, 601},
                                     {32767, 32767, 32766, 32767},
                                     {802, 602, 1300, 1100},
                                     {-2, 10, -2, 500},
                                     {803, 10, 803, 500},
                                     {20, -2, 500, -2},
                                     {20, 603, 500, 603}};
    for (const Segment& segment : kSegments)
        for (int width = 0; width <= 5; ++width)
            EXPECT_EQ(DifferenceFromLine(segment, width), "") << segment << ", width " << width;
}

TEST(Surface, RandomLinesCoverWhatLiesWithinHalfTheirWidth) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> place(-60, 860), nearby(-12, 12), width(1, 9);
    for (int i = 0; i < 60; ++i) {
        const int x = place(random), y = place(random);
        const bool isShort = i % 2 == 0;
        const Segment segment{x, y, isShort ? x + nearby(random) : place(random),
                              isShort ? y + nearby(random) : place(random)};
        const int pen = width(random);
        EXPECT_EQ(DifferenceFromLine(segment, pen), "") << segment << ", width " << pen;
    }
}

TEST(Surface, PaintsOutlinesRestoresAndClears) {
    Surface surface;
    surface.Line(400, 300, 410, 300, 0xFFFFFF, 5);
    surface.Box(395, 295, 415, 305, kOrange, 3);
    const auto boxed = [](int x, int y) {
        return IsCovered({395, 295, 415, 295}, 3, x, y) || IsCovered({395, 305, 415, 305}, 3, x, y) ||
               IsCovered({395, 295, 395, 305}, 3, x, y) || IsCovered({415, 295, 415, 305}, 3, x, y);
    };
    const auto painted = [&](int x, int y) {
        if (boxed(x, y)) return kOrangePixel;
        return IsCovered({400, 300, 410, 300}, 5, x, y) ? 0xFFFFFFFFU : Surface::kUnpainted;
    };
    EXPECT_EQ(Difference(surface, painted), "");
    surface.Restore(405, 297, 416, 303);
    EXPECT_EQ(Difference(surface,
                         [&](int x, int y) {
                             const bool isRestored = x >= 405 && x < 416 && y >= 297 && y < 303;
                             return isRestored ? Surface::kUnpainted : painted(x, y);
                         }),
              "");
    surface.Restore(-100, -100, 32767, 32767);
    EXPECT_EQ(Difference(surface, [](int, int) { return Surface::kUnpainted; }), "");
    surface.Line(0, 0, 801, 601, kOrange, 5);
    surface.Clear();
    EXPECT_EQ(Difference(surface, [](int, int) { return Surface::kUnpainted; }), "");
}

void PaintSomething(Surface& surface, std::mt19937& random) {
    std::uniform_int_distribution<int> place(-40, 840), nearby(0, 60), width(1, 5), choice(0, 99);
    const int x = place(random), y = place(random), x2 = x + nearby(random), y2 = y + nearby(random);
    const int what = choice(random);
    if (what == 0) return surface.Clear();
    if (what < 10) return surface.Restore(x, y, x2, y2);
    if (what < 20) return surface.Box(x, y, x2, y2, static_cast<Colour>(x & 255), width(random));
    surface.Line(x, y, what < 60 ? place(random) : x2, what < 60 ? place(random) : y2, kOrange, width(random));
}

TEST(Surface, DamageCoversEveryChangedPixelOnce) {
    std::mt19937 random(11);
    Surface surface;
    std::vector<PixelBox> boxes;
    for (const int operations : {1, 1, 1, 1, 5, 5, 5, 30, 30, 900}) {
        const Surface before = surface;
        for (int i = 0; i < operations; ++i) PaintSomething(surface, random);
        surface.TakeDamage(boxes);
        std::vector<bool> isDamaged(static_cast<std::size_t>(Surface::kWidth * Surface::kHeight));
        for (const PixelBox& box : boxes) {
            ASSERT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= Surface::kWidth &&
                        box.bottom <= Surface::kHeight);
            for (int y = box.top; y < box.bottom; ++y)
                for (int x = box.left; x < box.right; ++x)
                    isDamaged[static_cast<std::size_t>(y * Surface::kWidth + x)] = true;
        }
        EXPECT_EQ(Difference(surface,
                             [&](int x, int y) {
                                 const bool mayDiffer = isDamaged[static_cast<std::size_t>(y * Surface::kWidth + x)];
                                 return mayDiffer ? surface.PixelAt(x, y) : before.PixelAt(x, y);
                             }),
                  "")
            << operations << " operations";
        surface.TakeDamage(boxes);
        EXPECT_TRUE(boxes.empty()) << "damage is told once";
    }
}

TEST(Surface, DamageOfALongDiagonalStaysNearIt) {
    Surface surface;
    std::vector<PixelBox> boxes;
    surface.Line(20, 20, 580, 580, kOrange, 5);
    surface.TakeDamage(boxes);
    int area = 0;
    for (const PixelBox& box : boxes) area += (box.right - box.left) * (box.bottom - box.top);
    EXPECT_LT(area, 560 * 560 / 10);
}

}  // namespace
}  // namespace prismfall
